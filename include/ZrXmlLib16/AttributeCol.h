// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ATTRIBUTECOL_H
#define ZRXMLLIB16_ATTRIBUTECOL_H

#include "ZrXmlLib16/Attribute.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlCollectionBase.h"

#include <memory>
#include <vector>

namespace ZrXmlLib16 {

struct NamespaceRule;

/// The attributes that a wildcard accepted, or that an application adds to the root element, in the order of adding. No
/// two have the same name and namespace. Owns its items; changes are announced as for every collection.
class ZRXML_API CAttributeCol : public CXmlCollectionBase {
public:
    /// @param namespaceSpecification what Add accepts: "##any", "##other", or a list of "##local", "##targetNamespace"
    /// and URIs
    CAttributeCol(const wchar_t* elementName, const wchar_t* namespaceSpecification, const wchar_t* targetNamespace,
        int minOccurs = 0, int maxOccurs = -1);
    /// Adds an attribute, or gives the one of that name and namespace a new value.
    /// @return the attribute, owned by the collection until it is removed.
    /// @throws CZrInvalidNamespaceException when the wildcard refuses the namespace, CZrInvalidParamException for an
    /// empty name.
    CAttribute* Add(const wchar_t* namespaceUri, const wchar_t* value, const wchar_t* name);
    int GetCount() const override;
    ~CAttributeCol() override;
    std::wstring GetTargetNamespace() const override;
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount(), as does Remove.
    CAttribute* Item(int index) const;
    /// Null when there is none.
    CAttribute* Find(const wchar_t* name, const wchar_t* namespaceUri) const;
    /// Removes the item of that index; announced.
    void Remove(int index);
    void Clear() override;

protected:
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;
    /// Attributes are no elements: consumes nothing.
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;

private:
    friend class CElement;

    struct Index;

    /// For any attributes.
    CAttributeCol();
    CAttributeCol(const CAttributeCol&) = delete;
    CAttributeCol& operator=(const CAttributeCol&) = delete;

    CAttribute* AddItem(const std::wstring& namespaceUri, const std::wstring& value, const std::wstring& name);
    CAttribute* FindItem(const std::wstring& namespaceUri, const std::wstring& name) const;

    std::shared_ptr<const NamespaceRule> m_rule;
    std::vector<std::unique_ptr<CAttribute>> m_items;
    std::unique_ptr<Index> m_index; // of the items by name; null while there are few
};

} // namespace ZrXmlLib16

#endif
