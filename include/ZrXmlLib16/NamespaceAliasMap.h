// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_NAMESPACEALIASMAP_H
#define ZRXMLLIB16_NAMESPACEALIASMAP_H

#include "ZrXmlLib16/Export.h"

#include <map>
#include <string>

namespace ZrXmlLib16 {

/// The namespace prefixes (aliases) that an application wants declared on the root element of a written document.
///
/// Each namespace URI is a key once; several URIs may share an alias, which then is declared twice: the caller's
/// mistake. Entries are ordered by URI, and so are the declarations. Belongs to one thread, like the context that holds
/// it.
class ZRXML_API CNamespaceAliasMap {
public:
    typedef std::map<std::wstring, std::wstring> Entries; ///< namespace URI to alias

    virtual ~CNamespaceAliasMap();

    /// Sets the alias of the URI, replacing an earlier one. Null is empty text, here and below.
    void Add(const wchar_t* alias, const wchar_t* namespaceUri);
    /// Removes the entry of the URI, if there is one.
    void RemoveNamespace(const wchar_t* namespaceUri);
    /// Whether the URI has an entry.
    bool DoesNamespaceExist(const wchar_t* namespaceUri) const;
    /// Whether an entry has the alias.
    bool DoesAliasExist(const wchar_t* alias) const;
    /// Number of entries.
    int GetNamespaceCount() const;
    /// URI of the entry at a position in URI order.
    /// @param index 0 to GetNamespaceCount() - 1; not checked.
    std::wstring GetNamespaceAt(int index) const;
    /// URI of the first entry, in URI order, with that alias.
    /// @throws CZrException when no entry has it.
    std::wstring GetNamespaceFromAlias(const wchar_t* alias) const;
    /// Alias of the URI. An unknown URI is entered with an empty alias, which is returned: the look-up inserts although
    /// it is constant.
    std::wstring GetAliasFromNamespace(const wchar_t* namespaceUri) const;
    /// All entries, in URI order; borrowed.
    const Entries& GetEntries() const;

private:
    mutable Entries m_aliases;
};

} // namespace ZrXmlLib16

#endif
