// SPDX-License-Identifier: MIT
#ifndef LEXICAL_PATTERNENGINE_H
#define LEXICAL_PATTERNENGINE_H

#include <string>

namespace ZrXmlLib16 {

/// The answer of the regular expression engine that the library is built with.
struct SearchResult {
    bool matchesAll = false;
    /// Why there is no answer; empty when there is one.
    std::wstring failure;
};

/// Compiles a Perl-compatible expression and runs it over a text, both UTF-8; `matchesAll` says whether the match found
/// first covers the whole text. Each engine has a source file of its own, of which the build takes one; the texts of
/// syntax errors differ between engines; answers may only for what XML Schema's notation does not have. Needs at most
/// about 300 KiB of machine stack, and 64 MiB of heap for the state of the search. A search that meets the match limit
/// finds nothing.
/// @throws std::bad_alloc
SearchResult SearchAnchored(const std::string& expression, const std::string& text);

} // namespace ZrXmlLib16

#endif
