// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_ENDREQUESTS_H
#define APP_ENDREQUESTS_H

#include <QObject>

#include <memory>

/**
 * What the system asks a program to end by, without a person who clicks Quit: the signals SIGTERM,
 * SIGINT and SIGHUP on Unix, the end of the session on Windows. All of them come out as one signal
 * of Qt, in the thread of this object and within its event loop, where everything may be done.
 *
 * There is one object at a time. A signal that was ignored when the object is made stays ignored:
 * so nohup keeps a program running when its terminal goes.
 */
class EndRequests final : public QObject
{
    Q_OBJECT

public:
    EndRequests();
    ~EndRequests() override;

Q_SIGNALS:
    /// Emitted once: whoever asks again finds the program ending. On Windows the process may be
    /// gone as soon as the slots have returned.
    void received();

private:
    class Source;

    const std::unique_ptr<Source> m_source;
};

#endif
