// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * Loading and saving a calculation file, including what the file system takes.
 */

#include "benchmarks.h"
#include "iniformat.h"
#include "mainprofile.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace Dezimo;

namespace {

/// Runs @p access on a new store for the file, as each command of the File menu does.
template <typename Access>
void accessFile(benchmark::State &state, Access access)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("calculation.dezimo"));
    {
        QSettings file(name, IniFormat::ofFiles());
        MainProfile::instance().saveSettings(file);
    }
    QFile content(name);
    content.open(QIODevice::ReadOnly);
    const QByteArray bytes = content.readAll();
    content.close();
    bool isLonger = true;
    while (state.KeepRunning()) {
        // Qt keeps what it has read until the size of the file changes.
        state.PauseTiming();
        content.remove();
        content.open(QIODevice::WriteOnly);
        content.write(isLonger ? bytes + '\n' : bytes);
        content.close();
        isLonger = !isLonger;
        state.ResumeTiming();
        QSettings file(name, IniFormat::ofFiles());
        access(file);
        file.sync();
    }
}

} // namespace

void registerFiles()
{
    const auto load = [](benchmark::State &state) {
        accessFile(state,
                   [](QSettings &file) { MainProfile::instance().loadModuleSettings(file); });
    };
    const auto save = [](benchmark::State &state) {
        accessFile(state, [](QSettings &file) { MainProfile::instance().saveSettings(file); });
    };
    benchmark::RegisterBenchmark("loadCalculation", load)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("saveCalculation", save)->Unit(benchmark::kMicrosecond);
}
