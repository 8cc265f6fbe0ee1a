// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SYSINFO_WINDOWSMACHINE_H
#define TESTS_SYSINFO_WINDOWSMACHINE_H

#include "privateregistry.h"

#include <QByteArray>
#include <QString>

/**
 * Facts of a Windows machine, prepared in roots of the registry that are empty at first and belong
 * to this process alone.
 */
class WindowsMachine
{
public:
    using Root = PrivateRegistry::Root;
    /// Values of the types that Windows' own programs write, and one that they do not.
    enum class Type { Text, TextWithVariables, Number, LongNumber, Bytes };

    void setValue(Root root, const QString &key, const QString &name, Type type,
                  const QByteArray &bytes);
    void setText(Root root, const QString &key, const QString &name, const QString &text);
    void setNumber(const QString &key, const QString &name, quint32 number);
    void removeValue(Root root, const QString &key, const QString &name);

    /// The bytes of a text with its terminator, as the registry keeps it.
    static QByteArray terminated(const QString &text);
    /// The path of the library that the build made from library.cpp and the version resource of
    /// that name.
    static QString library(const char *name);

private:
    PrivateRegistry m_machine{Root::Machine};
};

#endif
