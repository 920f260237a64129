// SPDX-License-Identifier: MIT
#include "json/JsonTapeWriter.h"

#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "xml/XmlNamespaces.h"
#include "json/JsonReaderMessages.h"

namespace ZrXmlLib16 {

namespace {

/// Whether the writer would take the text for a CDATA section.
bool BeginsLikeMarkup(std::wstring_view text)
{
    constexpr std::wstring_view CDATA_START = L"<![CDATA[";
    return text.size() >= CDATA_START.size() && text[0] == CDATA_START[0]
        && text.substr(0, CDATA_START.size()) == CDATA_START;
}

} // namespace

JsonTapeWriter::JsonTapeWriter(const JsonTape& tape, CXmlTextWriter& writer, const IErrorPathProvider& pathProvider)
    : m_tape(tape)
    , m_writer(writer)
    , m_pathProvider(pathProvider)
    , m_instanceDeclaration(L"xmlns:xsi")
    , m_instanceNamespace(SCHEMA_INSTANCE_NAMESPACE_URI)
    , m_nilAttribute(L"xsi:nil")
    , m_true(L"true")
{
}

void JsonTapeWriter::LetJoinCalls(CXmlTextWriter& writer)
{
    static_cast<CXmlWriter&>(writer).m_joinsCalls = true;
}

void JsonTapeWriter::Write()
{
    if (m_tape.GetCount() == 0) {
        return;
    }
    const std::size_t root = FindRoot();
    const std::size_t end = m_tape.GetNext(root);
    m_declaresInstancePrefixNext = m_tape.NeedsInstancePrefix() && !DeclaresInstancePrefix(root);
    for (std::size_t i = root; i < end; ++i) {
        CloseObjectsAt(i);
        const JsonEvent& event = m_tape[i];
        if (event.name->kind == JsonName::Kind::Text) {
            WriteText(event);
        } else if (event.name->kind == JsonName::Kind::Element) {
            if (event.kind == JsonEvent::Kind::Object) {
                OpenObject(i);
            } else {
                WriteValue(event, i == root);
            }
        }
    }
    CloseObjectsAt(end);
}

/// The index of the only element of the document.
std::size_t JsonTapeWriter::FindRoot() const
{
    if (m_tape[0].kind != JsonEvent::Kind::Object) {
        FailWithoutRoot();
    }
    std::size_t memberCount = 0;
    std::size_t root = 0;
    for (std::size_t i = 1; i < m_tape[0].extent; i = m_tape.GetNext(i)) {
        if (m_tape[i].name->kind == JsonName::Kind::Element) {
            ++memberCount;
            root = i;
        }
    }
    if (memberCount != 1) {
        FailWithoutRoot();
    }
    return FindOnlyItem(root);
}

/// The value itself, or the only item of an array, at whatever level.
std::size_t JsonTapeWriter::FindOnlyItem(std::size_t value) const
{
    const std::size_t end = m_tape.GetNext(value);
    std::size_t itemCount = 0;
    std::size_t item = value;
    for (std::size_t i = value; i < end;) {
        if (m_tape[i].kind == JsonEvent::Kind::Array) {
            ++i;
            continue;
        }
        ++itemCount;
        item = i;
        i = m_tape.GetNext(i);
    }
    if (itemCount != 1) {
        FailWithoutRoot();
    }
    return item;
}

bool JsonTapeWriter::DeclaresInstancePrefix(std::size_t object) const
{
    if (m_tape[object].hasAttributes) {
        for (std::size_t i = object + 1; i < m_tape[object].extent; i = m_tape.GetNext(i)) {
            const JsonEvent& event = m_tape[i];
            if (event.kind == JsonEvent::Kind::Text && event.name->kind == JsonName::Kind::Attribute
                && event.name->xmlName == m_instanceDeclaration) {
                return true;
            }
        }
    }
    return false;
}

/// Writes an element other than an object. An array is written as its items, which follow.
void JsonTapeWriter::WriteValue(const JsonEvent& event, bool isRoot)
{
    const bool isNull = event.kind == JsonEvent::Kind::Null;
    const bool isNil = isNull && m_tape.GetMode() == JsonRoundTrip_Full;
    if (event.kind == JsonEvent::Kind::Array || (isNull && !isNil && !isRoot)) {
        return;
    }
    if (event.kind == JsonEvent::Kind::Text && !m_declaresInstancePrefixNext && WriteTextElement(event)) {
        return;
    }
    StartElement(event);
    if (isNil) {
        m_writer.WriteAttributeString(m_nilAttribute, m_empty, m_true, ItemType_boolean);
    }
    WriteText(event);
    m_writer.WriteEndElement();
}

bool JsonTapeWriter::WriteTextElement(const JsonEvent& event)
{
    CXmlWriter& writer = m_writer;
    if (!writer.m_joinsCalls || BeginsLikeMarkup(event.GetText())) {
        return false;
    }
    m_value.assign(event.GetText());
    return writer.WriteTextElement(event.name->xmlName, m_empty, m_value, ItemType_string, false);
}

void JsonTapeWriter::OpenObject(std::size_t object)
{
    const JsonEvent& event = m_tape[object];
    StartElement(event);
    if (event.hasAttributes) {
        for (std::size_t i = object + 1; i < event.extent; i = m_tape.GetNext(i)) {
            const JsonEvent& member = m_tape[i];
            if (member.name->kind == JsonName::Kind::Attribute && member.kind == JsonEvent::Kind::Text) {
                m_value.assign(member.GetText());
                m_writer.WriteAttributeString(member.name->xmlName, m_empty, m_value, ItemType_string);
            }
        }
    }
    m_open.push_back({event.extent, m_writer.GetFormat()});
    if (event.hasText && event.hasElements) {
        m_writer.SetFormat(false); // indentation would become part of the text
    }
}

void JsonTapeWriter::CloseObject()
{
    m_writer.WriteEndElement();
    if (m_writer.GetFormat() != m_open.back().isFormatted) {
        m_writer.SetFormat(m_open.back().isFormatted);
        m_writer.WriteRawElement(m_empty); // the line end that the element did not write
    }
    m_open.pop_back();
}

void JsonTapeWriter::StartElement(const JsonEvent& event)
{
    m_writer.WriteStartElement(event.name->xmlName, m_empty);
    if (m_declaresInstancePrefixNext) {
        m_writer.WriteAttributeString(m_instanceDeclaration, m_empty, m_instanceNamespace, ItemType_string);
        m_declaresInstancePrefixNext = false;
    }
}

void JsonTapeWriter::WriteText(const JsonEvent& event)
{
    if (event.kind != JsonEvent::Kind::Text) {
        return;
    }
    const std::wstring_view text = event.GetText();
    if (BeginsLikeMarkup(text)) {
        // The writer would take the text for markup. It escapes both parts.
        m_value.assign(text, 0, 1);
        m_writer.WriteString(m_value, ItemType_string, false);
        m_value.assign(text, 1);
    } else {
        m_value.assign(text);
    }
    m_writer.WriteString(m_value, ItemType_string, false);
}

void JsonTapeWriter::FailWithoutRoot() const
{
    throw CZrValidationException(Message::JSON_ROOT_NOT_SINGLE, m_pathProvider.GetPath());
}

} // namespace ZrXmlLib16
