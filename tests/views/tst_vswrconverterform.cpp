// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "testmain.h"
#include "vswrconverterwidget.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

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
    void columnsAreAlignedAcrossAllRows_data();
    void columnsAreAlignedAcrossAllRows();
    void aLowWindowScrolls();

private:
    ConverterPage open();
    QStringList columns(const ConverterPage &page, const QString &row) const;
    QStringList labelsTooNarrow() const;

    std::unique_ptr<VswrConverterWidget> m_page;
};

namespace {

const QStringList &rowsAboveTheTabs()
{
    static const QStringList value{QStringLiteral("vswr"), QStringLiteral("r"),
                                   QStringLiteral("r2"), QStringLiteral("ar"),
                                   QStringLiteral("am")};
    return value;
}

const QStringList &powerRows()
{
    static const QStringList value{QStringLiteral("forwardPower"), QStringLiteral("reflectedPower"),
                                   QStringLiteral("absorbedPower")};
    return value;
}

const QStringList &voltageRows()
{
    static const QStringList value{QStringLiteral("forwardVoltage"),
                                   QStringLiteral("reflectedVoltage"),
                                   QStringLiteral("absorbedVoltage")};
    return value;
}

/// A symbol of which a part, marked by underscores around it, stands below the line.
QString symbol(const QString &marked)
{
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
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("longLabel");
    QTest::addColumn<QString>("shortLabel");
    QTest::addColumn<QString>("placeholder");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");

    QTest::newRow("VSWR") << "vswr"
                          << "Voltage Standing Wave Ratio"
                          << "VSWR"
                          << "VSWR"
                          << "1 : "
                          << "";
    QTest::newRow("reflection coefficient") << "r"
                                            << "Reflection Coefficient"
                                            << "Γ"
                                            << "Reflection"
                                            << ""
                                            << "";
    QTest::newRow("its square, a reflected power by name") << "r2"
                                                           << "Reflected Power"
                                                           << "Γ²"
                                                           << "Power"
                                                           << ""
                                                           << "%";
    QTest::newRow("return loss") << "ar"
                                 << "Return Loss" << symbol(QStringLiteral("a_Γ_")) << "Return Loss"
                                 << ""
                                 << "dB";
    QTest::newRow("mismatch loss")
        << "am"
        << "Mismatch Loss" << symbol(QStringLiteral("a_m_")) << "Mismatch Loss"
        << ""
        << "dB";
    QTest::newRow("forward power") << "forwardPower"
                                   << "Forward Power" << symbol(QStringLiteral("P_→_")) << "Forward"
                                   << ""
                                   << "";
    QTest::newRow("reflected power")
        << "reflectedPower"
        << "Reflected Power" << symbol(QStringLiteral("P_←_")) << "Reflected"
        << ""
        << "";
    QTest::newRow("absorbed power")
        << "absorbedPower"
        << "Absorbed Power" << symbol(QStringLiteral("P_→_-P_←_")) << "Absorbed"
        << ""
        << "";
    QTest::newRow("forward voltage")
        << "forwardVoltage"
        << "Forward Voltage" << symbol(QStringLiteral("V_→_")) << "Forward"
        << ""
        << "";
    QTest::newRow("reflected voltage")
        << "reflectedVoltage"
        << "Reflected Voltage" << symbol(QStringLiteral("V_←_")) << "Reflected"
        << ""
        << "";
    QTest::newRow("absorbed voltage")
        << "absorbedVoltage"
        << "Absorbed Voltage" << symbol(QStringLiteral("V_→_-V_←_")) << "Absorbed"
        << ""
        << "";
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
    QCOMPARE(shortOne.text(), shortLabel);
    for (const QLabel *label : {&longOne, &shortOne}) {
        QCOMPARE(label->buddy(), &field);
        QVERIFY(!label->isHidden());
    }
}

void VswrConverterFormTest::everyRowIsNamedForScreenReaders_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("name");

    QTest::newRow("VSWR") << "vswr"
                          << "Voltage standing wave ratio";
    QTest::newRow("reflection coefficient") << "r"
                                            << "Reflection coefficient";
    QTest::newRow("reflected share") << "r2"
                                     << "Reflected power in percent";
    QTest::newRow("return loss") << "ar"
                                 << "Return loss in dB";
    QTest::newRow("mismatch loss") << "am"
                                   << "Mismatch loss in dB";
    QTest::newRow("forward power") << "forwardPower"
                                   << "Forward power";
    QTest::newRow("reflected power") << "reflectedPower"
                                     << "Reflected power";
    QTest::newRow("absorbed power") << "absorbedPower"
                                    << "Absorbed power";
    QTest::newRow("forward voltage") << "forwardVoltage"
                                     << "Forward voltage";
    QTest::newRow("reflected voltage") << "reflectedVoltage"
                                       << "Reflected voltage";
    QTest::newRow("absorbed voltage") << "absorbedVoltage"
                                      << "Absorbed voltage";
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
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("units");

    QTest::newRow("powers") << powerRows()
                            << QStringList{QStringLiteral("dBm"), QStringLiteral("dBW"),
                                           QStringLiteral("W"), QStringLiteral("mW")};
    QTest::newRow("voltages") << voltageRows()
                              << QStringList{QStringLiteral("dBV"), QStringLiteral("dBµV"),
                                             QStringLiteral("V"), QStringLiteral("mV")};
}

void VswrConverterFormTest::offersTheUnits()
{
    QFETCH(QStringList, rows);
    QFETCH(QStringList, units);

    const ConverterPage page = open();
    for (const QString &row : qAsConst(rows)) {
        const QString combo = row + QStringLiteral("UnitComboBox");
        QCOMPARE(page.items(combo), units);
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
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("rowsOfTheTab");

    QTest::newRow("with the powers shown") << 0 << powerRows();
    QTest::newRow("with the voltages shown") << 1 << voltageRows();
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
    for (const QString &row : qAsConst(rowsOfTheTab))
        expected << row + QStringLiteral("LineEdit") << row + QStringLiteral("UnitComboBox");
    QCOMPARE(page.tabStops(QStringLiteral("vswrLineEdit")), expected);
}

void VswrConverterFormTest::columnsAreAlignedAcrossAllRows_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("at first") << QSize(918, 583);
    QTest::newRow("in a small window") << QSize(560, 430);
    QTest::newRow("on a large screen") << QSize(2400, 1300);
}

void VswrConverterFormTest::columnsAreAlignedAcrossAllRows()
{
    QFETCH(QSize, size);

    applyStyleSheet();
    const ConverterPage page = open();
    m_page->resize(size);
    QTRY_COMPARE(m_page->size(), size);
    for (const QStringList &rowsOfTheTab : {powerRows(), voltageRows()}) {
        page.child<QTabWidget>(QStringLiteral("mainTab"))
            .setCurrentIndex(rowsOfTheTab == voltageRows() ? 1 : 0);
        QCoreApplication::processEvents();
        const QStringList rows = rowsAboveTheTabs() + rowsOfTheTab;
        for (const QString &row : rows)
            QCOMPARE(columns(page, row), columns(page, rowsAboveTheTabs().first()));
        QCOMPARE(labelsTooNarrow(), QStringList());
    }
    const auto &area = page.child<QScrollArea>(QStringLiteral("scrollArea_2"));
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    const KelLineEdit &field = page.field(QStringLiteral("rLineEdit"));
    QVERIFY(field.height() >= 24);
    QVERIFY(field.width() >= 150);
    QVERIFY(field.width() <= 360);
}

/// The left and the right edge of each column, in the coordinates of the page.
QStringList VswrConverterFormTest::columns(const ConverterPage &page, const QString &row) const
{
    QStringList edges;
    for (const char *column : {"Label", "LabelShort", "LineEdit"}) {
        const auto &widget = page.child<QWidget>(row + QString::fromLatin1(column));
        const int left = widget.mapTo(m_page.get(), QPoint(0, 0)).x();
        edges.append(QStringLiteral("%1 to %2").arg(left).arg(left + widget.width()));
    }
    return edges;
}

QStringList VswrConverterFormTest::labelsTooNarrow() const
{
    QStringList texts;
    const QList<QLabel *> labels = m_page->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && label->width() < label->sizeHint().width())
            texts.append(label->text());
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
