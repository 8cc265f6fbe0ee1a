// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_PRIVATEREGISTRY_H
#define TESTS_SUPPORT_PRIVATEREGISTRY_H

#include <string>

/**
 * While it exists, this process sees a temporary key, empty at first, in place of a root of
 * Windows' registry. So no test reads or writes settings of the person or the machine that runs it.
 * Several such objects must end in the reverse order.
 */
class PrivateRegistry
{
public:
    enum class Root { User, Machine };

    explicit PrivateRegistry(Root root);
    ~PrivateRegistry();
    PrivateRegistry(const PrivateRegistry &) = delete;
    PrivateRegistry &operator=(const PrivateRegistry &) = delete;

private:
    Root m_root;
    /// Below the user's root as it was when this object was made.
    std::wstring m_path;
    /// An HKEY, a type that only Windows' headers know.
    void *m_key = nullptr;
};

#endif
