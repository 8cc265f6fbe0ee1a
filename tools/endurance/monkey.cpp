// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "monkey.h"

#include "calculationfiles.h"
#include "mainprofile.h"
#include "mainwindow.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QPixmapCache>
#include <QTest>

#include <array>
#include <malloc.h>

using namespace Dezimo;

namespace {

constexpr qint64 kSampleMilliseconds = 5000;
constexpr int kMostWindows = 4;
constexpr int kLongestPaste = 100;
constexpr int kStepsBetweenDefaults = 500;
constexpr QSize kSampleSize(1000, 700);

const QString &typed()
{
    static const QString characters =
        QString::fromUtf8("0123456789.,-+*/()eE dBmWVkuµMGp%@\"\\=;[]ΩäشI−💥");
    return characters;
}

constexpr std::array<Qt::Key, 19> kKeys = {
    Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,
    Qt::Key_Backspace, Qt::Key_Delete,  Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,
    Qt::Key_Down,      Qt::Key_Home,    Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Space,     Qt::Key_F10,     Qt::Key_Menu,   Qt::Key_F4,
};
constexpr std::array<Qt::Key, 12> kShortcuts = {
    Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y,
    Qt::Key_O, Qt::Key_S, Qt::Key_Q, Qt::Key_F, Qt::Key_H, Qt::Key_Backspace,
};

QList<QWidget *> shownWindows()
{
    QList<QWidget *> shown;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        const bool isWindow =
            window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (isWindow && window->isVisible())
            shown += window;
    }
    return shown;
}

/// QPixmapCache::clear() is not enough, because it keeps the names of the pictures.
void emptyPictureCache()
{
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0);
    QPixmapCache::setCacheLimit(limit);
}

} // namespace

Monkey::Monkey(unsigned seed, qint64 milliseconds, const QString &folder)
    : m_random(seed),
      m_milliseconds(milliseconds),
      m_folder(folder),
      m_window(std::make_unique<MainWindow>())
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &Monkey::step);
}

Monkey::~Monkey() = default;

void Monkey::start()
{
    m_window->show();
    m_time.start();
    m_next.start();
}

bool Monkey::report() const
{
    std::printf("%d steps, %d ends, %d file dialogs, %d links not followed\n", m_steps, m_ends,
                m_files, m_links);
    m_memory.print();
    return m_memory.isUpward();
}

void Monkey::dropLink(const QUrl &)
{
    ++m_links;
}

/// The timer for the next step starts before this one acts, because an action may open a dialog,
/// whose event loop waits for what the next steps do.
void Monkey::step()
{
    if (m_time.elapsed() > m_milliseconds) {
        QApplication::closeAllWindows();
        QCoreApplication::quit();
        return;
    }
    m_next.start();
    ++m_steps;
    QWidget *top = target();
    if (top == nullptr)
        tidyUp();
    else if (m_time.elapsed() >= m_nextSample && isAtRest())
        sampleMemory();
    else
        act(*top);
    boundUndo();
}

bool Monkey::isAtRest()
{
    return QApplication::activePopupWidget() == nullptr &&
           QApplication::activeModalWidget() == nullptr;
}

/// Samples compare only if the program is in the same state each time: the modules at their
/// defaults, the window in one size, and Qt's cache of pictures empty, which slowly fills up to its
/// 10 MiB. Before each sample, freed memory goes back to the system.
void Monkey::sampleMemory()
{
    m_next.stop();
    tidyUp();
    CalculationFiles::loadDefaults(MainProfile::instance());
    m_window->resize(kSampleSize);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    emptyPictureCache();
    malloc_trim(0);
    m_next.start();
    m_memory.sample();
    m_nextSample += kSampleMilliseconds;
}

QWidget *Monkey::target()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    const QList<QWidget *> windows = shownWindows();
    const bool isMissing = !windows.contains(m_window.get());
    return isMissing || windows.size() > kMostWindows ? nullptr
                                                      : windows.at(below(int(windows.size())));
}

void Monkey::act(QWidget &top)
{
    if (auto *dialog = qobject_cast<QFileDialog *>(&top)) {
        answer(*dialog);
        return;
    }
    const int choice = below(100);
    if (choice < 45)
        click(top);
    else if (choice < 98)
        type(top);
    else
        resizeWindow();
}

/// Rejects the dialog, or enters one of ten names, whose file may not be there.
void Monkey::answer(QFileDialog &dialog)
{
    ++m_files;
    auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (name == nullptr || below(3) == 0) {
        dialog.reject();
        return;
    }
    name->setText(m_folder + QStringLiteral("/%1.dezimo").arg(below(10)));
    static_cast<QDialog &>(dialog).accept();
    if (QApplication::activeModalWidget() == &dialog) // there is no such file
        dialog.reject();
}

void Monkey::click(QWidget &top)
{
    QList<QWidget *> widgets{&top};
    const QList<QWidget *> children = top.findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible() && child->window() == &top && !child->size().isEmpty())
            widgets += child;
    }
    QPointer<QWidget> widget = widgets.at(below(int(widgets.size())));
    const QPoint at(below(std::max(1, widget->width())), below(std::max(1, widget->height())));
    const Qt::MouseButton button = below(12) == 0 ? Qt::RightButton : Qt::LeftButton;
    switch (below(6)) {
    case 0:
        QTest::mouseDClick(widget, button, Qt::NoModifier, at);
        break;
    case 1:
        QTest::mousePress(widget, button, Qt::NoModifier, at);
        if (widget)
            QTest::mouseMove(widget, widget->rect().center());
        if (widget)
            QTest::mouseRelease(widget, button, Qt::NoModifier, widget->rect().center());
        break;
    default:
        QTest::mouseClick(widget, button, Qt::NoModifier, at);
    }
}

void Monkey::type(QWidget &top)
{
    QWidget *focused = top.focusWidget() != nullptr ? top.focusWidget() : &top;
    const int choice = below(100);
    if (choice < 60)
        QTest::sendKeyEvent(QTest::Click, focused, Qt::Key_unknown,
                            QString(typed().at(below(int(typed().size())))), Qt::NoModifier);
    else if (choice < 90)
        QTest::keyClick(focused, kKeys.at(size_t(below(int(kKeys.size())))));
    else if (choice < 97)
        QTest::keyClick(focused, kShortcuts.at(size_t(below(int(kShortcuts.size())))),
                        Qt::ControlModifier);
    else
        QTest::keyClick(focused, kShortcuts.at(size_t(below(int(kShortcuts.size())))),
                        Qt::AltModifier);
}

/// A field of Qt keeps every character that was typed or pasted for Undo, 20 bytes each, until the
/// program sets its text, and even then it keeps the room for them. If that room grew without a
/// limit, it would look like a leak.
void Monkey::boundUndo()
{
    if (m_steps % kStepsBetweenDefaults == 0)
        CalculationFiles::loadDefaults(MainProfile::instance());
    if (QGuiApplication::clipboard()->text().size() > kLongestPaste)
        QGuiApplication::clipboard()->clear();
}

void Monkey::resizeWindow()
{
    m_window->resize(below(1600), below(1000));
}

/// Closes all other windows, and shows the main window again if it was closed.
void Monkey::tidyUp()
{
    const QList<QWidget *> windows = shownWindows();
    for (QWidget *window : windows) {
        if (window != m_window.get())
            window->close();
    }
    if (m_window->isVisible())
        return;
    m_window->show();
    ++m_ends;
}

int Monkey::below(int bound)
{
    return std::uniform_int_distribution<int>(0, bound - 1)(m_random);
}
