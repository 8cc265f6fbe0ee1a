// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "errortexts.h"
#include "kelapplication.h"
#include "mainwindow.h"
#include "table.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRawFont>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>

using namespace Dezimo;

namespace {

/// Characters, each with a place where it was seen.
class ShownCharacters
{
public:
    void add(const QString &text, const QString &place)
    {
        const QVector<uint> codes = text.toUcs4();
        for (const uint code : codes) {
            if (code >= 0x20 && code != QChar::LineSeparator && code != QChar::ParagraphSeparator)
                m_places[code] = place;
        }
    }

    /// The characters that @p family has no glyph for, in words.
    QStringList missingIn(const QString &family, const QString &style) const
    {
        const QRawFont font = QRawFont::fromFont(QFontDatabase().font(family, style, 14));
        QStringList missing;
        for (auto it = m_places.begin(); it != m_places.end(); ++it) {
            if (!font.supportsCharacter(it.key()))
                missing += QStringLiteral("U+%1 of %2").arg(it.key(), 4, 16).arg(it.value());
        }
        return missing;
    }

    int count() const { return int(m_places.size()); }

private:
    QMap<uint, QString> m_places;
};

QString plainText(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

/// What @p widget itself draws as text.
QStringList textsOf(const QWidget &widget)
{
    QStringList texts{widget.toolTip()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts += plainText(label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts += button->text();
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        texts << edit->text() << edit->placeholderText();
    if (const auto *spin = qobject_cast<const QSpinBox *>(&widget))
        texts << spin->text() << spin->prefix() << spin->suffix();
    if (const auto *page = qobject_cast<const QTextEdit *>(&widget))
        texts += page->toPlainText();
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts += tabs->tabText(i);
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts += box->itemText(i);
    }
    if (const auto *list = qobject_cast<const QListWidget *>(&widget)) {
        for (int i = 0; i < list->count(); ++i)
            texts += list->item(i)->text();
    }
    const QList<QAction *> actions = widget.actions();
    for (const QAction *action : actions)
        texts += action->text();
    return texts;
}

void collect(const QWidget &root, ShownCharacters &characters)
{
    const auto take = [&characters](const QWidget &widget) {
        const QStringList texts = textsOf(widget);
        for (const QString &text : texts)
            characters.add(text, QString::fromLatin1(widget.metaObject()->className()) +
                                     QLatin1Char(' ') + widget.objectName());
    };
    take(root);
    const QList<QWidget *> widgets = root.findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        take(*widget);
}

} // namespace

/// Every character that the program shows has a glyph in the program's own fonts.
class GlyphsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyShownCharacterHasAGlyph_data();
    void everyShownCharacterHasAGlyph();

private:
    void collectDialog(MainWindow &window, const char *action);

    ShownCharacters m_characters;
};

/// Triggers an action that opens a dialog, modal or not, and collects what the dialog shows.
void GlyphsTest::collectDialog(MainWindow &window, const char *action)
{
    bool collected = false;
    QTimer watcher;
    watcher.setSingleShot(true);
    connect(&watcher, &QTimer::timeout, &window, [this, &collected] {
        const QList<QWidget *> tops = QApplication::topLevelWidgets();
        for (QWidget *top : tops) {
            auto *dialog = qobject_cast<QDialog *>(top);
            if (dialog == nullptr || !dialog->isVisible())
                continue;
            collect(*dialog, m_characters);
            collected = true;
            dialog->close();
        }
    });
    watcher.start(0);
    window.findChild<QAction *>(QLatin1String(action))->trigger();
    QTRY_VERIFY(collected);
}

void GlyphsTest::initTestCase()
{
    MainWindow window;
    window.show();
    Q_EMIT window.findChild<QMenu *>(QStringLiteral("menuDecimal_Places"))->aboutToShow();
    collect(window, m_characters);
    collectDialog(window, "actionOpen");
    collectDialog(window, "actionSave");
    collectDialog(window, "actionAbout");
    const QStringList errors = ErrorText::all();
    for (const QString &error : errors)
        m_characters.add(error, QStringLiteral("error text"));
    QVERIFY(m_characters.count() > 60); // with fewer than the alphabet, collecting has failed
}

void GlyphsTest::everyShownCharacterHasAGlyph_data()
{
    columns<QString, QString>({"family", "style"});
    for (const char *family : {"Tessan", "TessanCd"}) {
        for (const char *style : {"Regular", "Bold", "Italic", "Light"})
            QTest::addRow("%s %s", family, style) << family << style;
    }
}

void GlyphsTest::everyShownCharacterHasAGlyph()
{
    QFETCH(QString, family);
    QFETCH(QString, style);

    QCOMPARE(m_characters.missingIn(family, style), QStringList());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, GlyphsTest>(argc, argv, true);
}

#include "tst_glyphs.moc"
