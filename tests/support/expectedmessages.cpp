// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"

#include <algorithm>

namespace {

QtMessageHandler previousHandler = nullptr;
QStringList expectedBeginnings;
int takenMessages = 0;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isExpected =
        std::any_of(expectedBeginnings.cbegin(), expectedBeginnings.cend(),
                    [&](const QString &beginning) { return message.startsWith(beginning); });
    if (isExpected)
        ++takenMessages;
    else
        previousHandler(type, context, message);
}

} // namespace

ExpectedMessages::ExpectedMessages(const QStringList &beginnings)
{
    expectedBeginnings = beginnings;
    takenMessages = 0;
    previousHandler = qInstallMessageHandler(handleMessage);
}

ExpectedMessages::~ExpectedMessages()
{
    qInstallMessageHandler(previousHandler);
}

int ExpectedMessages::count() const
{
    return takenMessages;
}

QStringList offscreenPopupMessages()
{
    return {QStringLiteral("This plugin does not support raise()"),
            QStringLiteral("This plugin does not support grabbing the keyboard")};
}
