// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TOOLS_ENDURANCE_MONKEY_H
#define TOOLS_ENDURANCE_MONKEY_H

#include "memorytrend.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <random>

class MainWindow;
class QFileDialog;
class QWidget;

/**
 * Clicks and types at random into whatever the program shows, for a given time. It never leaves the
 * program: it answers file dialogs with names in one folder, follows no links, and shows the main
 * window again when it was closed. The same seed makes the same choices.
 */
class Monkey final : public QObject
{
    Q_OBJECT

public:
    /// Files are saved into and opened from @p folder.
    Monkey(unsigned seed, qint64 milliseconds, const QString &folder);
    ~Monkey() override;

    void start();
    /// Prints what was done, and says whether the memory grew.
    bool report() const;

public Q_SLOTS:
    void dropLink(const QUrl &link);

private:
    void step();
    void act(QWidget &top);
    void answer(QFileDialog &dialog);
    void click(QWidget &top);
    void type(QWidget &top);
    void boundUndo();
    void resizeWindow();
    void tidyUp();
    void sampleMemory();
    static bool isAtRest();
    /// The popup, dialog or window that the next step goes to.
    QWidget *target();
    int below(int bound);

    std::mt19937 m_random;
    const qint64 m_milliseconds;
    const QString m_folder;
    std::unique_ptr<MainWindow> m_window;
    QTimer m_next;
    QElapsedTimer m_time;
    qint64 m_nextSample = 0;
    MemoryTrend m_memory;
    int m_steps = 0;
    int m_ends = 0;
    int m_files = 0;
    int m_links = 0;
};

#endif
