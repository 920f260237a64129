// SPDX-License-Identifier: MIT
#include "shared/orders/Order.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "shared/Records.h"
#include "shared/orders/ClassFactory.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct COrder::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Order", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqPrimMnd placed =
        Primitive<CElementInfoSeqPrimMnd>(L"placed", NAMESPACE, Property_Placed, SimpleType(ItemType_datetime));
    CElementInfoSeqClsMnd shipTo =
        Object<CElementInfoSeqClsMnd>(L"shipTo", NAMESPACE, Property_ShipTo, CreateObject, ClassId_Address);
    CElementInfoSeqClsOpt billTo =
        Object<CElementInfoSeqClsOpt>(L"billTo", NAMESPACE, Property_BillTo, CreateObject, ClassId_Address);
    CElementInfoSeqClsOpt contact =
        Object<CElementInfoSeqClsOpt>(L"contact", NAMESPACE, Property_Contact, CreateObject, ClassId_Contact);
    CElementInfoSeqPrimCol tag{L"tag", NAMESPACE, Property_Tag};
    CElementInfoSeqPrimOpt comment = Primitive<CElementInfoSeqPrimOpt>(
        L"comment", NAMESPACE, Property_Comment, SimpleType(ItemType_string).LengthFromTo(0, 200), true);
    CElementInfoSeqClsCol item{L"item", NAMESPACE, Property_Item, XmlElementType_Element};
    CElementInfoSeqClsMnd payment =
        Object<CElementInfoSeqClsMnd>(L"payment", NAMESPACE, Property_Payment, CreateObject, ClassId_Payment);
    CElementInfoSeqClsOpt gift =
        Object<CElementInfoSeqClsOpt>(L"gift", NAMESPACE, Property_Gift, CreateObject, ClassId_Gift);
    CElementInfo* elements[10] = {&placed, &shipTo, &billTo, &contact, &tag, &comment, &item, &payment, &gift, nullptr};

    CAttributeInfoPrimitive number = Attribute(L"number", Property_Number, Use::Required, SimpleType(ItemType_ui4));
    CAttributeInfoEnum status = EnumerationAttribute<ORDER_STATUS_TEXTS>(L"status", Property_Status, Use::Optional);
    CAttributeInfo* attributes[3] = {&number, &status, nullptr};
};

COrder::Tables& COrder::GetTables()
{
    static Tables tables;
    return tables;
}

COrder::COrder(const wchar_t* elementName)
    : COrderObject(elementName)
    , m_tag(new CstringCol(
          L"tag", NAMESPACE, 0, 3, L"", 1, 20, L"", L"", L"", L"", -1, -1, -1, CWhitespaceUtils::Rule_Collapse, L""))
    , m_item(new CObjectCollection<CItem>(L"item", NAMESPACE, 1, -1))
{
}

void COrder::SetShipTo(CAddress* value)
{
    Throw_IfElementNameDiffers(value, L"shipTo");
    m_shipTo = value;
}

void COrder::SetBillTo(CAddress* value)
{
    Throw_IfElementNameDiffers(value, L"billTo");
    m_billTo = value;
}

void COrder::SetContact(CContact* value)
{
    Throw_IfElementNameDiffers(value, L"contact");
    m_contact = value;
}

void COrder::SetPayment(CPayment* value)
{
    Throw_IfElementNameDiffers(value, L"payment");
    m_payment = value;
}

void COrder::SetGift(CGift* value)
{
    Throw_IfElementNameDiffers(value, L"gift");
    m_gift = value;
}

void COrder::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Number:
        return AccessValue(read, value, m_number);
    case Property_Status:
        return AccessEnumeration(read, value, m_status);
    case Property_Placed:
        return AccessValue(read, value, m_placed);
    case Property_ShipTo:
        return AccessObject(read, value, m_shipTo);
    case Property_BillTo:
        return AccessObject(read, value, m_billTo);
    case Property_Contact:
        return AccessObject(read, value, m_contact);
    case Property_Tag:
        return AccessCollection(read, value, m_tag);
    case Property_Comment:
        return AccessNillable(read, value, m_comment);
    case Property_Item:
        return AccessCollection(read, value, m_item);
    case Property_Payment:
        return AccessObject(read, value, m_payment);
    case Property_Gift:
        return AccessObject(read, value, m_gift);
    }
}

const CParentElementInfo* COrder::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** COrder::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** COrder::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void COrder::Init()
{
    m_number.reset();
    m_status.reset();
    m_placed.reset();
    m_shipTo = nullptr;
    m_billTo = nullptr;
    m_contact = nullptr;
    m_tag->Clear();
    m_comment = {};
    m_item->Clear();
    m_payment = nullptr;
    m_gift = nullptr;
}

} // namespace Orders
