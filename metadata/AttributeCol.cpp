// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/AttributeCol.h"

#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "core/CollectionIndex.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"
#include "metadata/NamespaceRule.h"

#include <set>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FEW = 16;

struct NameOrder {
    bool operator()(const CAttribute* left, const CAttribute* right) const
    {
        const int order = left->GetName().compare(right->GetName());
        return order < 0 || (order == 0 && left->GetNamespace() < right->GetNamespace());
    }
};

} // namespace

struct CAttributeCol::Index {
    // Ordered, because hash values of names can be made to collide.
    std::set<CAttribute*, NameOrder> items;
};

CAttributeCol::CAttributeCol()
    : CXmlCollectionBase(L"", L"", 0, -1)
{
}

CAttributeCol::CAttributeCol(const wchar_t* elementName, const wchar_t* namespaceSpecification,
    const wchar_t* targetNamespace, int minOccurs, int maxOccurs)
    : CXmlCollectionBase(elementName, L"", minOccurs, maxOccurs)
    , m_rule(MakeNamespaceRule(namespaceSpecification, targetNamespace))
{
}

CAttributeCol::~CAttributeCol() = default;

CAttribute* CAttributeCol::Add(const wchar_t* namespaceUri, const wchar_t* value, const wchar_t* name)
{
    return AddItem(TextOrEmpty(namespaceUri), TextOrEmpty(value), TextOrEmpty(name));
}

CAttribute* CAttributeCol::AddItem(
    const std::wstring& namespaceUri, const std::wstring& value, const std::wstring& name)
{
    if (name.empty()) {
        throw CZrInvalidParamException(ZrXmlLib16Data::Message::ATTRIBUTE_NAME_EMPTY);
    }
    if (!Accepts(m_rule.get(), namespaceUri)) {
        ThrowNamespaceInvalid(namespaceUri, L"CAttributeCol", WildcardOf(m_rule.get()));
    }
    if (CAttribute* existing = FindItem(namespaceUri, name)) {
        existing->SetValue(value.c_str());
        FireOnCollectionChange();
        return existing;
    }
    std::unique_ptr<CAttribute> item(new CAttribute(namespaceUri.c_str(), value.c_str(), name.c_str()));
    CAttribute* added = item.get();
    FireOnCollectionAdd(added);
    m_items.push_back(std::move(item));
    if (m_index) {
        m_index->items.insert(added);
    } else if (m_items.size() > FEW) {
        m_index = std::make_unique<Index>();
        for (const std::unique_ptr<CAttribute>& each : m_items) {
            m_index->items.insert(each.get());
        }
    }
    FireOnCollectionAddComplete(added);
    FireOnCollectionChange();
    return added;
}

int CAttributeCol::GetCount() const
{
    return static_cast<int>(m_items.size());
}

std::wstring CAttributeCol::GetTargetNamespace() const
{
    return TargetNamespaceOf(m_rule.get());
}

CAttribute* CAttributeCol::Item(int index) const
{
    CheckIndex(index, GetCount(), GetCount() - 1);
    return m_items[static_cast<std::size_t>(index)].get();
}

CAttribute* CAttributeCol::Find(const wchar_t* name, const wchar_t* namespaceUri) const
{
    return FindItem(TextOrEmpty(namespaceUri), TextOrEmpty(name));
}

CAttribute* CAttributeCol::FindItem(const std::wstring& namespaceUri, const std::wstring& name) const
{
    if (m_index) {
        CAttribute key(namespaceUri.c_str(), L"", name.c_str());
        const auto found = m_index->items.find(&key);
        return found == m_index->items.end() ? nullptr : *found;
    }
    for (const std::unique_ptr<CAttribute>& item : m_items) {
        if (item->GetName() == name && item->GetNamespace() == namespaceUri) {
            return item.get();
        }
    }
    return nullptr;
}

void CAttributeCol::Remove(int index)
{
    CheckIndex(index, GetCount(), GetCount() - 1);
    FireOnCollectionRemove(index);
    const std::unique_ptr<CAttribute> removed = std::move(m_items[static_cast<std::size_t>(index)]);
    m_items.erase(m_items.begin() + index);
    if (m_index) {
        m_index->items.erase(removed.get());
    }
    FireOnCollectionRemoveComplete(index);
    FireOnCollectionChange();
}

void CAttributeCol::Clear()
{
    if (m_items.empty()) {
        return;
    }
    FireOnCollectionRemove(-1);
    const std::vector<std::unique_ptr<CAttribute>> removed = std::move(m_items);
    m_items.clear();
    m_index.reset();
    FireOnCollectionRemoveComplete(-1);
    FireOnCollectionChange();
}

void CAttributeCol::ToXml_Int(CXmlWriter* writer, bool, const wchar_t*, const CSerializationContext&, bool) const
{
    for (const std::unique_ptr<CAttribute>& item : m_items) {
        writer->WriteAttributeString(item->GetName(), item->GetNamespace(), item->GetValue(), ItemType_string);
    }
}

CXmlElement* CAttributeCol::FromXml_Int(CXmlElement*, CXmlElement* firstChild, const CSerializationContext&, bool)
{
    return firstChild;
}

} // namespace ZrXmlLib16
