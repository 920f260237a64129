// SPDX-License-Identifier: MIT
#include "json/JsonTape.h"

#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "json/JsonPath.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_BLOCK_LENGTH = 512;
constexpr std::size_t LARGEST_BLOCK_LENGTH = 65536;
// Of a value with its name.
constexpr std::size_t COMMON_VALUE_LENGTH = 16;
// What XML has around names and values.
constexpr std::size_t ATTRIBUTE_MARKUP = 4;
constexpr std::size_t ELEMENT_MARKUP = 6;

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

JsonTape::JsonTape(JsonRoundTrip mode, std::wstring_view source)
    : m_mode(mode)
    , m_source(source)
    , m_names(mode)
{
    m_events.reserve(source.size() / COMMON_VALUE_LENGTH);
}

void JsonTape::AddText(std::wstring_view text)
{
    JsonEvent& event = Add(JsonEvent::Kind::Text);
    event.text = IsInSource(text) ? text.data() : m_texts.Keep(text);
    event.extent = text.size();
    m_xmlLength += text.size();
    if (event.name) {
        const bool isAttribute = event.name->kind == JsonName::Kind::Attribute;
        m_xmlLength += isAttribute ? event.name->xmlName.size() + ATTRIBUTE_MARKUP : LengthOfTags(event);
    }
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
    if (kind == JsonEvent::Kind::Object) {
        m_xmlLength += event.name ? LengthOfTags(event) + m_depth + 1 : 0; // the tags have lines of their own
        ++m_depth;
    }
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
    JsonEvent& container = m_events[m_open.back()];
    container.extent = m_events.size();
    if (container.kind == JsonEvent::Kind::Object) {
        --m_depth;
    }
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

/// In one line, with its end.
std::size_t JsonTape::LengthOfTags(const JsonEvent& event) const
{
    return m_depth + 2 * event.name->xmlName.size() + ELEMENT_MARKUP;
}

bool JsonTape::IsInSource(std::wstring_view text) const
{
    // The comparison of unrelated addresses is defined for this type alone.
    const std::less_equal<const wchar_t*> isNotBehind;
    return isNotBehind(m_source.data(), text.data())
        && isNotBehind(text.data() + text.size(), m_source.data() + m_source.size());
}

std::wstring JsonTape::GetPath() const
{
    std::wstring path = L"$";
    for (std::size_t level = 0; level < m_open.size(); ++level) {
        const std::size_t container = m_open[level];
        const bool isInnermost = level + 1 == m_open.size();
        const std::size_t current = isInnermost ? m_events.size() : m_open[level + 1];
        if (m_events[container].kind == JsonEvent::Kind::Array) {
            std::size_t index = 0;
            for (std::size_t i = container + 1; i < current; i = GetNext(i)) {
                ++index;
            }
            AppendItemToPath(path, index);
        } else if (const JsonName* const name = isInnermost ? m_nextName : m_events[current].name) {
            AppendMemberToPath(path, name->member);
        }
    }
    return path;
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
