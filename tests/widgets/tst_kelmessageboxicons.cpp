// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "applicationtheme.h"
#include "keliconwidget.h"
#include "kelmessagebox.h"
#include "resources.h"
#include "testmain.h"

#include <QApplication>
#include <QFile>
#include <QMetaEnum>
#include <QTest>

/// The icons that the shipped style sheets give a message, by its state.
class KelMessageBoxIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void everyStateHasItsOwnIcon_data();
    void everyStateHasItsOwnIcon();
};

namespace {

QString styleSheet(const QString &name)
{
    QFile file(QStringLiteral(":/Global/Style/%1.qss").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The icon that a message of this state draws at the left of its text.
QImage drawnIcon(KelMessageBox::State state)
{
    KelMessageBox box(state, QString(), QStringLiteral("Text"), QDialogButtonBox::Ok);
    box.show();
    return box.findChild<KelIconWidget *>(QStringLiteral("icon"))->grab().toImage();
}

} // namespace

void KelMessageBoxIconsTest::initTestCase()
{
    initDezimoResources();
}

void KelMessageBoxIconsTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void KelMessageBoxIconsTest::everyStateHasItsOwnIcon_data()
{
    QTest::addColumn<int>("theme");

    QTest::newRow("in the bright theme") << int(Bright);
    QTest::newRow("in the dark theme") << int(Dark);
}

void KelMessageBoxIconsTest::everyStateHasItsOwnIcon()
{
    QFETCH(int, theme);

    const QString common = styleSheet(QStringLiteral("kelmessagebox"));
    const QString themed =
        styleSheet(QStringLiteral("kelmessagebox_") + themeWord(ApplicationTheme(theme)));
    QVERIFY(!common.isEmpty());
    QVERIFY(!themed.isEmpty());
    qApp->setStyleSheet(common + themed);

    QVector<QImage> icons{drawnIcon(KelMessageBox::StateNormal)};
    for (const auto state : {KelMessageBox::StateOk, KelMessageBox::StateWarning,
                             KelMessageBox::StateError, KelMessageBox::StateQuestion}) {
        const QImage icon = drawnIcon(state);
        QVERIFY2(!icons.contains(icon),
                 QMetaEnum::fromType<KelMessageBox::State>().valueToKey(state));
        icons.append(icon);
    }
}

DEZIMO_TEST_MAIN(QApplication, KelMessageBoxIconsTest)

#include "tst_kelmessageboxicons.moc"
