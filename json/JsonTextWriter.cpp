// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonTextWriter.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/TextArgument.h"
#include "streams/TextRun.h"
#include "xml/InstanceAttributeNames.h"
#include "xml/TextWriting.h"
#include "xml/XmlMessages.h"
#include "xml/XmlNamespaces.h"
#include "json/JsonText.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long ROOT_DEPTH = 1; // the document has an object around the root

} // namespace

CJsonTextWriter::CJsonTextWriter(CTextStream& stream)
    : CXmlWriter(L"CJsonTextWriter")
    , m_indentChars(L"\t")
    , m_endOfLine(L"\n")
    , m_eolType(EOL_LF)
    , m_supportRoundtrip(JsonRoundTrip_Full)
    , m_format(true)
    , m_stream(stream)
    , m_hasNoMember(false)
    , m_openArrays(0)
    , m_flushesOften(false)
{
}

CJsonTextWriter::~CJsonTextWriter() = default;

void CJsonTextWriter::Open()
{
    CXmlWriter::Open();
    m_stream.Open();
}

// kept: required behaviour. The stream is closed before an open element is reported.
void CJsonTextWriter::Close()
{
    m_stream.Close();
    CXmlWriter::Close();
}

void CJsonTextWriter::WriteStartDocument()
{
    m_stream.Append(L'{');
    if (m_format) {
        m_stream.Append(m_endOfLine);
    }
    FlushWhenFull(m_stream);
}

void CJsonTextWriter::WriteEndDocument()
{
    if (m_format) {
        m_stream.Append(m_endOfLine);
    }
    m_stream.Append(L'}');
}

// kept: required behaviour. The line ends whether or not the output is formatted.
void CJsonTextWriter::WriteComment(const std::wstring& text)
{
    AppendLiteral(m_stream, L"/* ");
    AppendJsonText(m_stream, text, m_endOfLine);
    AppendLiteral(m_stream, L" */");
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

void CJsonTextWriter::WritePI(const std::wstring&) { }

void CJsonTextWriter::WriteInlineSchema(const std::wstring&) { }

// kept: required behaviour. Nil does not show, so a nil element is a name without a value.
void CJsonTextWriter::WriteAttributeNil() { }

void CJsonTextWriter::WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri)
{
    CXmlWriterContext* const parent = GetCurrentContext();
    const bool isFurtherItem = parent && ContinuesArray(*parent, name, namespaceUri);
    if (parent) {
        BeginMember(*parent, isFurtherItem);
    }
    CXmlWriterContext& context = OpenContext(ROOT_DEPTH);
    if (parent && parent->m_state == ContextState_CollectionStart) {
        m_firstItemName = name;
        m_firstItemNamespace = namespaceUri;
    }
    if (m_format) {
        Indent(context, 0);
    }
    if (!isFurtherItem) {
        AppendElementName(name, namespaceUri, !parent);
    }
    m_hasNoMember = true;
    if (!parent && m_supportRoundtrip == JsonRoundTrip_Full) {
        AppendRootDeclarations(context);
    }
}

bool CJsonTextWriter::WriteTextElement(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text, ItemType type, bool)
{
    CXmlWriterContext* const parent = GetCurrentContext();
    if (!parent || parent->m_state == ContextState_CollectionStart) {
        return false; // an array may have to begin
    }
    const bool isFurtherItem = ContinuesArray(*parent, name, namespaceUri);
    BeginMember(*parent, isFurtherItem);
    if (m_format) {
        Indent(*parent, 1);
    }
    if (!isFurtherItem) {
        AppendElementName(name, namespaceUri, false);
    }
    AppendJsonValue(m_stream, text, type, m_endOfLine);
    if (m_flushesOften) {
        FlushWhenFull(m_stream);
    }
    return true;
}

void CJsonTextWriter::AppendElementName(const std::wstring& name, const std::wstring& namespaceUri, bool isRoot)
{
    const std::wstring* prefix = nullptr;
    if (m_supportRoundtrip == JsonRoundTrip_Full && IsPrefixed(namespaceUri)) {
        bool isNew = false;
        prefix = isRoot ? &ObtainPrefix(namespaceUri, isNew) : &RequirePrefix(namespaceUri, name);
    }
    AppendMemberName(false, prefix, name);
}

/// @param prefix null for none.
void CJsonTextWriter::AppendMemberName(bool isMarked, const std::wstring* prefix, const std::wstring& name)
{
    constexpr std::size_t PUNCTUATION = 6;
    TextRun run(m_stream, PUNCTUATION + (prefix ? prefix->size() : 0) + name.size());
    run.Put(L'"');
    if (isMarked) {
        run.Put(L'@');
    }
    if (prefix) {
        run.Put(*prefix);
        run.Put(L':');
    }
    run.Put(name);
    run.PutLiteral(L"\": ");
}

void CJsonTextWriter::AppendRootDeclarations(CXmlWriterContext& root)
{
    if (!root.m_defaultNamespace.empty()) {
        BeginAttribute();
        AppendLiteral(m_stream, L"\"@xmlns\": ");
        AppendJsonString(m_stream, root.m_defaultNamespace, m_endOfLine);
    }
    for (const auto& [namespaceUri, prefix] : root.m_namespaceMap) {
        if (!prefix.empty() && namespaceUri != XML_NAMESPACE_URI) {
            AppendDeclaration(prefix, namespaceUri);
        }
    }
}

void CJsonTextWriter::AppendDeclaration(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    BeginAttribute();
    AppendLiteral(m_stream, L"\"@xmlns:");
    m_stream.Append(prefix);
    AppendLiteral(m_stream, L"\": ");
    AppendJsonString(m_stream, namespaceUri, m_endOfLine);
}

void CJsonTextWriter::WriteString(const std::wstring& value, ItemType type, bool)
{
    if (CXmlWriterContext* const context = GetCurrentContext()) {
        if (m_hasNoMember) {
            BeginArray(*context);
        } else {
            EndArray(*context);
            m_stream.Append(L',');
            BeginLine(*context, 1);
            if (m_supportRoundtrip == JsonRoundTrip_Plain) {
                AppendLiteral(m_stream, L"\"\": ");
            } else {
                AppendLiteral(m_stream, L"\"#text\": ");
            }
        }
    }
    AppendJsonValue(m_stream, value, type, m_endOfLine);
}

// kept: required behaviour. An element without members and value ends as a name without a value.
void CJsonTextWriter::WriteEndElement()
{
    CXmlWriterContext* const context = GetCurrentContext();
    if (!context) {
        throw CZrInvalidStateException(Message::NO_ELEMENT_TO_END);
    }
    EndArray(*context);
    if (!m_hasNoMember) {
        BeginLine(*context, 0);
        m_stream.Append(L'}');
    }
    CloseContext();
    m_hasNoMember = false;
    if (m_flushesOften) {
        FlushWhenFull(m_stream);
    }
}

void CJsonTextWriter::WriteAttributeString(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type)
{
    BeginAttribute();
    const bool isPrefixed = m_supportRoundtrip == JsonRoundTrip_Full && !namespaceUri.empty();
    AppendMemberName(
        m_supportRoundtrip != JsonRoundTrip_Plain, isPrefixed ? &RequirePrefix(namespaceUri, name) : nullptr, name);
    AppendJsonValue(m_stream, value, type, m_endOfLine);
}

void CJsonTextWriter::WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType)
{
    if (m_supportRoundtrip != JsonRoundTrip_Full) {
        return;
    }
    if (!GetCurrentContext()) {
        throw CZrException(Message::ATTRIBUTE_AFTER_CONTENT);
    }
    m_qualifiedValue.clear();
    if (IsPrefixed(typeNamespace)) {
        m_qualifiedValue.append(RequirePrefix(typeNamespace, typeName)).append(1, L':');
    }
    m_qualifiedValue.append(typeName);
    const InstanceAttributeNames& names = GetInstanceAttributeNames();
    if (!GetCurrentContext()->FindPrefix(names.namespaceUri)) {
        DeclareInstanceNamespace();
    }
    WriteAttributeString(names.type, names.namespaceUri, m_qualifiedValue, ItemType_string);
}

void CJsonTextWriter::DeclareInstanceNamespace()
{
    CXmlWriterContext& context = *GetCurrentContext();
    const NamespaceMap& prefixes = context.GetNamespaceMap();
    const auto isCustomary = [](const auto& entry) { return entry.second == L"xsi"; };
    const bool isTaken = std::any_of(prefixes.begin(), prefixes.end(), isCustomary);
    const std::wstring prefix = isTaken ? GetUniquePrefix(prefixes) : L"xsi";
    const std::wstring& namespaceUri = GetInstanceAttributeNames().namespaceUri;
    context.SetNamespaceMapValue(namespaceUri, prefix);
    AppendDeclaration(prefix, namespaceUri);
}

bool CJsonTextWriter::IsArrayOpen(const CXmlWriterContext& element) const
{
    return m_openArrays > 0 && m_arrays[m_openArrays - 1].owner == &element;
}

bool CJsonTextWriter::ContinuesArray(
    const CXmlWriterContext& parent, const std::wstring& name, const std::wstring& namespaceUri) const
{
    if (parent.m_state != ContextState_InArray || !IsArrayOpen(parent)) {
        return false;
    }
    const OpenArray& array = m_arrays[m_openArrays - 1];
    return array.localName == name && array.namespaceUri == namespaceUri;
}

/// The first item has a name, so its array begins when it turns out to have content.
void CJsonTextWriter::BeginArray(const CXmlWriterContext& item)
{
    CXmlWriterContext* const owner = item.m_parent;
    if (!owner || owner->m_state != ContextState_CollectionStart) {
        return;
    }
    m_stream.Append(L'[');
    owner->m_state = ContextState_InArray;
    if (m_openArrays == m_arrays.size()) {
        m_arrays.emplace_back();
    }
    OpenArray& array = m_arrays[m_openArrays];
    array.owner = owner;
    array.localName = m_firstItemName;
    array.namespaceUri = m_firstItemNamespace;
    ++m_openArrays;
    BeginLine(item, 0);
}

/// Without an open array nothing happens. A collection that is still being written goes on with another array.
void CJsonTextWriter::EndArray(CXmlWriterContext& element)
{
    if (!IsArrayOpen(element)) {
        return;
    }
    BeginLine(element, 0);
    m_stream.Append(L']');
    --m_openArrays;
    if (element.m_state == ContextState_InArray) {
        element.m_state = ContextState_CollectionStart;
    } else if (element.m_state == ContextState_CollectionEnd) {
        element.m_state = ContextState_None;
    }
}

void CJsonTextWriter::BeginMember(CXmlWriterContext& element, bool continuesArray)
{
    if (m_hasNoMember) {
        BeginArray(element);
        m_stream.Append(L'{');
        m_hasNoMember = false;
    } else {
        if (!continuesArray) {
            EndArray(element);
        }
        m_stream.Append(L',');
    }
    if (m_format) {
        m_stream.Append(m_endOfLine);
    }
}

void CJsonTextWriter::BeginAttribute()
{
    CXmlWriterContext* const context = GetCurrentContext();
    if (!context) {
        throw CZrException(Message::ATTRIBUTE_AFTER_CONTENT);
    }
    BeginMember(*context, false);
    if (m_format) {
        Indent(*context, 1);
    }
}

void CJsonTextWriter::BeginLine(const CXmlWriterContext& element, unsigned long extraDepth)
{
    if (m_format) {
        m_stream.Append(m_endOfLine);
        Indent(element, extraDepth);
    }
}

// Every array begun around or inside an element that is still open indents it once more.
void CJsonTextWriter::Indent(const CXmlWriterContext& element, unsigned long extraDepth)
{
    AppendIndentation(m_stream, m_indentChars, m_indentation, element.m_depth + m_openArrays + extraDepth);
}

// kept: required behaviour. The message shows the name, not the namespace.
const std::wstring& CJsonTextWriter::RequirePrefix(const std::wstring& namespaceUri, const std::wstring& name) const
{
    const std::wstring* const prefix = GetCurrentContext()->FindPrefix(namespaceUri);
    if (!prefix) {
        throw CZrException(FormatString(Message::UNKNOWN_NAMESPACE, name.c_str()));
    }
    return *prefix;
}

bool CJsonTextWriter::GetFormat() const
{
    return m_format;
}

void CJsonTextWriter::SetFormat(bool format)
{
    m_format = format;
}

EOLType CJsonTextWriter::GetEOLType() const
{
    return m_eolType;
}

void CJsonTextWriter::SetEOLType(EOLType type)
{
    m_endOfLine = EndOfLineText(type);
    m_eolType = type;
}

JsonRoundTrip CJsonTextWriter::GetSupportRoundtrip() const
{
    return m_supportRoundtrip;
}

void CJsonTextWriter::SetSupportRoundtrip(JsonRoundTrip mode)
{
    m_supportRoundtrip = mode;
}

std::wstring CJsonTextWriter::GetIndentChars() const
{
    return m_indentChars;
}

void CJsonTextWriter::SetIndentChars(const wchar_t* text)
{
    m_indentChars = TextOrEmpty(text);
    m_indentation.clear();
}

} // namespace ZrXmlLib16
