// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_PRODUCT_H
#define EXAMPLES_SHARED_ORDERS_PRODUCT_H

#include "ZrXmlLib16/stringCol.h"
#include "shared/orders/OrderObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Orders {

/// What is sold: an abstract type. An element of it says with xsi:type which of the derived classes it is.
class CProduct : public COrderObject {
public:
    /// Number in the catalogue, such as "BK-0042". Mandatory.
    const std::optional<std::wstring>& GetNumber() const { return m_number; }
    void SetNumber(std::optional<std::wstring> value) { m_number = std::move(value); }
    /// Mandatory.
    const std::optional<std::wstring>& GetTitle() const { return m_title; }
    void SetTitle(std::optional<std::wstring> value) { m_title = std::move(value); }

protected:
    explicit CProduct(const wchar_t* elementName);
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

    enum Property { Property_Number, Property_Title, Property_FirstOfDerived };
    /// The records of what all products have, which stand first in the tables of the derived classes.
    struct Tables;
    static Tables& GetTables();

private:
    std::optional<std::wstring> m_number;
    std::optional<std::wstring> m_title;
};

class CBook : public CProduct {
public:
    explicit CBook(const wchar_t* elementName = L"product");

    /// Any number of them.
    ZrXmlLib16::CstringCol& GetAuthor() const { return *m_author; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property { Property_Author = Property_FirstOfDerived };
    struct Tables;
    static Tables& GetTables();

    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CstringCol> m_author;
};

class CDevice : public CProduct {
public:
    explicit CDevice(const wchar_t* elementName = L"product");

    /// 12 to 400.
    std::optional<unsigned short> GetVolts() const { return m_volts; }
    void SetVolts(std::optional<unsigned short> value) { m_volts = value; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property { Property_Volts = Property_FirstOfDerived };
    struct Tables;
    static Tables& GetTables();

    std::optional<unsigned short> m_volts;
};

} // namespace Orders

#endif
