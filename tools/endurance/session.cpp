// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "identity.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"

#include <QAction>
#include <QElapsedTimer>
#include <QMetaProperty>
#include <QTimer>

#include <cstdio>

using namespace Dezimo;

/// Sessions without a person, for scripts that time them or kill them.

namespace {

/// Every text of every module says which generation it belongs to, so that one can see if a file
/// mixes two of them.
void becomeGeneration(int number)
{
    const QString text = QStringLiteral("generation %1").arg(number);
    for (Profile *module : MainProfile::instance().modules()) {
        const QMetaObject &type = *module->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i) {
            if (type.property(i).userType() == QMetaType::QString)
                type.property(i).write(module, text);
        }
    }
}

/// Starts, opens a file and ends, and prints how many milliseconds each took.
int startAndQuit(const QStringList &arguments)
{
    QElapsedTimer timer;
    timer.start();
    {
        MainWindow window;
        window.show();
        QCoreApplication::processEvents();
        std::printf("start %lld ms\n", timer.restart());
        const QString said =
            CalculationFiles::openFromCommandLine(MainProfile::instance(), arguments);
        QCoreApplication::processEvents();
        std::printf("open %lld ms, size %d x %d\n", timer.restart(), window.width(),
                    window.height());
        if (!said.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(said));
        auto *quit = window.findChild<QAction *>(QStringLiteral("actionQuit"));
        QTimer soon;
        soon.setSingleShot(true);
        QObject::connect(&soon, &QTimer::timeout, quit, &QAction::trigger);
        soon.start();
        const int status = QApplication::exec();
        if (status != 0)
            return status;
        timer.restart();
    }
    std::printf("end %lld ms\n", timer.elapsed());
    return 0;
}

/// Each window writes the settings when it is destroyed.
void exitRepeatedly(int first, int times)
{
    for (int generation = first; generation < first + times; ++generation) {
        const MainWindow window;
        becomeGeneration(generation);
    }
}

void saveRepeatedly(const QString &fileName, int first, int times)
{
    for (int generation = first; generation < first + times; ++generation) {
        becomeGeneration(generation);
        CalculationFiles::save(MainProfile::instance(), fileName);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    KelApplication application(argc, argv, true);
    Identity::apply();
    QStringList arguments = QApplication::arguments();
    const QString command = arguments.size() > 1 ? arguments.takeAt(1) : QString();
    if (command == QLatin1String("quit"))
        return startAndQuit(arguments);
    const int first = arguments.value(1).toInt();
    const int times = arguments.value(2).toInt();
    if (command == QLatin1String("exit") && arguments.size() == 3) {
        exitRepeatedly(first, times);
        return 0;
    }
    if (command == QLatin1String("save") && arguments.size() == 4) {
        saveRepeatedly(arguments.at(3), first, times);
        return 0;
    }
    std::fputs("usage: dezimo-session quit [FILE] | exit FIRST TIMES | save FIRST TIMES FILE\n"
               "FIRST is the number of the first generation of texts to write\n",
               stderr);
    return 2;
}
