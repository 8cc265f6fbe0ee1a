// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "osinfo.h"

OSInfo::~OSInfo() = default;
