// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_RECORDINGWRITER_H
#define TESTS_SUPPORT_RECORDINGWRITER_H

#include "ZrXmlLib16/XmlWriter.h"
#include "support/Failure.h"

#include <string>

namespace TestSupport {

/// Keeps every event as one short text: PI(..) NS(prefix=uri) <name{uri}> @name{uri}=value:type "text":type >.
class RecordingWriter : public ZrXmlLib16::CXmlWriter {
public:
    RecordingWriter()
        : CXmlWriter(L"RecordingWriter")
    {
    }
    std::string m_events;

    using Text = std::wstring;
    void SetDefaultNamespace(const Text& uri) override { Note(L"default(" + uri + L")"); }
    void AddNamespace(const Text& prefix, const Text& uri) override { Note(L"NS(" + prefix + L"=" + uri + L")"); }
    void WriteComment(const Text& text) override { Note(L"comment(" + text + L")"); }
    void WritePI(const Text& text) override { Note(L"PI(" + text + L")"); }
    void WriteInlineSchema(const Text& text) override { Note(L"schema(" + text + L")"); }
    void WriteStartElement(const Text& name, const Text& uri) override { Note(L"<" + name + Braced(uri)); }
    void WriteString(const Text& value, ZrXmlLib16::ItemType type, bool isDefault) override
    {
        Note(L"'" + value + L"':" + std::to_wstring(type) + (isDefault ? L"!" : L""));
    }
    void WriteEndElement() override { Note(L">"); }
    void WriteAttributeString(const Text& name, const Text& uri, const Text& value, ZrXmlLib16::ItemType type) override
    {
        Note(L"@" + name + Braced(uri) + L"='" + value + L"':" + std::to_wstring(type));
    }
    void WriteAttributeType(const Text& name, const Text& uri, ZrXmlLib16::ItemType type) override
    {
        Note(L"type(" + name + Braced(uri) + L":" + std::to_wstring(type) + L")");
    }
    void WriteAttributeNil() override { Note(L"nil"); }

private:
    static Text Braced(const Text& uri) { return uri.empty() ? uri : L"{" + uri + L"}"; }
    void Note(const Text& event) { m_events += (m_events.empty() ? "" : " ") + Narrow(event); }
};

/// The events of the object, or the failure.
inline std::string Events(const TestObject& object, const ZrXmlLib16::CSerializationContext& context = {},
    bool isRoot = true, bool isOptional = false)
{
    RecordingWriter writer;
    const std::string failure =
        FailureOf([&] { object.ToXml_Int(&writer, isRoot, object.GetNamespace().c_str(), context, isOptional); });
    return failure.empty() ? writer.m_events : failure;
}

} // namespace TestSupport

#endif
