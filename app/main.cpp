// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "identity.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "withoutopengl.h"

#include <optional>

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    std::optional<WithoutOpenGl> firstWindow(std::in_place);
    KelApplication application(argc, argv, true);
    Identity::apply();
    MainWindow window;
    window.show();
    firstWindow.reset();
    CalculationFiles::openFromCommandLine(MainProfile::instance(), QApplication::arguments());
    return QApplication::exec();
}
