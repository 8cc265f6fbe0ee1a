// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelcombobox.h"
#include "kelcomboboxstyle.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <memory>

class KelComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void styleNeverLaysThePopupOverTheBox();
    void styleForwardsEveryOtherHint_data();
    void styleForwardsEveryOtherHint();
    void hasAStyleOfItsOwn();
    void showsAPlainList();
    void listHasAFontSizeOfItsOwn();
    void popupHasNoFrameWhereTheListHasOne();
    void styleSheetsReachTheScrollBarsOfTheList();
    void opensBelowTheBox_data();
    void opensBelowTheBox();
    void choosesByKeyboard();
    void theWheelChoosesOnlyWithTheFocus();
    void itsListSelectsTheChosenItem();
    void aListThatIsLeftSelectsTheChosenItemAgain();
    void isNotUnderAPointerThatLeftWhileTheListWasOpen();
    void goesWhileTheListIsOpen();
};

namespace {

/// A platform's style that answers every hint with the same number.
class ConstantStyle final : public QProxyStyle
{
public:
    static constexpr int kAnswer = 1234;

    int styleHint(StyleHint, const QStyleOption *, const QWidget *,
                  QStyleHintReturn *) const override
    {
        return kAnswer;
    }
};

QStringList units()
{
    return {QStringLiteral("dBm"), QStringLiteral("mW"), QStringLiteral("W")};
}

/// Fills the box with units, shows it and opens its list.
void openList(KelComboBox &box)
{
    box.addItems(units());
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
}

} // namespace

void KelComboBoxTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void KelComboBoxTest::styleNeverLaysThePopupOverTheBox()
{
    KelComboBoxStyle style;
    style.setBaseStyle(new ConstantStyle);
    QCOMPARE(style.styleHint(QStyle::SH_ComboBox_Popup), 0);
}

void KelComboBoxTest::styleForwardsEveryOtherHint_data()
{
    columns<int>({"hint"});
    row("the first hint", int(QStyle::SH_EtchDisabledText));
    row("the hint before the popup's", int(QStyle::SH_ComboBox_Popup) - 1);
    row("the hint after the popup's", int(QStyle::SH_ComboBox_Popup) + 1);
    row("another hint about combo boxes", int(QStyle::SH_ComboBox_ListMouseTracking));
    row("a hint of another widget", int(QStyle::SH_SpinBox_StepModifier));
}

void KelComboBoxTest::styleForwardsEveryOtherHint()
{
    QFETCH(int, hint);

    KelComboBoxStyle style;
    style.setBaseStyle(new ConstantStyle);
    QCOMPARE(style.styleHint(QStyle::StyleHint(hint)), ConstantStyle::kAnswer);
}

void KelComboBoxTest::hasAStyleOfItsOwn()
{
    const KelComboBox first;
    const KelComboBox second;
    QVERIFY(qobject_cast<KelComboBoxStyle *>(first.style()));
    QVERIFY(qobject_cast<KelComboBoxStyle *>(second.style()));
    QVERIFY(first.style() != second.style());
}

void KelComboBoxTest::showsAPlainList()
{
    const KelComboBox box;
    QCOMPARE(box.view()->metaObject()->className(), "QListView");
}

void KelComboBoxTest::listHasAFontSizeOfItsOwn()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    KelComboBox box;
    box.setStyleSheet(QStringLiteral("font-size: 40px"));
    box.setListFontSize(18);

    openList(box);
    QCOMPARE(box.font().pixelSize(), 40);
    QCOMPARE(box.view()->font().pixelSize(), 18);
}

/// Two frames around each other would be one too many.
void KelComboBoxTest::popupHasNoFrameWhereTheListHasOne()
{
    qApp->setStyleSheet(QStringLiteral("QComboBox QAbstractItemView { border: 1px solid gray }"));
    const KelComboBox box;
    QCOMPARE(qobject_cast<QFrame *>(box.view()->parentWidget())->frameShape(), QFrame::NoFrame);
}

void KelComboBoxTest::styleSheetsReachTheScrollBarsOfTheList()
{
    qApp->setStyleSheet(QStringLiteral("QScrollBar { min-width: 33px }"));
    const KelComboBox box;
    QCOMPARE(box.view()->verticalScrollBar()->minimumWidth(), 33);
}

void KelComboBoxTest::opensBelowTheBox_data()
{
    columns<QString>({"styleSheet"});
    row("without a style sheet", "");
    row("with the style sheet of the program",
        "QComboBox { border: 1px solid gray } QComboBox QAbstractItemView { padding: 2px }");
}

void KelComboBoxTest::opensBelowTheBox()
{
    QFETCH(QString, styleSheet);

    if (!hasScreenPositions()) {
        QTest::qSkip("windows have no positions here", __FILE__, __LINE__);
        return;
    }
    const ExpectedMessages messages(offscreenPopupMessages());
    qApp->setStyleSheet(styleSheet);
    QWidget window;
    window.setGeometry(100, 50, 400, 200);
    KelComboBox box(&window);
    box.addItems(units());
    box.setGeometry(30, 20, 250, 28);
    box.setCurrentIndex(2);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    const QWidget *popup = box.view()->window();
    QVERIFY(popup != &window);
    // The list opens below the box, whatever item is chosen: at 100 + 30 and 50 + 20 + 28.
    QCOMPARE(popup->pos(), QPoint(130, 98));
    QCOMPARE(box.view()->minimumWidth(), 250);
    QCOMPARE(box.view()->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QVERIFY(box.view()->width() >= 250);

    box.hidePopup();
    box.resize(180, 28);
    box.showPopup();
    QCOMPARE(box.view()->minimumWidth(), 180);
    box.hidePopup();
}

void KelComboBoxTest::choosesByKeyboard()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    KelComboBox box;
    openList(box);
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
    QCOMPARE(box.currentText(), QStringLiteral("mW"));
    QTRY_VERIFY(!box.view()->isVisible());
}

/// A person who scrolls a page with the wheel passes over its boxes and does not mean to change
/// them.
void KelComboBoxTest::theWheelChoosesOnlyWithTheFocus()
{
    QWidget window;
    auto *edit = new QLineEdit(&window);
    auto *box = new KelComboBox(&window);
    box->addItems(units());
    edit->setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(waitForKeyboard(window));
    const QPointF middle = box->rect().center();
    QWheelEvent down(middle, box->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    QCoreApplication::sendEvent(box, &down);
    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(!down.isAccepted());

    box->setFocus();
    QCoreApplication::sendEvent(box, &down);
    QCOMPARE(box->currentIndex(), 1);
    QVERIFY(down.isAccepted());
}

void KelComboBoxTest::itsListSelectsTheChosenItem()
{
    KelComboBox box;
    box.addItems(units());
    box.setCurrentIndex(2);
    QCOMPARE(box.view()->currentIndex().data().toString(), QStringLiteral("W"));
    QVERIFY(box.view()->selectionModel()->isSelected(box.model()->index(2, 0)));
    QVERIFY(!box.view()->selectionModel()->isSelected(box.model()->index(0, 0)));
}

void KelComboBoxTest::aListThatIsLeftSelectsTheChosenItemAgain()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    KelComboBox box;
    openList(box);
    QTest::keyClick(box.view(), Qt::Key_Down);
    QCOMPARE(box.view()->currentIndex().row(), 1);
    QTest::keyClick(box.view(), Qt::Key_Escape);
    QTRY_COMPARE(box.view()->currentIndex().row(), 0);
    QCOMPARE(box.currentIndex(), 0);
}

void KelComboBoxTest::isNotUnderAPointerThatLeftWhileTheListWasOpen()
{
    if (!hasScreenPositions()) {
        QTest::qSkip("the pointer cannot be moved here", __FILE__, __LINE__);
        return;
    }
    const ExpectedMessages messages(offscreenPopupMessages());
    KelComboBox box;
    box.addItems(units());
    box.setGeometry(100, 50, 200, 28);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setAttribute(Qt::WA_UnderMouse);

    QCursor::setPos(500, 400);
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    QTest::keyClick(box.view(), Qt::Key_Return);
    QTRY_VERIFY(!box.underMouse());
}

/// The session may end while a person chooses a unit.
void KelComboBoxTest::goesWhileTheListIsOpen()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    qApp->setStyleSheet(QStringLiteral("QComboBox QAbstractItemView { padding: 2px }"));
    auto window = std::make_unique<QWidget>();
    auto *box = new KelComboBox(window.get());
    box->addItems({QStringLiteral("W"), QStringLiteral("mW")});
    window->show();
    QVERIFY(waitForKeyboard(*window));
    box->showPopup();
    QTRY_COMPARE(QApplication::focusWidget(), box->view());
    window.reset();
    QCOMPARE(QApplication::focusWidget(), nullptr);
}

DEZIMO_TEST_MAIN(QApplication, KelComboBoxTest)

#include "tst_kelcombobox.moc"
