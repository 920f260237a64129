// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_PURCHASEORDER_H
#define ZRXML_BENCHMARKS_PURCHASEORDER_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/Decimal.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"

#include <optional>
#include <string>

/// Classes of a purchase-order schema, written by hand in the shape in which a generator emits them: one class per
/// complex type, every property reached through AccessProperty, tables built once. A property without a value is an
/// empty optional or a null pointer; collections always exist.
namespace PurchaseOrders {

constexpr wchar_t namespaceUri[] = L"urn:example:purchase-orders";

enum class OrderStatus : int { Open, Packed, Shipped, Cancelled };
enum class Country : int { AT, CH, DE, FR, GB, US };
enum class WeightUnit : int { Gram, Kilogram, Pound };

/// Base of the classes of this schema.
class SchemaType : public ZrXmlLib16::CXmlGeneratedClass {
public:
    std::wstring GetNamespace() const override { return namespaceUri; }
    std::wstring GetTargetNamespace() const override { return namespaceUri; }

protected:
    explicit SchemaType(const wchar_t* elementName) { SetElementName(elementName); }

    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
};

/// Collection of generated objects of one class.
template <class Item> class Collection : public ZrXmlLib16::CXmlCollection {
public:
    using CXmlCollection::CXmlCollection;

protected:
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateItem(ZrXmlLib16::CXmlElement* element) override
    {
        return new Item(element->GetLocalName().c_str());
    }
};

class Address : public SchemaType {
public:
    explicit Address(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Country, Property_Name, Property_Street, Property_City, Property_PostalCode };

    std::optional<Country> m_country;
    std::optional<std::wstring> m_name;
    std::optional<std::wstring> m_street;
    std::optional<std::wstring> m_city;
    std::optional<unsigned long> m_postalCode;
};

/// Simple content: a number with a unit.
class Weight : public SchemaType {
public:
    explicit Weight(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Value, Property_Unit };

    std::optional<double> m_value;
    std::optional<WeightUnit> m_unit;
};

/// Simple content: a text with an optional language.
class Note : public SchemaType {
public:
    explicit Note(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Value, Property_Language };

    std::optional<std::wstring> m_value;
    std::optional<std::wstring> m_language;
};

class Item : public SchemaType {
public:
    explicit Item(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property : int {
        Property_PartNumber,
        Property_Line,
        Property_ProductName,
        Property_Quantity,
        Property_Price,
        Property_ShipDate,
        Property_Weight
    };

    std::optional<std::wstring> m_partNumber;
    std::optional<long> m_line;
    std::optional<std::wstring> m_productName;
    std::optional<unsigned short> m_quantity;
    std::optional<ZrXmlLib16::CDecimal> m_price;
    std::optional<ZrXmlLib16::CDateTime> m_shipDate;
    ZrXmlLib16::CSmartPtr<Weight> m_weight;
};

class Card : public SchemaType {
public:
    explicit Card(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Number, Property_Expires };

    std::optional<std::wstring> m_number;
    std::optional<ZrXmlLib16::CDateTime> m_expires;
};

class Transfer : public SchemaType {
public:
    explicit Transfer(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Account, Property_Signature };

    std::optional<std::wstring> m_account;
    std::optional<ZrXmlLib16::CBinaryData> m_signature;
};

class Invoice : public SchemaType {
public:
    explicit Invoice(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Terms, Property_Contact };

    std::optional<ZrXmlLib16::CDateTimeSpan> m_terms;
    std::optional<std::wstring> m_contact;
};

/// A choice: at most one of the members is set.
class Payment : public SchemaType {
public:
    explicit Payment(const wchar_t* elementName)
        : SchemaType(elementName)
    {
    }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Card, Property_Transfer, Property_Invoice };

    ZrXmlLib16::CSmartPtr<Card> m_card;
    ZrXmlLib16::CSmartPtr<Transfer> m_transfer;
    ZrXmlLib16::CSmartPtr<Invoice> m_invoice;
};

class Order : public SchemaType {
public:
    explicit Order(const wchar_t* elementName);

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property : int {
        Property_Number,
        Property_PlacedAt,
        Property_Status,
        Property_Confirmed,
        Property_ShipTo,
        Property_BillTo,
        Property_Comment,
        Property_Items,
        Property_Notes,
        Property_Total,
        Property_Payment
    };

    std::optional<unsigned long> m_number;
    std::optional<ZrXmlLib16::CDateTime> m_placedAt;
    std::optional<OrderStatus> m_status;
    std::optional<bool> m_confirmed;
    ZrXmlLib16::CSmartPtr<Address> m_shipTo;
    ZrXmlLib16::CSmartPtr<Address> m_billTo;
    std::optional<std::wstring> m_comment;
    ZrXmlLib16::CSmartPtr<Collection<Item>> m_items;
    ZrXmlLib16::CSmartPtr<Collection<Note>> m_notes;
    std::optional<ZrXmlLib16::CDecimal> m_total;
    ZrXmlLib16::CSmartPtr<Payment> m_payment;
};

/// Root of the document.
class OrderList : public SchemaType {
public:
    OrderList();

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property : int { Property_Orders };

    ZrXmlLib16::CSmartPtr<Collection<Order>> m_orders;
};

} // namespace PurchaseOrders

#endif
