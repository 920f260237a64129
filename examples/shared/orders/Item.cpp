// SPDX-License-Identifier: MIT
#include "shared/orders/Item.h"

#include "ZrXmlLib16Data/ElementInfoSeqAbsClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"
#include "shared/orders/ClassFactory.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct CItem::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Item", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqAbsClsMnd product{L"product", NAMESPACE, Property_Product, XmlElementType_Element, CreateProduct};
    CElementInfoSeqPrimMnd quantity = Primitive<CElementInfoSeqPrimMnd>(
        L"quantity", NAMESPACE, Property_Quantity, SimpleType(ItemType_ui2).FromTo(L"1", L"999"));
    CElementInfoSeqPrimMnd price = Primitive<CElementInfoSeqPrimMnd>(
        L"price", NAMESPACE, Property_Price, SimpleType(ItemType_decimal).Digits(12, 2));
    CElementInfoSeqPrimOpt shipDate =
        Primitive<CElementInfoSeqPrimOpt>(L"shipDate", NAMESPACE, Property_ShipDate, SimpleType(ItemType_date));
    CElementInfo* elements[5] = {&product, &quantity, &price, &shipDate, nullptr};

    CAttributeInfoPrimitive line = Attribute(L"line", Property_Line, Use::Required, SimpleType(ItemType_i4));
    CAttributeInfoEnum currency =
        EnumerationAttribute<CURRENCY_TEXTS>(L"currency", Property_Currency, Use::Optional, L"EUR");
    CAttributeInfo* attributes[3] = {&line, &currency, nullptr};
};

CItem::Tables& CItem::GetTables()
{
    static Tables tables;
    return tables;
}

CItem::CItem(const wchar_t* elementName)
    : COrderObject(elementName)
    , m_currency(Currency::EUR)
{
}

void CItem::SetProduct(CProduct* value)
{
    Throw_IfElementNameDiffers(value, L"product");
    m_product = value;
}

void CItem::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Line:
        return AccessValue(read, value, m_line);
    case Property_Currency:
        return AccessEnumeration(read, value, m_currency);
    case Property_Product:
        return AccessObject(read, value, m_product);
    case Property_Quantity:
        return AccessValue(read, value, m_quantity);
    case Property_Price:
        return AccessValue(read, value, m_price);
    case Property_ShipDate:
        return AccessDate(read, value, m_shipDate);
    }
}

const CParentElementInfo* CItem::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CItem::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CItem::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CItem::Init()
{
    m_line.reset();
    m_currency = Currency::EUR;
    m_product = nullptr;
    m_quantity.reset();
    m_price.reset();
    m_shipDate.reset();
}

} // namespace Orders
