// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "identity.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "withoutopengl.h"

#include <cstdio>
#include <optional>

namespace {

/// Whoever started the program from a terminal reads it there.
void say(const QString &line)
{
    if (!line.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(line));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    std::optional<WithoutOpenGl> firstWindow(std::in_place);
    KelApplication application(argc, argv, true);
    Identity::apply();
    MainWindow window;
    window.show();
    firstWindow.reset();
    say(CalculationFiles::openFromCommandLine(MainProfile::instance(), QApplication::arguments()));
    return QApplication::exec();
}
