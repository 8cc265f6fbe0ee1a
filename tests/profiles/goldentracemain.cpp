// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "goldentrace.h"

#include <QCoreApplication>

#include <cstdio>

/// Prints the whole trace, to compare two versions line by line, or the checksums that the test
/// compares.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments().mid(1);
    const bool isChecked = arguments == QStringList(QStringLiteral("--checksums"));
    if (!isChecked && !arguments.isEmpty()) {
        std::fputs("usage: dezimo-goldentrace [--checksums]\n", stderr);
        return 2;
    }
    GoldenTrace trace;
    for (int i = 0; i < GoldenTrace::kThousands; ++i) {
        const QStringList lines = trace.playThousand();
        const QByteArray text =
            isChecked ? GoldenTrace::checksum(lines) : lines.join(QLatin1Char('\n')).toUtf8();
        std::printf("%s\n", text.constData());
    }
    return 0;
}
