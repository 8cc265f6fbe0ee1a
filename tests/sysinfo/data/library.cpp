// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// A library of which only the version resource is read.

int emptyLibrary()
{
    return 0;
}
