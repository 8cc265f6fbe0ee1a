// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "endrequests.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A signal interrupts the program at any moment, so its handler may do hardly anything. It writes
/// a byte into a pipe, and the event loop reads it at the other end.
std::array<int, 2> endsOfPipe{-1, -1};

extern "C" void writeIntoPipe(int)
{
    const int kept = errno;
    const char byte = 0;
    // If the pipe is full, the event loop has enough to read already.
    [[maybe_unused]] const ssize_t written = write(endsOfPipe[1], &byte, 1);
    errno = kept;
}

/// Programs that this one starts inherit neither the pipe nor the handler.
bool makePipe()
{
    return endsOfPipe[0] >= 0 || pipe2(endsOfPipe.data(), O_CLOEXEC | O_NONBLOCK) == 0;
}

void catchUnlessIgnored(int signal)
{
    struct sigaction present = {};
    if (sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = writeIntoPipe;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

} // namespace

/// The pipe and the handlers stay until the process ends. The state is written after the event
/// loop, and a second signal must not end the process in that time.
class EndRequests::Source
{
public:
    explicit Source(EndRequests &requests)
    {
        if (!makePipe())
            return;
        m_notifier = std::make_unique<QSocketNotifier>(endsOfPipe[0], QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, &requests, [this, &requests] {
            m_notifier->setEnabled(false);
            Q_EMIT requests.received();
        });
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            catchUnlessIgnored(signal);
    }

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

EndRequests::EndRequests() : m_source(std::make_unique<Source>(*this)) {}

EndRequests::~EndRequests() = default;
