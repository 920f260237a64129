// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ATTRIBUTEINFO_H
#define ZRXMLLIB16DATA_ATTRIBUTEINFO_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/WhitespaceUtils.h"

#include <string>

namespace ZrXmlLib16 {
class CSerializationContext;
class CXmlAttribute;
class CXmlGeneratedClass;
class CXmlObjectBase;
class CXmlWriter;
class ZrVariant;
}

namespace ZrXmlLib16Data {

using ZrXmlLib16::CPrimitiveRestrictions;
using ZrXmlLib16::CWhitespaceUtils;
using ZrXmlLib16::ItemType;

/// Describes one attribute of a generated class. Like the element records, attribute records move values through the
/// accessor of the class, are built once, are read-only afterwards, and belong to the class.
class ZRXML_API CAttributeInfo {
public:
    /// @param name local name; null texts are empty
    /// @param propertyId index given to the accessor of the generated class
    CAttributeInfo(
        const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional, const wchar_t* defaultValue);

    virtual ~CAttributeInfo();
    /// Writes the attribute of the object onto the element that the writer has open.
    virtual void AttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const = 0;
    /// Stores the attribute in the object when it is this record's.
    /// @return whether it is.
    virtual bool AttributeFromXml(const ZrXmlLib16::CSerializationContext& context,
        ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlAttribute* attribute) = 0;
    /// Called once after all attributes were offered.
    /// @throws CZrValidationException when a required attribute was not found.
    virtual void Validate(const ZrXmlLib16::CSerializationContext& context, bool found) const = 0;

    /// Whether the attribute (may be null) has the name of this record; namespaces count unless the context ignores
    /// them.
    bool IsThisAttribute(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlAttribute* attribute) const;
    /// The wildcard rules of CXmlObjectHelper.
    static bool TestNamespace(const std::wstring& namespaceUri, const std::wstring& namespaceSpecification,
        const std::wstring& targetNamespace);
    /// The wildcard rules of CXmlObjectHelper.
    static bool IsNamespaceValid(const std::wstring& namespaceUri, const std::wstring& namespaceSpecification,
        const std::wstring& targetNamespace);
    /// GetTargetNamespace() of the object.
    static std::wstring GetTargetNamespace(const ZrXmlLib16::CXmlObjectBase* object);
    /// Calls the operation of the same name on the object.
    static void ToXml_Int(const ZrXmlLib16::CXmlObjectBase* object, ZrXmlLib16::CXmlWriter* writer, bool isRoot,
        const wchar_t* namespaceUri, const ZrXmlLib16::CSerializationContext& context);

    CAttributeInfo(const CAttributeInfo&) = delete;
    CAttributeInfo& operator=(const CAttributeInfo&) = delete;

protected:
    /// Calls the accessor; its CZrException is wrapped in a CZrValidationException, on setting with the path of the
    /// attribute.
    void InvokePropertyGet(ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value) const;
    /// The same for storing.
    void InvokePropertySet(ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value,
        const ZrXmlLib16::CXmlAttribute& source) const;
    /// Calls the accessor; its exceptions pass.
    void ReadProperty(const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value) const;

    /// Whether an optional attribute of this text is to be left out because it equals its default.
    bool IsOmittedDefault(const ZrXmlLib16::CSerializationContext& context, const std::wstring& text) const;
    /// Whether the attribute has exactly the name and namespace of this record.
    bool HasName(const ZrXmlLib16::CXmlAttribute& attribute) const;
    /// @throws CZrValidationException unless the attribute was found or is optional.
    void RequireFound(bool found) const;
    /// Local name of the attribute.
    const std::wstring& AttributeName() const;
    /// Namespace of the attribute, empty for none.
    const std::wstring& Namespace() const;
    /// Whether the attribute may be missing.
    bool IsOptional() const;

private:
    std::wstring m_attributeName;
    std::wstring m_namespace;
    int m_propertyId;
    bool m_optional;
    std::wstring m_defaultValue;
};

} // namespace ZrXmlLib16Data

#endif
