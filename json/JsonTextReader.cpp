// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonTextReader.h"

#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "core/TextArgument.h"
#include "json/JsonParser.h"

namespace ZrXmlLib16 {

namespace {

/// Hands texts on as strings.
class StringsForHandler {
public:
    explicit StringsForHandler(CJsonReaderDefaultHandler& handler)
        : m_handler(handler)
    {
    }

    void ReadName(std::wstring_view name) { m_handler.ReadName(m_text.assign(name)); }
    void ReadString(std::wstring_view value) { m_handler.ReadString(m_text.assign(value)); }
    void ReadNumber(std::wstring_view text) { m_handler.ReadNumber(m_text.assign(text)); }
    void ReadBool(bool value) { m_handler.ReadBool(value); }
    void ReadNull() { m_handler.ReadNull(); }
    void ReadStartObject() { m_handler.ReadStartObject(); }
    void ReadEndObject() { m_handler.ReadEndObject(); }
    void ReadStartArray() { m_handler.ReadStartArray(); }
    void ReadEndArray() { m_handler.ReadEndArray(); }

private:
    CJsonReaderDefaultHandler& m_handler;
    std::wstring m_text; // reused
};

} // namespace

CJsonTextReader::CJsonTextReader(const std::wstring& text)
    : m_handler(new CJsonReaderDefaultHandler)
    , m_allowComments(false)
    , m_text(text)
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

void CJsonTextReader::Read()
{
    JsonScanner scanner(m_text, m_allowComments, *m_handler);
    StringsForHandler receiver(*m_handler);
    m_handler->ReadStartDocument();
    JsonParser<StringsForHandler>(scanner, receiver).Parse(m_rootElementName);
    m_handler->ReadEndDocument();
}

} // namespace ZrXmlLib16
