// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "identity.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    KelApplication application(argc, argv, true);
    Identity::apply();
    MainWindow window;
    window.show();
    CalculationFiles::openFromCommandLine(MainProfile::instance(), QApplication::arguments());
    return QApplication::exec();
}
