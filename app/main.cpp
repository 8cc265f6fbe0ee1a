// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "endrequests.h"
#include "identity.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "withoutopengl.h"

#include <cstdio>
#include <optional>

using namespace Dezimo;

namespace {

/// A session that is about to end may still go on. So the program only writes its state, whereas Qt
/// by itself would close the windows.
void endWithoutAPerson(const EndRequests &requests, const MainWindow &window)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QGuiApplication::setFallbackSessionManagementEnabled(false); // Qt 6 has no such fallback
#endif
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &window, &MainWindow::keepState);
    QObject::connect(&requests, &EndRequests::received, &window, &MainWindow::endProgram);
}

/// For a person who started the program from a terminal.
void say(const QString &line)
{
    if (!line.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(line));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    // Qt 5 does so by itself, while Qt 6 would take screens of every density as they are.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    std::optional<WithoutOpenGl> firstWindow(std::in_place);
    KelApplication application(argc, argv, true);
    Identity::apply();
    const EndRequests endRequests;
    MainWindow window;
    endWithoutAPerson(endRequests, window);
    window.show();
    firstWindow.reset();
    say(CalculationFiles::openFromCommandLine(MainProfile::instance(), QApplication::arguments()));
    return QApplication::exec();
}
