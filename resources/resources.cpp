// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "resources.h"

#include <QtGlobal>

void initDezimoResources()
{
    Q_INIT_RESOURCE(fonts);
    Q_INIT_RESOURCE(html);
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(style);
    Q_INIT_RESOURCE(themes);
}
