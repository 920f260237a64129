// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlTextWriter.h"

#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/TextArgument.h"
#include "streams/TextRun.h"
#include "xml/InstanceAttributeNames.h"
#include "xml/TextWriting.h"
#include "xml/XmlMessages.h"
#include "xml/XmlNamespaces.h"

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t CDATA_START[] = L"<![CDATA[";
constexpr std::size_t CDATA_START_LENGTH = 9;

/// The characters that do not stand for themselves in text, and in the value of an attribute.
class MarkupEscapes {
public:
    explicit MarkupEscapes(bool isAttribute)
        : m_isAttribute(isAttribute)
    {
    }

    // kept: required behaviour. A tab is copied in an attribute as well, where every parser reads a blank for it.
    bool IsSpecial(wchar_t c) const
    {
        return c == L'<' || c == L'>' || c == L'&' || c == L'\n' || c == L'\r' || (c == L'"' && m_isAttribute);
    }

    static __m128i Candidates(__m128i four)
    {
        const __m128i brackets = _mm_cmpeq_epi32(_mm_or_si128(four, _mm_set1_epi32(L'<' ^ L'>')), _mm_set1_epi32(L'>'));
        const __m128i others = _mm_cmpeq_epi32(_mm_or_si128(four, _mm_set1_epi32(L'"' ^ L'&')), _mm_set1_epi32(L'&'));
        const __m128i controls = _mm_cmpeq_epi32(_mm_and_si128(four, _mm_set1_epi32(~7)), _mm_set1_epi32(8));
        return _mm_or_si128(_mm_or_si128(brackets, others), controls);
    }

private:
    const bool m_isAttribute;
};

bool IsCDATA(const std::wstring& value)
{
    return value[0] == CDATA_START[0] && value.compare(0, CDATA_START_LENGTH, CDATA_START) == 0;
}

/// @param prefix null for none.
void PutName(TextRun& run, const std::wstring* prefix, const std::wstring& name)
{
    if (prefix) {
        run.Put(*prefix);
        run.Put(L':');
    }
    run.Put(name);
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
    , m_openNamesLength(0)
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
    AppendEscaped(text, false);
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
    CXmlWriterContext& context = OpenContext(0);
    if (m_format) {
        AppendIndentation(m_stream, m_indentChars, m_indentation, context.m_depth);
    }
    // kept: required behaviour. An element without namespace never undeclares the default namespace.
    bool isNew = false;
    const std::wstring* const prefix = IsPrefixed(namespaceUri) ? &ObtainPrefix(namespaceUri, isNew) : nullptr;
    context.m_nameStart = m_openNamesLength;
    KeepName(prefix, name);
    {
        const std::size_t length = m_openNamesLength - context.m_nameStart;
        TextRun run(m_stream, length + 1);
        run.Put(L'<');
        run.Put(m_openNames.data() + context.m_nameStart, length);
    }
    if (isNew) {
        m_stream.Append(L' ');
        AppendDeclaration(*prefix, namespaceUri);
    }
    if (isRoot) {
        AppendRootDeclarations();
    }
    FlushWhenFull(m_stream);
}

/// The end tag repeats the name as the start tag has it.
void CXmlTextWriter::KeepName(const std::wstring* prefix, const std::wstring& name)
{
    const std::size_t length = (prefix ? prefix->size() + 1 : 0) + name.size();
    if (m_openNames.size() - m_openNamesLength < length) {
        m_openNames.resize(2 * (m_openNamesLength + length));
    }
    wchar_t* out = &m_openNames[m_openNamesLength];
    if (prefix) {
        out = TextRun::Copy(prefix->data(), prefix->size(), out);
        *out++ = L':';
    }
    TextRun::Copy(name.data(), name.size(), out);
    m_openNamesLength += length;
}

void CXmlTextWriter::AppendRootDeclarations()
{
    if (!GetRootDefaultNamespace().empty()) {
        AppendLiteral(m_stream, L" xmlns=\"");
        AppendEscaped(GetRootDefaultNamespace(), true);
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
    const bool endsTag = context && context->m_startTagOpen;
    if (endsTag) {
        context->m_startTagOpen = false;
    }
    // kept: required behaviour. Whatever begins like a CDATA section is taken for one.
    const bool isRaw = IsCDATA(value);
    const wchar_t* position = value.data();
    const wchar_t* const end = position + value.size();
    const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
    {
        TextRun run(m_stream, 1 + static_cast<std::size_t>(runEnd - position));
        if (endsTag) {
            run.Put(L'>');
        }
        if (!isRaw) {
            position = run.PutPlain(position, runEnd, MarkupEscapes(false));
        }
    }
    if (isRaw) {
        m_stream.Append(value);
    } else if (position != end) {
        AppendEscaped(position, end, false);
    }
    FlushWhenFull(m_stream);
}

void CXmlTextWriter::WriteEndElement()
{
    const CXmlWriterContext* const context = GetCurrentContext();
    if (!context) {
        throw CZrInvalidStateException(Message::NO_ELEMENT_TO_END);
    }
    if (!context->m_startTagOpen && m_format && context->m_childCount > 0) {
        AppendIndentation(m_stream, m_indentChars, m_indentation, context->m_depth);
    }
    {
        const std::size_t length = m_openNamesLength - context->m_nameStart;
        TextRun run(m_stream, length + 3 + m_endOfLine.size());
        if (context->m_startTagOpen) {
            run.PutLiteral(L"/>");
        } else {
            run.PutLiteral(L"</");
            run.Put(m_openNames.data() + context->m_nameStart, length);
            run.Put(L'>');
        }
        if (m_format) {
            run.Put(m_endOfLine);
        }
    }
    FlushWhenFull(m_stream);
    m_openNamesLength = context->m_nameStart;
    CloseContext();
}

bool CXmlTextWriter::WriteTextElement(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text, ItemType, bool isDefault)
{
    const CXmlWriterContext* const parent = GetCurrentContext();
    if (!parent || text.empty() || IsCDATA(text) || (isDefault && !m_writeDefaultElementValues)) {
        return false;
    }
    const bool isPrefixed = IsPrefixed(namespaceUri);
    const std::wstring* const prefix = isPrefixed ? parent->FindPrefix(namespaceUri) : nullptr;
    if (isPrefixed && !prefix) {
        return false; // the element invents one
    }
    CloseParentElm();
    if (m_format) {
        AppendIndentation(m_stream, m_indentChars, m_indentation, parent->m_depth + 1);
    }
    const std::size_t nameLength = (prefix ? prefix->size() + 1 : 0) + name.size();
    const wchar_t* position = text.data();
    const wchar_t* const end = position + text.size();
    const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
    {
        TextRun run(m_stream, nameLength + 2 + static_cast<std::size_t>(runEnd - position));
        run.Put(L'<');
        PutName(run, prefix, name);
        run.Put(L'>');
        position = run.PutPlain(position, runEnd, MarkupEscapes(false));
    }
    if (position != end) {
        AppendEscaped(position, end, false);
    }
    {
        TextRun run(m_stream, nameLength + 3 + m_endOfLine.size());
        run.PutLiteral(L"</");
        PutName(run, prefix, name);
        run.Put(L'>');
        if (m_format) {
            run.Put(m_endOfLine);
        }
    }
    FlushWhenFull(m_stream);
    return true;
}

void CXmlTextWriter::WriteAttributeString(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType)
{
    RequireOpenStartTag();
    // kept: required behaviour. An attribute in the default namespace gets a prefix too.
    bool isNew = false;
    const std::wstring* const prefix = namespaceUri.empty() ? nullptr : &ObtainPrefix(namespaceUri, isNew);
    if (isNew) {
        m_stream.Append(L' ');
        AppendDeclaration(*prefix, namespaceUri);
    }
    const wchar_t* position = value.data();
    const wchar_t* const end = position + value.size();
    const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
    {
        const std::size_t prefixLength = prefix ? prefix->size() + 1 : 0;
        TextRun run(m_stream, 4 + prefixLength + name.size() + static_cast<std::size_t>(runEnd - position));
        run.Put(L' ');
        PutName(run, prefix, name);
        run.PutLiteral(L"=\"");
        position = run.PutPlain(position, runEnd, MarkupEscapes(true));
        if (position == end) {
            run.Put(L'"');
        }
    }
    if (position != end) {
        AppendEscaped(position, end, true);
        m_stream.Append(L'"');
    }
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

void CXmlTextWriter::AppendEscaped(const std::wstring& text, bool isAttribute)
{
    AppendEscaped(text.data(), text.data() + text.size(), isAttribute);
}

void CXmlTextWriter::AppendEscaped(const wchar_t* position, const wchar_t* end, bool isAttribute)
{
    const MarkupEscapes escapes(isAttribute);
    TextRun::Prefetch prefetch(position, end);
    while (position != end) {
        const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
        prefetch.At(position);
        {
            TextRun run(m_stream, static_cast<std::size_t>(runEnd - position));
            position = run.PutPlain(position, runEnd, escapes);
        }
        if (position != runEnd) {
            AppendEscape(*position, isAttribute);
            ++position;
        }
    }
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

void CXmlTextWriter::AppendDeclaration(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    AppendLiteral(m_stream, L"xmlns:");
    m_stream.Append(prefix);
    AppendLiteral(m_stream, L"=\"");
    AppendEscaped(namespaceUri, true);
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
