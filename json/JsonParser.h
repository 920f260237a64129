// SPDX-License-Identifier: MIT
#ifndef JSON_JSONPARSER_H
#define JSON_JSONPARSER_H

#include "json/JsonReaderMessages.h"
#include "json/JsonScanner.h"

#include <cstddef>
#include <string_view>

namespace ZrXmlLib16 {

/// The grammar of JSON: reports one document to a receiver, which has the operations of IJsonReaderHandler for values
/// and names, but takes borrowed texts.
template <class Receiver> class JsonParser {
public:
    /// The arguments outlive the object.
    JsonParser(JsonScanner& scanner, Receiver& receiver)
        : m_scanner(scanner)
        , m_receiver(receiver)
    {
    }

    /// @param rootElementName when it is not empty, the text is reported as the value of a member of this name.
    // kept: required behaviour. Text after the first value is not looked at.
    void Parse(std::wstring_view rootElementName)
    {
        if (!rootElementName.empty()) {
            m_receiver.ReadStartObject();
            m_receiver.ReadName(rootElementName);
        }
        if (m_scanner.ReadNextToken()) {
            ParseValue(0);
        }
        if (!rootElementName.empty()) {
            m_receiver.ReadEndObject();
        }
    }

private:
    void ParseValue(int depth);
    void ParseObject(int depth);
    void ParseMember(int depth);
    void ParseArray(int depth);
    bool TakeComma(wchar_t closing, const wchar_t* messageAtEnd, const wchar_t* messageAtMismatch);

    static constexpr int MAXIMUM_DEPTH = 100;
    // Each item of an array repeats its name in the XML: without a limit one long name would fill the memory.
    static constexpr std::size_t MAXIMUM_NAME_LENGTH = 1000;
    static constexpr JsonScanner::Literal LITERAL_NULL = {
        L"ull", 3, Message::JSON_END_IN_NULL, Message::JSON_NULL_EXPECTED};
    static constexpr JsonScanner::Literal LITERAL_TRUE = {
        L"rue", 3, Message::JSON_END_IN_TRUE, Message::JSON_TRUE_EXPECTED};
    static constexpr JsonScanner::Literal LITERAL_FALSE = {
        L"alse", 4, Message::JSON_END_IN_FALSE, Message::JSON_FALSE_EXPECTED};

    JsonScanner& m_scanner;
    Receiver& m_receiver;
};

template <class Receiver> void JsonParser<Receiver>::ParseValue(int depth)
{
    if (depth >= MAXIMUM_DEPTH) {
        m_scanner.Fail(Message::JSON_TOO_DEEP);
    }
    const wchar_t first = m_scanner.GetCurrent();
    switch (first) {
    case L'"':
        m_receiver.ReadString(m_scanner.ReadString());
        break;
    case L'n':
        m_scanner.ReadLiteral(LITERAL_NULL);
        m_receiver.ReadNull();
        break;
    case L't':
        m_scanner.ReadLiteral(LITERAL_TRUE);
        m_receiver.ReadBool(true);
        break;
    case L'f':
        m_scanner.ReadLiteral(LITERAL_FALSE);
        m_receiver.ReadBool(false);
        break;
    case L'[':
        m_receiver.ReadStartArray();
        ParseArray(depth + 1);
        m_receiver.ReadEndArray();
        m_scanner.ReadNextToken();
        break;
    case L'{':
        m_receiver.ReadStartObject();
        ParseObject(depth + 1);
        m_receiver.ReadEndObject();
        m_scanner.ReadNextToken();
        break;
    default:
        if (first != L'-' && (first < L'0' || first > L'9')) {
            m_scanner.FailAtCharacter(Message::JSON_VALUE_EXPECTED);
        }
        m_receiver.ReadNumber(m_scanner.ReadNumber());
    }
}

template <class Receiver> void JsonParser<Receiver>::ParseObject(int depth)
{
    if (!m_scanner.ReadNextToken()) {
        m_scanner.Fail(Message::JSON_END_AFTER_OPENING_BRACE);
    }
    if (m_scanner.GetCurrent() == L'}') {
        return;
    }
    do {
        ParseMember(depth);
    } while (TakeComma(L'}', Message::JSON_END_IN_OBJECT, Message::JSON_OBJECT_COMMA_EXPECTED));
}

template <class Receiver> void JsonParser<Receiver>::ParseMember(int depth)
{
    if (m_scanner.GetCurrent() != L'"') {
        m_scanner.FailAtCharacter(Message::JSON_NAME_EXPECTED);
    }
    const std::wstring_view name = m_scanner.ReadString();
    if (name.size() > MAXIMUM_NAME_LENGTH) {
        m_scanner.FailWithoutPosition(Message::JSON_NAME_TOO_LONG);
    }
    m_receiver.ReadName(name);
    if (m_scanner.IsAtEnd()) {
        m_scanner.Fail(Message::JSON_END_BEFORE_COLON);
    }
    if (m_scanner.GetCurrent() != L':') {
        m_scanner.FailAtCharacter(Message::JSON_COLON_EXPECTED);
    }
    if (!m_scanner.ReadNextToken()) {
        m_scanner.Fail(Message::JSON_END_BEFORE_VALUE);
    }
    ParseValue(depth);
}

template <class Receiver> void JsonParser<Receiver>::ParseArray(int depth)
{
    if (!m_scanner.ReadNextToken()) {
        m_scanner.Fail(Message::JSON_END_IN_ARRAY);
    }
    if (m_scanner.GetCurrent() == L']') {
        return;
    }
    do {
        ParseValue(depth);
    } while (TakeComma(L']', Message::JSON_END_IN_ARRAY, Message::JSON_ARRAY_COMMA_EXPECTED));
}

/// Behind a member or an item: whether one more follows, which is then the current token.
template <class Receiver>
bool JsonParser<Receiver>::TakeComma(wchar_t closing, const wchar_t* messageAtEnd, const wchar_t* messageAtMismatch)
{
    if (m_scanner.IsAtEnd()) {
        m_scanner.Fail(messageAtEnd);
    }
    if (m_scanner.GetCurrent() == closing) {
        return false;
    }
    if (m_scanner.GetCurrent() != L',') {
        m_scanner.FailAtCharacter(messageAtMismatch);
    }
    if (!m_scanner.ReadNextToken()) {
        m_scanner.Fail(messageAtEnd);
    }
    return true;
}

} // namespace ZrXmlLib16

#endif
