// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "require.h"

#include <cstdio>
#include <cstdlib>

namespace {

void refuse(QtMsgType, const QMessageLogContext &, const QString &message)
{
    require(false, "nothing is logged", message);
}

} // namespace

void require(bool holds, const char *rule, const QString &value)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s: \"%s\"\n", rule, qPrintable(value));
    std::abort();
}

void requireSilence()
{
    qInstallMessageHandler(refuse);
}
