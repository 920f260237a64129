// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFO_H
#define ZRXMLLIB16DATA_ELEMENTINFO_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16Data/XmlElementType.h"

#include <memory>
#include <string>

namespace ZrXmlLib16 {
class CSerializationContext;
class CXmlCollectionBase;
class CXmlElement;
class CXmlGeneratedClass;
class CXmlObjectBase;
class CXmlWriter;
class ZrVariant;
struct NamespaceRule;
}

namespace ZrXmlLib16Data {

using ZrXmlLib16::CPrimitiveRestrictions;
using ZrXmlLib16::CWhitespaceUtils;
using ZrXmlLib16::ItemType;

class CRecordAccess;

/// Generated converters between an enumeration value and its lexical form. The first returns null for an unknown value,
/// the second throws for an unknown text.
typedef const wchar_t* (*EnumToString)(int value);
/// The other converter; see EnumToString.
typedef int (*StringToEnum)(const wchar_t* text);
/// Generated factories: a new object of a class, and the object that an element stands for (null for none).
typedef ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> (*ClassFactory)(int classId, const wchar_t* name);
/// The factory for elements whose class is not fixed; see ClassFactory.
typedef ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> (*AbstractClassFactory)(ZrXmlLib16::CXmlElement* element);

/// What the class-valued records keep beside the base fields.
struct CClassRecordData {
    XmlElementType childType; ///< how the child is represented
    ClassFactory factory;     ///< makes the child; null for none, which is an error when a child has to be made
    int classId;              ///< first argument of the factory
    bool createInline; ///< whether a content-only child is created by the factory rather than taken from the property
};

/// What the records of abstract classes keep beside the base fields.
struct CAbstractClassRecordData {
    XmlElementType childType;     ///< how the child is represented
    AbstractClassFactory factory; ///< makes the child that an element stands for; not null
};

/// Describes one child element, or one alternative of a choice, of a generated class: name, type, facets, and how it is
/// written and read. The concrete record spells group, kind of content and occurrence in its name
/// (CElementInfoSeqPrimMnd ...).
///
/// A record never touches the members of an object: it moves values through the accessor of the generated class.
/// Records are built once per class, are read-only afterwards, may be used by any number of threads, and belong to the
/// class.
class ZRXML_API CElementInfo {
public:
    /// For class-valued elements and collections.
    /// @param name local name; null texts are empty, here and below
    /// @param propertyId index given to the accessor of the generated class
    CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    /// For enumerated elements.
    CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool nillable,
        EnumToString enumToString, StringToEnum stringToEnum, const wchar_t* defaultValue);
    /// For primitive elements. The restrictions are copied.
    CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool nillable, ItemType itemType,
        const wchar_t* numberFormat, CWhitespaceUtils::WhitespaceRule rule, const CPrimitiveRestrictions& restrictions,
        const wchar_t* defaultValue);

    virtual ~CElementInfo();
    /// Writes the element for the object.
    /// @return whether something was written.
    virtual bool ElementToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const = 0;
    /// Consumes zero or more elements, starting at *current (null: none left), and moves *current past them.
    /// @param defaultNamespace target namespace of the object
    /// @param elementType how the object itself is represented: unless it is an element of its own, failing is no error
    /// @return whether the record is satisfied.
    virtual bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context,
        ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current,
        const wchar_t* defaultNamespace, XmlElementType elementType) = 0;
    /// Whether the element may be absent or was found. Only the records of an all group have an answer; the others
    /// throw.
    virtual bool Validate(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, bool found, bool check) const;
    /// Writes the attributes that a content-only child puts onto its parent's element.
    virtual void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const;

    /// Whether the element (may be null) has the name of this record, under the settings of the context.
    bool IsThisElement(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlElement* element) const;
    /// @throws CZrException for the first facet that the value violates, and for a record that has no facets.
    void CheckRestriction(const ZrXmlLib16::ZrVariant& value) const;
    /// The namespace that an element captured by a wildcard starts with.
    static std::wstring GetAnyDefaultNamespace(
        const wchar_t* namespaceSpecification, const wchar_t* currentDefault, const wchar_t* targetNamespace);

    /// Index given to the accessor of the generated class.
    int GetPropertyId() const;
    /// Local name of the element.
    const std::wstring& GetElementName() const;
    /// Namespace of the element, empty for none.
    const std::wstring& GetNamespace() const;
    /// Whether the property is a collection, which consumes any number of elements.
    bool IsCollection() const;
    /// Whether the record claims elements by its own name; those of content-only children and of wildcards do not.
    bool IsMatchedByName() const;
    /// Whether the child, or the item of the collection, has no element of its own.
    bool IsInline() const;
    /// Whether the element (may be null) is one for this record: by its name, by the namespaces of the wildcard, or by
    /// both. A content-only child claims no element as a whole. The namespaces of a repeated wildcard are known to its
    /// collection only.
    bool Claims(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlElement* element) const;

    CElementInfo(const CElementInfo&) = delete;
    CElementInfo& operator=(const CElementInfo&) = delete;

protected:
    /// Calls the accessor; its CZrException is wrapped in a CZrValidationException, on setting with the path of the
    /// source element.
    void InvokePropertyGet(ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value) const;
    /// The same for storing.
    void InvokePropertySet(ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value,
        const ZrXmlLib16::CXmlElement& source) const;
    /// Calls the accessor; its exceptions pass.
    void ReadProperty(const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value) const;
    /// Call the operation of the same name on the child.
    ZrXmlLib16::CXmlElement* FromXml_Int(ZrXmlLib16::CXmlObjectBase* child, ZrXmlLib16::CXmlElement* element,
        ZrXmlLib16::CXmlElement* firstChild, const ZrXmlLib16::CSerializationContext& context, bool isOptional);
    /// Calls the operation of the same name on the child.
    void AttributesToXml_Int(const ZrXmlLib16::CXmlObjectBase* object, ZrXmlLib16::CXmlWriter* writer,
        const ZrXmlLib16::CSerializationContext& context) const;
    /// @{
    /// Write the element with a value of that kind. @return whether something was written.
    bool ElementToXmlPrim(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const;
    bool ElementToXmlEnum(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer, EnumToString enumToString) const;
    bool ElementToXmlCls(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer, bool isOptional) const;
    bool ElementToXmlCol(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const;
    /// @}
    /// @{
    /// Read *current, which the caller has matched, and move it to the next sibling.
    void ElementFromXmlPrim(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement** current);
    void ElementFromXmlEnum(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement** current);
    /// @}

    /// Constructors of derived records say here what the questions above answer.
    void MarkAsCollection();
    /// Whether the child has no element of its own: IsInline.
    void MarkChildType(XmlElementType childType);
    /// For untyped elements. One that is named "AnyElement" is a wildcard, which accepts any name.
    void MarkAsUntyped();
    void MarkAsUntyped(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);

    friend class CRecordAccess;

private:
    void WriteElement(ZrXmlLib16::CXmlWriter* writer, const std::wstring& text, ItemType type, bool isDefault) const;
    bool WriteItems(const ZrXmlLib16::CXmlCollectionBase* collection, const ZrXmlLib16::CSerializationContext& context,
        ZrXmlLib16::CXmlWriter* writer) const;
    bool WriteNilElement(ZrXmlLib16::CXmlWriter* writer) const;
    bool ReadNilAttributes(
        const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlElement& element) const;

    std::wstring m_elementName;
    std::wstring m_namespace;
    int m_propertyId;
    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::wstring m_numberFormat;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;
    std::wstring m_defaultValue;
    bool m_nillable;
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
    bool m_hasRestrictions;
    bool m_hasFacets;
    bool m_isCollection;
    bool m_isInline;
    bool m_isUntyped;
    bool m_isWildcard;
    std::shared_ptr<const ZrXmlLib16::NamespaceRule> m_namespaceRule; // of an untyped element
};

} // namespace ZrXmlLib16Data

#endif
