// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonTextReader.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/TextArgument.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr int MAXIMUM_DEPTH = 100;
// Each item of an array repeats its name in the XML: without a limit one long name would fill the memory.
constexpr std::size_t MAXIMUM_NAME_LENGTH = 1000;

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

} // namespace

/// A word of the language, by what follows its first letter.
struct CJsonTextReader::Literal {
    const wchar_t* rest;
    std::size_t length;
    const wchar_t* messageAtEnd;
    const wchar_t* messageAtMismatch;
};

CJsonTextReader::CJsonTextReader(const std::wstring& text)
    : m_handler(new CJsonReaderDefaultHandler)
    , m_maximumDepth(MAXIMUM_DEPTH)
    , m_allowComments(false)
    , m_text(text)
    , m_position(0)
    , m_currentCharacter(0)
    , m_endOfFile(false)
    , m_line(1)
    , m_lineStart(0)
{
}

CJsonTextReader::~CJsonTextReader() = default;

void CJsonTextReader::SetJsonReaderHandler(IJsonReaderHandler* handler)
{
    m_handler->SetInnerHandler(handler);
}

const IErrorPathProvider* CJsonTextReader::GetErrorPathProvider() const
{
    return m_handler.get();
}

void CJsonTextReader::SetAllowComments(bool value)
{
    m_allowComments = value;
}

void CJsonTextReader::SetRootElementName(const wchar_t* name)
{
    m_rootElementName = TextOrEmpty(name);
}

// kept: required behaviour. Text after the first value is not looked at.
void CJsonTextReader::Read()
{
    m_position = 0;
    m_endOfFile = false;
    m_line = 1;
    m_lineStart = 0;
    m_handler->ReadStartDocument();
    if (!m_rootElementName.empty()) {
        m_handler->ReadStartObject();
        m_handler->ReadName(m_rootElementName);
    }
    if (ReadNextToken()) {
        ReadValue(0);
    }
    if (!m_rootElementName.empty()) {
        m_handler->ReadEndObject();
    }
    m_handler->ReadEndDocument();
}

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

void CJsonTextReader::ReadValue(int depth)
{
    static constexpr Literal LITERAL_NULL = {L"ull", 3, Message::JSON_END_IN_NULL, Message::JSON_NULL_EXPECTED};
    static constexpr Literal LITERAL_TRUE = {L"rue", 3, Message::JSON_END_IN_TRUE, Message::JSON_TRUE_EXPECTED};
    static constexpr Literal LITERAL_FALSE = {L"alse", 4, Message::JSON_END_IN_FALSE, Message::JSON_FALSE_EXPECTED};

    if (depth + 1 > m_maximumDepth) {
        Fail(Message::JSON_TOO_DEEP);
    }
    switch (m_currentCharacter) {
    case L'"':
        ReadString();
        m_handler->ReadString(m_value);
        break;
    case L'n':
        ReadLiteral(LITERAL_NULL);
        m_handler->ReadNull();
        break;
    case L't':
        ReadLiteral(LITERAL_TRUE);
        m_handler->ReadBool(true);
        break;
    case L'f':
        ReadLiteral(LITERAL_FALSE);
        m_handler->ReadBool(false);
        break;
    case L'[':
        m_handler->ReadStartArray();
        ReadArray(depth + 1);
        m_handler->ReadEndArray();
        ReadNextToken();
        break;
    case L'{':
        m_handler->ReadStartObject();
        ReadObject(depth + 1);
        m_handler->ReadEndObject();
        ReadNextToken();
        break;
    default:
        if (m_currentCharacter != L'-' && !IsDigit(m_currentCharacter)) {
            FailAtCharacter(Message::JSON_VALUE_EXPECTED);
        }
        ReadNumber();
        m_handler->ReadNumber(m_value);
    }
}

void CJsonTextReader::ReadObject(int depth)
{
    if (!ReadNextToken()) {
        Fail(Message::JSON_END_AFTER_OPENING_BRACE);
    }
    if (m_currentCharacter == L'}') {
        return;
    }
    for (;;) {
        ReadMember(depth);
        if (m_endOfFile) {
            Fail(Message::JSON_END_IN_OBJECT);
        }
        if (m_currentCharacter == L'}') {
            return;
        }
        if (m_currentCharacter != L',') {
            FailAtCharacter(Message::JSON_OBJECT_COMMA_EXPECTED);
        }
        if (!ReadNextToken()) {
            Fail(Message::JSON_END_IN_OBJECT);
        }
    }
}

void CJsonTextReader::ReadMember(int depth)
{
    if (m_currentCharacter != L'"') {
        FailAtCharacter(Message::JSON_NAME_EXPECTED);
    }
    ReadString();
    if (m_value.size() > MAXIMUM_NAME_LENGTH) {
        throw CZrValidationException(Message::JSON_NAME_TOO_LONG, m_handler->GetPath());
    }
    m_handler->ReadName(m_value);
    if (m_endOfFile) {
        Fail(Message::JSON_END_BEFORE_COLON);
    }
    if (m_currentCharacter != L':') {
        FailAtCharacter(Message::JSON_COLON_EXPECTED);
    }
    if (!ReadNextToken()) {
        Fail(Message::JSON_END_BEFORE_VALUE);
    }
    ReadValue(depth);
}

void CJsonTextReader::ReadArray(int depth)
{
    if (!ReadNextToken()) {
        Fail(Message::JSON_END_IN_ARRAY);
    }
    if (m_currentCharacter == L']') {
        return;
    }
    for (;;) {
        ReadValue(depth);
        if (m_endOfFile) {
            Fail(Message::JSON_END_IN_ARRAY);
        }
        if (m_currentCharacter == L']') {
            return;
        }
        if (m_currentCharacter != L',') {
            FailAtCharacter(Message::JSON_ARRAY_COMMA_EXPECTED);
        }
        if (!ReadNextToken()) {
            Fail(Message::JSON_END_IN_ARRAY);
        }
    }
}

void CJsonTextReader::ReadLiteral(const Literal& literal)
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
    m_value.assign(m_text, start, m_position - start);
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
        const wchar_t* const runEnd = std::find_if(start, m_text.data() + m_text.size(), EndsRunOfString);
        m_value.append(start, runEnd);
        m_position += static_cast<std::size_t>(runEnd - start);
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

void CJsonTextReader::Fail(const wchar_t* message) const
{
    throw CZrValidationException(FormatString(message, GetLine(), GetColumn()), m_handler->GetPath());
}

/// For messages that name the current character.
void CJsonTextReader::FailAtCharacter(const wchar_t* message) const
{
    const auto character = static_cast<std::wint_t>(m_currentCharacter);
    throw CZrValidationException(FormatString(message, character, GetLine(), GetColumn()), m_handler->GetPath());
}

int CJsonTextReader::GetLine() const
{
    return static_cast<int>(m_line);
}

int CJsonTextReader::GetColumn() const
{
    return static_cast<int>(m_position - m_lineStart);
}

} // namespace ZrXmlLib16
