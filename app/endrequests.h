// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_ENDREQUESTS_H
#define APP_ENDREQUESTS_H

#include <QObject>

#include <memory>

/**
 * Requests of the system to end the program: the signals SIGTERM, SIGINT and SIGHUP on Unix, the
 * end of the session on Windows. Each of them arrives as a signal of Qt in the thread of this
 * object and within its event loop, where all code may run.
 *
 * There is one object at a time. A signal that the program was started to ignore stays ignored, so
 * that nohup keeps the program running when its terminal is closed.
 */
class EndRequests final : public QObject
{
    Q_OBJECT

public:
    EndRequests();
    ~EndRequests() override;

Q_SIGNALS:
    /// Emitted once, because the program ends then. On Windows the system may end the process as
    /// soon as the slots have returned.
    void received();

private:
    class Source;

    const std::unique_ptr<Source> m_source;
};

#endif
