// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// The tests only read the version resource of this library.

int emptyLibrary()
{
    return 0;
}
