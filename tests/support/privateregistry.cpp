// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "privateregistry.h"

#include <QtGlobal>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace {

HKEY handleOf(PrivateRegistry::Root root)
{
    return root == PrivateRegistry::Root::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

/// Several tests run at the same time, so each process has a key of its own.
std::wstring pathOf(PrivateRegistry::Root root)
{
    return L"Software\\DezimoTest-" + std::to_wstring(GetCurrentProcessId()) +
           (root == PrivateRegistry::Root::User ? L"-User" : L"-Machine");
}

void require(LSTATUS status, const char *what)
{
    if (status != ERROR_SUCCESS)
        qFatal("cannot %s: error %ld", what, long(status));
}

} // namespace

PrivateRegistry::PrivateRegistry(Root root) : m_root(root), m_path(pathOf(root))
{
    HKEY key = nullptr;
    require(RegCreateKeyExW(HKEY_CURRENT_USER, m_path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                            KEY_ALL_ACCESS, nullptr, &key, nullptr),
            "make a key");
    require(RegOverridePredefKey(handleOf(root), key), "replace a root");
    m_key = key;
}

PrivateRegistry::~PrivateRegistry()
{
    RegOverridePredefKey(handleOf(m_root), nullptr);
    RegCloseKey(static_cast<HKEY>(m_key));
    RegDeleteTreeW(HKEY_CURRENT_USER, m_path.c_str());
}
