// SPDX-License-Identifier: MIT
#include "Prefixes.h"

#include "DocumentOrder.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlWriter.h"

#include <map>
#include <set>
#include <string>

namespace Convert {

using ZrXmlLib16::CNamespaceAliasMap;
using ZrXmlLib16::CXmlAttribute;
using ZrXmlLib16::CXmlDocument;
using ZrXmlLib16::CXmlElement;

namespace {

typedef std::map<std::wstring, std::wstring> Declarations; // prefix -> URI

struct UsedNamespaces {
    std::set<std::wstring> ofElements; // the empty URI included
    std::set<std::wstring> ofAttributes;
};

UsedNamespaces CollectNamespaces(const CXmlElement* root)
{
    UsedNamespaces used;
    for (const CXmlElement* element = root; element; element = NextInDocument(element)) {
        used.ofElements.insert(element->GetNamespaceURI());
        for (const CXmlAttribute* attribute : element->GetAttributes()) {
            if (!attribute->GetNamespaceURI().empty()) {
                used.ofAttributes.insert(attribute->GetNamespaceURI());
            }
        }
    }
    return used;
}

/// A root whose namespace has no prefix had no prefix itself, whatever the default became further down.
std::wstring FindDefaultNamespace(
    const CXmlElement& root, const Declarations& declarations, const CNamespaceAliasMap& aliases)
{
    const auto declared = declarations.find(L"");
    if (declared == declarations.end()) {
        return std::wstring();
    }
    const bool rootHasPrefix = aliases.DoesNamespaceExist(root.GetNamespaceURI().c_str());
    return rootHasPrefix ? declared->second : root.GetNamespaceURI();
}

void InventAlias(const std::wstring& uri, const Declarations& declarations, CNamespaceAliasMap& aliases)
{
    if (uri.empty() || aliases.DoesNamespaceExist(uri.c_str()) || uri == ZrXmlLib16::CXmlWriter::XML_NAMESPACE) {
        return;
    }
    int number = 0;
    std::wstring alias;
    do {
        alias = L"ns" + std::to_wstring(++number);
    } while (declarations.count(alias) != 0 || aliases.DoesAliasExist(alias.c_str()));
    aliases.Add(alias.c_str(), uri.c_str());
}

} // namespace

void TakeOverPrefixes(const CXmlDocument& document, ZrXmlLib16::CSerializationContext& context)
{
    const Declarations& declarations = document.GetNamespaceDeclarations();
    CNamespaceAliasMap& aliases = context.GetNamespaceAliases();
    for (const auto& [prefix, uri] : declarations) {
        if (!prefix.empty() && prefix != L"xml" && !aliases.DoesNamespaceExist(uri.c_str())) {
            aliases.Add(prefix.c_str(), uri.c_str());
        }
    }
    UsedNamespaces used = CollectNamespaces(document.GetDocumentElement());
    if (used.ofElements.count(L"") == 0) {
        const std::wstring uri = FindDefaultNamespace(*document.GetDocumentElement(), declarations, aliases);
        context.SetDefaultNamespaceURI(uri.c_str());
        used.ofElements.erase(uri);
    }
    for (const std::wstring& uri : used.ofElements) {
        InventAlias(uri, declarations, aliases);
    }
    for (const std::wstring& uri : used.ofAttributes) {
        InventAlias(uri, declarations, aliases);
    }
}

} // namespace Convert
