// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_VIEWS_CALCULATORPAGE_H
#define TESTS_VIEWS_CALCULATORPAGE_H

#include "mainprofile.h"
#include "programstate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPoint>
#include <QPushButton>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

/// A calculator's page in a window of its own, found by object names and driven by events.
class CalculatorPage
{
public:
    explicit CalculatorPage(std::unique_ptr<QWidget> page);

    template <typename Page>
    static CalculatorPage shown()
    {
        CalculatorPage page(std::make_unique<Page>());
        page.show();
        return page;
    }

    QWidget &widget() const { return *m_page; }
    QLineEdit &input() const { return find<QLineEdit>("inputLineEdit"); }
    QLineEdit &output() const { return find<QLineEdit>("outputLineEdit"); }
    QWidget &outputRow() const { return find<QWidget>("outputWidget"); }
    QComboBox &unit() const { return find<QComboBox>("outputUnitComboBox"); }
    QComboBox &mode() const { return find<QComboBox>("calcModeComboBox"); }
    /// Finds a key by the part of its name after the underscore.
    QPushButton &key(const QString &name) const;

    /// The result and the unit beside it, as a person reads them.
    QString result() const;
    QStringList texts(const QComboBox &box) const;
    /// The units that a person can choose.
    QStringList offeredUnits() const;
    /// Where the result row and the input line are on the page.
    std::vector<QPoint> places() const;

    void show();
    void type(const QString &text);
    void type(const char *text) { type(QString::fromUtf8(text)); }
    void type(Qt::Key key);
    void press(const QString &key);
    /// Empties the input line and types @p text.
    void enter(const char *text);
    void destroy() { m_page.reset(); }

    template <typename Widget>
    Widget &find(const char *name) const
    {
        auto *found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (!found)
            qFatal("The page has no %s", name);
        return *found;
    }

private:
    std::unique_ptr<QWidget> m_page;
};

/// The keys that both calculators have: a table of "key", as in CalculatorPage::key(), and "typed".
void addPlainKeys();

/// Presses the key of the present row with the cursor between two brackets. Its text must then
/// stand there, with the cursor behind it.
void checkTypedKey(CalculatorPage &page, const Dezimo::ExpressionProfile &profile);

/// Notes each place to which a widget moves within its parent.
class MoveLog final : public QObject
{
    Q_OBJECT

public:
    explicit MoveLog(QWidget &widget);

    const std::vector<QPoint> &places() const { return m_places; }
    int lowest() const;
    int highest() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::vector<QPoint> m_places;
};

#endif
