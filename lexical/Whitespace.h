// SPDX-License-Identifier: MIT
#ifndef LEXICAL_WHITESPACE_H
#define LEXICAL_WHITESPACE_H

#include "ZrXmlLib16/WhitespaceUtils.h"

#include <string>

namespace ZrXmlLib16::Whitespace {

/// Borrowing form of CWhitespaceUtils::ApplyRule: the result is `text` itself when the rule changes nothing and
/// `scratch` otherwise, so it lives as long as both. `scratch` must not be `text`.
/// @throws CZrException for an unknown rule.
const std::wstring& Apply(CWhitespaceUtils::WhitespaceRule rule, const std::wstring& text, std::wstring& scratch);

} // namespace ZrXmlLib16::Whitespace

#endif
