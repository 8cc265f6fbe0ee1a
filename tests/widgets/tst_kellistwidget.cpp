// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellistwidget.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

class KelListWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aClickLeavesTheFocusWhereItIs();
    void takesTheFocusByTabOnly();
    void tabReachesIt();
    void showsNoFocusRectangleOfThePlatform();
    void anItemThatIsSelectedBecomesCurrent();

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
    KelListWidget *m_list = nullptr;
};

void KelListWidgetTest::init()
{
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_edit = new QLineEdit;
    m_list = new KelListWidget;
    m_list->addItems({QStringLiteral("dBm Calculator"), QStringLiteral("dB Converter")});
    layout->addWidget(m_edit);
    layout->addWidget(m_list);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    m_edit->setFocus();
    QVERIFY(m_edit->hasFocus());
}

void KelListWidgetTest::aClickLeavesTheFocusWhereItIs()
{
    const QRect second = m_list->visualItemRect(m_list->item(1));
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    QCOMPARE(m_list->currentRow(), 1);
    QVERIFY(m_edit->hasFocus());
}

void KelListWidgetTest::takesTheFocusByTabOnly()
{
    QCOMPARE(m_list->focusPolicy(), Qt::TabFocus);
}

void KelListWidgetTest::tabReachesIt()
{
    QTest::keyClick(m_edit, Qt::Key_Tab);
    QVERIFY(m_list->hasFocus());
}

void KelListWidgetTest::showsNoFocusRectangleOfThePlatform()
{
    QVERIFY(!m_list->testAttribute(Qt::WA_MacShowFocusRect));
}

/// A screen reader only selects the item.
void KelListWidgetTest::anItemThatIsSelectedBecomesCurrent()
{
    m_list->setCurrentRow(0);
    m_list->clearSelection();
    QCOMPARE(m_list->currentRow(), 0);
    m_list->selectionModel()->select(m_list->model()->index(1, 0), QItemSelectionModel::Select);
    QCOMPARE(m_list->currentRow(), 1);
    QVERIFY(m_list->item(1)->isSelected());
}

DEZIMO_TEST_MAIN(QApplication, KelListWidgetTest)

#include "tst_kellistwidget.moc"
