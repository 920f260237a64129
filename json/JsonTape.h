// SPDX-License-Identifier: MIT
#ifndef JSON_JSONTAPE_H
#define JSON_JSONTAPE_H

#include "json/JsonNames.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ZrXmlLib16 {

/// A value of a JSON document.
struct JsonEvent {
    enum class Kind : unsigned char {
        Object,
        Array,
        Text, // string, number, true or false
        Null,
        Missing // a name was given, but no value
    };

    std::wstring_view GetText() const { return std::wstring_view(text, extent); }

    const JsonName* name; // an item has the name of its array; null for the document itself
    const wchar_t* text;  // Text: the characters
    std::size_t extent;   // Text: number of characters; Object and Array: index of the first event behind the end
    Kind kind;
    bool hasElements = false; // among the members of an object, like the next two
    bool hasText = false;
    bool hasAttributes = false;
};

/// Keeps texts in blocks, so that growing moves nothing.
class JsonTexts {
public:
    JsonTexts();

    /// @return the kept characters, which live as long as this object.
    const wchar_t* Keep(std::wstring_view text);

private:
    std::vector<std::unique_ptr<wchar_t[]>> m_blocks;
    wchar_t* m_free = nullptr; // behind the last text
    std::size_t m_freeLength = 0;
    std::size_t m_nextBlockLength; // small documents need little
};

/// The values of one JSON document in the order of the text, without an allocation for each.
///
/// An object or array is followed by its content; no event marks the end. Once Finish has returned, all events of the
/// content lie before the extent of their container.
class JsonTape {
public:
    explicit JsonTape(JsonRoundTrip mode);
    JsonTape(const JsonTape&) = delete;
    JsonTape& operator=(const JsonTape&) = delete;

    /// The name of the value added next; without effect outside an object.
    void SetName(const std::wstring& name) { m_nextName = &m_names.Get(name); }
    void AddText(std::wstring_view text);
    void AddNull();
    /// @return the event that stands for the container.
    const JsonEvent& BeginContainer(JsonEvent::Kind kind);
    /// @throws CZrInvalidStateException when none is open.
    void EndContainer();
    /// @throws CZrInvalidStateException while a container is open.
    void Finish() const;

    JsonRoundTrip GetMode() const { return m_mode; }
    std::size_t GetCount() const { return m_events.size(); }
    const JsonEvent& operator[](std::size_t index) const { return m_events[index]; }
    /// Index of the event behind the value, its content included.
    std::size_t GetNext(std::size_t index) const;
    /// Whether the XML of this document needs the prefix "xsi".
    bool NeedsInstancePrefix() const { return m_hasNil || m_names.UsesInstancePrefix(); }

private:
    JsonEvent& Add(JsonEvent::Kind kind);
    const JsonName* TakeNameInObject(JsonEvent& object);

    const JsonRoundTrip m_mode;
    JsonNames m_names;
    std::vector<JsonEvent> m_events;
    JsonTexts m_texts;
    std::vector<std::size_t> m_open;
    const JsonName* m_nextName = nullptr;
    bool m_hasNil = false;
};

} // namespace ZrXmlLib16

#endif
