// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keltogglebutton.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

class KelToggleButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithoutButtons();
    void makesOneButtonPerText();
    void countsOnAfterMoreItems();
    void sizeHintFollowsTheButtons();
    void aClickEmitsItsIndex();
    void setCurrentIndexChecksWithoutEmitting();
    void ignoresAnIndexWithoutButton_data();
    void ignoresAnIndexWithoutButton();
    void clearRemovesEveryButton();
    void canBeClearedByItsOwnClick();
    void arrowKeysMoveTheChoice();
    void tabStopsAtTheCheckedButtonOnly();
    void drawsTheBackgroundOfAStyleSheet();
    void isARadioGroupForScreenReaders();
    void screenReadersChooseAnItem();

private:
    QList<QPushButton *> buttons() const { return m_switch->findChildren<QPushButton *>(); }
    void addModes();

    std::unique_ptr<KelToggleButton> m_switch;
};

void KelToggleButtonTest::init()
{
    m_switch = std::make_unique<KelToggleButton>();
}

void KelToggleButtonTest::cleanup()
{
    m_switch.reset();
    qApp->setStyleSheet(QString());
}

void KelToggleButtonTest::addModes()
{
    m_switch->addItems({QStringLiteral("Vrms"), QStringLiteral("Vpp"), QStringLiteral("Vavg")});
}

void KelToggleButtonTest::startsWithoutButtons()
{
    QCOMPARE(m_switch->currentIndex(), -1);
    QCOMPARE(m_switch->sizeHint(), QSize(4, 30));
    QCOMPARE(m_switch->minimumHeight(), 30);
    QCOMPARE(m_switch->layout()->contentsMargins(), QMargins(3, 3, 3, 3));
    QCOMPARE(m_switch->layout()->spacing(), 2);
}

void KelToggleButtonTest::makesOneButtonPerText()
{
    addModes();
    QCOMPARE(buttons().size(), 3);
    QCOMPARE(m_switch->layout()->count(), 3);
    const QStringList texts{QStringLiteral("Vrms"), QStringLiteral("Vpp"), QStringLiteral("Vavg")};
    for (int i = 0; i < 3; ++i) {
        const QPushButton *button = buttons().at(i);
        QCOMPARE(m_switch->layout()->itemAt(i)->widget(), button);
        QCOMPARE(button->text(), texts.at(i));
        QVERIFY(button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
    }
    QCOMPARE(m_switch->currentIndex(), -1);
}

void KelToggleButtonTest::countsOnAfterMoreItems()
{
    addModes();
    m_switch->addItems({QStringLiteral("Vdc")});
    m_switch->addItems({});
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);
    buttons().at(3)->click();
    QCOMPARE(indexes.takeFirst().constFirst().toInt(), 3);
}

void KelToggleButtonTest::sizeHintFollowsTheButtons()
{
    addModes();
    int width = 4;
    const QList<QPushButton *> all = buttons();
    for (const QPushButton *button : all)
        width += button->sizeHint().width() + 4;
    QCOMPARE(m_switch->sizeHint(), QSize(width, 30));
    QVERIFY(width > 4 + 3 * 4);
}

void KelToggleButtonTest::aClickEmitsItsIndex()
{
    addModes();
    m_switch->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_switch.get()));
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);

    QTest::mouseClick(buttons().at(1), Qt::LeftButton);
    QCOMPARE(indexes.count(), 1);
    QCOMPARE(indexes.takeFirst().constFirst().toInt(), 1);
    QCOMPARE(m_switch->currentIndex(), 1);
    QVERIFY(buttons().at(1)->isChecked());

    QTest::mouseClick(buttons().at(2), Qt::LeftButton);
    QCOMPARE(indexes.count(), 1);
    QCOMPARE(indexes.takeFirst().constFirst().toInt(), 2);
    QVERIFY(!buttons().at(1)->isChecked());
    QVERIFY(buttons().at(2)->isChecked());
}

void KelToggleButtonTest::setCurrentIndexChecksWithoutEmitting()
{
    addModes();
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);

    m_switch->setCurrentIndex(2);
    QCOMPARE(m_switch->currentIndex(), 2);
    QVERIFY(buttons().at(2)->isChecked());
    m_switch->setCurrentIndex(0);
    QCOMPARE(m_switch->currentIndex(), 0);
    QVERIFY(!buttons().at(2)->isChecked());
    QCOMPARE(indexes.count(), 0);

    // A click still emits the signal, and only once.
    buttons().at(1)->click();
    QCOMPARE(indexes.count(), 1);
}

void KelToggleButtonTest::ignoresAnIndexWithoutButton_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("one below the first") << -1;
    QTest::newRow("far below the first") << std::numeric_limits<int>::min();
    QTest::newRow("the number of buttons") << 3;
    QTest::newRow("far above the last") << std::numeric_limits<int>::max();
}

void KelToggleButtonTest::ignoresAnIndexWithoutButton()
{
    QFETCH(int, index);

    addModes();
    m_switch->setCurrentIndex(1);
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);
    m_switch->setCurrentIndex(index);
    QCOMPARE(m_switch->currentIndex(), 1);
    QCOMPARE(indexes.count(), 0);

    // A click still works.
    buttons().at(0)->click();
    QCOMPARE(indexes.count(), 1);
}

void KelToggleButtonTest::clearRemovesEveryButton()
{
    addModes();
    m_switch->setCurrentIndex(1);
    m_switch->clear();
    QCOMPARE(buttons().size(), 0);
    QCOMPARE(m_switch->layout()->count(), 0);
    QCOMPARE(m_switch->currentIndex(), -1);
    QCOMPARE(m_switch->sizeHint(), QSize(4, 30));
    m_switch->setCurrentIndex(0);
    QCOMPARE(m_switch->currentIndex(), -1);

    addModes();
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);
    buttons().at(0)->click();
    QCOMPARE(indexes.takeFirst().constFirst().toInt(), 0);
}

void KelToggleButtonTest::canBeClearedByItsOwnClick()
{
    addModes();
    m_switch->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_switch.get()));
    connect(m_switch.get(), &KelToggleButton::currentIndexChanged, m_switch.get(),
            &KelToggleButton::clear);
    QTest::mouseClick(buttons().at(1), Qt::LeftButton);
    QCOMPARE(buttons().size(), 0);

    addModes();
    buttons().at(2)->setFocus();
    QTest::keyClick(buttons().at(2), Qt::Key_Space);
    QCOMPARE(buttons().size(), 0);
}

void KelToggleButtonTest::arrowKeysMoveTheChoice()
{
    addModes();
    m_switch->setCurrentIndex(0);
    m_switch->show();
    m_switch->activateWindow();
    QVERIFY(waitForKeyboard(*m_switch));
    buttons().at(0)->setFocus();
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);

    QTest::keyClick(buttons().at(0), Qt::Key_Right);
    QVERIFY(buttons().at(1)->hasFocus());
    QCOMPARE(m_switch->currentIndex(), 1);
    QCOMPARE(indexes.count(), 1);
}

/// This holds even before the switch first gets the focus, and after the program has made a choice.
void KelToggleButtonTest::tabStopsAtTheCheckedButtonOnly()
{
    const auto stops = [this] {
        QList<bool> found;
        const QList<QPushButton *> all = buttons();
        for (const QPushButton *button : all)
            found += (button->focusPolicy() & Qt::TabFocus) != 0;
        return found;
    };
    addModes();
    QCOMPARE(stops(), QList<bool>({true, true, true}));
    m_switch->setCurrentIndex(1);
    QCOMPARE(stops(), QList<bool>({false, true, false}));
    m_switch->setCurrentIndex(2);
    QCOMPARE(stops(), QList<bool>({false, false, true}));
    m_switch->addItems({QStringLiteral("one more")});
    QCOMPARE(stops(), QList<bool>({false, false, true, false}));
}

void KelToggleButtonTest::drawsTheBackgroundOfAStyleSheet()
{
    qApp->setStyleSheet(QStringLiteral("KelToggleButton { background: rgb(10, 20, 30) }"));
    m_switch->resize(100, 30);
    QCOMPARE(m_switch->grab().toImage().pixelColor(50, 15), QColor(10, 20, 30));
}

void KelToggleButtonTest::isARadioGroupForScreenReaders()
{
    addModes();
    m_switch->setAccessibleName(QStringLiteral("Voltage mode"));
    m_switch->setCurrentIndex(1);

    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_switch.get());
    QCOMPARE(group->role(), QAccessible::Grouping);
    QCOMPARE(group->text(QAccessible::Name), QStringLiteral("Voltage mode"));
    QCOMPARE(group->childCount(), 3);
    const QStringList names{QStringLiteral("Vrms"), QStringLiteral("Vpp"), QStringLiteral("Vavg")};
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface *item = group->child(i);
        QCOMPARE(item->role(), QAccessible::RadioButton);
        QCOMPARE(item->text(QAccessible::Name), names.at(i));
        QVERIFY(item->state().checkable);
        QCOMPARE(bool(item->state().checked), i == 1);
    }

    QPushButton elsewhere;
    QCOMPARE(QAccessible::queryAccessibleInterface(&elsewhere)->role(), QAccessible::PushButton);
}

void KelToggleButtonTest::screenReadersChooseAnItem()
{
    addModes();
    QSignalSpy indexes(m_switch.get(), &KelToggleButton::currentIndexChanged);
    QAccessibleInterface *last = QAccessible::queryAccessibleInterface(m_switch.get())->child(2);
    QVERIFY(last->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::toggleAction()));

    last->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(m_switch->currentIndex(), 2);
    QCOMPARE(indexes.count(), 1);
    QVERIFY(last->state().checked);

    // The actions that every widget has still work.
    m_switch->show();
    QVERIFY(waitForKeyboard(*m_switch));
    last->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(buttons().at(2)->hasFocus());

    buttons().at(2)->setEnabled(false);
    QVERIFY(!last->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::toggleAction()));
}

DEZIMO_TEST_MAIN(QApplication, KelToggleButtonTest)

#include "tst_keltogglebutton.moc"
