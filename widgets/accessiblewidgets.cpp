// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessiblewidgets.h"

#include "accessiblecombobox.h"
#include "accessiblelineedit.h"
#include "kellineedit.h"
#include "kellinklabel.h"
#include "keltogglebutton.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace {

/// One button of a segmented switch. A switch only follows clicks, so its action is a click.
class AccessibleSegment final : public QAccessibleWidget
{
public:
    explicit AccessibleSegment(QPushButton *button)
        : QAccessibleWidget(button, QAccessible::RadioButton),
          m_button(button)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? m_button->text() : given;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_button->isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button->isEnabled())
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == toggleAction())
            m_button->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QPushButton *const m_button;
};

/// A link: its name is the text without the markup, and its action opens it.
class AccessibleLink final : public QAccessibleWidget
{
public:
    explicit AccessibleLink(KelLinkLabel *label)
        : QAccessibleWidget(label, QAccessible::Link),
          m_label(label)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_label->linkText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = true;
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_label->open();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    KelLinkLabel *const m_label;
};

/// A label inside a line edit. The edit's description already holds its text, so the label hides
/// from screen readers, which would read it twice.
class AccessibleInnerLabel final : public QAccessibleWidget
{
public:
    explicit AccessibleInnerLabel(QLabel *label) : QAccessibleWidget(label, QAccessible::StaticText)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className == QLatin1String("KelToggleButton"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    if (className == QLatin1String("KelLineEdit"))
        return new AccessibleLineEdit(static_cast<QLineEdit *>(object));
    if (className == QLatin1String("KelComboBox"))
        return new AccessibleComboBox(static_cast<QComboBox *>(object));
    if (className == QLatin1String("KelLinkLabel"))
        return new AccessibleLink(static_cast<KelLinkLabel *>(object));
    if (className == QLatin1String("KelIconWidget"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Graphic);
    if (className == QLatin1String("QPushButton") &&
        qobject_cast<KelToggleButton *>(object->parent()))
        return new AccessibleSegment(static_cast<QPushButton *>(object));
    if (className == QLatin1String("QLabel") && qobject_cast<KelLineEdit *>(object->parent()))
        return new AccessibleInnerLabel(static_cast<QLabel *>(object));
    return nullptr;
}

} // namespace

void installAccessibleWidgets()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed)
}
