// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"

#include "kellineedit.h"
#include "table.h"
#include "windowsystem.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>

ConverterPage::ConverterPage(QWidget &page) : m_page(page)
{
    m_page.resize(918, 583);
    m_page.show();
    m_page.activateWindow();
    if (!waitForKeyboard(m_page))
        qFatal("the page does not become active");
}

KelLineEdit &ConverterPage::field(const QString &name) const
{
    return child<KelLineEdit>(name);
}

QComboBox &ConverterPage::combo(const QString &name) const
{
    return child<QComboBox>(name);
}

QLabel &ConverterPage::label(const QString &name) const
{
    return child<QLabel>(name);
}

void ConverterPage::resize(const QSize &size) const
{
    m_page.resize(size);
    QTRY_COMPARE(m_page.size(), size);
    QCoreApplication::processEvents();
}

void ConverterPage::focus(const QString &name) const
{
    child<QWidget>(name).setFocus(Qt::TabFocusReason);
}

void ConverterPage::type(const QString &name, const QString &text) const
{
    focus(name);
    field(name).selectAll();
    QTest::keyClicks(&field(name), text);
}

void ConverterPage::press(const QString &name, Qt::Key key, int times) const
{
    focus(name);
    for (int i = 0; i < times; ++i)
        QTest::keyClick(QApplication::focusWidget(), key);
}

QStringList ConverterPage::tabStops(const QString &first) const
{
    constexpr int kMoreThanAnyPageHas = 50;
    focus(first);
    const QWidget *const start = QApplication::focusWidget();
    QStringList stops;
    do {
        const QWidget *stop = QApplication::focusWidget();
        const auto *button = qobject_cast<const QAbstractButton *>(stop);
        stops.append(button && button->objectName().isEmpty() ? button->text()
                                                              : stop->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != start && stops.size() < kMoreThanAnyPageHas);
    return stops;
}

QStringList ConverterPage::items(const QString &name) const
{
    QStringList texts;
    for (int i = 0; i < combo(name).count(); ++i)
        texts.append(combo(name).itemText(i));
    return texts;
}

QString ConverterPage::fieldTexts() const
{
    QStringList texts;
    for (const QWidget *widget = m_page.nextInFocusChain(); widget != &m_page;
         widget = widget->nextInFocusChain()) {
        if (const auto *field = qobject_cast<const KelLineEdit *>(widget))
            texts.append(field->text());
    }
    return texts.join(QStringLiteral(" | "));
}

QStringList ConverterPage::labelsTooNarrow() const
{
    QStringList texts;
    const QList<QLabel *> labels = m_page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && label->width() < label->sizeHint().width())
            texts.append(label->text());
    }
    return texts;
}

void addPageSizes()
{
    columns<QSize>({"size"});
    row("at first", QSize(918, 583));
    row("in a small window", QSize(560, 430));
    row("on a large screen", QSize(2400, 1300));
}
