// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keliconwidget.h"
#include "testmain.h"

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class KelIconWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsEmpty();
    void keepsItsProperties();
    void everyChangeIsAnnouncedOnce();
    void drawsTheIconCentered_data();
    void drawsTheIconCentered();
    void turnsTheIconAboutTheCenter_data();
    void turnsTheIconAboutTheCenter();
    void drawsNothingWithoutAnIcon();
    void drawsTheNormalOffPicture();
    void everyChangeRepaints();
    void takesItsIconFromAStyleSheet();
    void isAGraphicForScreenReaders();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    QImage drawn() const { return m_widget->grab().toImage(); }

    std::unique_ptr<KelIconWidget> m_widget;
    int m_paints = 0;
};

namespace {

const QColor kCorner(200, 0, 0);
const QColor kRest(0, 0, 200);
const QColor kBackground(255, 255, 255);

/// An icon whose top left quarter differs from the rest, so that a test sees how it is turned.
QIcon makeIcon(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(kRest);
    QPainter(&pixmap).fillRect(0, 0, side / 2, side / 2, kCorner);
    return QIcon(pixmap);
}

} // namespace

void KelIconWidgetTest::init()
{
    m_widget = std::make_unique<KelIconWidget>();
    QPalette palette;
    palette.setColor(QPalette::Window, kBackground);
    m_widget->setPalette(palette);
}

void KelIconWidgetTest::cleanup()
{
    m_widget.reset();
    qApp->setStyleSheet(QString());
}

bool KelIconWidgetTest::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        ++m_paints;
    return QObject::eventFilter(watched, event);
}

void KelIconWidgetTest::startsEmpty()
{
    QVERIFY(m_widget->icon().isNull());
    QCOMPARE(m_widget->rotation(), 0);
    QCOMPARE(m_widget->iconSize(), QSize(16, 16));
}

void KelIconWidgetTest::keepsItsProperties()
{
    const QIcon icon = makeIcon(16);
    QVERIFY(m_widget->setProperty("icon", icon));
    QVERIFY(m_widget->setProperty("rotation", -45));
    QVERIFY(m_widget->setProperty("iconSize", QSize(32, 24)));

    QCOMPARE(m_widget->icon().cacheKey(), icon.cacheKey());
    QCOMPARE(m_widget->property("icon").value<QIcon>().cacheKey(), icon.cacheKey());
    QCOMPARE(m_widget->rotation(), -45);
    QCOMPARE(m_widget->iconSize(), QSize(32, 24));
    QCOMPARE(m_widget->sizeHint(), QSize(32, 24));
}

void KelIconWidgetTest::everyChangeIsAnnouncedOnce()
{
    QSignalSpy icons(m_widget.get(), &KelIconWidget::iconChanged);
    QSignalSpy rotations(m_widget.get(), &KelIconWidget::rotationChanged);
    QSignalSpy sizes(m_widget.get(), &KelIconWidget::iconSizeChanged);
    const QIcon icon = makeIcon(16);
    for (int i = 0; i < 2; ++i) {
        m_widget->setIcon(icon);
        m_widget->setRotation(90);
        m_widget->setIconSize(QSize(32, 24));
        QCOMPARE(icons.count(), 1);
        QCOMPARE(rotations.count(), 1);
        QCOMPARE(sizes.count(), 1);
    }
    m_widget->setIcon(makeIcon(16));
    QCOMPARE(icons.count(), 2);
    m_widget->setIcon(QIcon());
    QCOMPARE(icons.count(), 3);
}

void KelIconWidgetTest::drawsTheIconCentered_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("iconSide");
    QTest::addColumn<QPoint>("topLeft");

    QTest::newRow("as large as its icon") << QSize(16, 16) << 16 << QPoint(0, 0);
    // (40 - 16) / 2 and (30 - 16) / 2
    QTest::newRow("larger than its icon") << QSize(40, 30) << 16 << QPoint(12, 7);
    // (41 - 16) / 2 and (31 - 16) / 2, remainders dropped
    QTest::newRow("an odd space left over") << QSize(41, 31) << 16 << QPoint(12, 7);
    QTest::newRow("a larger icon") << QSize(40, 40) << 32 << QPoint(4, 4);
}

void KelIconWidgetTest::drawsTheIconCentered()
{
    QFETCH(QSize, size);
    QFETCH(int, iconSide);
    QFETCH(QPoint, topLeft);

    m_widget->resize(size);
    m_widget->setIcon(makeIcon(iconSide));
    m_widget->setIconSize(QSize(iconSide, iconSide));

    const QImage image = drawn();
    const QRect icon(topLeft, QSize(iconSide, iconSide));
    QCOMPARE(image.pixelColor(icon.topLeft()), kCorner);
    QCOMPARE(image.pixelColor(icon.topRight()), kRest);
    QCOMPARE(image.pixelColor(icon.bottomRight()), kRest);
    if (topLeft.x() == 0)
        return;
    QCOMPARE(image.pixelColor(icon.topLeft() - QPoint(1, 0)), kBackground);
    QCOMPARE(image.pixelColor(icon.topLeft() - QPoint(0, 1)), kBackground);
    QCOMPARE(image.pixelColor(icon.bottomRight() + QPoint(1, 0)), kBackground);
    QCOMPARE(image.pixelColor(icon.bottomRight() + QPoint(0, 1)), kBackground);
}

void KelIconWidgetTest::turnsTheIconAboutTheCenter_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QPoint>("corner");

    // The icon covers 12 to 27 by 7 to 22. The middle of each quarter is 4 pixels inside.
    QTest::newRow("not turned") << 0 << QPoint(16, 11);
    QTest::newRow("a quarter clockwise") << 90 << QPoint(24, 11);
    QTest::newRow("upside down") << 180 << QPoint(24, 19);
    QTest::newRow("a quarter counterclockwise") << -90 << QPoint(16, 19);
    QTest::newRow("more than once around") << 450 << QPoint(24, 11);
}

void KelIconWidgetTest::turnsTheIconAboutTheCenter()
{
    QFETCH(int, degrees);
    QFETCH(QPoint, corner);

    m_widget->resize(40, 30);
    m_widget->setIcon(makeIcon(16));
    m_widget->setRotation(degrees);

    const QImage image = drawn();
    for (const QPoint &quarter : {QPoint(16, 11), QPoint(24, 11), QPoint(24, 19), QPoint(16, 19)})
        QCOMPARE(image.pixelColor(quarter), quarter == corner ? kCorner : kRest);
}

void KelIconWidgetTest::drawsNothingWithoutAnIcon()
{
    m_widget->resize(40, 30);
    m_widget->setIcon(QIcon(QStringLiteral(":/there/is/no/such/icon.png")));
    QImage empty(40, 30, QImage::Format_RGB32);
    empty.fill(kBackground);
    QCOMPARE(drawn().convertToFormat(QImage::Format_RGB32), empty);
}

void KelIconWidgetTest::drawsTheNormalOffPicture()
{
    QPixmap normal(16, 16);
    normal.fill(kCorner);
    QPixmap other(16, 16);
    other.fill(kRest);
    QIcon icon;
    icon.addPixmap(normal, QIcon::Normal, QIcon::Off);
    icon.addPixmap(other, QIcon::Normal, QIcon::On);
    icon.addPixmap(other, QIcon::Disabled, QIcon::Off);

    m_widget->resize(16, 16);
    m_widget->setIcon(icon);
    m_widget->setEnabled(false);
    QCOMPARE(drawn().pixelColor(8, 8), kCorner);
}

void KelIconWidgetTest::everyChangeRepaints()
{
    m_widget->resize(40, 30);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    m_widget->installEventFilter(this);

    m_paints = 0;
    m_widget->setIcon(makeIcon(16));
    QTRY_VERIFY(m_paints > 0);
    m_paints = 0;
    m_widget->setRotation(45);
    QTRY_VERIFY(m_paints > 0);
    m_paints = 0;
    m_widget->setIconSize(QSize(24, 24));
    QTRY_VERIFY(m_paints > 0);
}

void KelIconWidgetTest::takesItsIconFromAStyleSheet()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("icon.png"));
    QVERIFY(makeIcon(24).pixmap(24, 24).save(file));
    qApp->setStyleSheet(QStringLiteral("KelIconWidget { qproperty-icon: url(%1); "
                                       "qproperty-iconSize: 24px 24px }")
                            .arg(file));
    m_widget->resize(24, 24);
    QCOMPARE(drawn().pixelColor(2, 2), kCorner);
    QCOMPARE(m_widget->iconSize(), QSize(24, 24));
}

void KelIconWidgetTest::isAGraphicForScreenReaders()
{
    m_widget->setAccessibleName(QStringLiteral("Warning"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(m_widget.get());
    QCOMPARE(accessible->role(), QAccessible::Graphic);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Warning"));
}

DEZIMO_TEST_MAIN(QApplication, KelIconWidgetTest)

#include "tst_keliconwidget.moc"
