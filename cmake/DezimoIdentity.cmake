# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Who makes the program and how to reach the maker, who sets these at configure time. The defaults
# use the domain that is reserved for examples.

set(DEZIMO_ORGANIZATION_DOMAIN "vantrel.example" CACHE STRING
  "Internet domain of the maker")
set(DEZIMO_PRODUCT_PAGE "https://www.vantrel.example/appnote" CACHE STRING
  "Web page of the maker's application notes; the note's number is appended as the last segment")
set(DEZIMO_SUPPORT_MAIL "support@vantrel.example" CACHE STRING
  "Mail address for support requests")

# Identifiers begin with the domain's parts in reverse order.
string(REPLACE "." ";" domain_parts "${DEZIMO_ORGANIZATION_DOMAIN}")
list(REVERSE domain_parts)
list(JOIN domain_parts "." DEZIMO_REVERSED_DOMAIN)
unset(domain_parts)

# Tells the program from all others. Desktop entry, metainfo, MIME package and icon have this name, so
# that a desktop knows that they belong together.
set(DEZIMO_ID "${DEZIMO_REVERSED_DOMAIN}.dezimo")
