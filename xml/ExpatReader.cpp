// SPDX-License-Identifier: MIT
// The only source that includes expat: without XML_UNICODE its header declares the functions of the 8-bit build.
#define XML_UNICODE
#include "xml/ExpatReader.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/ErrorPosition.h"
#include "core/FormatSettings.h"
#include "xml/ConvertedTextScope.h"
#include "xml/XmlMessages.h"

#include <expat.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <type_traits>

namespace ZrXmlLib16 {

namespace {

static_assert(sizeof(XML_Char) == 2 && std::is_same_v<XML_Char, Utf16Unit>);

constexpr XML_Char NAMESPACE_SEPARATOR = L'|';
// The parser copies what it is given, so it is given a part at a time.
constexpr unsigned long SMALLEST_SLICE = 1ul << 22;
constexpr unsigned long LARGEST_SLICE = 1ul << 30;
constexpr std::size_t LARGEST_CONVERTED_SLICE = std::size_t(1) << 27; // in units
constexpr Utf16Unit BYTE_ORDER_MARK = 0xFEFF;
constexpr unsigned long LARGEST_EXPANSION = 1ul << 60;
// What the parser needs whatever the document, several times.
constexpr std::size_t MEMORY_BEYOND_EXPANSION = std::size_t(1) << 20;

// The names and values that the parser hands out lie in its memory.
static_assert(ParserMemory::SLACK >= NameTable::OVERREAD && ParserMemory::SLACK >= TreeBuilder::READ_BEHIND);

std::wstring WidenOptional(const Utf16Unit* units)
{
    std::wstring text;
    if (units) {
        AssignUtf16(text, units, Utf16Length(units));
    }
    return text;
}

// The descriptions are narrow ASCII text in this build of expat too.
std::wstring DescribeError(XML_Error error)
{
    const XML_LChar* const text = XML_ErrorString(error);
    return text ? std::wstring(text, text + std::strlen(text)) : std::wstring();
}

Utf16Unit ToUtf16Unit(wchar_t c)
{
    return static_cast<Utf16Unit>(c);
}

// In octets of the input; beyond it when there is none.
std::size_t CurrentOffset(XML_Parser parser)
{
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser));
}

} // namespace

void CExpatReader::ParserDeleter::operator()(XML_ParserStruct* parser) const noexcept
{
    XML_ParserFree(parser);
}

CExpatReader::CExpatReader(CXmlDocument& document)
    : m_document(document)
    , m_maximumExpansion(CFormatSettings::MaximumExpansion(document.GetSerializationContext(), document.GetInputSize()))
    , m_tree(document)
    , m_memory(std::min(m_maximumExpansion, LARGEST_EXPANSION) * sizeof(XML_Char) + MEMORY_BEYOND_EXPANSION)
{
}

CExpatReader::~CExpatReader() = default;

void CExpatReader::CreateParser()
{
    // kept: required behaviour. Without namespace processing names keep prefix and colon, and declarations are
    // attributes.
    const bool ignoresNamespaces = m_document.GetSchemaType() == SchemaType_DTD;
    const ParserMemory::Scope scope(m_memory);
    const XML_Memory_Handling_Suite functions = {ParserMemory::Allocate, ParserMemory::Reallocate, ParserMemory::Free};
    m_parser.reset(XML_ParserCreate_MM(nullptr, &functions, ignoresNamespaces ? nullptr : &NAMESPACE_SEPARATOR));
    if (!m_parser) {
        throw std::bad_alloc();
    }
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(m_parser.get(), FnStartElement, FnEndElement);
    XML_SetNamespaceDeclHandler(m_parser.get(), FnStartNamespace, FnEndNamespace);
    XML_SetCharacterDataHandler(m_parser.get(), FnText);
    if (!m_document.GetSerializationContext().GetStripCDATA()) {
        XML_SetCdataSectionHandler(m_parser.get(), FnStartCDATA, FnEndCDATA);
    }
}

void CExpatReader::Parse(bool isFinal)
{
    const char* input = reinterpret_cast<const char*>(m_document.GetInputBuffer());
    unsigned long rest = m_document.GetInputSize();
    unsigned long largest = SMALLEST_SLICE;
    XML_Index reached = 0;
    bool isLast = false;
    if (isFinal && !ConvertedTextScope::IsActive()) {
        m_lines = LineTracker(m_document.GetInputBuffer(), rest);
    }
    const ParserMemory::Scope scope(m_memory);
    while (!isLast) {
        const unsigned long slice = std::min(rest, largest);
        rest -= slice;
        isLast = rest == 0;
        m_lines.Extend(slice);
        if (XML_Parse(m_parser.get(), input, static_cast<int>(slice), isLast && isFinal) != XML_STATUS_OK) {
            ThrowFailure();
        }
        input += slice;
        // A token that fills slices is scanned from its beginning with every one.
        const XML_Index now = XML_GetCurrentByteIndex(m_parser.get());
        largest = now > reached ? SMALLEST_SLICE : std::min(2 * largest, LARGEST_SLICE);
        reached = now;
    }
    if (isFinal) {
        Cleanup();
    }
}

// The units are made right where the parser reads them.
void CExpatReader::ParseConverted(std::wstring_view text)
{
    const ParserMemory::Scope scope(m_memory);
    std::size_t markLength = 1;
    bool isLast = false;
    while (!isLast) {
        const std::wstring_view slice = text.substr(0, LARGEST_CONVERTED_SLICE);
        text.remove_prefix(slice.size());
        isLast = text.empty();
        const int size = static_cast<int>((markLength + slice.size()) * sizeof(Utf16Unit));
        auto* const units = static_cast<Utf16Unit*>(XML_GetBuffer(m_parser.get(), size));
        if (!units) {
            ThrowFailure();
        }
        std::fill_n(units, markLength, BYTE_ORDER_MARK);
        std::transform(slice.begin(), slice.end(), units + markLength, ToUtf16Unit);
        markLength = 0;
        if (XML_ParseBuffer(m_parser.get(), size, isLast) != XML_STATUS_OK) {
            ThrowFailure();
        }
    }
    Cleanup();
}

void CExpatReader::Cleanup()
{
    m_parser.reset();
}

void CExpatReader::ThrowFailure()
{
    const XML_Error error = XML_GetErrorCode(m_parser.get());
    const std::wstring description = DescribeError(error);
    const int line = static_cast<int>(XML_GetCurrentLineNumber(m_parser.get()));
    const TextPosition position = m_lines.Locate(CurrentOffset(m_parser.get()));
    if (m_handlerFailure) {
        Cleanup();
        std::rethrow_exception(m_handlerFailure);
    }
    Cleanup();
    if (error == XML_ERROR_NO_MEMORY) {
        if (m_memory.IsSystemExhausted()) {
            throw std::bad_alloc();
        }
        throw CZrException(FormatString(Message::START_TAG_EXPANDS_TOO_FAR, m_maximumExpansion));
    }
    CZrException failure(FormatString(Message::PARSE_FAILED, description.c_str(), line));
    ErrorPosition::Attach(failure, position.line, position.column);
    throw failure;
}

// The parser may still deliver events of the current tag after it was stopped.
template <class Action> void CExpatReader::Guard(void* reader, Action action) noexcept
{
    CExpatReader& self = *static_cast<CExpatReader*>(reader);
    if (self.m_handlerFailure) {
        return;
    }
    try {
        action(self);
    } catch (...) {
        self.m_handlerFailure = std::current_exception();
        XML_StopParser(self.m_parser.get(), XML_FALSE);
    }
}

void CExpatReader::FnStartElement(void* reader, const Utf16Unit* name, const Utf16Unit** attributes) noexcept
{
    Guard(reader, [=](CExpatReader& self) { self.StartElement(name, attributes); });
}

void CExpatReader::StartElement(const Utf16Unit* name, const Utf16Unit** attributes)
{
    NameTable& names = m_tree.GetStorage().GetNames();
    const XmlName& elementName = names.Intern(name);
    CXmlElement& element = m_tree.HasOpenElement() ? m_tree.OpenChild(elementName) : m_tree.OpenRoot(elementName);
    TreeBuilder::SetPosition(element, m_lines.Locate(CurrentOffset(m_parser.get())));
    for (; *attributes; attributes += 2) {
        const XmlName& attributeName = names.Intern(attributes[0]);
        m_tree.CountName(attributeName);
        m_tree.AddAttribute(element, attributeName, attributes[1]);
    }
}

void CExpatReader::FnEndElement(void* reader, const Utf16Unit*) noexcept
{
    Guard(reader, [](CExpatReader& self) { self.m_tree.EndElement(); });
}

void CExpatReader::FnText(void* reader, const Utf16Unit* text, int length) noexcept
{
    Guard(reader, [=](CExpatReader& self) {
        self.m_tree.AppendText(self.m_tree.RequireOpenElement(), text, static_cast<std::size_t>(length));
    });
}

void CExpatReader::FnStartNamespace(void* reader, const Utf16Unit* prefix, const Utf16Unit* uri) noexcept
{
    Guard(reader, [=](CExpatReader& self) {
        self.m_document.AddNamespaceDeclaration(WidenOptional(prefix), WidenOptional(uri));
    });
}

void CExpatReader::FnEndNamespace(void*, const Utf16Unit*) noexcept
{
    // The document keeps every prefix: types are resolved after the parse.
}

void CExpatReader::AddDelimiter(const wchar_t* text, std::size_t length)
{
    m_tree.RequireOpenElement().AppendText(text, length);
}

// kept: required behaviour. A section keeps its delimiters in the text unless they are stripped.
void CExpatReader::FnStartCDATA(void* reader) noexcept
{
    Guard(reader, [](CExpatReader& self) { self.AddDelimiter(L"<![CDATA[", 9); });
}

void CExpatReader::FnEndCDATA(void* reader) noexcept
{
    Guard(reader, [](CExpatReader& self) { self.AddDelimiter(L"]]>", 3); });
}

} // namespace ZrXmlLib16
