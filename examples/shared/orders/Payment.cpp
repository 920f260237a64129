// SPDX-License-Identifier: MIT
#include "shared/orders/Payment.h"

#include "ZrXmlLib16Data/ElementInfoChoiceClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoicePrimCol.h"
#include "ZrXmlLib16Data/ElementInfoChoicePrimOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"
#include "shared/orders/ClassFactory.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct CCard::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Card", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqPrimMnd number = Primitive<CElementInfoSeqPrimMnd>(
        L"number", NAMESPACE, Property_Number, SimpleType(ItemType_string).Matching(L"[0-9]{12,19}"));
    CElementInfoSeqPrimMnd expires =
        Primitive<CElementInfoSeqPrimMnd>(L"expires", NAMESPACE, Property_Expires, SimpleType(ItemType_yearMonth));
    CElementInfo* elements[3] = {&number, &expires, nullptr};
};

CCard::Tables& CCard::GetTables()
{
    static Tables tables;
    return tables;
}

CCard::CCard(const wchar_t* elementName)
    : COrderObject(elementName)
{
}

void CCard::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Number:
        return AccessValue(read, value, m_number);
    case Property_Expires:
        return AccessYearMonth(read, value, m_expires);
    }
}

const CParentElementInfo* CCard::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CCard::GetClassElementInfo() const
{
    return GetTables().elements;
}

void CCard::Init()
{
    m_number.reset();
    m_expires.reset();
}

struct CPayment::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Payment", NAMESPACE, XmlElementGroup_Choice);

    CElementInfoChoiceClsOpt card =
        Object<CElementInfoChoiceClsOpt>(L"card", NAMESPACE, Property_Card, CreateObject, ClassId_Card);
    CElementInfoChoicePrimCol voucher{L"voucher", NAMESPACE, Property_Voucher};
    CElementInfoChoicePrimOpt onAccount =
        Primitive<CElementInfoChoicePrimOpt>(L"onAccount", NAMESPACE, Property_OnAccount, SimpleType(ItemType_boolean));
    CElementInfo* elements[4] = {&card, &voucher, &onAccount, nullptr};
};

CPayment::Tables& CPayment::GetTables()
{
    static Tables tables;
    return tables;
}

CPayment::CPayment(const wchar_t* elementName)
    : COrderObject(elementName)
    , m_voucher(new CstringCol(L"voucher", NAMESPACE, 1, 3, L"V-[0-9]{6}", -1, -1, L"", L"", L"", L"", -1, -1, -1,
          CWhitespaceUtils::Rule_Collapse, L""))
{
}

void CPayment::SetCard(CCard* value)
{
    Throw_IfElementNameDiffers(value, L"card");
    m_card = value;
    Choice_SetElementValid(Property_Card, value != nullptr);
}

CstringCol& CPayment::GetVoucher()
{
    Choice_Read_Collection(m_voucher, Property_Voucher);
    return static_cast<CstringCol&>(*m_voucher);
}

void CPayment::SetOnAccount(std::optional<bool> value)
{
    m_onAccount = value;
    Choice_SetElementValid(Property_OnAccount, value.has_value());
}

void CPayment::OnEvent(CXmlObjectBase* sender, MsgType type, void*)
{
    if (type == CollectionChanged && sender == m_voucher.GetPtr()) {
        Choice_CollectionChanged(m_voucher, Property_Voucher);
    }
}

void CPayment::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Card:
        return AccessObject(read, value, m_card);
    case Property_Voucher:
        return AccessCollection(read, value, m_voucher);
    case Property_OnAccount:
        return AccessValue(read, value, m_onAccount);
    }
}

const CParentElementInfo* CPayment::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CPayment::GetClassElementInfo() const
{
    return GetTables().elements;
}

void CPayment::Init()
{
    m_card = nullptr;
    m_voucher->Clear();
    m_onAccount.reset();
}

} // namespace Orders
