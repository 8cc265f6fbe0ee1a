// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"

#include "resources.h"
#include "stylesheets.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLocale>
#include <QWidget>

namespace {

/// The attributes are set after the application object is made, on purpose. Qt warns that this is
/// too late. The warning is dropped, because it would be the only thing that the program prints. Qt
/// 6 does by itself what they stand for.
void setHighDpiAttributes()
{
    const auto ignore = [](QtMsgType, const QMessageLogContext &, const QString &) {
    };
    const QtMessageHandler previous = qInstallMessageHandler(ignore);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QT_WARNING_POP
    qInstallMessageHandler(previous);
}

/// If Qt did not know the fonts of the system yet, it would read these here now and again with the
/// first text. So it is asked for them first.
void addApplicationFonts()
{
    QFontDatabase().families();
    for (const char *name : {"Tessan_v3_Bold_02", "Tessan_v3_Italic_02", "Tessan_v3_Light_02",
                             "Tessan_v3_Regular_02", "TessanCd_v3_Bold_02", "TessanCd_v3_Italic_02",
                             "TessanCd_v3_Light_02", "TessanCd_v3_Regular_02"}) {
        QFontDatabase::addApplicationFont(
            QStringLiteral(":/Global/Fonts/%1.ttf").arg(QLatin1String(name)));
    }
}

/// AltGr types letters. Some platforms report it as Ctrl and Alt together.
bool isLetterWithAlt(const QKeyEvent &key)
{
    return key.modifiers().testFlag(Qt::AltModifier) &&
           !key.modifiers().testFlag(Qt::ControlModifier) && !key.text().isEmpty() &&
           key.text().at(0).isPrint();
}

/// A menu or a list of choices keeps the keyboard to itself, and would lie above whatever opens. So
/// it closes, and the key goes to the window below.
void passOnFromPopup(const QKeyEvent &key)
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    if (QWidget *below = QApplication::focusWidget()) {
        QKeyEvent again(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
        QCoreApplication::sendEvent(below, &again);
    }
}

} // namespace

KelApplication::KelApplication(int &argc, char **argv, bool flag)
    : QApplication(argc, argv),
      m_flag(flag)
{
    initDezimoResources();
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    setHighDpiAttributes();
    addApplicationFonts();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::AnyCountry));
    installStyleSheet(Bright);
    installEventFilter(this);
}

void KelApplication::installStyleSheet(ApplicationTheme theme)
{
    setStyleSheet(StyleSheets::combined(QStringLiteral(":/Global/Style/"), theme));
}

/// On most platforms Qt's fields type a letter even while Alt is held. F1 asks the window for help,
/// so a menu passes it on.
bool KelApplication::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return QApplication::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (key.key() == Qt::Key_F1 && activePopupWidget()) {
        passOnFromPopup(key);
        return true;
    }
    return isLetterWithAlt(key) || QApplication::eventFilter(watched, event);
}
