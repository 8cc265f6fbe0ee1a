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

/// Signals arrive at any moment, where hardly anything is allowed but to write a byte into a pipe;
/// the event loop finds it at the other end.
std::array<int, 2> endsOfPipe{-1, -1};

extern "C" void writeIntoPipe(int)
{
    const int kept = errno;
    const char byte = 0;
    // A full pipe says already what there is to say.
    [[maybe_unused]] const ssize_t written = write(endsOfPipe[1], &byte, 1);
    errno = kept;
}

/// Other programs that this one starts get neither the pipe nor the handler.
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

/// The pipe and the handlers stay until the process ends. So a second signal cannot end it while
/// the state is written, which happens after the event loop.
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
