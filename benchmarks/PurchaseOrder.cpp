// SPDX-License-Identifier: MIT
#include "benchmarks/PurchaseOrder.h"

#include "benchmarks/PropertyAccess.h"

namespace PurchaseOrders {

using ZrXmlLib16::ZrVariant;

void Address::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Country:
        return AccessEnum(read, value, m_country);
    case Property_Name:
        return AccessText(read, value, m_name);
    case Property_Street:
        return AccessText(read, value, m_street);
    case Property_City:
        return AccessText(read, value, m_city);
    case Property_PostalCode:
        return AccessValue(read, value, m_postalCode, &ZrVariant::GetUI4, &ZrVariant::SetUI4);
    }
}

void Address::Init()
{
    m_country.reset();
    m_name.reset();
    m_street.reset();
    m_city.reset();
    m_postalCode.reset();
}

void Weight::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Value:
        return AccessValue(read, value, m_value, &ZrVariant::GetR8, &ZrVariant::SetR8);
    case Property_Unit:
        return AccessEnum(read, value, m_unit);
    }
}

void Weight::Init()
{
    m_value.reset();
    m_unit.reset();
}

void Note::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Value:
        return AccessText(read, value, m_value);
    case Property_Language:
        return AccessText(read, value, m_language);
    }
}

void Note::Init()
{
    m_value.reset();
    m_language.reset();
}

void Item::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_PartNumber:
        return AccessText(read, value, m_partNumber);
    case Property_Line:
        return AccessValue(read, value, m_line, &ZrVariant::GetI4, &ZrVariant::SetI4);
    case Property_ProductName:
        return AccessText(read, value, m_productName);
    case Property_Quantity:
        return AccessValue(read, value, m_quantity, &ZrVariant::GetUI2, &ZrVariant::SetUI2);
    case Property_Price:
        return AccessValue(read, value, m_price, &ZrVariant::GetDecimal, &ZrVariant::SetDecimal);
    case Property_ShipDate:
        return AccessValue(read, value, m_shipDate, &ZrVariant::GetDate, &ZrVariant::SetDate);
    case Property_Weight:
        return AccessObject(read, value, m_weight);
    }
}

void Item::Init()
{
    m_partNumber.reset();
    m_line.reset();
    m_productName.reset();
    m_quantity.reset();
    m_price.reset();
    m_shipDate.reset();
    m_weight = nullptr;
}

void Card::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Number:
        return AccessText(read, value, m_number);
    case Property_Expires:
        return AccessValue(read, value, m_expires, &ZrVariant::GetYearMonth, &ZrVariant::SetYearMonth);
    }
}

void Card::Init()
{
    m_number.reset();
    m_expires.reset();
}

void Transfer::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Account:
        return AccessText(read, value, m_account);
    case Property_Signature:
        return AccessValue(read, value, m_signature, &ZrVariant::GetBase64Binary, &ZrVariant::SetBase64Binary);
    }
}

void Transfer::Init()
{
    m_account.reset();
    m_signature.reset();
}

void Invoice::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Terms:
        return AccessValue(read, value, m_terms, &ZrVariant::GetDuration, &ZrVariant::SetDuration);
    case Property_Contact:
        return AccessText(read, value, m_contact);
    }
}

void Invoice::Init()
{
    m_terms.reset();
    m_contact.reset();
}

void Payment::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Card:
        return AccessObject(read, value, m_card);
    case Property_Transfer:
        return AccessObject(read, value, m_transfer);
    case Property_Invoice:
        return AccessObject(read, value, m_invoice);
    }
}

void Payment::Init()
{
    m_card = nullptr;
    m_transfer = nullptr;
    m_invoice = nullptr;
}

Order::Order(const wchar_t* elementName)
    : SchemaType(elementName)
    , m_items(new Collection<Item>(L"item", namespaceUri, 1, -1))
    , m_notes(new Collection<Note>(L"note", namespaceUri, 0, -1))
{
}

void Order::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Number:
        return AccessValue(read, value, m_number, &ZrVariant::GetUI4, &ZrVariant::SetUI4);
    case Property_PlacedAt:
        return AccessValue(read, value, m_placedAt, &ZrVariant::GetDateTime, &ZrVariant::SetDateTime);
    case Property_Status:
        return AccessEnum(read, value, m_status);
    case Property_Confirmed:
        return AccessValue(read, value, m_confirmed, &ZrVariant::GetBoolean, &ZrVariant::SetBoolean);
    case Property_ShipTo:
        return AccessObject(read, value, m_shipTo);
    case Property_BillTo:
        return AccessObject(read, value, m_billTo);
    case Property_Comment:
        return AccessText(read, value, m_comment);
    case Property_Items:
        return AccessCollection(read, value, m_items);
    case Property_Notes:
        return AccessCollection(read, value, m_notes);
    case Property_Total:
        return AccessValue(read, value, m_total, &ZrVariant::GetDecimal, &ZrVariant::SetDecimal);
    case Property_Payment:
        return AccessObject(read, value, m_payment);
    }
}

void Order::Init()
{
    m_number.reset();
    m_placedAt.reset();
    m_status.reset();
    m_confirmed.reset();
    m_shipTo = nullptr;
    m_billTo = nullptr;
    m_comment.reset();
    m_items->Clear();
    m_notes->Clear();
    m_total.reset();
    m_payment = nullptr;
}

OrderList::OrderList()
    : SchemaType(L"purchaseOrders")
    , m_orders(new Collection<Order>(L"purchaseOrder", namespaceUri, 1, -1))
{
}

void OrderList::AccessProperty(int index, bool read, ZrVariant& value)
{
    if (index == Property_Orders) {
        AccessCollection(read, value, m_orders);
    }
}

void OrderList::Init()
{
    m_orders->Clear();
}

} // namespace PurchaseOrders
