// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_GIFT_H
#define EXAMPLES_SHARED_ORDERS_GIFT_H

#include "ZrXmlLib16/INillable.h"
#include "shared/orders/OrderObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Orders {

/// A gift, with the text of its card: a class with simple content, which may be nil (without a card).
class CGift : public COrderObject, public ZrXmlLib16::INillable {
public:
    explicit CGift(const wchar_t* elementName = L"gift");

    bool IsNil() const override { return m_isNil; }
    void SetNil(bool isNil) override { m_isNil = isNil; }
    /// The text of the element.
    const std::optional<std::wstring>& GetValue() const { return m_value; }
    void SetValue(std::optional<std::wstring> value) { m_value = std::move(value); }
    /// Who gives it.
    const std::optional<std::wstring>& GetFrom() const { return m_from; }
    void SetFrom(std::optional<std::wstring> value) { m_from = std::move(value); }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Value, Property_From };
    struct Tables;
    static Tables& GetTables();

    bool m_isNil = false;
    std::optional<std::wstring> m_value;
    std::optional<std::wstring> m_from;
};

} // namespace Orders

#endif
