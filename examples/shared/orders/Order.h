// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_ORDER_H
#define EXAMPLES_SHARED_ORDERS_ORDER_H

#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/stringCol.h"
#include "shared/ObjectCollection.h"
#include "shared/PropertyAccess.h"
#include "shared/orders/Address.h"
#include "shared/orders/Contact.h"
#include "shared/orders/Gift.h"
#include "shared/orders/Item.h"
#include "shared/orders/Payment.h"

#include <optional>
#include <utility>

namespace Orders {

/// A purchase order: the root of a document.
class COrder : public COrderObject {
public:
    explicit COrder(const wchar_t* elementName = L"order");

    /// Mandatory.
    std::optional<unsigned long> GetNumber() const { return m_number; }
    void SetNumber(std::optional<unsigned long> value) { m_number = value; }
    std::optional<OrderStatus> GetStatus() const { return m_status; }
    void SetStatus(std::optional<OrderStatus> value) { m_status = value; }
    /// When it was placed. Mandatory.
    const std::optional<ZrXmlLib16::CDateTime>& GetPlaced() const { return m_placed; }
    void SetPlaced(std::optional<ZrXmlLib16::CDateTime> value) { m_placed = std::move(value); }
    /// Not null in a complete order.
    CAddress* GetShipTo() const { return m_shipTo; }
    void SetShipTo(CAddress* value);
    /// May be null.
    CAddress* GetBillTo() const { return m_billTo; }
    void SetBillTo(CAddress* value);
    /// May be null.
    CContact* GetContact() const { return m_contact; }
    void SetContact(CContact* value);
    /// Words to search by, at most three.
    ZrXmlLib16::CstringCol& GetTag() const { return *m_tag; }
    /// May be nil when it is written; absent when it was read as nil.
    const Shared::Nillable<std::wstring>& GetComment() const { return m_comment; }
    void SetComment(Shared::Nillable<std::wstring> value) { m_comment = std::move(value); }
    /// One or more.
    Shared::CObjectCollection<CItem>& GetItem() const { return *m_item; }
    /// Not null in a complete order.
    CPayment* GetPayment() const { return m_payment; }
    void SetPayment(CPayment* value);
    /// May be null.
    CGift* GetGift() const { return m_gift; }
    void SetGift(CGift* value);

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property {
        Property_Number,
        Property_Status,
        Property_Placed,
        Property_ShipTo,
        Property_BillTo,
        Property_Contact,
        Property_Tag,
        Property_Comment,
        Property_Item,
        Property_Payment,
        Property_Gift
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<unsigned long> m_number;
    std::optional<OrderStatus> m_status;
    std::optional<ZrXmlLib16::CDateTime> m_placed;
    ZrXmlLib16::CSmartPtr<CAddress> m_shipTo;
    ZrXmlLib16::CSmartPtr<CAddress> m_billTo;
    ZrXmlLib16::CSmartPtr<CContact> m_contact;
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CstringCol> m_tag;
    Shared::Nillable<std::wstring> m_comment;
    ZrXmlLib16::CSmartPtr<Shared::CObjectCollection<CItem>> m_item;
    ZrXmlLib16::CSmartPtr<CPayment> m_payment;
    ZrXmlLib16::CSmartPtr<CGift> m_gift;
};

} // namespace Orders

#endif
