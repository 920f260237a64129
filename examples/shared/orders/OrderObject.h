// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_ORDEROBJECT_H
#define EXAMPLES_SHARED_ORDERS_ORDEROBJECT_H

#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "shared/Generator.h"

#include <string>

namespace Orders {

/// Target namespace of the schema.
constexpr wchar_t NAMESPACE[] = L"urn:example:orders";

/// Base of the classes of a purchase order, which have the shape that a code generator gives to the complex types of a
/// schema: one class per type, each property an optional value that AccessProperty reaches by its index, and one table
/// of records, made on first use, that says what the elements and attributes are.
///
/// Unset properties are empty optionals or null objects; collections always exist.
class COrderObject : public ZrXmlLib16::CXmlGeneratedClass {
public:
    std::wstring GetNamespace() const override { return NAMESPACE; }
    std::wstring GetTargetNamespace() const override { return NAMESPACE; }

    COrderObject(const COrderObject&) = delete;
    COrderObject& operator=(const COrderObject&) = delete;

protected:
    explicit COrderObject(const wchar_t* elementName)
    {
        Shared::RegisterGenerator();
        SetElementName(elementName);
    }
    /// For classes without elements, and for those without attributes.
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override { return nullptr; }
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override { return nullptr; }
};

} // namespace Orders

#endif
