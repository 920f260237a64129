// SPDX-License-Identifier: MIT
#include "json/JsonTape.h"

#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_BLOCK_LENGTH = 512;
constexpr std::size_t LARGEST_BLOCK_LENGTH = 65536;

} // namespace

JsonTexts::JsonTexts()
    : m_nextBlockLength(FIRST_BLOCK_LENGTH)
{
}

const wchar_t* JsonTexts::Keep(std::wstring_view text)
{
    if (text.size() > m_freeLength) {
        const std::size_t length = std::max(text.size(), m_nextBlockLength);
        std::unique_ptr<wchar_t[]> block(new wchar_t[length]); // left uninitialised
        m_blocks.push_back(std::move(block));
        m_free = m_blocks.back().get();
        m_freeLength = length;
        m_nextBlockLength = std::min(2 * m_nextBlockLength, LARGEST_BLOCK_LENGTH);
    }
    const wchar_t* const kept = m_free;
    m_free = std::copy(text.begin(), text.end(), m_free);
    m_freeLength -= text.size();
    return kept;
}

JsonTape::JsonTape(JsonRoundTrip mode)
    : m_mode(mode)
    , m_names(mode)
{
}

void JsonTape::AddText(std::wstring_view text)
{
    JsonEvent& event = Add(JsonEvent::Kind::Text);
    event.text = m_texts.Keep(text);
    event.extent = text.size();
}

void JsonTape::AddNull()
{
    const JsonEvent& event = Add(JsonEvent::Kind::Null);
    if (m_mode == JsonRoundTrip_Full && event.name && event.name->kind == JsonName::Kind::Element) {
        m_hasNil = true;
    }
}

const JsonEvent& JsonTape::BeginContainer(JsonEvent::Kind kind)
{
    const JsonEvent& event = Add(kind);
    m_open.push_back(m_events.size() - 1);
    return event;
}

void JsonTape::EndContainer()
{
    if (m_open.empty()) {
        throw CZrInvalidStateException(Message::JSON_EVENTS_NOT_NESTED);
    }
    if (m_nextName) {
        Add(JsonEvent::Kind::Missing);
    }
    m_events[m_open.back()].extent = m_events.size();
    m_open.pop_back();
}

void JsonTape::Finish() const
{
    if (!m_open.empty()) {
        throw CZrInvalidStateException(Message::JSON_EVENTS_NOT_NESTED);
    }
}

std::size_t JsonTape::GetNext(std::size_t index) const
{
    const JsonEvent& event = m_events[index];
    const bool isContainer = event.kind == JsonEvent::Kind::Object || event.kind == JsonEvent::Kind::Array;
    return isContainer ? event.extent : index + 1;
}

JsonEvent& JsonTape::Add(JsonEvent::Kind kind)
{
    const JsonName* name = nullptr;
    if (!m_open.empty()) {
        JsonEvent& container = m_events[m_open.back()];
        name = container.kind == JsonEvent::Kind::Array ? container.name : TakeNameInObject(container);
    }
    m_nextName = nullptr;
    m_events.push_back({name, nullptr, 0, kind});
    return m_events.back();
}

const JsonName* JsonTape::TakeNameInObject(JsonEvent& object)
{
    const JsonName* const name = m_nextName ? m_nextName : &m_names.Get(std::wstring());
    switch (name->kind) {
    case JsonName::Kind::Element:
        object.hasElements = true;
        break;
    case JsonName::Kind::Attribute:
        object.hasAttributes = true;
        break;
    case JsonName::Kind::Text:
        object.hasText = true;
        break;
    case JsonName::Kind::Ignored:
        break;
    }
    return name;
}

} // namespace ZrXmlLib16
