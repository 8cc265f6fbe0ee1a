// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "editcase.h"
#include "kelnumericlineedit.h"
#include "table.h"
#include "testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QIntValidator>
#include <QTest>

/// What a person pastes or drops is cleaned on its way in. Otherwise the edit does as Qt's own
/// does.
class PastingTest : public EditCase
{
    Q_OBJECT

public:
    PastingTest();

private Q_SLOTS:
    void cleansWhatComesIn_data() { addComings(); }
    void cleansWhatComesIn();
    void cleansWhatIsSelectedElsewhere_data();
    void cleansWhatIsSelectedElsewhere();
    void theMiddleButtonPastesBesideTheSelection();
    void keepsWhatDoesNotComeIn_data();
    void keepsWhatDoesNotComeIn();
    void leavesOutTheUnitInItsEnd();
    void leavesOutTheChosenUnit();
    void keepsAMicroSignIfAsked();
    void insertsAtTheCursor();
    void replacesTheSelection_data() { addPastes(); }
    void replacesTheSelection();
    void keepsTheValueIfNothingIsLeftOfTheText_data();
    void keepsTheValueIfNothingIsLeftOfTheText();
    void whatIsRefusedLeavesNoCursor();
    void isOneStepOfUndo_data();
    void isOneStepOfUndo();
    void staysWithinTheLargestLength();
    void isRefusedByAValidatorAsAWhole();
    void isRefusedByAReadOnlyEdit_data() { addComings(); }
    void isRefusedByAReadOnlyEdit();
    void pastesNothingFromAnEmptyClipboard();
    void pastesNothingOverASelection();
    void isAnEditOnce_data() { addComings(); }
    void isAnEditOnce();
    void aNumericEditTakesWhatIsCleaned_data();
    void aNumericEditTakesWhatIsCleaned();

private:
    void addPastes() const { addRows(m_pastes); }
    void addComings() const { addRows(m_comings); }
    static void addRows(const Steps &steps);
    void bring(const QString &text, const QString &way);

    QString m_text; ///< what comes in
    Steps m_pastes;
    Steps m_comings;
};

namespace {

/// Skips the test if the clipboard stays full: with Wayland Qt keeps what it had.
bool emptyTheClipboard()
{
    QApplication::clipboard()->clear();
    const bool isEmpty = QApplication::clipboard()->text().isEmpty();
    if (!isEmpty)
        QTest::qSkip("the clipboard cannot be emptied here", __FILE__, __LINE__);
    return isEmpty;
}

} // namespace

PastingTest::PastingTest()
{
    const auto pasting = [this](const char *keyNames) {
        return [this, keyNames] {
            QApplication::clipboard()->setText(m_text);
            keys(keyNames);
        };
    };
    add(m_pastes, "by Ctrl+V", pasting("Ctrl+V"));
    add(m_pastes, "by Shift+Insert", pasting("Shift+Ins"));
    add(m_pastes, "from the context menu", [this] {
        QApplication::clipboard()->setText(m_text);
        chooseFromContextMenu(QStringLiteral("&Paste"));
    });
    m_comings = m_pastes;
    add(m_comings, "by dropping", [this] { drop(m_text); });
}

void PastingTest::addRows(const Steps &steps)
{
    columns<QString>({"way"});
    for (const Step &step : steps)
        row(step.name, step.name);
}

void PastingTest::bring(const QString &text, const QString &way)
{
    m_text = text;
    run(m_comings, way);
}

void PastingTest::cleansWhatComesIn()
{
    QFETCH(QString, way);

    m_edit->clear();
    bring(QStringLiteral("\u22121\u00A0000.5 \u00B5\n"), way);
    QCOMPARE(m_edit->text(), QStringLiteral("-1000.5u"));
}

void PastingTest::cleansWhatIsSelectedElsewhere_data()
{
    columns<bool>({"isByKey"});
    row("by the middle button", false);
    row("by Ctrl+Shift+Insert", true);
}

void PastingTest::cleansWhatIsSelectedElsewhere()
{
    QFETCH(bool, isByKey);

    if (!QApplication::clipboard()->supportsSelection()) {
        QTest::qSkip("no text is pasted by being selected here", __FILE__, __LINE__);
        return;
    }
    m_edit->clear();
    QApplication::clipboard()->setText(QStringLiteral("7"));
    QApplication::clipboard()->setText(QStringLiteral("\u22121 \u00B5"), QClipboard::Selection);
    if (isByKey)
        keys("Ctrl+Shift+Ins");
    else
        QTest::mouseClick(m_edit, Qt::MiddleButton);
    QCOMPARE(m_edit->text(), QStringLiteral("-1u"));
}

void PastingTest::theMiddleButtonPastesBesideTheSelection()
{
    if (!QApplication::clipboard()->supportsSelection()) {
        QTest::qSkip("no text is pasted by being selected here", __FILE__, __LINE__);
        return;
    }
    m_edit->selectAll();
    QApplication::clipboard()->setText(QStringLiteral("3 4"), QClipboard::Selection);
    QTest::mouseClick(m_edit, Qt::MiddleButton, {}, QPoint(250, 15)); // behind the text
    QCOMPARE(m_edit->text(), QStringLiteral("1234"));
}

void PastingTest::keepsWhatDoesNotComeIn_data()
{
    columns<int>({"way"});
    row("typed", 0);
    row("predicted by an input method", 1);
    row("written by the program", 2);
    row("written by a screen reader", 3);
}

void PastingTest::keepsWhatDoesNotComeIn()
{
    QFETCH(int, way);

    const QString text = QStringLiteral("\u22121 \u00B5W");
    m_edit->setSuffixText(QStringLiteral("W"));
    m_edit->clear();
    if (way == 0) {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, m_edit, Qt::Key_unknown, character, {});
    } else if (way == 1) {
        predict(text);
    } else if (way == 2) {
        m_edit->setText(text);
    } else {
        writeFromOutside(text);
    }
    QCOMPARE(m_edit->text(), text);
}

void PastingTest::leavesOutTheUnitInItsEnd()
{
    m_edit->clear();
    m_edit->setSuffixText(QStringLiteral("\u03A9"));
    bring(QStringLiteral("75 ohm"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("75"));
}

void PastingTest::leavesOutTheChosenUnit()
{
    QComboBox selector;
    selector.addItems({QStringLiteral("dBm"), QStringLiteral("dBW")});
    m_edit->setUnitSelector(&selector);
    m_edit->clear();
    bring(QStringLiteral("3 dBm"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("3"));

    selector.setCurrentIndex(1);
    m_edit->selectAll();
    bring(QStringLiteral("3 dBm"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("3dBm"));
    m_edit->selectAll();
    bring(QStringLiteral("3 dBW"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("3"));
}

void PastingTest::keepsAMicroSignIfAsked()
{
    m_edit->setMicroSign(PastedText::MicroSign::Kept);
    m_edit->clear();
    bring(QStringLiteral("1 \u00B5W"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("1\u00B5W"));
}

void PastingTest::insertsAtTheCursor()
{
    m_edit->setCursorPosition(1);
    bring(QStringLiteral("3 4"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("1342"));
    QCOMPARE(m_edit->cursorPosition(), 3);
    keys("Home");
    bring(QStringLiteral("5"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("51342"));
    QCOMPARE(m_edit->cursorPosition(), 1);
}

void PastingTest::replacesTheSelection()
{
    QFETCH(QString, way);

    m_edit->setText(QStringLiteral("12345"));
    m_edit->setSelection(1, 3);
    bring(QStringLiteral("6 7"), way);
    QCOMPARE(m_edit->text(), QStringLiteral("1675"));
    QCOMPARE(m_edit->cursorPosition(), 3);
}

void PastingTest::keepsTheValueIfNothingIsLeftOfTheText_data()
{
    columns<QString, QString>({"way", "text"});
    for (const Step &step : m_comings) {
        QTest::addRow("the unit alone, %s", step.name) << QString::fromLatin1(step.name) << "dBm";
        QTest::addRow("blanks, %s", step.name) << QString::fromLatin1(step.name) << " \n";
    }
}

void PastingTest::keepsTheValueIfNothingIsLeftOfTheText()
{
    QFETCH(QString, way);
    QFETCH(QString, text);

    m_edit->setSuffixText(QStringLiteral("dBm"));
    m_edit->selectAll();
    bring(text, way);
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    keys("Tab");
    QCOMPARE(m_finished->count(), 0);
}

/// While a text is over an edit, a cursor shows where it would come in.
void PastingTest::whatIsRefusedLeavesNoCursor()
{
    m_edit->setSuffixText(QStringLiteral("dBm"));
    m_neighbor->setFocus();
    const QImage before = m_edit->grab().toImage();
    drop(QStringLiteral("dBm"));
    QCOMPARE(m_edit->grab().toImage(), before);
}

void PastingTest::isOneStepOfUndo_data()
{
    columns<QString, QString, QString>({"before", "way", "pasted"});
    row("pasted behind what was typed", "3 4", "by Ctrl+V", "123456");
    row("pasted in front of what was typed", "3 4 Home", "by Ctrl+V", "561234");
    row("pasted into an edit that was emptied", "3 Ctrl+A Del", "by Ctrl+V", "56");
    row("pasted into an edit that was emptied by keys", "Backspace Backspace", "by Ctrl+V", "56");
    row("pasted in place of a selection", "3 4 Ctrl+A", "by Ctrl+V", "56");
    row("dropped into an edit that was emptied", "3 Ctrl+A Del", "by dropping", "56");
    row("dropped into an edit that was emptied by keys", "Backspace Backspace", "by dropping",
        "56");
}

/// A step holds neither what was typed before nor what is typed after.
void PastingTest::isOneStepOfUndo()
{
    QFETCH(QString, before);
    QFETCH(QString, way);
    QFETCH(QString, pasted);

    keys(qPrintable(before));
    const QString text = m_edit->text();
    bring(QStringLiteral("5 6"), way);
    QCOMPARE(m_edit->text(), pasted);
    keys("7 Ctrl+Z");
    QCOMPARE(m_edit->text(), pasted);
    keys("Ctrl+Z");
    QCOMPARE(m_edit->text(), text);
    keys("Ctrl+Shift+Z");
    QCOMPARE(m_edit->text(), pasted);
}

void PastingTest::staysWithinTheLargestLength()
{
    m_edit->setMaxLength(5);
    bring(QStringLiteral("3 4 5 6 7"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("12345"));
}

void PastingTest::isRefusedByAValidatorAsAWhole()
{
    QIntValidator upToAThousand(-1000, 1000);
    upToAThousand.setLocale(QLocale::c()); // in others a point is no decimal point
    m_edit->setValidator(&upToAThousand);
    m_edit->selectAll();
    bring(QStringLiteral("12.5"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    m_edit->selectAll();
    bring(QStringLiteral("\u2212 34"), QStringLiteral("by Ctrl+V"));
    QCOMPARE(m_edit->text(), QStringLiteral("-34"));
}

void PastingTest::isRefusedByAReadOnlyEdit()
{
    QFETCH(QString, way);

    m_edit->setReadOnly(true);
    if (way == QLatin1String("from the context menu")) {
        const QList<QAction *> entries = openContextMenu().actions();
        for (const QAction *entry : entries)
            QVERIFY(!entry->text().startsWith(QStringLiteral("&Paste")));
        return;
    }
    bring(QStringLiteral("3"), way);
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
}

void PastingTest::pastesNothingFromAnEmptyClipboard()
{
    if (!emptyTheClipboard())
        return;
    keys("Ctrl+V Tab");
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    QCOMPARE(m_finished->count(), 0);
}

/// As Qt's own edit does.
void PastingTest::pastesNothingOverASelection()
{
    if (!emptyTheClipboard())
        return;
    m_edit->selectAll();
    keys("Ctrl+V");
    QCOMPARE(m_edit->text(), QString());
}

void PastingTest::isAnEditOnce()
{
    QFETCH(QString, way);

    const QSignalSpy edited(m_edit, &QLineEdit::textEdited);
    const QSignalSpy changed(m_edit, &QLineEdit::textChanged);
    const QSignalSpy moved(m_edit, &QLineEdit::cursorPositionChanged);
    bring(QStringLiteral("3 4"), way);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(changed.count(), 1);
    QVERIFY(moved.count() <= 1);
}

void PastingTest::aNumericEditTakesWhatIsCleaned_data()
{
    columns<QLocale, QString, QString, QString>({"locale", "unit", "pasted", "text"});
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale swedish(QLocale::Swedish, QLocale::Sweden); // whose minus sign is U+2212
    row("a typographic minus sign", english, "dBm", "\u221210 dBm", "-10dBm");
    row("a micro sign as a prefix", english, "W", "10 \u00B5W", "10uW");
    row("a micro sign in the unit", english, "dB\u00B5V", "10 dB\u00B5V", "10dB\u00B5V");
    row("a locale with a minus sign of its own", swedish, "", "\u20131,5e-3", "\u22121,5e\u22123");
    row("no number", english, "W", "ten", "");
}

void PastingTest::aNumericEditTakesWhatIsCleaned()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, unit);
    QFETCH(QString, pasted);

    KelNumericLineEdit edit;
    edit.setLocale(locale);
    edit.setUnitText(unit);
    QApplication::clipboard()->setText(pasted);
    QTest::keySequence(&edit, QKeySequence::Paste);
    QTEST(edit.text(), "text");
}

DEZIMO_TEST_MAIN(QApplication, PastingTest)

#include "tst_pasting.moc"
