// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "identity.h"

#include <QGuiApplication>
#include <QIcon>

QString Identity::productName()
{
    return QStringLiteral("Dezimo");
}

QString Identity::version()
{
    return QStringLiteral(DEZIMO_VERSION);
}

void Identity::apply()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Vantrel"));
    QCoreApplication::setOrganizationDomain(QStringLiteral(DEZIMO_REVERSED_DOMAIN));
    QCoreApplication::setApplicationName(productName());
    QCoreApplication::setApplicationVersion(version());
    QGuiApplication::setDesktopFileName(QStringLiteral(DEZIMO_ID));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/Global/Icons_SVG/custom/dezimo.svg")));
}
