// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "layoutcheck.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>
#include <QtMath>

using LayoutCheck::nameOf;
using LayoutCheck::roomForText;

namespace {

constexpr int kWidestField = 800; ///< the column of a page; see the design page

int textWidth(const QLabel &label)
{
    if (!Qt::mightBeRichText(label.text()))
        return label.fontMetrics().size(0, label.text()).width();
    QTextDocument document;
    document.setDefaultFont(label.font());
    document.setDocumentMargin(0);
    document.setHtml(label.text());
    return qCeil(document.idealWidth());
}

/// A label that wraps needs its height, any other its width.
void checkLabel(const QLabel &label, QStringList &complaints)
{
    if (label.wordWrap()) {
        if (label.heightForWidth(label.width()) > label.height())
            complaints += nameOf(label) + QStringLiteral(" is too low");
    } else if (textWidth(label) > label.contentsRect().width()) {
        complaints += nameOf(label) + QStringLiteral(" is too narrow for ") + label.text();
    }
}

void checkTabs(const QTabBar &tabs, QStringList &complaints)
{
    for (int i = 0; i < tabs.count(); ++i) {
        if (tabs.fontMetrics().horizontalAdvance(tabs.tabText(i)) > tabs.tabRect(i).width())
            complaints += nameOf(tabs) + QStringLiteral(" clips ") + tabs.tabText(i);
    }
}

void checkItems(const QComboBox &box, QStringList &complaints)
{
    for (int i = 0; i < box.count(); ++i) {
        if (box.fontMetrics().horizontalAdvance(box.itemText(i)) > roomForText(box))
            complaints += nameOf(box) + QStringLiteral(" clips ") + box.itemText(i);
    }
}

void checkText(const QWidget &widget, QStringList &complaints)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        checkLabel(*label, complaints);
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        checkTabs(*tabs, complaints);
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        checkItems(*box, complaints);
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        if (button->fontMetrics().horizontalAdvance(button->text()) > button->width())
            complaints += nameOf(*button) + QStringLiteral(" is too narrow");
    }
    if (const auto *area = qobject_cast<const QScrollArea *>(&widget)) {
        if (area->horizontalScrollBar()->maximum() > 0)
            complaints += nameOf(*area) + QStringLiteral(" scrolls sideways");
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        if (edit->width() > kWidestField)
            complaints += nameOf(*edit) + QStringLiteral(" is stretched");
        if (edit->height() < 24 && !edit->parentWidget()->inherits("QAbstractSpinBox"))
            complaints += nameOf(*edit) + QStringLiteral(" is too low");
    }
}

/// Whether the children must not overlap. The labels inside a line edit do by design, and so do the
/// parts of Qt's own widgets.
bool laysOutChildren(const QWidget &widget)
{
    return widget.layout() != nullptr;
}

void checkOverlap(const QWidget &parent, QStringList &complaints)
{
    const QList<QWidget *> children =
        parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (int i = 0; i < children.size(); ++i) {
        for (int j = i + 1; j < children.size(); ++j) {
            const QWidget *a = children.at(i);
            const QWidget *b = children.at(j);
            if (a->isVisible() && b->isVisible() && a->geometry().intersects(b->geometry()))
                complaints += nameOf(*a) + QStringLiteral(" overlaps ") + nameOf(*b);
        }
    }
}

} // namespace

QString LayoutCheck::nameOf(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + QLatin1Char(' ') +
           widget.objectName();
}

int LayoutCheck::roomForText(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

/// Qt keeps two pixels on either side of a line edit's text.
int LayoutCheck::roomForText(const QLineEdit &edit)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    const QRect contents =
        edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    return contents.width() - edit.textMargins().left() - edit.textMargins().right() - 2 * 2;
}

QStringList LayoutCheck::complaints(const QWidget &window)
{
    QStringList complaints;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        checkText(*widget, complaints);
        if (laysOutChildren(*widget))
            checkOverlap(*widget, complaints);
    }
    return complaints;
}

QString LayoutCheck::pictureFolder()
{
    return qEnvironmentVariable("DEZIMO_PICTURES");
}

void LayoutCheck::savePicture(QWidget &window, const QString &name)
{
    if (!pictureFolder().isEmpty())
        window.grab().save(QStringLiteral("%1/%2@%3.png")
                               .arg(pictureFolder(), name)
                               .arg(window.devicePixelRatioF()));
}
