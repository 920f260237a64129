// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetWriter.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "fastinfoset/FastInfosetMessages.h"
#include "fastinfoset/ItemWriter.h"
#include "fastinfoset/OctetWriter.h"
#include "xml/InstanceAttributeNames.h"
#include "xml/XmlMessages.h"
#include "xml/XmlNamespaces.h"

#include <algorithm>
#include <cstring>

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t GENERATED_VOCABULARY_URI[] = L"urn:zrxmllib16:vocabulary:generated";

constexpr unsigned char IDENTIFICATION_AND_VERSION[] = {0xE0, 0x00, 0x00, 0x01};
constexpr unsigned int NO_OPTIONAL_COMPONENTS = 0x00;
constexpr unsigned int INITIAL_VOCABULARY_PRESENT = 0x20;
constexpr unsigned char ONLY_EXTERNAL_VOCABULARY[] = {0x10, 0x00};

constexpr unsigned int ATTRIBUTES_PRESENT = 0x40;
constexpr unsigned int NAMESPACES_PRESENT = 0x38;
constexpr unsigned int DEFAULT_NAMESPACE = 0xCD;
constexpr unsigned int PREFIXED_NAMESPACE = 0xCF;
constexpr unsigned int TERMINATOR = 0xF0;
constexpr unsigned int TWO_TERMINATORS = 0xFF;

const std::wstring& NoPrefix()
{
    static const std::wstring none;
    return none;
}

bool IsDeclared(const CXmlWriter::NamespaceMap::value_type& mapping)
{
    return !mapping.first.empty() && !mapping.second.empty() && mapping.first != XML_NAMESPACE_URI;
}

} // namespace

/// The name of an element that is not written yet. The texts count only when the name has no index.
struct CFastInfosetWriter::PendingName {
    WriterVocabulary::NameIndexes indexes;
    std::wstring localName;
    std::wstring namespaceUri;
};

/// The octets of the document and what writes its names and values.
class CFastInfosetWriter::Output {
public:
    Output(const CFastInfosetContext& context, CBinaryStream& stream)
        : m_context(context)
        , m_octets(stream)
        , m_items(context, m_octets)
    {
    }

    const CFastInfosetContext& m_context;
    OctetWriter m_octets;
    ItemWriter m_items;
    PendingName m_pending;
};

CFastInfosetWriter::CFastInfosetWriter(const CFastInfosetContext& context, CBinaryStream& stream)
    : CXmlWriter(L"CFastInfosetWriter")
    , m_output(std::make_unique<Output>(context, stream))
    , m_startTag(StartTag::Closed)
    , m_isTerminatorOwed(false)
{
}

CFastInfosetWriter::~CFastInfosetWriter() = default;

void CFastInfosetWriter::WriteStartDocument(FInfoDecl declaration)
{
    if (declaration < FInfoDecl_None || declaration > FInfoDecl_11EncNo) {
        throw CZrException(FormatString(Message::DECLARATION_INVALID, static_cast<int>(declaration)));
    }
    OctetWriter& octets = m_output->m_octets;
    if (declaration != FInfoDecl_None) {
        const char* const text = FI_DECLARATION_LIST[declaration - 1];
        octets.Append(reinterpret_cast<const unsigned char*>(text), std::strlen(text));
    }
    octets.Append(IDENTIFICATION_AND_VERSION, sizeof IDENTIFICATION_AND_VERSION);
    if (!m_output->m_context.GetUseGeneratedVocabulary()) {
        octets.Put(NO_OPTIONAL_COMPONENTS);
        return;
    }
    octets.Put(INITIAL_VOCABULARY_PRESENT);
    octets.Append(ONLY_EXTERNAL_VOCABULARY, sizeof ONLY_EXTERNAL_VOCABULARY);
    const std::wstring uri = m_output->m_context.GetExternalVocabularyURI();
    octets.PutText(LENGTH_ON_BIT_2, 0, uri.empty() ? GENERATED_VOCABULARY_URI : uri);
}

void CFastInfosetWriter::WriteEndDocument()
{
    m_output->m_octets.Put(m_isTerminatorOwed ? TWO_TERMINATORS : TERMINATOR);
    m_isTerminatorOwed = false;
    m_output->m_octets.Flush();
}

void CFastInfosetWriter::WriteComment(const std::wstring&) { }

void CFastInfosetWriter::WritePI(const std::wstring&)
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    WriteHeader(false);
    guard.Complete();
}

void CFastInfosetWriter::WriteInlineSchema(const std::wstring&) { }

void CFastInfosetWriter::WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri)
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    CloseStartTag();
    WriteOwedTerminator();
    const CXmlWriterContext& context = OpenContext(0);
    m_startTag = StartTag::Pending;
    PendingName& pending = m_output->m_pending;
    // The namespaces of the root come before its name and take their indexes first.
    if (context.m_parent) {
        pending.indexes = m_output->m_items.FindElementName(PrefixOf(namespaceUri), namespaceUri, name);
    }
    if (!context.m_parent || pending.indexes.name == 0) {
        pending.localName = name;
        pending.namespaceUri = namespaceUri;
    }
    guard.Complete();
}

bool CFastInfosetWriter::WriteTextElement(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text, ItemType type, bool)
{
    const CXmlWriterContext* const parent = GetCurrentContext();
    const std::wstring* prefix = parent ? &NoPrefix() : nullptr;
    if (parent && IsPrefixed(namespaceUri)) {
        prefix = parent->FindPrefix(namespaceUri);
    }
    if (!prefix) {
        return false; // a root, or an element that invents a prefix
    }
    OctetWriter::FailureGuard guard(m_output->m_octets);
    CloseStartTag();
    WriteOwedTerminator();
    ItemWriter& items = m_output->m_items;
    const WriterVocabulary::NameIndexes indexes = items.FindElementName(*prefix, namespaceUri, name);
    if (indexes.name != 0) {
        items.WriteElementIndex(0, indexes.name);
    } else {
        items.WriteElementName(0, indexes, *prefix, namespaceUri, name);
    }
    if (!text.empty()) {
        items.WriteCharacterChunk(text, type);
    }
    m_isTerminatorOwed = true;
    guard.Complete();
    return true;
}

void CFastInfosetWriter::WriteString(const std::wstring& text, ItemType type, bool)
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    CloseStartTag();
    if (!text.empty()) {
        if (!GetCurrentContext()) {
            throw CZrInvalidStateException(Message::TEXT_OUTSIDE_ELEMENT);
        }
        WriteOwedTerminator();
        m_output->m_items.WriteCharacterChunk(text, type);
    }
    guard.Complete();
}

void CFastInfosetWriter::WriteEndElement()
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    if (!GetCurrentContext()) {
        throw CZrInvalidStateException(Message::NO_ELEMENT_TO_END);
    }
    CloseStartTag();
    if (m_isTerminatorOwed) {
        m_output->m_octets.Put(TWO_TERMINATORS);
    }
    m_isTerminatorOwed = !m_isTerminatorOwed;
    CloseContext();
    guard.Complete();
}

void CFastInfosetWriter::WriteAttributeString(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type)
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    RequireAttributes();
    WriteAttribute(name, namespaceUri, value, type);
    guard.Complete();
}

void CFastInfosetWriter::WriteAttributeType(
    const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type)
{
    OctetWriter::FailureGuard guard(m_output->m_octets);
    RequireAttributes();
    const InstanceAttributeNames& names = GetInstanceAttributeNames();
    m_qualifiedValue.clear();
    if (IsPrefixed(typeNamespace)) {
        bool isNew = false;
        m_qualifiedValue.assign(ObtainPrefix(typeNamespace, isNew)).append(1, L':');
    }
    m_qualifiedValue.append(typeName);
    WriteAttribute(names.type, names.namespaceUri, m_qualifiedValue, type);
    guard.Complete();
}

void CFastInfosetWriter::WriteAttributeNil()
{
    const InstanceAttributeNames& names = GetInstanceAttributeNames();
    WriteAttributeString(names.nil, names.namespaceUri, names.trueValue, ItemType_boolean);
}

void CFastInfosetWriter::WriteHeader(bool hasAttributes)
{
    if (m_startTag != StartTag::Pending) {
        return;
    }
    m_startTag = hasAttributes ? StartTag::InAttributes : StartTag::Closed;
    PendingName& pending = m_output->m_pending;
    ItemWriter& items = m_output->m_items;
    unsigned int leadingBits = hasAttributes ? ATTRIBUTES_PRESENT : 0;
    if (!GetCurrentContext()->m_parent) {
        if (HasNamespaces()) {
            // kept: required behaviour. The octet in front of the namespaces tells of the attributes, not the name's.
            WriteNamespaces(leadingBits);
            leadingBits = 0;
        }
        const std::wstring& prefix = PrefixOf(pending.namespaceUri);
        pending.indexes = items.FindElementName(prefix, pending.namespaceUri, pending.localName);
    }
    if (pending.indexes.name != 0) {
        items.WriteElementIndex(leadingBits, pending.indexes.name);
    } else {
        const std::wstring& prefix = PrefixOf(pending.namespaceUri);
        items.WriteElementName(leadingBits, pending.indexes, prefix, pending.namespaceUri, pending.localName);
    }
}

/// The prefix of the current element when it is in that namespace.
const std::wstring& CFastInfosetWriter::PrefixOf(const std::wstring& namespaceUri)
{
    bool isNew = false;
    return IsPrefixed(namespaceUri) ? ObtainPrefix(namespaceUri, isNew) : NoPrefix();
}

bool CFastInfosetWriter::HasNamespaces() const
{
    const NamespaceMap& mappings = GetRootNamespaceMap();
    return !GetRootDefaultNamespace().empty() || std::any_of(mappings.begin(), mappings.end(), IsDeclared);
}

void CFastInfosetWriter::WriteNamespaces(unsigned int leadingBits)
{
    OctetWriter& octets = m_output->m_octets;
    ItemWriter& items = m_output->m_items;
    octets.Put(leadingBits | NAMESPACES_PRESENT);
    if (!GetRootDefaultNamespace().empty()) {
        octets.Put(DEFAULT_NAMESPACE);
        items.WriteIdentifyingString(VocabularyTable::NamespaceNames, GetRootDefaultNamespace());
    }
    for (const NamespaceMap::value_type& mapping : GetRootNamespaceMap()) {
        if (IsDeclared(mapping)) {
            octets.Put(PREFIXED_NAMESPACE);
            items.WriteIdentifyingString(VocabularyTable::PrefixNames, mapping.second);
            items.WriteIdentifyingString(VocabularyTable::NamespaceNames, mapping.first);
        }
    }
    octets.Put(TERMINATOR);
}

void CFastInfosetWriter::CloseStartTag()
{
    WriteHeader(false);
    if (m_startTag == StartTag::InAttributes) {
        m_output->m_octets.Put(TERMINATOR);
        m_startTag = StartTag::Closed;
    }
}

void CFastInfosetWriter::WriteOwedTerminator()
{
    if (m_isTerminatorOwed) {
        m_output->m_octets.Put(TERMINATOR);
        m_isTerminatorOwed = false;
    }
}

void CFastInfosetWriter::RequireAttributes()
{
    WriteHeader(true);
    if (m_startTag != StartTag::InAttributes) {
        throw CZrException(Message::ATTRIBUTE_AFTER_CONTENT);
    }
}

void CFastInfosetWriter::WriteAttribute(
    const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type)
{
    bool isNew = false;
    const std::wstring& prefix = namespaceUri.empty() ? NoPrefix() : ObtainPrefix(namespaceUri, isNew);
    m_output->m_items.WriteAttributeName(prefix, namespaceUri, name);
    m_output->m_items.WriteAttributeValue(value, type);
}

} // namespace ZrXmlLib16
