// SPDX-License-Identifier: MIT
#ifndef JSON_JSONTAPERECORDER_H
#define JSON_JSONTAPERECORDER_H

#include "ZrXmlLib16/IErrorPathProvider.h"
#include "json/JsonTape.h"

#include <string_view>

namespace ZrXmlLib16 {

/// Puts what the parser reports on a tape.
class JsonTapeRecorder {
public:
    /// @param pathProvider tells where a failure occurred. Both outlive the object.
    JsonTapeRecorder(JsonTape& tape, const IErrorPathProvider& pathProvider)
        : m_tape(tape)
        , m_pathProvider(pathProvider)
    {
    }

    void ReadName(std::wstring_view name) { m_tape.SetName(name); }
    void ReadString(std::wstring_view value) { m_tape.AddText(value); }
    void ReadNumber(std::wstring_view text) { m_tape.AddText(text); }
    void ReadBool(bool value) { m_tape.AddText(value ? L"true" : L"false"); }
    void ReadNull() { m_tape.AddNull(); }
    /// @{
    /// @throws CZrValidationException when the value of an attribute or text member begins.
    void ReadStartObject() { BeginContainer(JsonEvent::Kind::Object); }
    void ReadStartArray() { BeginContainer(JsonEvent::Kind::Array); }
    /// @}
    void ReadEndObject() { m_tape.EndContainer(); }
    void ReadEndArray() { m_tape.EndContainer(); }

private:
    void BeginContainer(JsonEvent::Kind kind)
    {
        const JsonName* const name = m_tape.BeginContainer(kind).name;
        if (name && name->kind != JsonName::Kind::Element) {
            FailAtContainer(*name);
        }
    }
    [[noreturn]] void FailAtContainer(const JsonName& name) const;

    JsonTape& m_tape;
    const IErrorPathProvider& m_pathProvider;
};

/// The place that the recording has reached.
class JsonTapePath : public IErrorPathProvider {
public:
    /// @param tape outlives the object.
    explicit JsonTapePath(const JsonTape& tape)
        : m_tape(tape)
    {
    }
    std::wstring GetPath() const override { return m_tape.GetPath(); }

private:
    const JsonTape& m_tape;
};

} // namespace ZrXmlLib16

#endif
