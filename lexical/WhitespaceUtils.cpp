// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/WhitespaceUtils.h"

#include "ZrXmlLib16/ZrException.h"
#include "lexical/LexicalMessages.h"
#include "lexical/Whitespace.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

bool HasCarriageReturn(const std::wstring& text)
{
    return text.find(L'\r') != std::wstring::npos;
}

bool IsLineEndOrTab(wchar_t c)
{
    return c == L'\r' || c == L'\n' || c == L'\t';
}

bool HasLineEndOrTab(const std::wstring& text)
{
    return std::any_of(text.begin(), text.end(), IsLineEndOrTab);
}

bool IsCollapsed(const std::wstring& text)
{
    bool afterSpace = true;
    for (const wchar_t c : text) {
        const bool space = c == L' ';
        if ((space && afterSpace) || IsLineEndOrTab(c)) {
            return false;
        }
        afterSpace = space;
    }
    return text.empty() || !afterSpace;
}

// kept: required behaviour. A CR LF pair is one line end, so it becomes a single character also when replacing by
// spaces.
void UnifyLineEnds(const wchar_t* text, std::size_t length, bool asSpaces, std::wstring& result)
{
    result.resize(length);
    wchar_t* out = result.data();
    for (std::size_t i = 0; i < length; ++i) {
        wchar_t c = text[i];
        if (c == L'\r') {
            c = L'\n';
            if (i + 1 < length && text[i + 1] == L'\n') {
                ++i;
            }
        }
        *out++ = asSpaces && (c == L'\n' || c == L'\t') ? L' ' : c;
    }
    result.resize(static_cast<std::size_t>(out - result.data()));
}

void CollapseInto(const std::wstring& text, std::wstring& result)
{
    result.resize(text.length());
    wchar_t* out = result.data();
    bool afterSpace = true;
    for (const wchar_t c : text) {
        const bool space = CWhitespaceUtils::IsWhiteSpace(c);
        if (!space) {
            *out++ = c;
        } else if (!afterSpace) {
            *out++ = L' ';
        }
        afterSpace = space;
    }
    if (out != result.data() && out[-1] == L' ') {
        --out;
    }
    result.resize(static_cast<std::size_t>(out - result.data()));
}

std::wstring Applied(CWhitespaceUtils::WhitespaceRule rule, const std::wstring& text)
{
    std::wstring scratch;
    const std::wstring& result = Whitespace::Apply(rule, text, scratch);
    if (&result == &scratch) {
        return scratch;
    }
    return text;
}

} // namespace

const std::wstring& Whitespace::Apply(
    CWhitespaceUtils::WhitespaceRule rule, const std::wstring& text, std::wstring& scratch)
{
    switch (rule) {
    case CWhitespaceUtils::Rule_None:
        return text;
    case CWhitespaceUtils::Rule_Preserve:
        // kept: required behaviour. Preserving still normalises line ends.
        if (!HasCarriageReturn(text)) {
            return text;
        }
        UnifyLineEnds(text.data(), text.length(), false, scratch);
        return scratch;
    case CWhitespaceUtils::Rule_Replace:
        if (!HasLineEndOrTab(text)) {
            return text;
        }
        UnifyLineEnds(text.data(), text.length(), true, scratch);
        return scratch;
    case CWhitespaceUtils::Rule_Collapse:
        if (IsCollapsed(text)) {
            return text;
        }
        CollapseInto(text, scratch);
        return scratch;
    }
    throw CZrException(LexicalMessages::UnknownWhitespaceRule);
}

bool CWhitespaceUtils::IsWhiteSpace(wchar_t c)
{
    return c == L' ' || IsLineEndOrTab(c);
}

std::wstring CWhitespaceUtils::Preserve(const wchar_t* text, int length)
{
    std::wstring result;
    if (text != nullptr && length > 0) {
        UnifyLineEnds(text, static_cast<std::size_t>(length), false, result);
    }
    return result;
}

std::wstring CWhitespaceUtils::Preserve(const std::wstring& text)
{
    return Applied(Rule_Preserve, text);
}

std::wstring CWhitespaceUtils::Replace(const std::wstring& text)
{
    return Applied(Rule_Replace, text);
}

std::wstring CWhitespaceUtils::Collapse(const std::wstring& text)
{
    return Applied(Rule_Collapse, text);
}

std::wstring CWhitespaceUtils::ApplyRule(WhitespaceRule rule, const std::wstring& text)
{
    return Applied(rule, text);
}

} // namespace ZrXmlLib16
