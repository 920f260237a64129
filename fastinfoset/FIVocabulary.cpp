// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FIVocabulary.h"

#include "xml/XmlNamespaces.h"

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long MAXIMUM_TABLE_SIZE = 1048576;
constexpr wchar_t KEY_SEPARATOR = 1;
// kept: required behaviour. There is no upper-case E.
constexpr wchar_t NUMERIC_ALPHABET[] = L"0123456789-+.e ";
constexpr wchar_t DATE_AND_TIME_ALPHABET[] = L"0123456789-:TZ ";

} // namespace

CFIVocabulary::CFIStringTable::~CFIStringTable() = default;

std::vector<std::wstring>::const_iterator CFIVocabulary::CFIStringTable::begin() const
{
    return m_strings.begin();
}

std::vector<std::wstring>::const_iterator CFIVocabulary::CFIStringTable::end() const
{
    return m_strings.end();
}

unsigned long CFIVocabulary::CFIStringTable::size() const
{
    return m_strings.size();
}

const std::wstring& CFIVocabulary::CFIStringTable::at(unsigned long index) const
{
    return m_strings[index - 1];
}

CFIVocabulary::CFIQNameTable::~CFIQNameTable() = default;

std::vector<CFIVocabulary::CQNameParts>::const_iterator CFIVocabulary::CFIQNameTable::begin() const
{
    return m_names.begin();
}

std::vector<CFIVocabulary::CQNameParts>::const_iterator CFIVocabulary::CFIQNameTable::end() const
{
    return m_names.end();
}

unsigned long CFIVocabulary::CFIQNameTable::size() const
{
    return m_names.size();
}

const CFIVocabulary::CQNameParts& CFIVocabulary::CFIQNameTable::at(unsigned long index) const
{
    return m_names[index - 1];
}

CFIVocabulary::CFIVocabulary()
    : m_restrictedAlphabets{NUMERIC_ALPHABET, DATE_AND_TIME_ALPHABET}
{
    AddPrefixName(L"xml");
    AddNamespaceName(XML_NAMESPACE_URI);
}

CFIVocabulary::CFIVocabulary(const CFIVocabulary& other) = default;

CFIVocabulary& CFIVocabulary::operator=(const CFIVocabulary& other) = default;

CFIVocabulary::~CFIVocabulary() = default;

void CFIVocabulary::AddPrefixName(std::wstring value)
{
    AddValueToMap(value, m_prefixMap);
    AddValueToVector(value, m_prefixes);
}

void CFIVocabulary::AddNamespaceName(std::wstring value)
{
    AddValueToMap(value, m_namespaceNameMap);
    AddValueToVector(value, m_namespaceNames);
}

void CFIVocabulary::AddLocalName(std::wstring value)
{
    AddValueToMap(value, m_localNameMap);
    AddValueToVector(value, m_localNames);
}

void CFIVocabulary::AddAttributeValue(std::wstring value)
{
    AddValueToMap(value, m_attributeValueMap);
    AddValueToVector(value, m_attributeValues);
}

void CFIVocabulary::AddElementValue(std::wstring value)
{
    AddValueToMap(value, m_characterChunkMap);
    AddValueToVector(value, m_characterChunks);
}

void CFIVocabulary::AddAttribute(std::wstring prefix, std::wstring namespaceUri, std::wstring localName)
{
    AddQName(prefix, namespaceUri, localName, m_attributeNameMap, m_attributeNames);
}

void CFIVocabulary::AddElement(std::wstring prefix, std::wstring namespaceUri, std::wstring localName)
{
    AddQName(prefix, namespaceUri, localName, m_elementNameMap, m_elementNames);
}

bool CFIVocabulary::FindPrefixNameIndex(std::wstring value, unsigned long& index) const
{
    return FindIndex(m_prefixMap, value, index);
}

bool CFIVocabulary::FindNamespaceNameIndex(std::wstring value, unsigned long& index) const
{
    return FindIndex(m_namespaceNameMap, value, index);
}

bool CFIVocabulary::FindLocalNameIndex(std::wstring value, unsigned long& index) const
{
    return FindIndex(m_localNameMap, value, index);
}

bool CFIVocabulary::FindIndex(const CIndexMap& map, const std::wstring& key, unsigned long& index) const
{
    const auto found = map.find(key);
    if (found == map.end()) {
        return false;
    }
    index = found->second;
    return true;
}

void CFIVocabulary::AddValueToMap(const std::wstring& key, CIndexMap& map)
{
    if (map.size() < MAXIMUM_TABLE_SIZE) {
        map.emplace(key, map.size() + 1);
    }
}

// kept: required behaviour. A value that is there already is appended once more, while the map keeps its first index.
void CFIVocabulary::AddValueToVector(const std::wstring& value, CFIStringTable& table)
{
    if (table.m_strings.size() < MAXIMUM_TABLE_SIZE) {
        table.m_strings.push_back(value);
    }
}

void CFIVocabulary::AddQNameToVector(
    unsigned long prefix, unsigned long namespaceIndex, unsigned long local, CFIQNameTable& table)
{
    if (table.m_names.size() < MAXIMUM_TABLE_SIZE) {
        table.m_names.push_back({prefix, namespaceIndex, local});
    }
}

void CFIVocabulary::AddQName(const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& local,
    CIndexMap& map, CFIQNameTable& table)
{
    const std::wstring key = local + KEY_SEPARATOR + namespaceUri + KEY_SEPARATOR + prefix;
    unsigned long index = 0;
    if (FindIndex(map, key, index)) {
        return;
    }
    unsigned long prefixIndex = 0;
    if (!prefix.empty() && !FindPrefixNameIndex(prefix, prefixIndex)) {
        AddPrefixName(prefix);
        prefixIndex = m_prefixes.size();
    }
    unsigned long namespaceIndex = 0;
    if (!namespaceUri.empty() && !FindNamespaceNameIndex(namespaceUri, namespaceIndex)) {
        AddNamespaceName(namespaceUri);
        namespaceIndex = m_namespaceNames.size();
    }
    unsigned long localIndex = 0;
    if (!FindLocalNameIndex(local, localIndex)) {
        AddLocalName(local);
        localIndex = m_localNames.size();
    }
    AddValueToMap(key, map);
    AddQNameToVector(prefixIndex, namespaceIndex, localIndex, table);
}

CFIVocabulary::CFIQNameTable& CFIVocabulary::GetAttributeNamesTable()
{
    return m_attributeNames;
}

CFIVocabulary::CFIStringTable& CFIVocabulary::GetAttributeValuesTable()
{
    return m_attributeValues;
}

CFIVocabulary::CFIQNameTable& CFIVocabulary::GetElementNamesTable()
{
    return m_elementNames;
}

CFIVocabulary::CFIStringTable& CFIVocabulary::GetCharacterChunksTable()
{
    return m_characterChunks;
}

CFIVocabulary::CFIStringTable& CFIVocabulary::GetLocalNamesTable()
{
    return m_localNames;
}

CFIVocabulary::CFIStringTable& CFIVocabulary::GetNamespaceNamesTable()
{
    return m_namespaceNames;
}

CFIVocabulary::CFIStringTable& CFIVocabulary::GetPrefixNamesTable()
{
    return m_prefixes;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetAttributeNamesMap()
{
    return m_attributeNameMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetAttributeValuesMap()
{
    return m_attributeValueMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetElementNamesMap()
{
    return m_elementNameMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetCharacterChunksMap()
{
    return m_characterChunkMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetLocalNamesMap()
{
    return m_localNameMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetNamespaceNamesMap()
{
    return m_namespaceNameMap;
}

CFIVocabulary::CIndexMap& CFIVocabulary::GetPrefixNamesMap()
{
    return m_prefixMap;
}

const std::wstring& CFIVocabulary::GetRestrictedAlphabet(unsigned long number) const
{
    static const std::wstring none;
    return number >= 1 && number <= m_restrictedAlphabets.size() ? m_restrictedAlphabets[number - 1] : none;
}

} // namespace ZrXmlLib16
