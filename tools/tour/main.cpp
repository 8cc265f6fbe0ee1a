// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "identity.h"
#include "kelapplication.h"
#include "mainwindow.h"
#include "tour.h"

#include <QDir>
#include <QTest>

#include <cstdio>

namespace {

/// Qt's offscreen platform prints this for every window with a minimum size. Everything else is
/// passed on.
const char kOffscreenSizeHints[] = "This plugin does not support propagateSizeHints()";
QtMessageHandler passOn = nullptr;

void dropSizeHints(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message != QLatin1String(kOffscreenSizeHints))
        passOn(type, context, message);
}

} // namespace

int main(int argc, char *argv[])
{
    passOn = qInstallMessageHandler(dropSizeHints);
    KelApplication application(argc, argv, true);
    Identity::apply();
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: dezimo-tour <folder for the pictures>\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));

    MainWindow window;
    window.show();
    if (!QTest::qWaitForWindowActive(&window))
        return 1;
    for (const Tour::Example &example : Tour::examples()) {
        const Tour::Played played = Tour::play(window, example);
        std::printf("%s\n", qUtf8Printable(played.line));
        if (!played.missing.isEmpty()) {
            std::fprintf(stderr, "missing in the window: %s\n",
                         qUtf8Printable(played.missing.join(QLatin1String(", "))));
            return 1;
        }
        if (*example.picture == '\0')
            continue;
        const QString picture =
            folder.filePath(QLatin1String(example.picture) + QLatin1String(".png"));
        if (!window.grab().save(picture)) {
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(picture));
            return 1;
        }
    }
    return 0;
}
