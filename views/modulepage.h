// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_MODULEPAGE_H
#define VIEWS_MODULEPAGE_H

#include <QWidget>

#include <functional>
#include <vector>

class KelLineEdit;
class QComboBox;
class QLineEdit;

/**
 * The page of a module: a form and a model. The page hands the texts that a person types and the
 * items that a person chooses to the model, and shows what the model announces. It computes
 * nothing.
 */
class ModulePage : public QWidget
{
    Q_OBJECT

protected:
    explicit ModulePage(QWidget *parent);

    /// Builds the form on the page. From then on its texts follow the language of the program.
    template <typename Form>
    void build(Form &form)
    {
        form.setupUi(this);
        m_retranslate = [this, &form] {
            form.retranslateUi(this);
        };
    }

    /// A value of the model: the signal of its change, and the slot of the page that shows it.
    template <typename Model, typename Page>
    struct Value
    {
        void (Model::*changed)();
        void (Page::*show)();
    };

    /// Shows the values in their order, and each one again whenever it changes.
    template <typename Model, typename Page>
    static void mirror(Model *model, Page *page, const std::vector<Value<Model, Page>> &values)
    {
        for (const auto &value : values) {
            connect(model, value.changed, page, value.show);
            (page->*value.show)();
        }
    }

    /// Writes a model's text into its field, unless it is there already: writing it again would
    /// move the cursor to the end while the person types in the middle.
    static void showText(QLineEdit *field, const QString &text);
    /// Has each of the fields look like an error whenever its text is one of the models' error
    /// texts.
    static void markErrors(const QList<KelLineEdit *> &fields);
    /// Makes the unit chosen beside a field its description, so that a screen reader tells the unit
    /// together with the value.
    static void describeByUnit(QLineEdit *field, const QComboBox *unit);

    /// Hiding takes the focus from a field that is being edited, which finishes the edit. A page
    /// calls this in its destructor, while its form and its slots are still there.
    void finishOpenEdit();

    void changeEvent(QEvent *event) override;

private:
    std::function<void()> m_retranslate;
};

#endif
