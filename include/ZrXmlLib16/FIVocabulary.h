// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FIVOCABULARY_H
#define ZRXMLLIB16_FIVOCABULARY_H

#include "ZrXmlLib16/Export.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace ZrXmlLib16 {

/// The vocabulary tables of a Fast Infoset document (ITU-T X.891, 8): names and short values and the indexes they are
/// replaced by. A map gives the index of a text, its table the text of an index; indexes start at 1, and in the parts
/// of a qualified name 0 means absent.
///
/// The adders append to a table even when the text is in it already, while the map keeps its first index: add a text
/// only when it was not found, or writer and reader disagree. Tables and maps stop growing at 2^20 entries. Copies are
/// deep. Not synchronised.
class ZRXML_API CFIVocabulary {
public:
    /// A qualified name by the indexes of its parts.
    class ZRXML_API CQNameParts {
    public:
        unsigned long m_prefix;    ///< in the table of prefixes, 0 for none
        unsigned long m_namespace; ///< in the table of namespaces, 0 for none
        unsigned long m_local;     ///< in the table of local names
    };

    /// The texts of one kind by index.
    class ZRXML_API CFIStringTable {
    public:
        virtual ~CFIStringTable();
        /// @{
        /// All entries, from index 1 on.
        std::vector<std::wstring>::const_iterator begin() const;
        std::vector<std::wstring>::const_iterator end() const;
        /// @}
        /// Number of entries.
        unsigned long size() const;
        /// One entry. @param index from 1 to size().
        const std::wstring& at(unsigned long index) const;

    private:
        friend class CFIVocabulary;
        std::vector<std::wstring> m_strings;
    };

    /// The qualified names of elements or of attributes by index.
    class ZRXML_API CFIQNameTable {
    public:
        virtual ~CFIQNameTable();
        /// @{
        /// All entries, from index 1 on.
        std::vector<CQNameParts>::const_iterator begin() const;
        std::vector<CQNameParts>::const_iterator end() const;
        /// @}
        /// Number of entries.
        unsigned long size() const;
        /// One entry. @param index from 1 to size().
        const CQNameParts& at(unsigned long index) const;

    private:
        friend class CFIVocabulary;
        std::vector<CQNameParts> m_names;
    };

    typedef std::unordered_map<std::wstring, unsigned long> CIndexMap; ///< text to index

    /// The built-in entries of X.891: the prefix "xml", its namespace, and the numeric and the date and time alphabet.
    CFIVocabulary();
    CFIVocabulary(const CFIVocabulary& other);
    CFIVocabulary& operator=(const CFIVocabulary& other);
    virtual ~CFIVocabulary();

    /// @{
    /// Append a text to the table of its kind.
    void AddPrefixName(std::wstring value);
    void AddNamespaceName(std::wstring value);
    void AddLocalName(std::wstring value);
    void AddAttributeValue(std::wstring value);
    /// @}
    /// Appends element text, in the words of X.891 a character chunk.
    void AddElementValue(std::wstring value);
    /// @{
    /// Add a qualified name, and those of its parts that are not there yet, unless the name is there.
    void AddAttribute(std::wstring prefix, std::wstring namespaceUri, std::wstring localName);
    void AddElement(std::wstring prefix, std::wstring namespaceUri, std::wstring localName);
    /// @}

    /// @{
    /// Find a text. @param index set when the text is found. @return whether it is.
    bool FindPrefixNameIndex(std::wstring value, unsigned long& index) const;
    bool FindNamespaceNameIndex(std::wstring value, unsigned long& index) const;
    bool FindLocalNameIndex(std::wstring value, unsigned long& index) const;
    bool FindIndex(const CIndexMap& map, const std::wstring& key, unsigned long& index) const;
    /// @}

    /// @{
    /// The low-level adders, for maps and tables of this vocabulary.
    void AddValueToMap(const std::wstring& key, CIndexMap& map);
    void AddValueToVector(const std::wstring& value, CFIStringTable& table);
    void AddQNameToVector(
        unsigned long prefix, unsigned long namespaceIndex, unsigned long local, CFIQNameTable& table);
    void AddQName(const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& local,
        CIndexMap& map, CFIQNameTable& table);
    /// @}

    /// @{
    /// The tables and maps themselves, owned by the vocabulary.
    CFIQNameTable& GetAttributeNamesTable();
    CFIStringTable& GetAttributeValuesTable();
    CFIQNameTable& GetElementNamesTable();
    CFIStringTable& GetCharacterChunksTable();
    CFIStringTable& GetLocalNamesTable();
    CFIStringTable& GetNamespaceNamesTable();
    CFIStringTable& GetPrefixNamesTable();
    CIndexMap& GetAttributeNamesMap();
    CIndexMap& GetAttributeValuesMap();
    CIndexMap& GetElementNamesMap();
    CIndexMap& GetCharacterChunksMap();
    CIndexMap& GetLocalNamesMap();
    CIndexMap& GetNamespaceNamesMap();
    CIndexMap& GetPrefixNamesMap();
    /// @}

    /// @return the alphabet of a number from 1; empty for a number without one.
    const std::wstring& GetRestrictedAlphabet(unsigned long number) const;

private:
    std::vector<std::wstring> m_restrictedAlphabets;
    CIndexMap m_attributeNameMap;
    CIndexMap m_attributeValueMap;
    CIndexMap m_elementNameMap;
    CIndexMap m_characterChunkMap;
    CIndexMap m_localNameMap;
    CIndexMap m_namespaceNameMap;
    CIndexMap m_prefixMap;
    CFIQNameTable m_attributeNames;
    CFIStringTable m_attributeValues;
    CFIQNameTable m_elementNames;
    CFIStringTable m_characterChunks;
    CFIStringTable m_localNames;
    CFIStringTable m_namespaceNames;
    CFIStringTable m_prefixes;
};

} // namespace ZrXmlLib16

#endif
