// SPDX-License-Identifier: MIT
#include "shared/orders/Address.h"

#include "ZrXmlLib16Data/ElementInfoAllPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoAllPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllPrimOpt.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

namespace {

const SimpleType TEXT(ZrXmlLib16::ItemType_string);

}

struct CAddress::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Address", NAMESPACE, XmlElementGroup_All);

    CElementInfoAllPrimMnd name =
        Primitive<CElementInfoAllPrimMnd>(L"name", NAMESPACE, Property_Name, TEXT.LengthFromTo(1, 80));
    CElementInfoAllPrimCol street{L"street", NAMESPACE, Property_Street};
    CElementInfoAllPrimMnd city = Primitive<CElementInfoAllPrimMnd>(L"city", NAMESPACE, Property_City, TEXT);
    CElementInfoAllPrimOpt postalCode = Primitive<CElementInfoAllPrimOpt>(
        L"postalCode", NAMESPACE, Property_PostalCode, TEXT.Matching(L"[0-9A-Z ]{3,8}"));
    CElementInfo* elements[5] = {&name, &street, &city, &postalCode, nullptr};

    CAttributeInfoEnum country = EnumerationAttribute<COUNTRY_TEXTS>(L"country", Property_Country, Use::Required);
    CAttributeInfo* attributes[2] = {&country, nullptr};
};

CAddress::Tables& CAddress::GetTables()
{
    static Tables tables;
    return tables;
}

CAddress::CAddress(const wchar_t* elementName)
    : COrderObject(elementName)
    , m_street(new ZrXmlLib16::CstringCol(L"street", NAMESPACE, 1, 2, L"", 1, 80, L"", L"", L"", L"", -1, -1, -1,
          ZrXmlLib16::CWhitespaceUtils::Rule_Preserve, L""))
{
}

void CAddress::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Country:
        return AccessEnumeration(read, value, m_country);
    case Property_Name:
        return AccessValue(read, value, m_name);
    case Property_Street:
        return AccessCollection(read, value, m_street);
    case Property_City:
        return AccessValue(read, value, m_city);
    case Property_PostalCode:
        return AccessValue(read, value, m_postalCode);
    }
}

const CParentElementInfo* CAddress::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CAddress::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CAddress::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CAddress::Init()
{
    m_country.reset();
    m_name.reset();
    m_street->Clear();
    m_city.reset();
    m_postalCode.reset();
}

} // namespace Orders
