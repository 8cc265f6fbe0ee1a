// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "endrequests.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <windows.h>

/// Every window is told that the session ends, those that Qt hides too, and the first one counts.
/// The process may be ended as soon as the last one knows it. A question whether the session may
/// end comes before and can still be answered with no by any program, so it changes nothing here.
class EndRequests::Source final : public QAbstractNativeEventFilter
{
public:
    explicit Source(EndRequests &requests) : m_requests(requests)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    /// Nothing is kept from Qt, which answers the message.
    bool nativeEventFilter(const QByteArray &, void *message, long *) override
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
