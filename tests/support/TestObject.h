// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_TESTOBJECT_H
#define TESTS_SUPPORT_TESTOBJECT_H

#include "support/TestClass.h"

#include <functional>
#include <string>
#include <vector>

namespace TestSupport {

class TestCollection;

/// A generated class whose properties are variants and whose tables come from a TestClass. Properties are named by the
/// local name of their element or attribute; the simple content is "#value".
class TestObject : public ZrXmlLib16::CXmlGeneratedClass {
public:
    /// @param elementName null for the type name
    explicit TestObject(const TestClass& type, const wchar_t* elementName = nullptr);

    ZrXmlLib16::ZrVariant& operator[](const wchar_t* property);
    /// Stores a lexical form; an enumeration takes the name of a colour.
    TestObject& Set(const wchar_t* property, const wchar_t* text);
    /// Appends an item to a collection, or sets and returns the child object.
    TestObject* Add(const wchar_t* property, const TestClass* derived = nullptr);
    TestObject* Child(const wchar_t* property);
    TestCollection* Collection(const wchar_t* property);
    ZrXmlLib16::CAttributeCol* Attributes(const wchar_t* property);
    ZrXmlLib16::CElementCol* Elements(const wchar_t* property);

    std::wstring GetNamespace() const override { return m_type.namespaceUri; }
    std::wstring GetTargetNamespace() const override { return m_type.namespaceUri; }

    /// Called before every property access; throws to make the access fail.
    std::function<void(const std::wstring& property, bool read)> m_onAccess;
    int m_initCount = 0;

    using CXmlGeneratedClass::FromXml_Int;
    using CXmlGeneratedClass::ToXml_Int;
    using CXmlObjectBase::DoesElementNameMatch;

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override { return m_type.info; }
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override { return m_type.elements.data(); }
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override { return m_type.attributes.data(); }
    void Init() override;

private:
    friend std::wstring DescribeObject(const TestObject& object);

    ClassData& m_type;
    std::vector<ZrXmlLib16::ZrVariant> m_values;
};

class NillableTestObject : public TestObject, public ZrXmlLib16::INillable {
public:
    using TestObject::TestObject;
    bool IsNil() const override { return m_isNil; }
    void SetNil(bool isNil) override { m_isNil = isNil; }

protected:
    void Init() override;

private:
    bool m_isNil = false;
};

/// Creates items of one class, or of the class that the element stands for when the item class is null.
class TestCollection : public ZrXmlLib16::CXmlCollection {
public:
    TestCollection(const wchar_t* name, const wchar_t* uri, int minOccurs, int maxOccurs, ClassData* itemClass)
        : CXmlCollection(name, uri, minOccurs, maxOccurs)
        , m_itemClass(itemClass)
    {
    }
    TestObject* Item(int index) const { return static_cast<TestObject*>(GetNodeAtIndex(index)->GetItem()); }

protected:
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateItem(ZrXmlLib16::CXmlElement* element) override;
    ZrXmlLib16Data::XmlElementType GetItemElementType() const override;

private:
    ClassData* m_itemClass;
};

/// All properties that hold something, in order: name{qty=5,item=[item{},item{}],id=nil}.
std::wstring DescribeObject(const TestObject& object);

/// A class with every item type as element and as attribute, every kind of record and occurrence, a sequence, a choice,
/// an all group and both inline forms.
TestClass SampleClass();
void FillSample(TestObject& object);
/// Fails the test when the object is not what FillSample makes.
void CheckSample(const TestObject& object);

} // namespace TestSupport

#endif
