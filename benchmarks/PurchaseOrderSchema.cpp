// SPDX-License-Identifier: MIT
#include "benchmarks/PurchaseOrder.h"

#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "ZrXmlLib16Data/AttributeInfoEnum.h"
#include "ZrXmlLib16Data/AttributeInfoPrimitive.h"
#include "ZrXmlLib16Data/ElementInfoChoiceClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"

#include <cwchar>

namespace PurchaseOrders {

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;

namespace {

enum ClassId : int { Class_Address, Class_Weight, Class_Payment, Class_Card, Class_Transfer, Class_Invoice };

CSmartPtr<CXmlObjectBase> CreateObject(int classId, const wchar_t* name)
{
    switch (classId) {
    case Class_Address:
        return new Address(name);
    case Class_Weight:
        return new Weight(name);
    case Class_Payment:
        return new Payment(name);
    case Class_Card:
        return new Card(name);
    case Class_Transfer:
        return new Transfer(name);
    case Class_Invoice:
        return new Invoice(name);
    default:
        return {};
    }
}

constexpr const wchar_t* statusNames[] = {L"open", L"packed", L"shipped", L"cancelled"};
constexpr const wchar_t* countryNames[] = {L"AT", L"CH", L"DE", L"FR", L"GB", L"US"};
constexpr const wchar_t* unitNames[] = {L"g", L"kg", L"lb"};

template <const auto& names> const wchar_t* ToName(int value)
{
    return names[value];
}

template <const auto& names> int FromName(const wchar_t* text)
{
    int index = 0;
    for (const wchar_t* name : names) {
        if (std::wcscmp(name, text) == 0) {
            return index;
        }
        ++index;
    }
    throw CZrInvalidValueException(L"Unknown enumeration value");
}

CParentElementInfo ClassInfo(const wchar_t* typeName, XmlElementGroupType group = XmlElementGroup_Sequence,
    int valueProperty = -1, ItemType valueType = ItemType_none)
{
    return CParentElementInfo(
        group, XmlElementType_Element, typeName, namespaceUri, true, true, valueProperty, valueType, L"", false);
}

CWhitespaceUtils::WhitespaceRule RuleOf(ItemType type)
{
    return type == ItemType_string ? CWhitespaceUtils::Rule_Preserve : CWhitespaceUtils::Rule_Collapse;
}

template <class Record>
Record Primitive(const wchar_t* name, int property, ItemType type, const CPrimitiveRestrictions& facets = {})
{
    return Record(name, namespaceUri, property, false, type, L"", RuleOf(type), facets, L"");
}

template <class Record> Record Object(const wchar_t* name, int property, ClassId classId)
{
    return Record(name, namespaceUri, property, XmlElementType_Element, CreateObject, classId, false);
}

CAttributeInfoPrimitive Attribute(
    const wchar_t* name, int property, bool optional, ItemType type, const CPrimitiveRestrictions& facets = {})
{
    return CAttributeInfoPrimitive(name, L"", property, optional, type, L"", RuleOf(type), facets, L"");
}

template <const auto& names> CAttributeInfoEnum EnumAttribute(const wchar_t* name, int property)
{
    return CAttributeInfoEnum(name, L"", property, false, ToName<names>, FromName<names>, L"");
}

CPrimitiveRestrictions LengthBetween(long minimum, long maximum)
{
    CPrimitiveRestrictions facets;
    facets.m_minLength = minimum;
    facets.m_maxLength = maximum;
    return facets;
}

CPrimitiveRestrictions Between(const wchar_t* minimum, const wchar_t* maximum)
{
    CPrimitiveRestrictions facets;
    facets.m_minInclusive = minimum;
    facets.m_maxInclusive = maximum;
    return facets;
}

CPrimitiveRestrictions Money()
{
    CPrimitiveRestrictions facets;
    facets.m_totalDigits = 12;
    facets.m_fractionDigits = 2;
    return facets;
}

} // namespace

CElementInfo** SchemaType::GetClassElementInfo() const
{
    static CElementInfo* records[] = {nullptr};
    return records;
}

CAttributeInfo** SchemaType::GetClassAttributeInfo() const
{
    static CAttributeInfo* records[] = {nullptr};
    return records;
}

const CParentElementInfo* Address::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Address");
    return &info;
}

CElementInfo** Address::GetClassElementInfo() const
{
    static auto name = Primitive<CElementInfoSeqPrimMnd>(L"name", Property_Name, ItemType_string, LengthBetween(1, 80));
    static auto street = Primitive<CElementInfoSeqPrimMnd>(L"street", Property_Street, ItemType_string);
    static auto city = Primitive<CElementInfoSeqPrimMnd>(L"city", Property_City, ItemType_string);
    static auto postalCode = Primitive<CElementInfoSeqPrimMnd>(L"postalCode", Property_PostalCode, ItemType_ui4);
    static CElementInfo* records[] = {&name, &street, &city, &postalCode, nullptr};
    return records;
}

CAttributeInfo** Address::GetClassAttributeInfo() const
{
    static auto country = EnumAttribute<countryNames>(L"country", Property_Country);
    static CAttributeInfo* records[] = {&country, nullptr};
    return records;
}

const CParentElementInfo* Weight::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Weight", XmlElementGroup_Sequence, Property_Value, ItemType_r8);
    return &info;
}

CAttributeInfo** Weight::GetClassAttributeInfo() const
{
    static auto unit = EnumAttribute<unitNames>(L"unit", Property_Unit);
    static CAttributeInfo* records[] = {&unit, nullptr};
    return records;
}

const CParentElementInfo* Note::GetClassInfo() const
{
    static const CParentElementInfo info =
        ClassInfo(L"Note", XmlElementGroup_Sequence, Property_Value, ItemType_string);
    return &info;
}

CAttributeInfo** Note::GetClassAttributeInfo() const
{
    static auto language = Attribute(L"lang", Property_Language, true, ItemType_string);
    static CAttributeInfo* records[] = {&language, nullptr};
    return records;
}

const CParentElementInfo* Item::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Item");
    return &info;
}

CElementInfo** Item::GetClassElementInfo() const
{
    static auto productName =
        Primitive<CElementInfoSeqPrimMnd>(L"productName", Property_ProductName, ItemType_string, LengthBetween(1, 80));
    static auto quantity =
        Primitive<CElementInfoSeqPrimMnd>(L"quantity", Property_Quantity, ItemType_ui2, Between(L"1", L"9999"));
    static auto price = Primitive<CElementInfoSeqPrimMnd>(L"price", Property_Price, ItemType_decimal, Money());
    static auto shipDate = Primitive<CElementInfoSeqPrimOpt>(L"shipDate", Property_ShipDate, ItemType_date);
    static auto weight = Object<CElementInfoSeqClsOpt>(L"weight", Property_Weight, Class_Weight);
    static CElementInfo* records[] = {&productName, &quantity, &price, &shipDate, &weight, nullptr};
    return records;
}

CAttributeInfo** Item::GetClassAttributeInfo() const
{
    static auto partNumber =
        Attribute(L"partNumber", Property_PartNumber, false, ItemType_string, LengthBetween(6, 12));
    static auto line = Attribute(L"line", Property_Line, false, ItemType_i4);
    static CAttributeInfo* records[] = {&partNumber, &line, nullptr};
    return records;
}

const CParentElementInfo* Card::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Card");
    return &info;
}

CElementInfo** Card::GetClassElementInfo() const
{
    static auto number =
        Primitive<CElementInfoSeqPrimMnd>(L"number", Property_Number, ItemType_string, LengthBetween(12, 19));
    static auto expires = Primitive<CElementInfoSeqPrimMnd>(L"expires", Property_Expires, ItemType_yearMonth);
    static CElementInfo* records[] = {&number, &expires, nullptr};
    return records;
}

const CParentElementInfo* Transfer::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Transfer");
    return &info;
}

CElementInfo** Transfer::GetClassElementInfo() const
{
    static auto account = Primitive<CElementInfoSeqPrimMnd>(L"account", Property_Account, ItemType_string);
    static auto signature = Primitive<CElementInfoSeqPrimMnd>(L"signature", Property_Signature, ItemType_base64Binary);
    static CElementInfo* records[] = {&account, &signature, nullptr};
    return records;
}

const CParentElementInfo* Invoice::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Invoice");
    return &info;
}

CElementInfo** Invoice::GetClassElementInfo() const
{
    static auto terms = Primitive<CElementInfoSeqPrimMnd>(L"terms", Property_Terms, ItemType_duration);
    static auto contact = Primitive<CElementInfoSeqPrimMnd>(L"contact", Property_Contact, ItemType_string);
    static CElementInfo* records[] = {&terms, &contact, nullptr};
    return records;
}

const CParentElementInfo* Payment::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Payment", XmlElementGroup_Choice);
    return &info;
}

CElementInfo** Payment::GetClassElementInfo() const
{
    static auto card = Object<CElementInfoChoiceClsOpt>(L"card", Property_Card, Class_Card);
    static auto transfer = Object<CElementInfoChoiceClsOpt>(L"transfer", Property_Transfer, Class_Transfer);
    static auto invoice = Object<CElementInfoChoiceClsOpt>(L"invoice", Property_Invoice, Class_Invoice);
    static CElementInfo* records[] = {&card, &transfer, &invoice, nullptr};
    return records;
}

const CParentElementInfo* Order::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"Order");
    return &info;
}

CElementInfo** Order::GetClassElementInfo() const
{
    static auto shipTo = Object<CElementInfoSeqClsMnd>(L"shipTo", Property_ShipTo, Class_Address);
    static auto billTo = Object<CElementInfoSeqClsOpt>(L"billTo", Property_BillTo, Class_Address);
    static auto comment = Primitive<CElementInfoSeqPrimOpt>(L"comment", Property_Comment, ItemType_string);
    static CElementInfoSeqClsCol items(L"item", namespaceUri, Property_Items, XmlElementType_Element);
    static CElementInfoSeqClsCol notes(L"note", namespaceUri, Property_Notes, XmlElementType_Element);
    static auto total = Primitive<CElementInfoSeqPrimMnd>(L"total", Property_Total, ItemType_decimal, Money());
    static auto payment = Object<CElementInfoSeqClsMnd>(L"payment", Property_Payment, Class_Payment);
    static CElementInfo* records[] = {&shipTo, &billTo, &comment, &items, &notes, &total, &payment, nullptr};
    return records;
}

CAttributeInfo** Order::GetClassAttributeInfo() const
{
    static auto number = Attribute(L"number", Property_Number, false, ItemType_ui4, Between(L"1", L"99999999"));
    static auto placedAt = Attribute(L"placedAt", Property_PlacedAt, false, ItemType_datetime);
    static auto status = EnumAttribute<statusNames>(L"status", Property_Status);
    static auto confirmed = Attribute(L"confirmed", Property_Confirmed, true, ItemType_boolean);
    static CAttributeInfo* records[] = {&number, &placedAt, &status, &confirmed, nullptr};
    return records;
}

const CParentElementInfo* OrderList::GetClassInfo() const
{
    static const CParentElementInfo info = ClassInfo(L"OrderList");
    return &info;
}

CElementInfo** OrderList::GetClassElementInfo() const
{
    static CElementInfoSeqClsCol orders(L"purchaseOrder", namespaceUri, Property_Orders, XmlElementType_Element);
    static CElementInfo* records[] = {&orders, nullptr};
    return records;
}

} // namespace PurchaseOrders
