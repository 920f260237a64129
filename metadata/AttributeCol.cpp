// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/AttributeCol.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrInvalidNamespaceException.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "core/CollectionIndex.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"

namespace ZrXmlLib16 {

CAttributeCol::CAttributeCol(const wchar_t* elementName, const wchar_t* namespaceSpecification,
    const wchar_t* targetNamespace, int minOccurs, int maxOccurs)
    : CXmlCollectionBase(elementName, L"", minOccurs, maxOccurs)
    , m_namespaceSpecification(TextOrEmpty(namespaceSpecification))
    , m_targetNamespace(TextOrEmpty(targetNamespace))
{
}

CAttributeCol::~CAttributeCol() = default;

CAttribute* CAttributeCol::Add(const wchar_t* namespaceUri, const wchar_t* value, const wchar_t* name)
{
    if (!*TextOrEmpty(name)) {
        throw CZrInvalidParamException(ZrXmlLib16Data::Message::ATTRIBUTE_NAME_EMPTY);
    }
    if (!CXmlObjectHelper::IsNamespaceValid(TextOrEmpty(namespaceUri), m_namespaceSpecification, m_targetNamespace)) {
        throw CZrInvalidNamespaceException(
            FormatString(ZrXmlLib16Data::Message::NAMESPACE_INVALID, TextOrEmpty(namespaceUri), L"CAttributeCol",
                m_namespaceSpecification.c_str()),
            std::wstring());
    }
    if (CAttribute* existing = Find(name, namespaceUri)) {
        existing->SetValue(value);
        FireOnCollectionChange();
        return existing;
    }
    std::unique_ptr<CAttribute> item(new CAttribute(namespaceUri, value, name));
    CAttribute* added = item.get();
    FireOnCollectionAdd(added);
    m_items.push_back(std::move(item));
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
    return m_targetNamespace;
}

CAttribute* CAttributeCol::Item(int index) const
{
    CheckIndex(index, GetCount(), GetCount() - 1);
    return m_items[static_cast<std::size_t>(index)].get();
}

CAttribute* CAttributeCol::Find(const wchar_t* name, const wchar_t* namespaceUri) const
{
    for (const std::unique_ptr<CAttribute>& item : m_items) {
        if (item->GetName() == TextOrEmpty(name) && item->GetNamespace() == TextOrEmpty(namespaceUri)) {
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
