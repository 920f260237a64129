// SPDX-License-Identifier: MIT
#include "fastinfoset/ReaderVocabulary.h"

#include "ZrXmlLib16/FastInfosetContext.h"
#include "xml/NameTable.h"
#include "xml/XmlNamespaces.h"

namespace ZrXmlLib16 {

namespace {

/// Tables that get entries usually get some.
constexpr std::size_t FIRST_CAPACITY = 16;

template <class T> void ReserveFirst(std::vector<T>& entries)
{
    if (entries.empty()) {
        entries.reserve(FIRST_CAPACITY);
    }
}

} // namespace

TextTable::TextTable(const CFIVocabulary::CFIStringTable* base)
    : m_base(base && base->size() > 0 ? &base->at(1) : nullptr)
    , m_baseSize(base ? base->size() : 0)
{
}

const std::wstring& TextTable::Add(std::wstring text)
{
    if (m_baseSize + m_added.size() < MAXIMUM_INDEX) {
        ReserveFirst(m_added);
        m_added.push_back(std::move(text));
        return m_added.back();
    }
    m_unlisted = std::move(text);
    return m_unlisted;
}

ValueTable::ValueTable(const CFIVocabulary::CFIStringTable* base)
    : m_base(base && base->size() > 0 ? &base->at(1) : nullptr)
    , m_baseSize(base ? base->size() : 0)
{
    m_added.reserve(FIRST_CAPACITY);
}

const std::wstring* ValueTable::FindText(std::uint64_t index) const noexcept
{
    const std::uint64_t offset = index - 1; // wraps for 0
    if (offset < m_baseSize) {
        return m_base + offset;
    }
    return offset - m_baseSize < m_added.size() ? &m_wide[m_added[offset - m_baseSize].length] : nullptr;
}

void ValueTable::Add(std::wstring text)
{
    if (!IsFull()) {
        m_wide.push_back(std::move(text));
        m_added.push_back({nullptr, m_wide.size() - 1});
    }
}

ReaderVocabulary::QualifiedNames::QualifiedNames(const CFIVocabulary::CFIQNameTable* baseTable)
    : base(baseTable)
    , names(baseTable ? baseTable->size() : 0)
{
}

ReaderVocabulary::ReaderVocabulary(const CFastInfosetContext& context, NameTable& names)
    : ReaderVocabulary(*context.GetVocabulary(), context.GetUseGeneratedVocabulary(), names)
{
}

ReaderVocabulary::ReaderVocabulary(CFIVocabulary& generated, bool isUsed, NameTable& names)
    : m_generated(generated)
    , m_names(names)
    , m_prefixes(isUsed ? &generated.GetPrefixNamesTable() : nullptr)
    , m_namespaceNames(isUsed ? &generated.GetNamespaceNamesTable() : nullptr)
    , m_localNames(isUsed ? &generated.GetLocalNamesTable() : nullptr)
    , m_attributeValues(isUsed ? &generated.GetAttributeValuesTable() : nullptr)
    , m_characterChunks(isUsed ? &generated.GetCharacterChunksTable() : nullptr)
    , m_elementNames(isUsed ? &generated.GetElementNamesTable() : nullptr)
    , m_attributeNames(isUsed ? &generated.GetAttributeNamesTable() : nullptr)
{
    if (!isUsed) {
        m_prefixes.Add(L"xml");
        m_namespaceNames.Add(XML_NAMESPACE_URI);
    }
}

const XmlName& ReaderVocabulary::Add(
    QualifiedNames& table, const std::wstring& namespaceUri, const LocalName& localName)
{
    const XmlName& name = Intern(namespaceUri, localName);
    if (table.names.size() < MAXIMUM_INDEX) {
        ReserveFirst(table.names);
        table.names.push_back(&name);
    }
    return name;
}

LocalName ReaderVocabulary::FindLocalName(std::uint64_t index) const noexcept
{
    const ValueTable::Units* const found = m_localNames.FindUnits(index);
    return found ? LocalName{found->units, found->length, nullptr}
                 : LocalName{nullptr, 0, m_localNames.FindText(index)};
}

const XmlName& ReaderVocabulary::Intern(const std::wstring& namespaceUri, const LocalName& localName)
{
    return localName.text ? m_names.Intern(namespaceUri, *localName.text)
                          : m_names.Intern(namespaceUri, localName.units, localName.length);
}

const XmlName* ReaderVocabulary::Resolve(QualifiedNames& table, std::uint64_t index)
{
    const CFIVocabulary::CQNameParts& parts = table.base->at(index);
    static const std::wstring noNamespace;
    const std::wstring* const namespaceUri =
        parts.m_namespace == 0 ? &noNamespace : m_namespaceNames.Find(parts.m_namespace);
    const LocalName localName = FindLocalName(parts.m_local);
    if (!namespaceUri || !localName) {
        return nullptr;
    }
    table.names[index - 1] = &Intern(*namespaceUri, localName);
    return table.names[index - 1];
}

} // namespace ZrXmlLib16
