// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "resources.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

/// The program asks for its resources by name, so each name must stay and have contents.
class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void holdTheseNamesAndNoOthers();
    void areFilledIn_data();
    void areFilledIn();
};

namespace {

QStringList sheetNames()
{
    QStringList names{QStringLiteral(":/main_light.qss"), QStringLiteral(":/main_dark.qss")};
    for (const char *sheet :
         {"global", "kelmessagebox", "kelpanelwidget", "kelsettingsdialog", "keltogglebutton",
          "kelupdatedownloaddialog", "kelupdatenotifydialog", "qcheckbox", "qprogressbar"}) {
        for (const char *suffix : {"", "_bright", "_dark"})
            names += QStringLiteral(":/Global/Style/%1%2.qss")
                         .arg(QLatin1String(sheet), QLatin1String(suffix));
    }
    names.removeOne(QStringLiteral(":/Global/Style/kelpanelwidget_dark.qss"));
    return names;
}

QStringList iconNames()
{
    QStringList names{QStringLiteral(":/Global/Icons_SVG/custom/dezimo.svg")};
    for (const char *theme : {"bright", "dark"}) {
        const QLatin1String word(theme);
        for (const char *icon :
             {"dbmcalc_16", "voltagecalc_16", "unitconv_16", "dbconv_16", "vswrconv_16"})
            names += QStringLiteral(":/%1_%2.svg").arg(QLatin1String(icon), word);
        for (const char *icon : {"Add_16", "Add_48", "Minus_16", "player_back_16", "player_next_16",
                                 "Arrow_Down_16", "Arrow_Up_16", "Disclosure_16", "Check_16",
                                 "Ok_32", "Warning_32", "Error_32", "Question_32"})
            names += QStringLiteral(":/Global/Icons_SVG/%2/Icon_%1_%2.svg")
                         .arg(QLatin1String(icon), word);
        names += QStringLiteral(":/Global/Icons_SVG/custom/Kelmark_48_%1.svg").arg(word);
    }
    return names;
}

QStringList otherNames()
{
    QStringList names{QStringLiteral(":/Global/Html/License.html"),
                      QStringLiteral(":/Global/Html/guide.html"),
                      QStringLiteral(":/Global/Html/guide_bright.css"),
                      QStringLiteral(":/Global/Html/guide_dark.css")};
    for (const char *module : {"dbm-calculator", "voltage-calculator", "unit-converter",
                               "db-converter", "vswr-converter"})
        names += QStringLiteral(":/Global/Html/pictures/%1.png").arg(QLatin1String(module));
    for (const char *family : {"Tessan", "TessanCd"}) {
        for (const char *style : {"Bold", "Italic", "Light", "Regular"})
            names += QStringLiteral(":/Global/Fonts/%1_v3_%2_02.ttf")
                         .arg(QLatin1String(family), QLatin1String(style));
    }
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

void ResourcesTest::initTestCase()
{
    initDezimoResources();
}

void ResourcesTest::holdTheseNamesAndNoOthers()
{
    QStringList found;
    QDirIterator files(QStringLiteral(":/"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        if (!name.startsWith(QLatin1String(":/qt-project.org/")))
            found += name;
    }
    QCOMPARE(sorted(found), sorted(sheetNames() + iconNames() + otherNames()));
}

void ResourcesTest::areFilledIn_data()
{
    QTest::addColumn<QString>("name");

    const QStringList names = sheetNames() + iconNames() + otherNames();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void ResourcesTest::areFilledIn()
{
    QFETCH(QString, name);

    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(!content.trimmed().isEmpty());
    static const QRegularExpression themed(QStringLiteral("\\.(qss|css|svg)$"));
    if (name.contains(themed))
        QVERIFY2(!content.contains('@'), "a role of the palette that nothing replaced");
}

DEZIMO_TEST_MAIN(QCoreApplication, ResourcesTest)

#include "tst_resources.moc"
