// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_ADDRESS_H
#define EXAMPLES_SHARED_ORDERS_ADDRESS_H

#include "ZrXmlLib16/stringCol.h"
#include "shared/orders/Enumerations.h"
#include "shared/orders/OrderObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Orders {

/// An address: an all group, whose elements may come in any order.
class CAddress : public COrderObject {
public:
    explicit CAddress(const wchar_t* elementName);

    /// Mandatory.
    std::optional<Country> GetCountry() const { return m_country; }
    void SetCountry(std::optional<Country> value) { m_country = value; }
    /// 1 to 80 characters. Mandatory.
    const std::optional<std::wstring>& GetName() const { return m_name; }
    void SetName(std::optional<std::wstring> value) { m_name = std::move(value); }
    /// One line or two.
    ZrXmlLib16::CstringCol& GetStreet() const { return *m_street; }
    /// Mandatory.
    const std::optional<std::wstring>& GetCity() const { return m_city; }
    void SetCity(std::optional<std::wstring> value) { m_city = std::move(value); }
    /// 3 to 8 digits, capital letters and blanks.
    const std::optional<std::wstring>& GetPostalCode() const { return m_postalCode; }
    void SetPostalCode(std::optional<std::wstring> value) { m_postalCode = std::move(value); }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Country, Property_Name, Property_Street, Property_City, Property_PostalCode };
    struct Tables;
    static Tables& GetTables();

    std::optional<Country> m_country;
    std::optional<std::wstring> m_name;
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CstringCol> m_street;
    std::optional<std::wstring> m_city;
    std::optional<std::wstring> m_postalCode;
};

} // namespace Orders

#endif
