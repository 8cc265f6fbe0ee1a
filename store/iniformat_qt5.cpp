// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "iniformat.h"

using namespace Dezimo;

QSettings::Format IniFormat::ofFiles()
{
    return QSettings::IniFormat;
}

QSettings::Format IniFormat::ofSettings()
{
    return QSettings::NativeFormat;
}
