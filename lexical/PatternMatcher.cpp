// SPDX-License-Identifier: MIT
#include "lexical/PatternMatcher.h"

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "lexical/LexicalMessages.h"
#include "lexical/PatternEngine.h"

namespace ZrXmlLib16 {

namespace {

// kept: required behaviour. The notation is translated by plain substring replacement, blind to character classes; the
// range of \p{IsLatinExtended-B} has more octal digits than the engine reads.
std::string Translate(std::string pattern)
{
    struct Replacement {
        const char* from;
        const char* to;
    };
    // \x01 hides the escaped backslash from the replacements between.
    static constexpr Replacement replacements[] = {
        {"\\\\", "\x01"},
        {"\\i", "([^\\W\\d]|:)"},
        {"\\I", "([\\W\\d])"},
        {"\\c", "(\\w|\\.|-|:)"},
        {"\\C", "([^\\w\\.\\-\\:])"},
        {"\\p{IsBasicLatin}", "[\\000-\\177]"},
        {"\\p{IsLatin-1Supplement}", "[\\200-\\377]"},
        {"\\p{IsLatinExtended-A}", "[\\400-\\577]"},
        {"\\p{IsLatinExtended-B}", "[\\600-\\1117]"},
        {"\x01", "\\\\"},
    };
    for (const Replacement& replacement : replacements) {
        FindReplace(pattern, replacement.from, replacement.to);
    }
    return "^(" + pattern + ")$";
}

} // namespace

// kept: required behaviour. The pattern is compiled for each test; ^ and $ in it are anchors and \w is ASCII only.
bool MatchesPattern(const std::string& pattern, const std::wstring& text)
{
    const SearchResult result = SearchAnchored(Translate(pattern), CEncoder::UnicodeToUtf8(text));
    if (!result.failure.empty()) {
        throw CZrException(FormatString(
            LexicalMessages::InvalidPattern, CEncoder::Utf8ToUnicode(pattern).c_str(), result.failure.c_str()));
    }
    return result.matchesAll;
}

} // namespace ZrXmlLib16
