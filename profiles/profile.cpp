// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "profile.h"

Profile::Profile(QObject *parent) : QObject(parent) {}
