# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# To be sourced by the scripts that test the Debian package. DEZIMO_QT says with which generation of
# Qt it is built: 5, which is the default, or 6.
# shellcheck shell=bash disable=SC2034

qt=${DEZIMO_QT:-5}
# Where ./package.sh with these options builds it.
build_folder=build/package
package_options=()
[[ $qt == 5 ]] || { build_folder+=-qt$qt package_options=("--qt$qt"); }
