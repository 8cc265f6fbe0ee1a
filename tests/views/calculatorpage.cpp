// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "table.h"
#include "windowsystem.h"

#include <QMoveEvent>
#include <QTest>

#include <algorithm>

CalculatorPage::CalculatorPage(std::unique_ptr<QWidget> page) : m_page(std::move(page)) {}

QPushButton &CalculatorPage::key(const QString &name) const
{
    return find<QPushButton>(qPrintable(QStringLiteral("pushButton_") + name));
}

QString CalculatorPage::result() const
{
    if (unit().isHidden())
        return output().text();
    return output().text() + QLatin1Char(' ') + unit().currentText();
}

QStringList CalculatorPage::texts(const QComboBox &box) const
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts += box.itemText(i);
    return texts;
}

QStringList CalculatorPage::offeredUnits() const
{
    QStringList offered;
    for (int i = 0; i < unit().count(); ++i) {
        if (unit().model()->index(i, 0).flags() & Qt::ItemIsEnabled)
            offered += unit().itemText(i);
    }
    return offered;
}

std::vector<QPoint> CalculatorPage::places() const
{
    return {outputRow().mapTo(m_page.get(), QPoint()), input().mapTo(m_page.get(), QPoint())};
}

void CalculatorPage::show()
{
    m_page->resize(900, 560);
    m_page->show();
    m_page->setFocus();
    QVERIFY(waitForKeyboard(*m_page));
}

void CalculatorPage::type(const QString &text)
{
    QTest::keyClicks(m_page->focusWidget(), text);
}

void CalculatorPage::type(Qt::Key key)
{
    QTest::keyClick(m_page->focusWidget(), key);
}

void CalculatorPage::press(const QString &name)
{
    QTest::mouseClick(&key(name), Qt::LeftButton);
}

void CalculatorPage::enter(const char *text)
{
    input().clear();
    QTest::keyClicks(&input(), QString::fromUtf8(text));
}

void addPlainKeys()
{
    columns<QString, QString>({"key", "typed"});
    for (int digit = 0; digit <= 9; ++digit) {
        const QString text = QString::number(digit);
        row(qPrintable(QStringLiteral("the digit ") + text), text, text);
    }
    row("the decimal point", "point", ".");
    row("plus", "plus", "+");
    row("minus", "minus", "-");
    row("the sign", "plusMinus", "-");
}

void checkTypedKey(CalculatorPage &page, const Dezimo::ExpressionProfile &profile)
{
    QFETCH(QString, key);
    QFETCH(QString, typed);
    page.type("()");
    page.input().setCursorPosition(1);

    page.press(key);

    const QString expected = QStringLiteral("(") + typed + QStringLiteral(")");
    QCOMPARE(page.input().text(), expected);
    QCOMPARE(profile.input(), expected);
    QCOMPARE(page.input().cursorPosition(), 1 + typed.size());
    QVERIFY(page.input().hasFocus());
}

MoveLog::MoveLog(QWidget &widget)
{
    widget.installEventFilter(this);
}

int MoveLog::lowest() const
{
    int y = 0;
    for (const QPoint &place : m_places)
        y = std::max(y, place.y());
    return y;
}

int MoveLog::highest() const
{
    int y = lowest();
    for (const QPoint &place : m_places)
        y = std::min(y, place.y());
    return y;
}

bool MoveLog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move)
        m_places.push_back(static_cast<QMoveEvent *>(event)->pos());
    return QObject::eventFilter(watched, event);
}
