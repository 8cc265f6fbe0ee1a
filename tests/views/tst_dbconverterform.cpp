// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "dbconverterwidget.h"
#include "kellineedit.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>

/// What the form of the dB converter's page is made of, and where it puts it.
class DbConverterFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAPlainTitle();
    void eachTabHasAScrollArea_data();
    void eachTabHasAScrollArea();
    void readsAsAFraction_data();
    void readsAsAFraction();
    void eachDbFieldShowsItsUnit_data();
    void eachDbFieldShowsItsUnit();
    void readsFromFractionToDecibels_data();
    void readsFromFractionToDecibels();
    void anEmptyFieldShowsAnExample_data() { halves(); }
    void anEmptyFieldShowsAnExample();
    void theExamplesBelongTogether_data() { halves(); }
    void theExamplesBelongTogether();

private:
    static void halves();
};

void DbConverterFormTest::hasAPlainTitle()
{
    const DbConverterWidget widget;
    QCOMPARE(widget.windowTitle(), QStringLiteral("Form"));
}

void DbConverterFormTest::eachTabHasAScrollArea_data()
{
    columns<int, QString>({"index", "name"});
    row("powers", 0, "tab_3");
    row("voltages", 1, "tab_4");
}

void DbConverterFormTest::eachTabHasAScrollArea()
{
    QFETCH(int, index);
    QFETCH(QString, name);

    const DbConverterWidget widget;
    const QWidget *tab = widget.findChild<QTabWidget *>(QStringLiteral("mainTab"))->widget(index);
    QCOMPARE(tab->objectName(), name);
    QCOMPARE(tab->findChildren<QScrollArea *>().size(), 1);
}

void DbConverterFormTest::readsAsAFraction_data()
{
    columns<int, QString, QString>({"tab", "title", "labels"});
    row("powers", 0, "Powers", " =|=|P1|P2|≙");
    row("voltages", 1, "Voltages", " =|=|V1|V2|≙");
}

void DbConverterFormTest::readsAsAFraction()
{
    QFETCH(int, tab);
    QFETCH(QString, title);
    QFETCH(QString, labels);

    const DbConverterWidget widget;
    auto *tabs = widget.findChild<QTabWidget *>(QStringLiteral("mainTab"));
    QCOMPARE(tabs->tabText(tab), title);
    QStringList shown;
    const QList<QLabel *> all = tabs->widget(tab)->findChildren<QLabel *>();
    for (const QLabel *label : all) {
        if (qobject_cast<QLineEdit *>(label->parentWidget()) == nullptr)
            shown += label->text();
    }
    shown.sort();
    QCOMPARE(shown.join(QLatin1Char('|')), labels);
}

void DbConverterFormTest::eachDbFieldShowsItsUnit_data()
{
    columns<int, QString>({"tab", "field"});
    row("power ratio", 0, "pDbLineEdit");
    row("voltage ratio", 1, "vDbLineEdit");
}

void DbConverterFormTest::eachDbFieldShowsItsUnit()
{
    QFETCH(int, tab);
    QFETCH(QString, field);

    DbConverterWidget widget;
    const ConverterPage page(widget);
    page.child<QTabWidget>(QStringLiteral("mainTab")).setCurrentIndex(tab);
    QStringList shown;
    const QList<QLabel *> labels = page.field(field).findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && !label->text().isEmpty())
            shown += label->text();
    }
    QCOMPARE(shown, QStringList(QStringLiteral("dB")));
}

void DbConverterFormTest::readsFromFractionToDecibels_data()
{
    columns<int, QString, QString, QString>({"tab", "half", "labelBar", "fieldBar"});
    row("powers", 0, "p", "line", "line_2");
    row("voltages", 1, "v", "line_3", "line_4");
}

void DbConverterFormTest::readsFromFractionToDecibels()
{
    QFETCH(int, tab);
    QFETCH(QString, half);
    QFETCH(QString, labelBar);
    QFETCH(QString, fieldBar);

    DbConverterWidget widget;
    const ConverterPage page(widget);
    page.child<QTabWidget>(QStringLiteral("mainTab")).setCurrentIndex(tab);
    const auto place = [&page, &widget](const QString &name) {
        const auto &child = page.child<QWidget>(name);
        return QRect(child.mapTo(&widget, QPoint()), child.size());
    };
    const QRect first = place(half + QStringLiteral("1LineEdit"));
    const QRect second = place(half + QStringLiteral("2LineEdit"));
    const QRect ratio = place(half + QStringLiteral("RatioLineEdit"));
    const QRect decibels = place(half + QStringLiteral("DbLineEdit"));

    QVERIFY(first.bottom() < place(fieldBar).top());
    QVERIFY(place(fieldBar).bottom() < second.top());
    QVERIFY(place(half + QStringLiteral("1Label")).bottom() < place(labelBar).top());
    QVERIFY(place(labelBar).bottom() < place(half + QStringLiteral("2Label")).top());
    QVERIFY(place(labelBar).right() < place(fieldBar).left());
    QCOMPARE(page.child<QFrame>(labelBar).frameShape(), QFrame::HLine);
    QCOMPARE(page.child<QFrame>(fieldBar).frameShape(), QFrame::HLine);
    QVERIFY(qMax(first.right(), second.right()) < ratio.left());
    QVERIFY(ratio.right() < decibels.left());
}

void DbConverterFormTest::halves()
{
    columns<QString, QStringList>({"half", "examples"});
    row("powers", "p", words("2W 30dBm 2 3.01"));
    row("voltages", "v", words("2 500m 4 12.04"));
}

void DbConverterFormTest::anEmptyFieldShowsAnExample()
{
    QFETCH(QString, half);
    QFETCH(QStringList, examples);

    const DbConverterWidget widget;
    const char *const fields[] = {"1", "2", "Ratio", "Db"};
    for (int i = 0; i < 4; ++i) {
        const QString name = half + QLatin1String(fields[i]) + QStringLiteral("LineEdit");
        QCOMPARE(widget.findChild<QLineEdit *>(name)->placeholderText(),
                 QStringLiteral("e.g. ") + examples.at(i));
    }
}

/// Who types the examples of both operands gets those of the ratio and of the decibels.
void DbConverterFormTest::theExamplesBelongTogether()
{
    QFETCH(QString, half);
    QFETCH(QStringList, examples);

    loadDefaults();
    DbConverterWidget widget;
    const ConverterPage page(widget);
    page.child<QTabWidget>(QStringLiteral("mainTab"))
        .setCurrentIndex(half == QLatin1String("p") ? 0 : 1);
    page.type(half + QStringLiteral("1LineEdit"), examples.at(0));
    page.type(half + QStringLiteral("2LineEdit"), examples.at(1));
    page.focus(half + QStringLiteral("RatioLineEdit"));
    QCOMPARE(page.field(half + QStringLiteral("RatioLineEdit")).text(), examples.at(2));
    QCOMPARE(page.field(half + QStringLiteral("DbLineEdit")).text(), examples.at(3));
}

DEZIMO_TEST_MAIN(QApplication, DbConverterFormTest)

#include "tst_dbconverterform.moc"
