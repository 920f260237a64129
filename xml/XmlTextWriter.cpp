// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlTextWriter.h"

#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/TextArgument.h"
#include "xml/InstanceAttributeNames.h"
#include "xml/TextWriting.h"
#include "xml/XmlMessages.h"
#include "xml/XmlNamespaces.h"

#include <cstdint>

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t CDATA_START[] = L"<![CDATA[";
constexpr std::size_t CDATA_START_LENGTH = 9;

constexpr std::uint64_t Bit(wchar_t c)
{
    return std::uint64_t{1} << c;
}

// All characters that are not copied as they are lie below 64.
constexpr std::uint64_t SPECIAL_IN_TEXT = Bit(L'\n') | Bit(L'\r') | Bit(L'&') | Bit(L'<') | Bit(L'>');
// kept: required behaviour. A tab is copied in an attribute as well, where every parser reads a blank for it.
constexpr std::uint64_t SPECIAL_IN_ATTRIBUTE = SPECIAL_IN_TEXT | Bit(L'"');

bool IsSpecial(wchar_t c, std::uint64_t specials)
{
    const auto code = static_cast<std::uint32_t>(c);
    return code < 64 && ((specials >> code) & 1) != 0;
}

bool IsCDATA(const std::wstring& value)
{
    return value[0] == CDATA_START[0] && value.compare(0, CDATA_START_LENGTH, CDATA_START) == 0;
}

} // namespace

CXmlTextWriter::CXmlTextWriter(CTextStream& stream)
    : CXmlWriter(L"CXmlTextWriter")
    , m_writeDefaultElementValues(false)
    , m_indentChars(L"\t")
    , m_endOfLine(L"\n")
    , m_eolType(EOL_LF)
    , m_format(true)
    , m_stream(stream)
{
}

CXmlTextWriter::~CXmlTextWriter() = default;

void CXmlTextWriter::Open()
{
    CXmlWriter::Open();
    m_stream.Open();
}

// kept: required behaviour. The stream is closed before an open element is reported.
void CXmlTextWriter::Close()
{
    m_stream.Close();
    CXmlWriter::Close();
}

void CXmlTextWriter::SetDefaultNamespace(const std::wstring& namespaceUri)
{
    CXmlWriter::SetDefaultNamespace(namespaceUri);
}

void CXmlTextWriter::AddNamespace(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    CXmlWriter::AddNamespace(prefix, namespaceUri);
}

// kept: required behaviour. The text of a comment is escaped, and the line ends whether or not the output is formatted.
void CXmlTextWriter::WriteComment(const std::wstring& text)
{
    AppendLiteral(m_stream, L"<!--");
    PadAndAppend(text, false);
    AppendLiteral(m_stream, L"-->");
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

// kept: required behaviour. Two line ends follow.
void CXmlTextWriter::WritePI(const std::wstring& text)
{
    m_stream.Append(text);
    m_stream.Append(m_endOfLine);
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

// kept: required behaviour. The schema goes into the start tag, which stays open.
void CXmlTextWriter::WriteInlineSchema(const std::wstring& text)
{
    m_stream.Append(L' ');
    m_stream.Append(m_endOfLine);
    m_stream.Append(text);
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri)
{
    CloseParentElm();
    const bool isRoot = !GetCurrentContext();
    // The prefix is all that the end tag needs of the namespace.
    CXmlWriterContext& context = OpenContext(name, std::wstring(), 0);
    if (m_format) {
        AppendIndentation(m_stream, m_indentChars, m_indentation, context.m_depth);
    }
    m_stream.Append(L'<');
    // kept: required behaviour. An element without namespace never undeclares the default namespace.
    if (IsPrefixed(namespaceUri)) {
        bool isNew = false;
        context.m_prefix = ObtainPrefix(namespaceUri, isNew);
        AppendName(context.m_prefix, name);
        if (isNew) {
            m_stream.Append(L' ');
            AppendDeclaration(context.m_prefix, namespaceUri);
        }
    } else {
        m_stream.Append(name);
    }
    if (isRoot) {
        AppendRootDeclarations();
    }
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::AppendRootDeclarations()
{
    if (!GetRootDefaultNamespace().empty()) {
        AppendLiteral(m_stream, L" xmlns=\"");
        PadAndAppend(GetRootDefaultNamespace(), true);
        m_stream.Append(L'"');
    }
    for (const auto& [namespaceUri, prefix] : GetRootNamespaceMap()) {
        if (!prefix.empty() && namespaceUri != XML_NAMESPACE_URI) {
            m_stream.Append(L' ');
            AppendDeclaration(prefix, namespaceUri);
        }
    }
}

void CXmlTextWriter::WriteString(const std::wstring& value, ItemType, bool isDefault)
{
    // kept: required behaviour. Empty text leaves the start tag open, which makes an empty-element tag.
    if (value.empty() || (isDefault && !m_writeDefaultElementValues)) {
        return;
    }
    CXmlWriterContext* const context = GetCurrentContext();
    if (context && context->m_startTagOpen) {
        m_stream.Append(L'>');
        context->m_startTagOpen = false;
    }
    // kept: required behaviour. Whatever begins like a CDATA section is taken for one.
    if (IsCDATA(value)) {
        m_stream.Append(value);
    } else {
        PadAndAppend(value, false);
    }
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteEndElement()
{
    const CXmlWriterContext* const context = GetCurrentContext();
    if (!context) {
        throw CZrInvalidStateException(Message::NO_ELEMENT_TO_END);
    }
    if (context->m_startTagOpen) {
        AppendLiteral(m_stream, L"/>");
    } else {
        if (m_format && context->m_childCount > 0) {
            AppendIndentation(m_stream, m_indentChars, m_indentation, context->m_depth);
        }
        AppendLiteral(m_stream, L"</");
        AppendName(context->m_prefix, context->m_localName);
        m_stream.Append(L'>');
    }
    if (m_format) {
        m_stream.Append(m_endOfLine);
    }
    FlushWhenFull(m_stream);
    CloseContext();
}

void CXmlTextWriter::WriteAttributeString(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType)
{
    RequireOpenStartTag();
    m_stream.Append(L' ');
    if (namespaceUri.empty()) {
        m_stream.Append(name);
    } else {
        // kept: required behaviour. An attribute in the default namespace gets a prefix too.
        bool isNew = false;
        const std::wstring& prefix = ObtainPrefix(namespaceUri, isNew);
        if (isNew) {
            AppendDeclaration(prefix, namespaceUri);
            m_stream.Append(L' ');
        }
        AppendName(prefix, name);
    }
    AppendLiteral(m_stream, L"=\"");
    PadAndAppend(value, true);
    m_stream.Append(L'"');
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type)
{
    RequireOpenStartTag();
    const InstanceAttributeNames& names = GetInstanceAttributeNames();
    if (!IsPrefixed(typeNamespace)) {
        WriteAttributeString(names.type, names.namespaceUri, typeName, type);
        return;
    }
    bool isNew = false;
    const std::wstring& prefix = ObtainPrefix(typeNamespace, isNew);
    if (isNew) {
        // kept: required behaviour. With the blank of the attribute itself two blanks stand in front of it.
        m_stream.Append(L' ');
        AppendDeclaration(prefix, typeNamespace);
        m_stream.Append(L' ');
    }
    m_qualifiedValue.assign(prefix).append(1, L':').append(typeName);
    WriteAttributeString(names.type, names.namespaceUri, m_qualifiedValue, type);
}

void CXmlTextWriter::WriteAttributeNil()
{
    const InstanceAttributeNames& names = GetInstanceAttributeNames();
    WriteAttributeString(names.nil, names.namespaceUri, names.trueValue, ItemType_boolean);
}

void CXmlTextWriter::WriteStartDocument()
{
    AppendLiteral(m_stream, L"<?xml version=\"1.0\"");
    const XmlEncoding encoding = m_stream.GetEncoding();
    if (encoding == Encoding_UTF8) {
        AppendLiteral(m_stream, L" encoding=\"UTF-8\"");
    } else if (encoding == Encoding_UTF16) {
        AppendLiteral(m_stream, L" encoding=\"UTF-16\"");
    }
    AppendLiteral(m_stream, L"?>");
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteHeaderDirective(const std::wstring& text)
{
    if (GetCurrentContext()) {
        throw CZrException(Message::HEADER_AFTER_ELEMENT);
    }
    m_stream.Append(text);
    m_stream.Append(m_endOfLine);
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteRawElement(const std::wstring& text)
{
    m_stream.Append(text);
    if (m_format) {
        m_stream.Append(m_endOfLine);
    }
}

void CXmlTextWriter::CloseParentElm()
{
    CXmlWriterContext* const parent = GetCurrentContext();
    if (!parent) {
        return;
    }
    ++parent->m_childCount;
    if (parent->m_startTagOpen) {
        parent->m_startTagOpen = false;
        m_stream.Append(L'>');
        if (m_format) {
            m_stream.Append(m_endOfLine);
        }
    }
}

void CXmlTextWriter::PadAndAppend(const std::wstring& text, bool isAttribute)
{
    const std::uint64_t specials = isAttribute ? SPECIAL_IN_ATTRIBUTE : SPECIAL_IN_TEXT;
    const wchar_t* run = text.data();
    const wchar_t* const end = run + text.size();
    for (const wchar_t* position = run; position != end; ++position) {
        if (IsSpecial(*position, specials)) {
            m_stream.Append(run, static_cast<unsigned long>(position - run));
            AppendEscape(*position, isAttribute);
            run = position + 1;
        }
    }
    m_stream.Append(run, static_cast<unsigned long>(end - run));
}

void CXmlTextWriter::AppendEscape(wchar_t special, bool isAttribute)
{
    switch (special) {
    case L'&':
        AppendLiteral(m_stream, L"&amp;");
        break;
    case L'<':
        AppendLiteral(m_stream, L"&lt;");
        break;
    case L'>':
        AppendLiteral(m_stream, L"&gt;");
        break;
    case L'"':
        AppendLiteral(m_stream, L"&quot;");
        break;
    case L'\n':
        if (isAttribute) {
            AppendLiteral(m_stream, L"&#xA;");
        } else {
            m_stream.Append(m_endOfLine);
        }
        break;
    default: // kept: required behaviour. Carriage returns are dropped.
        break;
    }
}

void CXmlTextWriter::AppendName(const std::wstring& prefix, const std::wstring& name)
{
    if (!prefix.empty()) {
        m_stream.Append(prefix);
        m_stream.Append(L':');
    }
    m_stream.Append(name);
}

void CXmlTextWriter::AppendDeclaration(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    AppendLiteral(m_stream, L"xmlns:");
    m_stream.Append(prefix);
    AppendLiteral(m_stream, L"=\"");
    PadAndAppend(namespaceUri, true);
    m_stream.Append(L'"');
}

void CXmlTextWriter::RequireOpenStartTag() const
{
    const CXmlWriterContext* const context = GetCurrentContext();
    if (!context || !context->m_startTagOpen) {
        throw CZrException(Message::ATTRIBUTE_AFTER_CONTENT);
    }
}

bool CXmlTextWriter::GetFormat() const
{
    return m_format;
}

void CXmlTextWriter::SetFormat(bool format)
{
    m_format = format;
}

EOLType CXmlTextWriter::GetEOLType() const
{
    return m_eolType;
}

void CXmlTextWriter::SetEOLType(EOLType type)
{
    m_endOfLine = EndOfLineText(type);
    m_eolType = type;
}

std::wstring CXmlTextWriter::GetIndentChars() const
{
    return m_indentChars;
}

void CXmlTextWriter::SetIndentChars(const wchar_t* text)
{
    m_indentChars = TextOrEmpty(text);
    m_indentation.clear();
}

bool CXmlTextWriter::GetWriteDefaultElementValues() const
{
    return m_writeDefaultElementValues;
}

void CXmlTextWriter::SetWriteDefaultElementValues(bool value)
{
    m_writeDefaultElementValues = value;
}

} // namespace ZrXmlLib16
