// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_FUZZ_REQUIRE_H
#define TESTS_FUZZ_REQUIRE_H

#include <QString>

/// If @p holds is false, prints @p rule and @p value to standard error and aborts. libFuzzer
/// reports the abort as a finding.
void require(bool holds, const char *rule, const QString &value = {});

/// From now on a message that Qt logs is a finding, too, because the program never logs anything.
void requireSilence();

#endif
