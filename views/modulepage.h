// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_MODULEPAGE_H
#define VIEWS_MODULEPAGE_H

#include "fieldhints.h"

#include <QWidget>

#include <functional>
#include <vector>

class HintLine;
class KelLineEdit;
class QLineEdit;

/**
 * The page of a module: a form and a model. The page hands the texts that a person types and the
 * items that a person chooses to the model, and shows what the model announces. It computes
 * nothing. At its foot a line tells about the field with the focus.
 */
class ModulePage : public QWidget
{
    Q_OBJECT

protected:
    explicit ModulePage(QWidget *parent);

    /// Builds the form on the page, and the hint line below it. From then on its texts follow the
    /// language of the program.
    template <typename Form>
    void build(Form &form)
    {
        form.setupUi(this);
        addHintLine();
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
    /// Has the fields of the page look like errors by that rule, and their placeholders unlike
    /// values.
    void dressFields();
    /// What the page tells about its fields. Add them before the page shows its model.
    FieldHints &hints() { return *m_hints; }

    /// Hiding takes the focus from a field that is being edited, which finishes the edit. A page
    /// calls this in its destructor, while its form and its slots are still there.
    void finishOpenEdit();

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addHintLine();

    std::function<void()> m_retranslate;
    HintLine *m_hintLine = nullptr;
    FieldHints *m_hints = nullptr;
};

#endif
