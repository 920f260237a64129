// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLGENERATEDCLASS_H
#define ZRXMLLIB16_XMLGENERATEDCLASS_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "ZrXmlLib16Data/XmlElementType.h"

#include <memory>

namespace ZrXmlLib16Data {
class CElementInfo;
class CParentElementInfo;
class CRecordAccess;
}

namespace ZrXmlLib16 {

class CChoiceCollections;
class CSeenFlags;
class CXmlAttribute;
class ZrVariant;

/// Base of every generated complex-type class.
///
/// A generated class answers three questions about itself (its class record and its two null-terminated lists of
/// records) and gives access to its properties by index; the two walks of this class do the rest. They keep no state of
/// their own between calls but the two results of the last read below. Metadata is built once per class, is read-only,
/// and belongs to the generated class.
class ZRXML_API CXmlGeneratedClass : public CXmlObjectBase {
public:
    CXmlObjectBase* GetBase() override;
    /// Reads a property into the variant; an unset property leaves it invalid.
    void ReadProperty(int index, ZrVariant& value) const;
    /// Number of element records of the class.
    int GetClassElementInfoCount() const;

protected:
    void AttributesToXml_Int(CXmlWriter* writer, const CSerializationContext& context) const override;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;

    /// Reads a property into the variant, or stores the variant into the property.
    /// Reading an unset property leaves the variant invalid; storing an invalid variant unsets the property.
    virtual void AccessProperty(int index, bool read, ZrVariant& value) = 0;
    /// Not null.
    virtual const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const = 0;
    /// Null-terminated; may be null for a class without elements.
    virtual ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const = 0;
    /// Null-terminated; may be null for a class without attributes.
    virtual ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const = 0;
    /// Puts every property into its initial state; called at the start of every read.
    virtual void Init() = 0;

    /// Attribute records first, then the attributes that content-only children put onto this element.
    void ProcessAttributesToXml(const CSerializationContext& context, ZrXmlLib16Data::CElementInfo** elements,
        ZrXmlLib16Data::CAttributeInfo** attributes, CXmlWriter* writer) const;
    /// Calls every record in its order.
    void ProcessElementSeqToXml(
        const CSerializationContext& context, ZrXmlLib16Data::CElementInfo** elements, CXmlWriter* writer) const;
    /// Calls every record in its order.
    void ProcessElementAllToXml(
        const CSerializationContext& context, ZrXmlLib16Data::CElementInfo** elements, CXmlWriter* writer) const;
    /// Writes the first alternative that is set.
    /// @throws CZrValidationException when none is set and none may be missing.
    void ProcessElementChoiceToXml(const CSerializationContext& context, ZrXmlLib16Data::CElementInfo** elements,
        CXmlWriter* writer, bool isOptional) const;
    /// Whether a choice may be empty: it has an optional alternative, or a collection with a minimum of 0.
    bool DoesElementContainOptionalElements() const;

    /// Offers every attribute to the attribute records, then lets each of these validate itself. @param rejectUnknown
    /// whether an attribute that nobody takes is an error
    void ProcessAttributesFromXml(const CSerializationContext& context, CXmlElement* element, bool rejectUnknown);
    /// @{
    /// Let the element records claim children, starting at the cursor (null: none left).
    /// @return the cursor left over, null when every child was consumed.
    CXmlElement* ProcessElementSeqFromXml(const CSerializationContext& context, CXmlElement* parent,
        CXmlElement* cursor, ZrXmlLib16Data::XmlElementType type);
    CXmlElement* ProcessElementAllFromXml(const CSerializationContext& context, CXmlElement* parent,
        CXmlElement* cursor, ZrXmlLib16Data::XmlElementType type);
    CXmlElement* ProcessElementChoiceFromXml(const CSerializationContext& context, CXmlElement* parent,
        CXmlElement* cursor, ZrXmlLib16Data::XmlElementType type, bool isOptional);
    /// @}
    /// Whether any element record of the class recognises the element.
    bool IsElementInList(const CSerializationContext& context, const CXmlElement* element) const;

    /// @name Choices
    /// Keep at most one alternative of a choice set; called by generated setters, readers and event handlers. An
    /// alternative is unset by storing an invalid variant into its property, or by clearing its collection. Calls that
    /// this gives rise to do nothing.
    /// @{

    /// Unsets every alternative but this one.
    void Choice_SelectElement(int propertyId);
    /// Selects the alternative when it is valid, unsets it when it is not.
    void Choice_SetElementValid(int propertyId, bool valid);
    /// Selects the alternative of a collection that has items.
    void Choice_CollectionChanged(const CXmlCollectionBase* collection, int propertyId);
    /// Makes the object a listener of the collection (may be null) that the property holds now, and of no former one.
    /// Has no effect when it is one already; ends with the object.
    void Choice_Read_Collection(CSmartPtr<CXmlCollectionBase>& collection, int propertyId);
    /// @}

    CXmlGeneratedClass();
    /// The copy listens to no collection.
    CXmlGeneratedClass(const CXmlGeneratedClass& other);
    CXmlGeneratedClass& operator=(const CXmlGeneratedClass& other);
    ~CXmlGeneratedClass() override;

    friend class CXmlCollection;
    friend class ZrXmlLib16Data::CAttributeInfo;
    friend class ZrXmlLib16Data::CElementInfo;
    friend class ZrXmlLib16Data::CRecordAccess;

private:
    void WriteStartTag(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri,
        const CSerializationContext& context, bool isOptional) const;
    void WriteContent(CXmlWriter* writer, const CSerializationContext& context, bool isOptional) const;
    void WriteSimpleContent(CXmlWriter* writer) const;
    CXmlElement* ReadContent(const ZrXmlLib16Data::CParentElementInfo& info, CXmlElement* element, CXmlElement* cursor,
        const CSerializationContext& context, bool isOptional);
    void ReadNilAttribute(const CXmlElement& element, const CXmlAttribute& attribute);
    void TakeElementName(const NameText& name);
    void ReadSimpleContent(const ZrXmlLib16Data::CParentElementInfo& info, const CXmlElement* element);
    CXmlElement* ReadGroup(const ZrXmlLib16Data::CParentElementInfo& info, CXmlElement* element, CXmlElement* cursor,
        const CSerializationContext& context, bool isOptional);
    CXmlElement* ReadSequenceTolerantly(const CSerializationContext& context, ZrXmlLib16Data::CElementInfo** records,
        CXmlElement* parent, CXmlElement* cursor, const wchar_t* target, ZrXmlLib16Data::XmlElementType type);
    CXmlElement* FinishChoice(const CSerializationContext& context, CXmlElement* parent, CXmlElement* entry,
        CXmlElement* cursor, ZrXmlLib16Data::XmlElementType type, bool chosen, bool isOptional);
    bool ValidateAll(const CSerializationContext& context, CXmlElement* parent, const wchar_t* target,
        ZrXmlLib16Data::XmlElementType type, const CSeenFlags& found);
    bool IsChoiceAllowedEmpty(const CSerializationContext& context) const;
    bool IsMatchedByNameOnly() const;
    /// Offers the cursor to a record and commits the movement only when the record is satisfied.
    bool Offer(ZrXmlLib16Data::CElementInfo* record, const CSerializationContext& context, CXmlElement* parent,
        CXmlElement*& cursor, const wchar_t* target, ZrXmlLib16Data::XmlElementType type);
    void UnsetAlternative(const ZrXmlLib16Data::CElementInfo& record);
    void UnsetAlternatives(int propertyId, bool isProperty);

    // The result of the last read, which tells a content-only object that is absent from one that is legitimately
    // empty.
    bool m_satisfied;
    bool m_touched;
    bool m_isUnsetting;                                      // alternatives of a choice
    std::unique_ptr<CChoiceCollections> m_choiceCollections; // null while there are none
};

} // namespace ZrXmlLib16

#endif
