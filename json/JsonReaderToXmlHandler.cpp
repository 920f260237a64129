// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"

#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "json/JsonTapeRecorder.h"
#include "json/JsonTapeWriter.h"

namespace ZrXmlLib16 {

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
    JsonTapeRecorder(*m_tape, m_pathProvider).ReadStartObject();
}

void CJsonReaderToXmlHandler::ReadEndObject()
{
    m_tape->EndContainer();
}

void CJsonReaderToXmlHandler::ReadStartArray()
{
    JsonTapeRecorder(*m_tape, m_pathProvider).ReadStartArray();
}

void CJsonReaderToXmlHandler::ReadEndArray()
{
    m_tape->EndContainer();
}

void CJsonReaderToXmlHandler::ReadBool(bool value)
{
    JsonTapeRecorder(*m_tape, m_pathProvider).ReadBool(value);
}

void CJsonReaderToXmlHandler::ReadNull()
{
    m_tape->AddNull();
}

} // namespace ZrXmlLib16
