// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "table.h"
#include "testmain.h"
#include "vswrconverterwidget.h"
#include "words.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <memory>
#include <utility>

class VswrConverterFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyRowReadsAsDesigned_data();
    void everyRowReadsAsDesigned();
    void everyRowIsNamedForScreenReaders_data();
    void everyRowIsNamedForScreenReaders();
    void offersTheUnits_data();
    void offersTheUnits();
    void hasTheProgramsFont();
    void putsPowersAndVoltagesOnTabs();
    void tabGoesFromTopToBottom_data();
    void tabGoesFromTopToBottom();
    void columnsAreAlignedAcrossAllRows_data() { addPageSizes(); }
    void columnsAreAlignedAcrossAllRows();
    void aLowWindowScrolls();

private:
    ConverterPage open();
    QStringList edges(const ConverterPage &page, const QString &row) const;

    std::unique_ptr<VswrConverterWidget> m_page;
};

namespace {

const QStringList &rowsAboveTheTabs()
{
    static const QStringList value = words("vswr r r2 ar am");
    return value;
}

const QStringList &powerRows()
{
    static const QStringList value = words("forwardPower reflectedPower absorbedPower");
    return value;
}

const QStringList &voltageRows()
{
    static const QStringList value = words("forwardVoltage reflectedVoltage absorbedVoltage");
    return value;
}

/// The text of a symbol. A part between underscores is a subscript.
QString symbol(const QString &marked)
{
    if (!marked.contains(QLatin1Char('_')))
        return marked;
    QString text = QStringLiteral("<html><head/><body><p>");
    const QStringList parts = marked.split(QLatin1Char('_'));
    for (int i = 0; i < parts.size(); ++i) {
        text += i % 2 == 0 ? parts.at(i)
                           : QStringLiteral("<span style=\" vertical-align:sub;\">") + parts.at(i) +
                                 QStringLiteral("</span>");
    }
    return text + QStringLiteral("</p></body></html>");
}

} // namespace

void VswrConverterFormTest::init()
{
    loadDefaults();
}

void VswrConverterFormTest::cleanup()
{
    m_page.reset();
    qApp->setStyleSheet(QString());
}

ConverterPage VswrConverterFormTest::open()
{
    m_page = std::make_unique<VswrConverterWidget>();
    return ConverterPage(*m_page);
}

void VswrConverterFormTest::everyRowReadsAsDesigned_data()
{
    columns<QString, QString, QString, QString, QString, QString>(
        {"row", "longLabel", "shortLabel", "placeholder", "prefix", "suffix"});
    row("VSWR", "vswr", "Voltage Standing Wave Ratio", "VSWR", "VSWR", "1 : ", "");
    row("reflection coefficient", "r", "Reflection Coefficient", "Γ", "Reflection", "", "");
    row("its square, a reflected power by name", "r2", "Reflected Power", "Γ²", "Power", "", "%");
    row("return loss", "ar", "Return Loss", "a_Γ_", "Return Loss", "", "dB");
    row("mismatch loss", "am", "Mismatch Loss", "a_m_", "Mismatch Loss", "", "dB");
    row("forward power", "forwardPower", "Forward Power", "P_→_", "Forward", "", "");
    row("reflected power", "reflectedPower", "Reflected Power", "P_←_", "Reflected", "", "");
    row("absorbed power", "absorbedPower", "Absorbed Power", "P_→_-P_←_", "Absorbed", "", "");
    row("forward voltage", "forwardVoltage", "Forward Voltage", "V_→_", "Forward", "", "");
    row("reflected voltage", "reflectedVoltage", "Reflected Voltage", "V_←_", "Reflected", "", "");
    row("absorbed voltage", "absorbedVoltage", "Absorbed Voltage", "V_→_-V_←_", "Absorbed", "", "");
}

void VswrConverterFormTest::everyRowReadsAsDesigned()
{
    QFETCH(QString, row);
    QFETCH(QString, longLabel);
    QFETCH(QString, shortLabel);
    QFETCH(QString, placeholder);
    QFETCH(QString, prefix);
    QFETCH(QString, suffix);

    const ConverterPage page = open();
    const KelLineEdit &field = page.field(row + QStringLiteral("LineEdit"));
    QCOMPARE(m_page->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(field.placeholderText(), placeholder);
    QCOMPARE(field.text(), QString());
    QCOMPARE(field.alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(field.findChild<QLabel *>(QStringLiteral("prefixLabel"))->text(), prefix);
    QCOMPARE(field.findChild<QLabel *>(QStringLiteral("suffixLabel"))->text(), suffix);

    const QLabel &longOne = page.label(row + QStringLiteral("Label"));
    const QLabel &shortOne = page.label(row + QStringLiteral("LabelShort"));
    QCOMPARE(longOne.text(), longLabel);
    QCOMPARE(shortOne.text(), symbol(shortLabel));
    for (const QLabel *label : {&longOne, &shortOne}) {
        QCOMPARE(label->buddy(), &field);
        QVERIFY(!label->isHidden());
    }
}

void VswrConverterFormTest::everyRowIsNamedForScreenReaders_data()
{
    columns<QString, QString>({"row", "name"});
    row("VSWR", "vswr", "Voltage standing wave ratio");
    row("reflection coefficient", "r", "Reflection coefficient");
    row("reflected share", "r2", "Reflected power in percent");
    row("return loss", "ar", "Return loss in dB");
    row("mismatch loss", "am", "Mismatch loss in dB");
    row("forward power", "forwardPower", "Forward power");
    row("reflected power", "reflectedPower", "Reflected power");
    row("absorbed power", "absorbedPower", "Absorbed power");
    row("forward voltage", "forwardVoltage", "Forward voltage");
    row("reflected voltage", "reflectedVoltage", "Reflected voltage");
    row("absorbed voltage", "absorbedVoltage", "Absorbed voltage");
}

void VswrConverterFormTest::everyRowIsNamedForScreenReaders()
{
    QFETCH(QString, row);
    QFETCH(QString, name);

    const ConverterPage page = open();
    QCOMPARE(page.field(row + QStringLiteral("LineEdit")).accessibleName(), name);
    if (!rowsAboveTheTabs().contains(row)) {
        QCOMPARE(page.combo(row + QStringLiteral("UnitComboBox")).accessibleName(),
                 name + QStringLiteral(" unit"));
    }
}

void VswrConverterFormTest::offersTheUnits_data()
{
    columns<QStringList, QString>({"rows", "units"});
    row("powers", powerRows(), "dBm dBW W mW");
    row("voltages", voltageRows(), "dBV dBµV V mV");
}

void VswrConverterFormTest::offersTheUnits()
{
    QFETCH(QStringList, rows);
    QFETCH(QString, units);

    const ConverterPage page = open();
    for (const QString &row : std::as_const(rows)) {
        const QString combo = row + QStringLiteral("UnitComboBox");
        QCOMPARE(page.items(combo).join(QLatin1Char(' ')), units);
        QCOMPARE(page.combo(combo).currentIndex(), 0);
    }
}

void VswrConverterFormTest::hasTheProgramsFont()
{
    open();
    QCOMPARE(m_page->font().family(), QStringLiteral("Tessan"));
    QCOMPARE(m_page->font().style(), QFont::StyleNormal);
}

void VswrConverterFormTest::putsPowersAndVoltagesOnTabs()
{
    const ConverterPage page = open();
    const auto &tabs = page.child<QTabWidget>(QStringLiteral("mainTab"));
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.tabText(0), QStringLiteral("Powers"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Voltages"));
    QCOMPARE(tabs.currentIndex(), 0);
    for (const QString &row : powerRows())
        QVERIFY(tabs.widget(0)->isAncestorOf(&page.field(row + QStringLiteral("LineEdit"))));
    for (const QString &row : voltageRows())
        QVERIFY(tabs.widget(1)->isAncestorOf(&page.field(row + QStringLiteral("LineEdit"))));
    for (const QString &row : rowsAboveTheTabs())
        QVERIFY(page.field(row + QStringLiteral("LineEdit")).isVisible());
}

void VswrConverterFormTest::tabGoesFromTopToBottom_data()
{
    columns<int, QStringList>({"tab", "rowsOfTheTab"});
    row("with the powers shown", 0, powerRows());
    row("with the voltages shown", 1, voltageRows());
}

void VswrConverterFormTest::tabGoesFromTopToBottom()
{
    QFETCH(int, tab);
    QFETCH(QStringList, rowsOfTheTab);

    const ConverterPage page = open();
    page.child<QTabWidget>(QStringLiteral("mainTab")).setCurrentIndex(tab);
    QStringList expected;
    for (const QString &row : rowsAboveTheTabs())
        expected.append(row + QStringLiteral("LineEdit"));
    expected.append(QStringLiteral("qt_tabwidget_tabbar"));
    for (const QString &row : std::as_const(rowsOfTheTab))
        expected << row + QStringLiteral("LineEdit") << row + QStringLiteral("UnitComboBox");
    QCOMPARE(page.tabStops(QStringLiteral("vswrLineEdit")), expected);
}

void VswrConverterFormTest::columnsAreAlignedAcrossAllRows()
{
    QFETCH(QSize, size);

    applyStyleSheet();
    const ConverterPage page = open();
    page.resize(size);
    for (const QStringList &rowsOfTheTab : {powerRows(), voltageRows()}) {
        page.child<QTabWidget>(QStringLiteral("mainTab"))
            .setCurrentIndex(rowsOfTheTab == voltageRows() ? 1 : 0);
        QCoreApplication::processEvents();
        const QStringList rows = rowsAboveTheTabs() + rowsOfTheTab;
        for (const QString &row : rows)
            QCOMPARE(edges(page, row), edges(page, rowsAboveTheTabs().first()));
        QCOMPARE(page.labelsTooNarrow(), QStringList());
    }
    const auto &area = page.child<QScrollArea>(QStringLiteral("scrollArea_2"));
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    const KelLineEdit &field = page.field(QStringLiteral("rLineEdit"));
    QVERIFY(field.height() >= 36);
    QVERIFY(field.width() >= 150);
    QVERIFY(field.width() <= 440);
}

/// The left and the right edge of each column, in the coordinates of the page.
QStringList VswrConverterFormTest::edges(const ConverterPage &page, const QString &row) const
{
    QStringList texts;
    for (const char *column : {"Label", "LabelShort", "LineEdit"}) {
        const auto &widget = page.child<QWidget>(row + QString::fromLatin1(column));
        const int left = widget.mapTo(m_page.get(), QPoint(0, 0)).x();
        texts.append(QStringLiteral("%1 to %2").arg(left).arg(left + widget.width()));
    }
    return texts;
}

void VswrConverterFormTest::aLowWindowScrolls()
{
    applyStyleSheet();
    const ConverterPage page = open();
    m_page->resize(560, 200);
    const auto &area = page.child<QScrollArea>(QStringLiteral("scrollArea_2"));
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);

    // What the Tab key reaches scrolls into view.
    page.focus(QStringLiteral("reflectedPowerUnitComboBox"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const auto &last = page.field(QStringLiteral("absorbedPowerLineEdit"));
    QVERIFY(last.hasFocus());
    QCOMPARE(last.visibleRegion().boundingRect(), last.rect());
}

DEZIMO_TEST_MAIN(QApplication, VswrConverterFormTest)

#include "tst_vswrconverterform.moc"
