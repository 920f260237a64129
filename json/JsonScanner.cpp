// SPDX-License-Identifier: MIT
#include "json/JsonScanner.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>
#include <cwchar>

#include <emmintrin.h>

namespace ZrXmlLib16 {

namespace {

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool IsSpace(wchar_t c)
{
    return c <= L' ' && CWhitespaceUtils::IsWhiteSpace(c);
}

bool EndsRunOfString(wchar_t c)
{
    return c == L'"' || c == L'\\' || c == L'\n';
}

__m128i LoadFour(const wchar_t* text)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
}

/// The first character that ends a run, sixteen characters at a time.
const wchar_t* FindEndOfRun(const wchar_t* text, const wchar_t* end)
{
    constexpr std::ptrdiff_t STEP = 16;
    for (; end - text >= STEP; text += STEP) {
        // Values that do not fit into an octet become its least or largest one, which end nothing.
        const __m128i low = _mm_packs_epi32(LoadFour(text), LoadFour(text + 4));
        const __m128i high = _mm_packs_epi32(LoadFour(text + 8), LoadFour(text + 12));
        const __m128i sixteen = _mm_packs_epi16(low, high);
        const __m128i quotes = _mm_cmpeq_epi8(sixteen, _mm_set1_epi8('"'));
        const __m128i escapes = _mm_cmpeq_epi8(sixteen, _mm_set1_epi8('\\'));
        const __m128i lines = _mm_cmpeq_epi8(sixteen, _mm_set1_epi8('\n'));
        const int found = _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(quotes, escapes), lines));
        if (found != 0) {
            return text + __builtin_ctz(static_cast<unsigned int>(found));
        }
    }
    return std::find_if(text, end, EndsRunOfString);
}

} // namespace

JsonScanner::JsonScanner(std::wstring_view text, bool allowComments, const IErrorPathProvider& pathProvider)
    : m_next(text.data())
    , m_end(text.data() + text.size())
    , m_lineStart(text.data())
    , m_allowComments(allowComments)
    , m_pathProvider(pathProvider)
{
}

/// The next character, whatever it is.
bool JsonScanner::ReadNextChar()
{
    if (m_next == m_end) {
        m_isAtEnd = true;
        return false;
    }
    m_current = *m_next++;
    if (m_current == L'\n') {
        CountLine();
    }
    return true;
}

void JsonScanner::CountLine()
{
    ++m_line;
    m_lineStart = m_next;
}

/// Characters of any kind; line feeds among them do not count as lines.
bool JsonScanner::ReadNextChars(wchar_t* buffer, std::size_t count)
{
    const std::size_t copied = std::min(count, static_cast<std::size_t>(m_end - m_next));
    std::copy_n(m_next, copied, buffer);
    m_next += copied;
    if (copied < count) {
        m_isAtEnd = true;
        return false;
    }
    m_current = buffer[count - 1];
    return true;
}

bool JsonScanner::FindNextToken()
{
    while (ReadNextChar()) {
        if (IsSpace(m_current)) {
            continue;
        }
        if (m_current != L'/' || !m_allowComments || !SkipComment()) {
            return true;
        }
    }
    return false;
}

/// Skips a comment whose slash is the current character; false when there is none, which changes nothing.
bool JsonScanner::SkipComment()
{
    if (IsNextChar(L'/', L'/')) {
        do {
            if (!ReadNextChar()) {
                return true;
            }
        } while (m_current != L'\n');
        return true;
    }
    if (!IsNextChar(L'*', L'*')) {
        return false;
    }
    ReadNextChar();
    while (ReadNextChar()) {
        if (m_current == L'*' && IsNextChar(L'/', L'/')) {
            ReadNextChar();
            break;
        }
    }
    return true;
}

bool JsonScanner::IsNextChar(wchar_t first, wchar_t second) const
{
    return m_next != m_end && (*m_next == first || *m_next == second);
}

void JsonScanner::ReadLiteral(const Literal& literal)
{
    wchar_t rest[4];
    if (!ReadNextChars(rest, literal.length)) {
        Fail(literal.messageAtEnd);
    }
    if (std::wmemcmp(rest, literal.rest, literal.length) != 0) {
        Fail(literal.messageAtMismatch);
    }
    ReadNextToken();
}

std::wstring_view JsonScanner::ReadNumber()
{
    const wchar_t* const start = m_next - 1;
    if (m_current == L'-') {
        RequireNextChar(Message::JSON_END_AFTER_SIGN);
    }
    RequireDigit();
    if (m_current != L'0') {
        SkipDigits();
    }
    if (IsNextChar(L'.', L'.')) {
        ReadNextChar();
        RequireNextChar(Message::JSON_END_AFTER_POINT);
        RequireDigit();
        SkipDigits();
    }
    if (IsNextChar(L'e', L'E')) {
        ReadNextChar();
        RequireNextChar(Message::JSON_END_AFTER_EXPONENT);
        if (m_current == L'+' || m_current == L'-') {
            RequireNextChar(Message::JSON_END_AFTER_SIGN);
        }
        RequireDigit();
        SkipDigits();
    }
    const std::wstring_view number(start, static_cast<std::size_t>(m_next - start));
    ReadNextToken();
    return number;
}

void JsonScanner::RequireNextChar(const wchar_t* messageAtEnd)
{
    if (!ReadNextChar()) {
        Fail(messageAtEnd);
    }
}

void JsonScanner::RequireDigit() const
{
    if (!IsDigit(m_current)) {
        FailAtCharacter(Message::JSON_DIGIT_EXPECTED);
    }
}

void JsonScanner::SkipDigits()
{
    while (m_next != m_end && IsDigit(*m_next)) {
        ++m_next;
    }
}

std::wstring_view JsonScanner::ReadString()
{
    const wchar_t* const start = m_next;
    for (;;) {
        m_next = FindEndOfRun(m_next, m_end);
        if (m_next == m_end) {
            m_isAtEnd = true;
            Fail(Message::JSON_END_IN_STRING);
        }
        if (*m_next == L'\\') {
            return ReadEscapedString(start);
        }
        if (*m_next++ == L'"') {
            break;
        }
        CountLine();
    }
    const std::wstring_view text(start, static_cast<std::size_t>(m_next - 1 - start));
    ReadNextToken();
    return text;
}

/// The string from its start, when the next character is its first escape.
std::wstring_view JsonScanner::ReadEscapedString(const wchar_t* start)
{
    m_unescaped.clear();
    for (;;) {
        m_unescaped.append(start, m_next);
        RequireNextChar(Message::JSON_END_IN_STRING);
        if (m_current == L'"') {
            ReadNextToken();
            return m_unescaped;
        }
        if (m_current == L'\\') {
            ReadEscape();
        } else {
            m_unescaped.push_back(m_current);
        }
        start = m_next;
        m_next = FindEndOfRun(m_next, m_end);
    }
}

void JsonScanner::ReadEscape()
{
    RequireNextChar(Message::JSON_END_IN_STRING);
    switch (m_current) {
    case L'"':
    case L'\\':
    case L'/':
        m_unescaped.push_back(m_current);
        break;
    case L'b':
        m_unescaped.push_back(L'\b');
        break;
    case L'f':
        m_unescaped.push_back(L'\f');
        break;
    case L'n':
        m_unescaped.push_back(L'\n');
        break;
    case L'r':
        m_unescaped.push_back(L'\r');
        break;
    case L't':
        m_unescaped.push_back(L'\t');
        break;
    case L'u':
        ReadUnicodeEscape();
        break;
    default:
        FailAtCharacter(Message::JSON_INVALID_ESCAPE);
    }
}

// kept: required behaviour. The escape yields one character, the high hex digit of the lowest octet of the first of its
// four characters: "3" when that is a digit, "4" or "6" for a letter. The other three may be anything.
void JsonScanner::ReadUnicodeEscape()
{
    wchar_t digits[4];
    if (!ReadNextChars(digits, 4)) {
        Fail(Message::JSON_END_IN_UNICODE_ESCAPE);
    }
    m_unescaped.push_back(L"0123456789ABCDEF"[(digits[0] >> 4) & 15]);
}

void JsonScanner::Fail(const wchar_t* message) const
{
    throw CZrValidationException(FormatString(message, GetLine(), GetColumn()), m_pathProvider.GetPath());
}

void JsonScanner::FailAtCharacter(const wchar_t* message) const
{
    const auto character = static_cast<std::wint_t>(m_current);
    throw CZrValidationException(FormatString(message, character, GetLine(), GetColumn()), m_pathProvider.GetPath());
}

void JsonScanner::FailWithoutPosition(const wchar_t* message) const
{
    throw CZrValidationException(message, m_pathProvider.GetPath());
}

} // namespace ZrXmlLib16
