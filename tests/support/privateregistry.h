// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_PRIVATEREGISTRY_H
#define TESTS_SUPPORT_PRIVATEREGISTRY_H

#include <string>

/**
 * While it lives, this process finds an empty key in place of a root of Windows' registry, of which
 * nothing is left afterwards. So no test reads or writes what belongs to the person or the machine
 * that runs it. Several give their roots back in the reverse order.
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
    /// Below the root of the user, as that is when this object is made.
    std::wstring m_path;
    /// A handle of Windows.
    void *m_key = nullptr;
};

#endif
