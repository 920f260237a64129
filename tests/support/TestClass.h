// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_TESTCLASS_H
#define TESTS_SUPPORT_TESTCLASS_H

#include "ZrXmlLib16/ZrXmlLib16.h"

#include <string>
#include <vector>

namespace TestSupport {

class TestObject;

enum class RecordKind { Prim, Enum, Cls, AbsCls, Plain, Attr, EnumAttr, AnyAttr, Untyped, Value };
enum class Occurs { Mandatory, Optional, Collection };

/// One property of a dynamic class: a child element, an attribute or the simple content.
struct PropertySpec {
    RecordKind kind = RecordKind::Prim;
    std::wstring name;
    std::wstring namespaceUri;
    Occurs occurs = Occurs::Mandatory;
    ZrXmlLib16::ItemType itemType = ZrXmlLib16::ItemType_none;
    int classId = -1;
    bool nillable = false;
    bool createInline = false;
    bool held = false;
    ZrXmlLib16::CPrimitiveRestrictions facets;
    std::wstring format;
    std::wstring defaultValue;
    ZrXmlLib16::CWhitespaceUtils::WhitespaceRule rule = ZrXmlLib16::CWhitespaceUtils::Rule_None;
    std::wstring wildcard;
    int minOccurs = 0;
    int maxOccurs = -1;
};

/// What a generated class would be compiled into. Lives until the program ends, like static tables do.
struct ClassData {
    int id = 0;
    std::wstring typeName;
    std::wstring namespaceUri;
    ZrXmlLib16Data::XmlElementGroupType group = ZrXmlLib16Data::XmlElementGroup_Sequence;
    ZrXmlLib16Data::XmlElementType elementType = ZrXmlLib16Data::XmlElementType_Element;
    bool rejectUnknown = true;
    bool allowType = false;
    bool nillable = false;
    bool unparsed = false;
    std::vector<PropertySpec> properties;
    ZrXmlLib16Data::CParentElementInfo* info = nullptr;
    std::vector<ZrXmlLib16Data::CElementInfo*> elements;
    std::vector<ZrXmlLib16Data::CAttributeInfo*> attributes;

    ~ClassData();
    void BuildTables();
    int IndexOf(const std::wstring& property) const;
};

/// Handle and builder of a dynamic class: Class(L"order").Prim(L"qty", ItemType_i4).Opt().Attr(L"id",
/// ItemType_string).Required(). A new class is a sequence written as an element of its own; Opt, Default and the like
/// change the property that was added last. Elements are mandatory and attributes optional unless told otherwise.
class TestClass {
public:
    explicit TestClass(const wchar_t* typeName);
    static TestClass ById(int classId);

    TestClass& GroupType(int value)
    {
        return With(m_data->group, static_cast<ZrXmlLib16Data::XmlElementGroupType>(value));
    }
    TestClass& Choice() { return GroupType(ZrXmlLib16Data::XmlElementGroup_Choice); }
    TestClass& All() { return GroupType(ZrXmlLib16Data::XmlElementGroup_All); }
    TestClass& Pseudo() { return With(m_data->elementType, ZrXmlLib16Data::XmlElementType_PseudoElement); }
    TestClass& Group() { return With(m_data->elementType, ZrXmlLib16Data::XmlElementType_Group); }
    TestClass& In(const wchar_t* namespaceUri) { return With(m_data->namespaceUri, namespaceUri); }
    TestClass& Nil() { return With(m_data->nillable, true); }
    TestClass& AnyAttributes() { return With(m_data->rejectUnknown, false); }
    TestClass& TypeAttribute() { return With(m_data->allowType, true); }

    TestClass& Prim(const wchar_t* name, ZrXmlLib16::ItemType type = ZrXmlLib16::ItemType_string)
    {
        return Add(RecordKind::Prim, name, type);
    }
    TestClass& Enum(const wchar_t* name) { return Add(RecordKind::Enum, name); }
    TestClass& Cls(const wchar_t* name, TestClass child) { return Add(RecordKind::Cls, name).Holds(child); }
    TestClass& AbsCls(const wchar_t* name) { return Add(RecordKind::AbsCls, name); }
    TestClass& Plain(const wchar_t* name, TestClass item) { return Add(RecordKind::Plain, name).Holds(item).Col(); }
    /// A wildcard, or with a name an untyped element of that name.
    TestClass& Any(const wchar_t* wildcard, const wchar_t* name = L"AnyElement");
    TestClass& Attr(const wchar_t* name, ZrXmlLib16::ItemType type = ZrXmlLib16::ItemType_string)
    {
        return Add(RecordKind::Attr, name, type).Opt();
    }
    TestClass& EnumAttr(const wchar_t* name) { return Add(RecordKind::EnumAttr, name).Opt(); }
    TestClass& AnyAttr(const wchar_t* name, const wchar_t* wildcard);
    TestClass& Value(ZrXmlLib16::ItemType type, const wchar_t* format = L"", bool unparsed = false);

    TestClass& Opt() { return With(Last().occurs, Occurs::Optional); }
    TestClass& Col(int minOccurs = 0, int maxOccurs = -1);
    TestClass& Required() { return With(Last().occurs, Occurs::Mandatory); }
    TestClass& Nillable() { return With(Last().nillable, true); }
    TestClass& Ns(const wchar_t* namespaceUri) { return With(Last().namespaceUri, namespaceUri); }
    TestClass& Default(const wchar_t* text) { return With(Last().defaultValue, text); }
    TestClass& Format(const wchar_t* format) { return With(Last().format, format); }
    TestClass& Rule(ZrXmlLib16::CWhitespaceUtils::WhitespaceRule rule) { return With(Last().rule, rule); }
    TestClass& MaxLength(long units) { return With(Last().facets.m_maxLength, units); }
    TestClass& CreateInline() { return With(Last().createInline, true); }
    TestClass& Held() { return With(Last().held, true); } ///< Init fills the property with a new child

    ClassData& Data() const { return *m_data; }
    ZrXmlLib16::CSmartPtr<TestObject> Create(const wchar_t* elementName = nullptr) const;

private:
    explicit TestClass(ClassData* data)
        : m_data(data)
    {
    }
    template <class Member, class Value> TestClass& With(Member& member, Value value)
    {
        member = value;
        return *this;
    }
    TestClass& Add(RecordKind kind, const wchar_t* name, ZrXmlLib16::ItemType type = ZrXmlLib16::ItemType_none);
    TestClass& Holds(const TestClass& child) { return With(Last().classId, child.m_data->id); }
    PropertySpec& Last() { return m_data->properties.back(); }

    ClassData* m_data;
};

inline TestClass Class(const wchar_t* typeName)
{
    return TestClass(typeName);
}

/// The class of that number; and the class an element of an abstract type stands for: named by xsi:type, else by the
/// element.
ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateById(int classId, const wchar_t* name);
ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateByElement(ZrXmlLib16::CXmlElement* element);

/// The one enumeration of the fixture: red, green, blue are 0, 1, 2. Other numbers give null, other texts
/// CZrInvalidValueException.
const wchar_t* ColourToString(int value);
int StringToColour(const wchar_t* text);

} // namespace TestSupport

#endif
