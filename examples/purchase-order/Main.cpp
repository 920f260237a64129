// SPDX-License-Identifier: MIT
// Builds, writes, reads and changes a purchase order: sequence, choice and all group, mandatory, optional and repeated
// elements, nil, an abstract type, enumerations, attributes, defaults and facets. The classes are in shared/orders/.
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/Utf8.h"
#include "shared/orders/SampleOrder.h"

#include <cstdio>

using namespace Orders;
using ZrXmlLib16::CZrException;
using ZrXmlLib16::ToUtf8;

namespace {

/// Everything that FillOrder leaves out because it is optional.
void AddOptionalParts(COrder& order)
{
    order.SetStatus(OrderStatus::Packed);
    order.GetTag().Add(L"gift");
    order.GetTag().Add(L"express");
    order.SetComment({std::nullopt, true}); // nil
    CItem& lamp = order.GetItem().GetAt(1);
    lamp.SetCurrency(Currency::GBP);
    lamp.SetShipDate(ZrXmlLib16::CDateTime(2026, 3, 12));
    auto* gift = new CGift;
    order.SetGift(gift);
    gift->SetFrom(L"Anna");
    gift->SetNil(true);
}

void PrintItem(const CItem& item)
{
    const CProduct& product = *item.GetProduct();
    std::printf("  line %ld: %u x %s at %s %s", *item.GetLine(), static_cast<unsigned>(*item.GetQuantity()),
        ToUtf8(*product.GetTitle()).c_str(), ToUtf8(item.GetPrice()->ToString(L"")).c_str(),
        ToUtf8(CURRENCY_TEXTS[static_cast<int>(*item.GetCurrency())]).c_str());
    if (const auto* book = dynamic_cast<const CBook*>(&product)) {
        std::printf(", a book by %d authors", book->GetAuthor().GetCount());
    } else if (const auto* device = dynamic_cast<const CDevice*>(&product)) {
        std::printf(", a device for %u V", static_cast<unsigned>(device->GetVolts().value_or(0)));
    }
    std::printf("\n");
}

void PrintPayment(CPayment& payment)
{
    std::printf("  card %s, vouchers %d, on account %s\n", payment.GetCard() ? "set" : "unset",
        payment.GetVoucher().GetCount(), payment.GetOnAccount() ? "set" : "unset");
}

void ReadBack(const std::string& document)
{
    std::printf("\nRead again:\n");
    COrder order;
    ReadXml(order, document);
    for (const CItem* item : order.GetItem()) {
        PrintItem(*item);
    }
    std::printf("  the gift, an object, is %s; the comment, a mere value, was nil and is %s\n",
        order.GetGift()->IsNil() ? "nil" : "not nil", order.GetComment().isNil ? "nil" : "absent");

    std::printf("\nA choice holds one alternative at most:\n");
    CPayment& payment = *order.GetPayment();
    PrintPayment(payment);
    payment.SetOnAccount(true);
    PrintPayment(payment);
    payment.GetVoucher().Add(L"V-000777");
    PrintPayment(payment);
}

/// Runs an action that breaks a rule of the schema and prints what is said about it.
template <class Action> void Try(const char* title, Action action)
{
    try {
        action();
        std::printf("\n%s: accepted\n", title);
    } catch (const CZrException& exception) {
        std::printf("\n%s:\n%s\n", title, FormatReport(exception).c_str());
    }
}

void BreakRules(COrder& order)
{
    CItem& item = order.GetItem().GetAt(0);
    item.SetQuantity(static_cast<unsigned short>(1000));
    Try("A quantity of 1000, which the facets forbid, on writing", [&] { WriteXml(order); });
    item.SetQuantity(static_cast<unsigned short>(2));

    Try("A voucher that does not match its pattern, when it is added",
        [&] { order.GetPayment()->GetVoucher().Add(L"V-12"); });

    order.GetTag().Add(L"third");
    order.GetTag().Add(L"fourth");
    Try("A fourth tag, where three are allowed", [&] { WriteXml(order); });
    order.GetTag().Clear();

    std::string document = WriteXml(order, {}, ReadablePrefixes());
    document.replace(document.find("\"GBP\""), 5, "\"ATS\"");
    Try("A currency that the enumeration does not have, on reading", [&] { ReadXml(order, document); });
}

} // namespace

int main()
{
    try {
        COrder order;
        FillOrder(order);
        AddOptionalParts(order);
        const std::string document = WriteXml(order, {}, ReadablePrefixes());
        std::printf("%s", document.c_str());
        ReadBack(document);
        BreakRules(order);
        return 0;
    } catch (const CZrException& exception) {
        std::fprintf(stderr, "%s\n", FormatReport(exception).c_str());
        return 1;
    }
}
