// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "osinfo.h"

#ifdef Q_OS_WIN
#include "win32host.h"
#include "windowsosinfo.h"
#else
#include "unixosinfo.h"
#endif

OSInfo::~OSInfo() = default;

std::unique_ptr<OSInfo> createOsInfo()
{
#ifdef Q_OS_WIN
    return std::make_unique<WindowsOSInfo>(std::make_unique<Win32Host>());
#else
    return std::make_unique<UnixOSInfo>();
#endif
}
