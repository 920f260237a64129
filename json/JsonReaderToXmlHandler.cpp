// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "json/JsonReaderMessages.h"
#include "json/JsonTapeWriter.h"

namespace ZrXmlLib16 {

namespace {

void BeginContainer(JsonTape& tape, JsonEvent::Kind kind, const IErrorPathProvider& pathProvider)
{
    const JsonName* const name = tape.BeginContainer(kind).name;
    if (name && name->kind != JsonName::Kind::Element) {
        throw CZrValidationException(
            FormatString(Message::JSON_ATTRIBUTE_NOT_SIMPLE, name->member.c_str()), pathProvider.GetPath());
    }
}

} // namespace

CJsonReaderToXmlHandler::CJsonReaderToXmlHandler(
    CXmlTextWriter& writer, JsonRoundTrip mode, const IErrorPathProvider& pathProvider)
    : m_writer(writer)
    , m_pathProvider(pathProvider)
    , m_tape(new JsonTape(mode))
{
}

CJsonReaderToXmlHandler::~CJsonReaderToXmlHandler() = default;

// No XML declaration: the text is decoded before it is parsed, and a declared encoding would then contradict it.
void CJsonReaderToXmlHandler::ReadStartDocument()
{
    m_tape = std::make_unique<JsonTape>(m_tape->GetMode());
    m_writer.Open();
}

void CJsonReaderToXmlHandler::ReadEndDocument()
{
    m_tape->Finish();
    JsonTapeWriter(*m_tape, m_writer, m_pathProvider).Write();
    m_tape = std::make_unique<JsonTape>(m_tape->GetMode());
}

void CJsonReaderToXmlHandler::ReadName(const std::wstring& name)
{
    m_tape->SetName(name);
}

void CJsonReaderToXmlHandler::ReadString(const std::wstring& value)
{
    m_tape->AddText(value);
}

void CJsonReaderToXmlHandler::ReadNumber(const std::wstring& text)
{
    m_tape->AddText(text);
}

void CJsonReaderToXmlHandler::ReadStartObject()
{
    BeginContainer(*m_tape, JsonEvent::Kind::Object, m_pathProvider);
}

void CJsonReaderToXmlHandler::ReadEndObject()
{
    m_tape->EndContainer();
}

void CJsonReaderToXmlHandler::ReadStartArray()
{
    BeginContainer(*m_tape, JsonEvent::Kind::Array, m_pathProvider);
}

void CJsonReaderToXmlHandler::ReadEndArray()
{
    m_tape->EndContainer();
}

void CJsonReaderToXmlHandler::ReadBool(bool value)
{
    m_tape->AddText(value ? L"true" : L"false");
}

void CJsonReaderToXmlHandler::ReadNull()
{
    m_tape->AddNull();
}

} // namespace ZrXmlLib16
