// SPDX-License-Identifier: MIT
#include "classes/ExtensionsType.h"

#include "ZrXmlLib16Data/ElementInfoSeqUntpdCol.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

namespace {

constexpr wchar_t WILDCARD_NAME[] = L"AnyElement"; // by which the record knows that it takes any element

}

struct CExtensionsType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"extensionsType", NAMESPACE, true,
        true, -1, ZrXmlLib16::ItemType_none, L"", false};

    CElementInfoSeqUntpdCol anyElement{WILDCARD_NAME, L"##other", Property_AnyElement};
    CElementInfo* elements[2] = {&anyElement, nullptr};

    CAttributeInfo* attributes[1] = {nullptr};
};

CExtensionsType::Tables& CExtensionsType::GetTables()
{
    static Tables tables;
    return tables;
}

CExtensionsType::CExtensionsType(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_anyElement(new ZrXmlLib16::CElementCol(WILDCARD_NAME, L"##other", NAMESPACE))
{
}

void CExtensionsType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_AnyElement:
        return AccessCollection(read, value, m_anyElement);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CExtensionsType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CExtensionsType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CExtensionsType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CExtensionsType::Init()
{
    m_anyElement->Clear();
}

} // namespace Gpx
