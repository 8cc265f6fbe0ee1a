// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "endrequests.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <windows.h>

// The answer to a message has the size of a pointer, which is more than that of a long.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using MessageResult = long;
#else
using MessageResult = qintptr;
#endif

/// Windows tells every window that the session ends, even those that Qt hides. The first message is
/// enough, and after the last one the process may be ended. Windows asks all programs beforehand
/// whether the session may end. Any of them may still say no, so that question is ignored here.
class EndRequests::Source final : public QAbstractNativeEventFilter
{
public:
    explicit Source(EndRequests &requests) : m_requests(requests)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    /// Qt still gets the message and answers it.
    bool nativeEventFilter(const QByteArray &, void *message, MessageResult *) override
    {
        const auto *arrived = static_cast<const MSG *>(message);
        if (arrived->message == WM_ENDSESSION && arrived->wParam != 0 && !m_isReceived) {
            m_isReceived = true;
            Q_EMIT m_requests.received();
        }
        return false;
    }

private:
    EndRequests &m_requests;
    bool m_isReceived = false;
};

EndRequests::EndRequests() : m_source(std::make_unique<Source>(*this)) {}

EndRequests::~EndRequests() = default;
