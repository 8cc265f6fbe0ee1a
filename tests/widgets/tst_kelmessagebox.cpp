// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keliconwidget.h"
#include "kelmessagebox.h"
#include "testmain.h"
#include "ui_kelmessagebox.h"

#include <QAccessible>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

class KelMessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void statesInOrder();
    void form();
    void designValues();
    void iconAreaBeforeItIsShown();
    void showsItsMessage();
    void textIsNoMarkup();
    void aLongTextIsShownWhole();
    void aWindowThatIsOnePixelLowerShowsItsTextWhole();
    void iconByState_data();
    void iconByState();
    void styleSheetsKnowTheState_data();
    void styleSheetsKnowTheState();
    void aClickClosesWithItsRole_data();
    void aClickClosesWithItsRole();
    void isNamedForScreenReaders();

    void askShowsANormalMessage();
    void askReturnsTheClickedButton_data();
    void askReturnsTheClickedButton();
    void askReturnsNoButtonWithoutAClick_data();
    void askReturnsNoButtonWithoutAClick();
    void askReturnsCancelWhenTheRunFails();
    void askReturnsTheLastButtonThatLeftItOpen();
};

namespace {

using Buttons = QDialogButtonBox::StandardButtons;
using Answer = std::function<void(KelMessageBox &)>;

/// Asks, and answers as told once the message is shown. An answer that leaves the message open has
/// it closed. It must not compare anything, because a failure would keep the message open. Returns
/// the standard button, or -1 if no message was shown.
int askAndAnswer(Buttons buttons, const Answer &answer)
{
    bool wasShown = false;
    QTimer onceShown;
    onceShown.setSingleShot(true);
    QObject::connect(&onceShown, &QTimer::timeout, qApp, [&] {
        auto *box = qobject_cast<KelMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        wasShown = box->isVisible();
        answer(*box);
        if (box->isVisible())
            box->close();
    });
    onceShown.start(0);
    const auto result =
        KelMessageBox::ask(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), buttons);
    return wasShown ? int(result) : -1;
}

QPushButton *button(const KelMessageBox &box, QDialogButtonBox::StandardButton which)
{
    return box.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->button(which);
}

/// A layout's spacing and its left, top, right and bottom margin.
QList<int> metrics(const KelMessageBox &box, const char *layoutName)
{
    const auto *layout = box.findChild<QBoxLayout *>(QLatin1String(layoutName));
    const QMargins margins = layout->contentsMargins();
    return {layout->spacing(), margins.left(), margins.top(), margins.right(), margins.bottom()};
}

void requireWholeText(const KelMessageBox &box)
{
    const auto *label = box.findChild<QLabel *>(QStringLiteral("messageLabel"));
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

} // namespace

void KelMessageBoxTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void KelMessageBoxTest::statesInOrder()
{
    const auto states = QMetaEnum::fromType<KelMessageBox::State>();
    QCOMPARE(states.keyCount(), 5);
    const char *const names[] = {"StateNormal", "StateOk", "StateWarning", "StateError",
                                 "StateQuestion"};
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(states.key(i), names[i]);
        QCOMPARE(states.value(i), i);
    }
}

void KelMessageBoxTest::form()
{
    const KelMessageBox box(KelMessageBox::StateError, QStringLiteral("Title"),
                            QStringLiteral("Text"), QDialogButtonBox::Ok);
    QCOMPARE(box.objectName(), QStringLiteral("KelMessageBox"));
    QCOMPARE(box.minimumWidth(), 480);
    QCOMPARE(metrics(box, "verticalLayout_2"), (QList<int>{10, 40, 10, 40, 10}));
    QCOMPARE(metrics(box, "horizontalLayout"), (QList<int>{10, 0, 0, 0, 0}));
    QCOMPARE(metrics(box, "verticalLayout_3"), (QList<int>{0, 0, 0, 0, 0}));
    QCOMPARE(metrics(box, "verticalLayout"), (QList<int>{10, 0, 0, 0, 0}));
    QCOMPARE(metrics(box, "horizontalLayout_2"), (QList<int>{0, 0, 0, 0, 0}));

    const auto *iconArea = box.findChild<QWidget *>(QStringLiteral("iconWidget"));
    QCOMPARE(iconArea->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(iconArea->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    const auto *icon = box.findChild<KelIconWidget *>(QStringLiteral("icon"));
    QCOMPARE(icon->minimumSize(), QSize(32, 32));
    QCOMPARE(icon->maximumSize(), QSize(32, 32));
    const auto *buttonArea = box.findChild<QWidget *>(QStringLiteral("widget_2"));
    QCOMPARE(buttonArea->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(buttonArea->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(box.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->orientation(),
             Qt::Horizontal);
}

void KelMessageBoxTest::designValues()
{
    QDialog dialog;
    Ui::KelMessageBox form;
    form.setupUi(&dialog);
    QCOMPARE(dialog.size(), QSize(480, 148));
    QCOMPARE(dialog.minimumSize(), QSize(480, 0));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Dialog"));
    QCOMPARE(form.buttonBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void KelMessageBoxTest::iconAreaBeforeItIsShown()
{
    const KelMessageBox box(KelMessageBox::StateError, QString(), QStringLiteral("Text"),
                            QDialogButtonBox::Ok);
    QCOMPARE(box.findChild<QWidget *>(QStringLiteral("iconWidget"))->size(), QSize(32, 32));
}

void KelMessageBoxTest::showsItsMessage()
{
    const KelMessageBox box(KelMessageBox::StateWarning, QStringLiteral("File"),
                            QStringLiteral("The file cannot be written."),
                            QDialogButtonBox::Retry | QDialogButtonBox::Abort, nullptr,
                            Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    QCOMPARE(box.windowTitle(), QStringLiteral("File"));
    QCOMPARE(box.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    QCOMPARE(box.state(), KelMessageBox::StateWarning);
    QCOMPARE(box.size(), box.sizeHint().expandedTo(QSize(480, 0)));
    QCOMPARE(box.sizeHint(), box.layout()->totalSizeHint() + QSize(0, 1));

    const auto *content = box.findChild<QWidget *>(QStringLiteral("content"));
    const auto *label = content->findChild<QLabel *>();
    QCOMPARE(label->text(), QStringLiteral("The file cannot be written."));
    QVERIFY(label->wordWrap());
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(content->layout()->itemAt(0)->widget(), label);

    const auto *buttons = box.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Retry | QDialogButtonBox::Abort);
}

void KelMessageBoxTest::textIsNoMarkup()
{
    const KelMessageBox box(KelMessageBox::StateNormal, QString(), QStringLiteral("<b>1 < 2</b>"),
                            QDialogButtonBox::Ok);
    QCOMPARE(box.findChild<QLabel *>(QStringLiteral("messageLabel"))->textFormat(), Qt::PlainText);
}

void KelMessageBoxTest::aLongTextIsShownWhole()
{
    KelMessageBox box(KelMessageBox::StateQuestion, QString(),
                      QStringLiteral("Twenty words make a line. ").repeated(60),
                      QDialogButtonBox::Ok);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    requireWholeText(box);
    QVERIFY(box.width() >= 480);
}

/// Wayland makes such a window where the scale is not a whole number.
void KelMessageBoxTest::aWindowThatIsOnePixelLowerShowsItsTextWhole()
{
    KelMessageBox box(KelMessageBox::StateNormal, QString(),
                      QStringLiteral("Support information copied to clipboard.\nUse <CTRL+V> to "
                                     "paste the information in your mail program."),
                      QDialogButtonBox::Ok);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setGeometry(box.geometry().adjusted(0, 0, 0, -1));
    requireWholeText(box);
}

void KelMessageBoxTest::iconByState_data()
{
    QTest::addColumn<KelMessageBox::State>("state");
    QTest::addColumn<bool>("hasIcon");

    QTest::newRow("a normal message has none") << KelMessageBox::StateNormal << false;
    QTest::newRow("success") << KelMessageBox::StateOk << true;
    QTest::newRow("a warning") << KelMessageBox::StateWarning << true;
    QTest::newRow("an error") << KelMessageBox::StateError << true;
    QTest::newRow("a question") << KelMessageBox::StateQuestion << true;
}

void KelMessageBoxTest::iconByState()
{
    QFETCH(KelMessageBox::State, state);
    QFETCH(bool, hasIcon);

    KelMessageBox box(state, QString(), QStringLiteral("Text"), QDialogButtonBox::Ok);
    box.show();
    QCOMPARE(box.findChild<QWidget *>(QStringLiteral("iconWidget"))->isVisible(), hasIcon);
    QCOMPARE(box.property("state").toInt(), int(state));
    QCOMPARE(box.findChild<QWidget *>(QStringLiteral("icon"))->accessibleName().isEmpty(),
             !hasIcon);
}

void KelMessageBoxTest::styleSheetsKnowTheState_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<KelMessageBox::State>("state");
    QTest::addColumn<bool>("matches");

    QTest::newRow("by its name") << "StateWarning" << KelMessageBox::StateWarning << true;
    QTest::newRow("by the name of another") << "StateError" << KelMessageBox::StateWarning << false;
    // An enumeration's value has no text in Qt 5. In Qt 6 the text is the name, and the number
    // counts as well. No widget can decide that.
    const bool isNumberKnown = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);
    QTest::newRow("by its number") << "2" << KelMessageBox::StateWarning << isNumberKnown;
}

void KelMessageBoxTest::styleSheetsKnowTheState()
{
    QFETCH(QString, selector);
    QFETCH(KelMessageBox::State, state);
    QFETCH(bool, matches);

    qApp->setStyleSheet(
        QStringLiteral("KelMessageBox[state=\"%1\"] KelIconWidget#icon { qproperty-rotation: 90 }")
            .arg(selector));
    KelMessageBox box(state, QString(), QStringLiteral("Text"), QDialogButtonBox::Ok);
    box.show();
    QCOMPARE(box.findChild<KelIconWidget *>(QStringLiteral("icon"))->rotation(), matches ? 90 : 0);
}

void KelMessageBoxTest::aClickClosesWithItsRole_data()
{
    QTest::addColumn<int>("clicked");
    QTest::addColumn<int>("result");

    QTest::newRow("OK accepts") << int(QDialogButtonBox::Ok) << int(QDialog::Accepted);
    QTest::newRow("Cancel rejects") << int(QDialogButtonBox::Cancel) << int(QDialog::Rejected);
}

void KelMessageBoxTest::aClickClosesWithItsRole()
{
    QFETCH(int, clicked);
    QFETCH(int, result);

    KelMessageBox box(KelMessageBox::StateQuestion, QString(), QStringLiteral("Text"),
                      QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box.show();
    QTest::mouseClick(button(box, QDialogButtonBox::StandardButton(clicked)), Qt::LeftButton);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), result);
}

void KelMessageBoxTest::isNamedForScreenReaders()
{
    KelMessageBox box(KelMessageBox::StateError, QStringLiteral("File"),
                      QStringLiteral("The file cannot be read."), QDialogButtonBox::Ok);
    box.show();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(accessible->role(), QAccessible::Dialog);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("File"));
    QCOMPARE(accessible->text(QAccessible::Description),
             QStringLiteral("The file cannot be read."));
    QCOMPARE(box.findChild<QWidget *>(QStringLiteral("icon"))->accessibleName(),
             QStringLiteral("Error"));
}

void KelMessageBoxTest::askShowsANormalMessage()
{
    auto state = KelMessageBox::StateError;
    QString title;
    QString text;
    int flags = 0;
    bool isModal = false;
    const int result = askAndAnswer(QDialogButtonBox::Ok, [&](KelMessageBox &box) {
        state = box.state();
        title = box.windowTitle();
        text = box.findChild<QLabel *>(QStringLiteral("messageLabel"))->text();
        flags = int(box.windowFlags());
        isModal = box.isModal();
    });
    QCOMPARE(state, KelMessageBox::StateNormal);
    QCOMPARE(title, QStringLiteral("Title"));
    QCOMPARE(text, QStringLiteral("Text"));
    QCOMPARE(flags, 0x3103);
    QVERIFY(isModal);
    QCOMPARE(result, int(QDialogButtonBox::NoButton));
}

void KelMessageBoxTest::askReturnsTheClickedButton_data()
{
    QTest::addColumn<int>("clicked");

    QTest::newRow("OK") << int(QDialogButtonBox::Ok);
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel);
    QTest::newRow("Yes") << int(QDialogButtonBox::Yes);
    QTest::newRow("No") << int(QDialogButtonBox::No);
}

void KelMessageBoxTest::askReturnsTheClickedButton()
{
    QFETCH(int, clicked);

    const Buttons buttons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                            QDialogButtonBox::Yes | QDialogButtonBox::No;
    const auto which = QDialogButtonBox::StandardButton(clicked);
    const int result = askAndAnswer(buttons, [which](KelMessageBox &box) {
        QTest::mouseClick(button(box, which), Qt::LeftButton);
    });
    QCOMPARE(result, clicked);
}

void KelMessageBoxTest::askReturnsNoButtonWithoutAClick_data()
{
    QTest::addColumn<bool>("byEscape");

    QTest::newRow("Escape") << true;
    QTest::newRow("closing the window") << false;
}

void KelMessageBoxTest::askReturnsNoButtonWithoutAClick()
{
    QFETCH(bool, byEscape);

    const int result = askAndAnswer(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                    [byEscape](KelMessageBox &box) {
                                        if (byEscape)
                                            QTest::keyClick(&box, Qt::Key_Escape);
                                        else
                                            box.close();
                                    });
    QCOMPARE(result, int(QDialogButtonBox::NoButton));
}

void KelMessageBoxTest::askReturnsCancelWhenTheRunFails()
{
    const int result = askAndAnswer(QDialogButtonBox::Ok, [](KelMessageBox &box) { box.done(-1); });
    QCOMPARE(result, 0x400000);
}

void KelMessageBoxTest::askReturnsTheLastButtonThatLeftItOpen()
{
    bool stayedOpen = false;
    const int result =
        askAndAnswer(QDialogButtonBox::Ok | QDialogButtonBox::Apply, [&](KelMessageBox &box) {
            QTest::mouseClick(button(box, QDialogButtonBox::Apply), Qt::LeftButton);
            stayedOpen = box.isVisible();
        });
    QVERIFY(stayedOpen);
    QCOMPARE(result, int(QDialogButtonBox::Apply));
}

DEZIMO_TEST_MAIN(QApplication, KelMessageBoxTest)

#include "tst_kelmessagebox.moc"
