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

/// The values of one JSON document in the order of the text, without an allocation for each. Texts that lie in the
/// source are borrowed, others are copied.
///
/// An object or array is followed by its content; no event marks the end. Once Finish has returned, all events of the
/// content lie before the extent of their container.
class JsonTape {
public:
    /// @param source the JSON text, which outlives the tape; empty for a document that comes as events only.
    explicit JsonTape(JsonRoundTrip mode, std::wstring_view source = std::wstring_view());
    JsonTape(const JsonTape&) = delete;
    JsonTape& operator=(const JsonTape&) = delete;

    /// The name of the value added next; without effect outside an object.
    void SetName(std::wstring_view name) { m_nextName = &m_names.Get(name); }
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
    /// Where the recording is, as CJsonReaderDefaultHandler::GetPath has it.
    std::wstring GetPath() const;
    /// About as many characters as the XML of the document has; escapes come on top.
    std::size_t GetXmlLength() const { return m_xmlLength; }
    /// Whether the XML of this document needs the prefix "xsi".
    bool NeedsInstancePrefix() const { return m_hasNil || m_names.UsesInstancePrefix(); }

private:
    JsonEvent& Add(JsonEvent::Kind kind);
    const JsonName* TakeNameInObject(JsonEvent& object);
    std::size_t LengthOfTags(const JsonEvent& event) const;
    bool IsInSource(std::wstring_view text) const;

    const JsonRoundTrip m_mode;
    const std::wstring_view m_source;
    JsonNames m_names;
    std::vector<JsonEvent> m_events;
    JsonTexts m_texts;
    std::vector<std::size_t> m_open;
    const JsonName* m_nextName = nullptr;
    bool m_hasNil = false;
    std::size_t m_depth = 0; // of open objects
    std::size_t m_xmlLength = 0;
};

} // namespace ZrXmlLib16

#endif
