// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "identity.h"
#include "kelapplication.h"
#include "monkey.h"

#include <QDesktopServices>
#include <QTemporaryDir>

#include <cstdio>

namespace {

int unexpectedMessages = 0;

/// Qt prints this about the limits of its offscreen platform. Anything else is a finding.
void countMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    ++unexpectedMessages;
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fputs("usage: dezimo-monkey <minutes> <seed>\n", stderr);
        return 2;
    }
    // A home of its own, so that the monkey cannot reach the user's settings and files.
    const QTemporaryDir folder;
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(QStringLiteral("config"))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const double minutes = QByteArray(argv[1]).toDouble();
    const unsigned seed = QByteArray(argv[2]).toUInt();

    qInstallMessageHandler(countMessage);
    KelApplication application(argc, argv, true);
    Identity::apply();
    KelApplication::setQuitOnLastWindowClosed(false);
    Monkey monkey(seed, qint64(minutes * 60000.0), folder.path());
    for (const char *scheme : {"http", "https", "mailto", "file"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &monkey, "dropLink");
    monkey.start();
    KelApplication::exec();
    const bool grew = monkey.report();
    std::printf("%d unexpected messages\n", unexpectedMessages);
    return grew || unexpectedMessages > 0 ? 1 : 0;
}
