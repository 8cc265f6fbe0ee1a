// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"

#include <algorithm>

namespace {

ExpectedMessages *current = nullptr;
QtMessageHandler previousHandler = nullptr;

} // namespace

ExpectedMessages::ExpectedMessages(const QStringList &beginnings) : m_beginnings(beginnings)
{
    current = this;
    previousHandler = qInstallMessageHandler(handle);
}

ExpectedMessages::~ExpectedMessages()
{
    qInstallMessageHandler(previousHandler);
    current = nullptr;
}

void ExpectedMessages::handle(QtMsgType type, const QMessageLogContext &context,
                              const QString &message)
{
    const QStringList &beginnings = current->m_beginnings;
    const bool isExpected =
        std::any_of(beginnings.cbegin(), beginnings.cend(),
                    [&](const QString &beginning) { return message.startsWith(beginning); });
    if (isExpected)
        ++current->m_count;
    else
        previousHandler(type, context, message);
}

QStringList offscreenPopupMessages()
{
    return {QStringLiteral("This plugin does not support raise()"),
            QStringLiteral("This plugin does not support grabbing the keyboard")};
}
