// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_FUZZ_REQUIRE_H
#define TESTS_FUZZ_REQUIRE_H

#include <QString>

/// Ends the run, which is a finding, with @p rule and @p value on standard error if @p holds is
/// false.
void require(bool holds, const char *rule, const QString &value = {});

/// From now on whatever Qt logs is a finding too: the program never logs anything.
void requireSilence();

#endif
