// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_ITEM_H
#define EXAMPLES_SHARED_ORDERS_ITEM_H

#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/Decimal.h"
#include "shared/orders/Enumerations.h"
#include "shared/orders/Product.h"

#include <optional>
#include <utility>

namespace Orders {

/// One line of an order.
class CItem : public COrderObject {
public:
    explicit CItem(const wchar_t* elementName = L"item");

    /// Mandatory.
    std::optional<long> GetLine() const { return m_line; }
    void SetLine(std::optional<long> value) { m_line = value; }
    /// Of the price; EUR when it is not said.
    std::optional<Currency> GetCurrency() const { return m_currency; }
    void SetCurrency(std::optional<Currency> value) { m_currency = value; }
    /// Not null in a complete item.
    CProduct* GetProduct() const { return m_product; }
    void SetProduct(CProduct* value);
    /// 1 to 999. Mandatory.
    std::optional<unsigned short> GetQuantity() const { return m_quantity; }
    void SetQuantity(std::optional<unsigned short> value) { m_quantity = value; }
    /// Two decimal places. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetPrice() const { return m_price; }
    void SetPrice(std::optional<ZrXmlLib16::CDecimal> value) { m_price = std::move(value); }
    /// A date.
    const std::optional<ZrXmlLib16::CDateTime>& GetShipDate() const { return m_shipDate; }
    void SetShipDate(std::optional<ZrXmlLib16::CDateTime> value) { m_shipDate = std::move(value); }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property {
        Property_Line,
        Property_Currency,
        Property_Product,
        Property_Quantity,
        Property_Price,
        Property_ShipDate
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<long> m_line;
    std::optional<Currency> m_currency;
    ZrXmlLib16::CSmartPtr<CProduct> m_product;
    std::optional<unsigned short> m_quantity;
    std::optional<ZrXmlLib16::CDecimal> m_price;
    std::optional<ZrXmlLib16::CDateTime> m_shipDate;
};

} // namespace Orders

#endif
