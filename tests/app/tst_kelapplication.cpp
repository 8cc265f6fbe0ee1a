// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "stylesheets.h"
#include "table.h"
#include "testmain.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QPainterPath>
#include <QRawFont>
#include <QTest>

namespace {

/// What was logged before the first test function ran.
QStringList &startMessages()
{
    static QStringList messages;
    return messages;
}

void collect(QtMsgType, const QMessageLogContext &, const QString &message)
{
    startMessages() += message;
}

} // namespace

class KelApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsInSilence();
    void setsTheHighDpiEnvironmentAndAttributes();
    void writesNumbersInEnglish();
    void bringsBothFontFamilies_data();
    void bringsBothFontFamilies();
    void drawsAStyleFromItsOwnFile_data();
    void drawsAStyleFromItsOwnFile();
    void theFontsAreSmall();
    void installsTheBrightStyleSheets();
    void installsAnotherThemeOnRequest();
    void hasEveryStyleSheet_data();
    void hasEveryStyleSheet();
    void thePanelHasNoDarkSheet();
};

void KelApplicationTest::startsInSilence()
{
    QCOMPARE(startMessages(), QStringList());
}

void KelApplicationTest::setsTheHighDpiEnvironmentAndAttributes()
{
    QCOMPARE(qgetenv("QT_AUTO_SCREEN_SCALE_FACTOR"), QByteArray("1"));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // in Qt 6, which always does what they stand for
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    QT_WARNING_POP
}

void KelApplicationTest::writesNumbersInEnglish()
{
    QCOMPARE(QLocale().language(), QLocale::English);
    QCOMPARE(QLocale().decimalPoint(), QLatin1Char('.'));
}

void KelApplicationTest::bringsBothFontFamilies_data()
{
    columns<QString>({"family"});
    row("the family of most texts", "Tessan");
    row("the condensed family", "TessanCd");
}

void KelApplicationTest::bringsBothFontFamilies()
{
    QFETCH(QString, family);

    const QFontDatabase fonts;
    QStringList styles = fonts.styles(family);
    styles.sort();
    QCOMPARE(styles, QStringList({QStringLiteral("Bold"), QStringLiteral("Italic"),
                                  QStringLiteral("Light"), QStringLiteral("Regular")}));
    QCOMPARE(QFontInfo(QFont(family)).family(), family);
}

void KelApplicationTest::drawsAStyleFromItsOwnFile_data()
{
    columns<QString, int, QString>({"family", "weight", "file"});
    for (const char *family : {"Tessan", "TessanCd"}) {
        const auto row = [family](const char *style, int weight) {
            QTest::addRow("%s %s", family, style)
                << QString::fromLatin1(family) << weight
                << QStringLiteral(":/Global/Fonts/%1_v3_%2_02.ttf")
                       .arg(QLatin1String(family), QLatin1String(style));
        };
        row("Regular", QFont::Normal);
        row("Bold", QFont::Bold);
    }
}

/// Windows confuses neighboring styles whose names are too much alike.
void KelApplicationTest::drawsAStyleFromItsOwnFile()
{
    QFETCH(QString, family);
    QFETCH(int, weight);
    QFETCH(QString, file);

    QFont font(family, -1, weight);
    font.setPixelSize(1000);
    const QRawFont drawn = QRawFont::fromFont(font);
    const QRawFont own(file, 1000);
    const QVector<quint32> glyph = own.glyphIndexesForString(QStringLiteral("m"));
    QCOMPARE(drawn.glyphIndexesForString(QStringLiteral("m")), glyph);
    QVERIFY(!own.pathForGlyph(glyph.constFirst()).isEmpty());
    QCOMPARE(drawn.pathForGlyph(glyph.constFirst()), own.pathForGlyph(glyph.constFirst()));
}

void KelApplicationTest::installsTheBrightStyleSheets()
{
    QCOMPARE(qApp->styleSheet(), StyleSheets::combined(QStringLiteral(":/Global/Style/"), Bright));
    QVERIFY(qApp->styleSheet().contains(QLatin1String("Tessan")));
}

void KelApplicationTest::installsAnotherThemeOnRequest()
{
    auto *application = qobject_cast<KelApplication *>(qApp);
    application->installStyleSheet(Dark);
    QCOMPARE(qApp->styleSheet(), StyleSheets::combined(QStringLiteral(":/Global/Style/"), Dark));
    application->installStyleSheet(Bright);
}

void KelApplicationTest::hasEveryStyleSheet_data()
{
    columns<QString>({"path"});
    for (const char *name : {"global", "qcheckbox", "qprogressbar", "kelmessagebox",
                             "kelpanelwidget", "kelsettingsdialog", "keltogglebutton",
                             "kelupdatedownloaddialog", "kelupdatenotifydialog"}) {
        for (const char *suffix : {"", "_bright", "_dark"}) {
            const QByteArray file = QByteArray(name) + suffix + ".qss";
            if (file != "kelpanelwidget_dark.qss")
                row(file.constData(), QLatin1String(":/Global/Style/") + QLatin1String(file));
        }
    }
    row("main_light.qss", ":/main_light.qss");
    row("main_dark.qss", ":/main_dark.qss");
}

void KelApplicationTest::hasEveryStyleSheet()
{
    QFETCH(QString, path);

    const auto sheet = StyleSheets::read(path);
    QVERIFY(sheet);
    QVERIFY(!sheet->isEmpty());
}

void KelApplicationTest::thePanelHasNoDarkSheet()
{
    QVERIFY(!StyleSheets::read(QStringLiteral(":/Global/Style/kelpanelwidget_dark.qss")));
}

void KelApplicationTest::theFontsAreSmall()
{
    qint64 bytes = 0;
    for (const char *name : {"Tessan_v3_Bold_02", "Tessan_v3_Italic_02", "Tessan_v3_Light_02",
                             "Tessan_v3_Regular_02", "TessanCd_v3_Bold_02", "TessanCd_v3_Italic_02",
                             "TessanCd_v3_Light_02", "TessanCd_v3_Regular_02"}) {
        const QFileInfo font(QStringLiteral(":/Global/Fonts/%1.ttf").arg(QLatin1String(name)));
        QVERIFY2(font.size() > 0, name);
        bytes += font.size();
    }
    QVERIFY2(bytes < 600000, QByteArray::number(bytes).constData());
}

int main(int argc, char **argv)
{
    qInstallMessageHandler(collect);
    return runTestMain<KelApplication, KelApplicationTest>(argc, argv, true);
}

#include "tst_kelapplication.moc"
