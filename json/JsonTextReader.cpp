// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonTextReader.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/TextArgument.h"
#include "json/JsonReaderMessages.h"

#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr int MAXIMUM_DEPTH = 100;
// Each item of an array repeats its name in the XML: without a limit one long name would fill the memory.
constexpr std::size_t MAXIMUM_NAME_LENGTH = 1000;

bool BeginsNumber(wchar_t c)
{
    return c == L'-' || (c >= L'0' && c <= L'9');
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
    : CJsonTextReader(std::wstring_view(text))
{
}

CJsonTextReader::CJsonTextReader(std::wstring_view text)
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
        if (!BeginsNumber(m_currentCharacter)) {
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
