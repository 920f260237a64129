// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_PAYMENT_H
#define EXAMPLES_SHARED_ORDERS_PAYMENT_H

#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/stringCol.h"
#include "shared/orders/OrderObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Orders {

/// A card to pay with.
class CCard : public COrderObject {
public:
    explicit CCard(const wchar_t* elementName = L"card");

    /// 12 to 19 digits. Mandatory.
    const std::optional<std::wstring>& GetNumber() const { return m_number; }
    void SetNumber(std::optional<std::wstring> value) { m_number = std::move(value); }
    /// Last month of use. Mandatory.
    const std::optional<ZrXmlLib16::CDateTime>& GetExpires() const { return m_expires; }
    void SetExpires(std::optional<ZrXmlLib16::CDateTime> value) { m_expires = std::move(value); }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property { Property_Number, Property_Expires };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_number;
    std::optional<ZrXmlLib16::CDateTime> m_expires;
};

/// How an order is paid: a choice, which may be empty because some of its alternatives are optional. Setting one
/// alternative, or adding to its collection, unsets the others.
class CPayment : public COrderObject {
public:
    explicit CPayment(const wchar_t* elementName = L"payment");

    /// May be null.
    CCard* GetCard() const { return m_card; }
    void SetCard(CCard* value);
    /// Numbers of vouchers, one to three of them.
    ZrXmlLib16::CstringCol& GetVoucher();
    /// Whether an invoice will follow.
    std::optional<bool> GetOnAccount() const { return m_onAccount; }
    void SetOnAccount(std::optional<bool> value);

    /// Hears of new vouchers.
    void OnEvent(ZrXmlLib16::CXmlObjectBase* sender, MsgType type, void* data) override;

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property { Property_Card, Property_Voucher, Property_OnAccount };
    struct Tables;
    static Tables& GetTables();

    ZrXmlLib16::CSmartPtr<CCard> m_card;
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlCollectionBase> m_voucher;
    std::optional<bool> m_onAccount;
};

} // namespace Orders

#endif
