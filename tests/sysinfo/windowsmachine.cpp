// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "windowsmachine.h"

#include <QCoreApplication>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace {

HKEY handleOf(WindowsMachine::Root root)
{
    return root == WindowsMachine::Root::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

DWORD typeCode(WindowsMachine::Type type)
{
    switch (type) {
    case WindowsMachine::Type::Text:
        return REG_SZ;
    case WindowsMachine::Type::TextWithVariables:
        return REG_EXPAND_SZ;
    case WindowsMachine::Type::Number:
        return REG_DWORD;
    case WindowsMachine::Type::LongNumber:
        return REG_QWORD;
    case WindowsMachine::Type::Bytes:
        return REG_BINARY;
    }
    return REG_NONE;
}

} // namespace

void WindowsMachine::setValue(Root root, const QString &key, const QString &name, Type type,
                              const QByteArray &bytes)
{
    const LSTATUS status =
        RegSetKeyValueW(handleOf(root), key.toStdWString().c_str(), name.toStdWString().c_str(),
                        typeCode(type), bytes.constData(), DWORD(bytes.size()));
    if (status != ERROR_SUCCESS)
        qFatal("cannot write the value %s: error %ld", qPrintable(name), long(status));
}

void WindowsMachine::setText(Root root, const QString &key, const QString &name,
                             const QString &text)
{
    setValue(root, key, name, Type::Text, terminated(text));
}

void WindowsMachine::setNumber(const QString &key, const QString &name, quint32 number)
{
    setValue(Root::Machine, key, name, Type::Number,
             QByteArray(reinterpret_cast<const char *>(&number), sizeof number));
}

void WindowsMachine::removeValue(Root root, const QString &key, const QString &name)
{
    const LSTATUS status =
        RegDeleteKeyValueW(handleOf(root), key.toStdWString().c_str(), name.toStdWString().c_str());
    if (status != ERROR_SUCCESS)
        qFatal("cannot remove the value %s: error %ld", qPrintable(name), long(status));
}

QByteArray WindowsMachine::terminated(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()),
                      int((text.size() + 1) * int(sizeof(ushort))));
}

QString WindowsMachine::library(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name) +
           QLatin1String(".dll");
}
