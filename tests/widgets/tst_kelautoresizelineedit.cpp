// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelautoresizelineedit.h"
#include "testmain.h"

#include <QApplication>
#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class KelAutoResizeLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void sizeByHeight_data();
    void sizeByHeight();
    void aLowEdit_data();
    void aLowEdit();
    void shrinksToTheFirstSizeThatFits_data();
    void shrinksToTheFirstSizeThatFits();
    void aLongTextEndsAtTenPixels_data();
    void aLongTextEndsAtTenPixels();
    void followsTheWidth();
    void emitsOnlyWhenTheSizeChanges();
    void replacesItsStyleSheet();

private:
    int textWidth(const QString &text, int fontSize) const
    {
        QFont font = m_edit->font();
        font.setPixelSize(fontSize);
        return QFontMetrics(font).boundingRect(text).width();
    }

    std::unique_ptr<QWidget> m_window;
    KelAutoResizeLineEdit *m_edit = nullptr;
};

namespace {

QString sheet(int size)
{
    return QStringLiteral("font-size: %1px").arg(size);
}

} // namespace

void KelAutoResizeLineEditTest::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(1000, 200);
    m_edit = new KelAutoResizeLineEdit(m_window.get());
    m_edit->setGeometry(0, 0, 400, 60);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void KelAutoResizeLineEditTest::sizeByHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("size");

    // Without text the first size, height - 12, fits. The edit then applies one less.
    QTest::newRow("an edit of a result line") << 61 << 48;
    QTest::newRow("the lowest edit of a form") << 24 << 11;
    QTest::newRow("the first size is the smallest one") << 23 << 10;
    QTest::newRow("the first size is below the smallest one") << 22 << 9;
    QTest::newRow("a very low edit") << 14 << 1;
}

void KelAutoResizeLineEditTest::sizeByHeight()
{
    QFETCH(int, height);
    QFETCH(int, size);

    QSignalSpy sizes(m_edit, &KelAutoResizeLineEdit::fontSizeChanged);
    m_edit->resize(400, height);
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(sizes.first().first().toInt(), size);
    QCOMPARE(m_edit->styleSheet(), sheet(size));
    QCOMPARE(m_edit->font().pixelSize(), size);
}

void KelAutoResizeLineEditTest::aLowEdit_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("size");

    QTest::newRow("the applied size is zero") << 13 << 0;
    QTest::newRow("the measured size is zero") << 12 << -1;
    QTest::newRow("the measured size is negative") << 1 << -12;
}

void KelAutoResizeLineEditTest::aLowEdit()
{
    QFETCH(int, height);
    QFETCH(int, size);

    const ExpectedMessages warnings({QStringLiteral("QFont::setPixelSize: Pixel size <= 0 (")});
    m_edit->resize(400, height);
    QCOMPARE(m_edit->styleSheet(), sheet(size));
    m_window.reset();
    QVERIFY(warnings.count() > 0);
}

void KelAutoResizeLineEditTest::shrinksToTheFirstSizeThatFits_data()
{
    QTest::addColumn<int>("fitting");

    QTest::newRow("the first size") << 48;
    QTest::newRow("the second size") << 47;
    QTest::newRow("a size in the middle") << 30;
    QTest::newRow("the last size but one") << 12;
    QTest::newRow("the smallest size") << 11;
}

void KelAutoResizeLineEditTest::shrinksToTheFirstSizeThatFits()
{
    QFETCH(int, fitting);

    // The frame takes 12 pixels of the width. A text as wide as the rest fits.
    const QString text = QStringLiteral("-12.50 dBm + 3.25 mW - 7.25 dBW");
    m_edit->resize(textWidth(text, fitting) + 12, 60);
    m_edit->setText(text);
    QCOMPARE(m_edit->styleSheet(), sheet(fitting - 1));

    if (fitting == 11)
        return;
    m_edit->resize(textWidth(text, fitting) + 11, 60);
    QCOMPARE(m_edit->styleSheet(), sheet(fitting - 2));
}

void KelAutoResizeLineEditTest::aLongTextEndsAtTenPixels_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("width");

    QTest::newRow("a little too long") << 80 << 400;
    QTest::newRow("much too long") << 1000 << 400;
    QTest::newRow("as long as an edit can hold") << 32767 << 400;
    QTest::newRow("an edit narrower than its frame") << 3 << 5;
}

void KelAutoResizeLineEditTest::aLongTextEndsAtTenPixels()
{
    QFETCH(int, length);
    QFETCH(int, width);

    m_edit->resize(width, 60);
    m_edit->setText(QString(length, QLatin1Char('8')));
    QCOMPARE(m_edit->styleSheet(), sheet(10));
    QCOMPARE(m_edit->font().pixelSize(), 10);
}

void KelAutoResizeLineEditTest::followsTheWidth()
{
    const QString text = QStringLiteral("1000 mW");
    m_edit->setText(text);
    QCOMPARE(m_edit->styleSheet(), sheet(47));
    m_edit->resize(textWidth(text, 20) + 12, 60);
    QCOMPARE(m_edit->styleSheet(), sheet(19));
    m_edit->resize(400, 60);
    QCOMPARE(m_edit->styleSheet(), sheet(47));
}

void KelAutoResizeLineEditTest::emitsOnlyWhenTheSizeChanges()
{
    QSignalSpy sizes(m_edit, &KelAutoResizeLineEdit::fontSizeChanged);
    m_edit->setFocus();
    QTest::keyClicks(m_edit, QStringLiteral("12"));
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    QCOMPARE(sizes.count(), 0);

    m_edit->setText(QString(200, QLatin1Char('8')));
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(sizes.takeFirst().constFirst().toInt(), 10);
    m_edit->setText(QString(201, QLatin1Char('8')));
    QCOMPARE(sizes.count(), 0);
    m_edit->clear();
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(sizes.first().first().toInt(), 47);
}

void KelAutoResizeLineEditTest::replacesItsStyleSheet()
{
    m_edit->setStyleSheet(QStringLiteral("color: red"));
    QTest::keyClicks(m_edit, QStringLiteral("1"));
    QCOMPARE(m_edit->styleSheet(), sheet(47));

    m_edit->setStyleSheet(QString());
    m_edit->adjustTextSizeAuto();
    QCOMPARE(m_edit->styleSheet(), sheet(47));
}

DEZIMO_TEST_MAIN(QApplication, KelAutoResizeLineEditTest)

#include "tst_kelautoresizelineedit.moc"
