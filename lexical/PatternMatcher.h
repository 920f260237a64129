// SPDX-License-Identifier: MIT
#ifndef LEXICAL_PATTERNMATCHER_H
#define LEXICAL_PATTERNMATCHER_H

#include <string>

namespace ZrXmlLib16 {

/// Whether the whole text matches a pattern in XML Schema notation (UTF-8). The pattern is compiled anew for each call;
/// needs at most about 300 KiB of machine stack. A pattern whose search has no end in sight does not match.
/// @throws CZrException for a pattern that cannot be compiled or needs more memory than is granted.
bool MatchesPattern(const std::string& pattern, const std::wstring& text);

} // namespace ZrXmlLib16

#endif
