# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Who makes the program and where the maker is reached. A maker sets these once at configure time;
# the defaults lie under the domain that is reserved for examples.

set(DEZIMO_ORGANIZATION_DOMAIN "vantrel.example" CACHE STRING
  "Internet domain of the maker")
set(DEZIMO_PRODUCT_PAGE "https://www.vantrel.example/appnote" CACHE STRING
  "Web page of the maker's application notes; the note's number is appended as the last segment")
set(DEZIMO_SUPPORT_MAIL "support@vantrel.example" CACHE STRING
  "Mail address for support requests")

# The same domain with its parts turned round, as identifiers are made from it.
string(REPLACE "." ";" domain_parts "${DEZIMO_ORGANIZATION_DOMAIN}")
list(REVERSE domain_parts)
list(JOIN domain_parts "." DEZIMO_REVERSED_DOMAIN)
unset(domain_parts)

# The program among all others: it names the desktop entry, the metainfo, the MIME package and the
# icon, by which a desktop takes them for one application.
set(DEZIMO_ID "${DEZIMO_REVERSED_DOMAIN}.dezimo")
