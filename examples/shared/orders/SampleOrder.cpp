// SPDX-License-Identifier: MIT
#include "shared/orders/SampleOrder.h"

namespace Orders {

using ZrXmlLib16::CDateTime;
using ZrXmlLib16::CDecimal;

namespace {

CDateTime Placed()
{
    CDateTime time(2026, 3, 9, 14, 30, 0, 0);
    time.SetTimeZone(0);
    return time;
}

void FillItem(CItem& item, long line, CProduct* product, unsigned short quantity, const wchar_t* price)
{
    item.SetLine(line);
    item.SetProduct(product);
    item.SetQuantity(quantity);
    item.SetPrice(CDecimal(price));
}

} // namespace

void FillOrder(COrder& order)
{
    order.SetNumber(4711);
    order.SetPlaced(Placed());

    auto* address = new CAddress(L"shipTo"); // the order owns it from here on
    order.SetShipTo(address);
    address->SetCountry(Country::AT);
    address->SetName(L"J\u00f6rg M\u00fcller & Co");
    address->GetStreet().Add(L"Hauptplatz 1");
    address->GetStreet().Add(L"Stiege 2");
    address->SetCity(L"Linz");
    address->SetPostalCode(L"4020");

    auto* contact = new CContact;
    order.SetContact(contact);
    contact->GetPhone().Add(L"+43 732 123456");

    auto* book = new CBook;
    FillItem(order.GetItem().Add(), 1, book, 2, L"24.90");
    book->SetNumber(L"BK-0042");
    book->SetTitle(L"Bridges of the Alps");
    book->GetAuthor().Add(L"A. Huber");
    book->GetAuthor().Add(L"B. Rossi");

    auto* lamp = new CDevice;
    FillItem(order.GetItem().Add(), 2, lamp, 1, L"129.00");
    lamp->SetNumber(L"DV-1007");
    lamp->SetTitle(L"Desk lamp");
    lamp->SetVolts(static_cast<unsigned short>(230));

    auto* payment = new CPayment;
    order.SetPayment(payment);
    payment->GetVoucher().Add(L"V-000123");
}

ZrXmlLib16::CSerializationContext ReadablePrefixes()
{
    ZrXmlLib16::CSerializationContext context;
    context.SetDefaultNamespaceURI(NAMESPACE);
    context.GetNamespaceAliases().Add(L"xsi", L"http://www.w3.org/2001/XMLSchema-instance");
    return context;
}

} // namespace Orders
