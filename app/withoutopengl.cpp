// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "withoutopengl.h"

#include <QByteArray>

namespace {

constexpr char kIntegration[] = "QT_XCB_GL_INTEGRATION";

} // namespace

WithoutOpenGl::WithoutOpenGl() : m_wasChosen(qEnvironmentVariableIsSet(kIntegration))
{
    if (!m_wasChosen)
        qputenv(kIntegration, QByteArrayLiteral("none"));
}

WithoutOpenGl::~WithoutOpenGl()
{
    if (!m_wasChosen)
        qunsetenv(kIntegration);
}
