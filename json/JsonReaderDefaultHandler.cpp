// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"

#include "json/JsonPath.h"

namespace ZrXmlLib16 {

IJsonReaderHandler::~IJsonReaderHandler() = default;

IErrorPathProvider::~IErrorPathProvider() = default;

CJsonReaderDefaultHandler::CJsonReaderDefaultHandler()
    : m_innerHandler(nullptr)
    , m_depth(0)
{
}

CJsonReaderDefaultHandler::~CJsonReaderDefaultHandler() = default;

void CJsonReaderDefaultHandler::SetInnerHandler(IJsonReaderHandler* handler)
{
    m_innerHandler = handler;
}

IJsonReaderHandler* CJsonReaderDefaultHandler::GetInnerHandler() const
{
    return m_innerHandler;
}

void CJsonReaderDefaultHandler::ReadStartDocument()
{
    m_depth = 0;
    if (m_innerHandler) {
        m_innerHandler->ReadStartDocument();
    }
}

void CJsonReaderDefaultHandler::ReadEndDocument()
{
    if (m_innerHandler) {
        m_innerHandler->ReadEndDocument();
    }
}

void CJsonReaderDefaultHandler::ReadName(const std::wstring& name)
{
    if (m_depth > 0) {
        Frame& frame = m_frames[m_depth - 1];
        frame.name = name;
        frame.hasName = true;
    }
    if (m_innerHandler) {
        m_innerHandler->ReadName(name);
    }
}

void CJsonReaderDefaultHandler::ReadString(const std::wstring& value)
{
    if (m_innerHandler) {
        m_innerHandler->ReadString(value);
    }
    CompleteValue();
}

void CJsonReaderDefaultHandler::ReadNumber(const std::wstring& text)
{
    if (m_innerHandler) {
        m_innerHandler->ReadNumber(text);
    }
    CompleteValue();
}

void CJsonReaderDefaultHandler::ReadStartObject()
{
    PushFrame(false);
    if (m_innerHandler) {
        m_innerHandler->ReadStartObject();
    }
}

void CJsonReaderDefaultHandler::ReadEndObject()
{
    PopFrame();
    if (m_innerHandler) {
        m_innerHandler->ReadEndObject();
    }
    CompleteValue();
}

void CJsonReaderDefaultHandler::ReadStartArray()
{
    PushFrame(true);
    if (m_innerHandler) {
        m_innerHandler->ReadStartArray();
    }
}

void CJsonReaderDefaultHandler::ReadEndArray()
{
    PopFrame();
    if (m_innerHandler) {
        m_innerHandler->ReadEndArray();
    }
    CompleteValue();
}

void CJsonReaderDefaultHandler::ReadBool(bool value)
{
    if (m_innerHandler) {
        m_innerHandler->ReadBool(value);
    }
    CompleteValue();
}

void CJsonReaderDefaultHandler::ReadNull()
{
    if (m_innerHandler) {
        m_innerHandler->ReadNull();
    }
    CompleteValue();
}

std::wstring CJsonReaderDefaultHandler::GetPath() const
{
    std::wstring path = L"$";
    for (std::size_t i = 0; i < m_depth; ++i) {
        const Frame& frame = m_frames[i];
        if (frame.isArray) {
            AppendItemToPath(path, frame.index);
        } else if (frame.hasName) {
            AppendMemberToPath(path, frame.name);
        }
    }
    return path;
}

void CJsonReaderDefaultHandler::PushFrame(bool isArray)
{
    if (m_depth == m_frames.size()) {
        m_frames.emplace_back();
    }
    Frame& frame = m_frames[m_depth++];
    frame.isArray = isArray;
    frame.index = 0;
    frame.hasName = false;
}

void CJsonReaderDefaultHandler::PopFrame()
{
    if (m_depth > 0) {
        --m_depth;
    }
}

void CJsonReaderDefaultHandler::CompleteValue()
{
    if (m_depth > 0) {
        Frame& frame = m_frames[m_depth - 1];
        frame.hasName = false;
        ++frame.index;
    }
}

} // namespace ZrXmlLib16
