// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "profile.h"

using namespace Dezimo;

QString Profile::group() const
{
    return QString::fromLatin1(metaObject()->className()).section(QLatin1String("::"), -1);
}
