// SPDX-License-Identifier: MIT
#include "support/TestObject.h"

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

// Every program that has test objects runs as generated code of the library's own version.
const bool registered = (Register(16, 1, "", "", ""), true);

std::wstring DescribeAttributes(const CAttributeCol& attributes)
{
    std::wstring text;
    for (int i = 0; i < attributes.GetCount(); ++i) {
        const CAttribute* attribute = attributes.Item(i);
        text +=
            (i ? L",{" : L"{") + attribute->GetNamespace() + L"}" + attribute->GetName() + L"=" + attribute->GetValue();
    }
    return text;
}

std::wstring DescribeChild(const CXmlObjectBase& child)
{
    const auto* object = dynamic_cast<const TestObject*>(&child);
    return object ? DescribeObject(*object) : child.ToXml(false, false);
}

std::wstring DescribeCollection(CXmlCollectionBase* collection)
{
    if (const auto* attributes = dynamic_cast<const CAttributeCol*>(collection))
        return DescribeAttributes(*attributes);
    std::wstring text;
    for (auto* node = static_cast<CXmlCollection*>(collection)->GetNodeAtIndex(0); node; node = node->GetNext())
        text += (text.empty() ? L"" : L",") + DescribeChild(*node->GetItem());
    return text;
}

bool IsEnum(const PropertySpec& spec)
{
    return spec.kind == RecordKind::Enum || spec.kind == RecordKind::EnumAttr;
}

std::wstring DescribeValue(const PropertySpec& spec, const ZrVariant& value)
{
    if (value.IsNil())
        return L"nil";
    if (value.GetItemType() == ItemType_object)
        return DescribeChild(*value.GetXmlObject());
    if (value.GetItemType() == ItemType_collection)
        return L"[" + DescribeCollection(value.GetXmlCollection()) + L"]";
    return IsEnum(spec) ? ColourToString(static_cast<int>(value.GetI4())) : value.ToString(L"");
}

bool IsEmpty(const ZrVariant& value)
{
    if (value.IsNil())
        return false;
    if (value.GetItemType() == ItemType_object)
        return !value.GetXmlObject();
    return value.GetItemType() == ItemType_collection ? value.GetXmlCollection()->GetCount() == 0 : !value.IsValid();
}

} // namespace

TestObject::TestObject(const TestClass& type, const wchar_t* elementName)
    : m_type(type.Data())
    , m_values(m_type.properties.size())
{
    m_type.BuildTables();
    SetElementName(elementName ? elementName : m_type.typeName.c_str());
    TestObject::Init();
    m_initCount = 0;
}

void TestObject::Init()
{
    ++m_initCount;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const PropertySpec& spec = m_type.properties[i];
        m_values[i].SetInvalid();
        if (spec.kind == RecordKind::AnyAttr)
            m_values[i].SetXmlCollection(new CAttributeCol(L"", spec.wildcard.c_str(), m_type.namespaceUri.c_str()));
        else if (spec.occurs == Occurs::Collection && spec.kind == RecordKind::Untyped)
            m_values[i].SetXmlCollection(new CElementCol(
                spec.name.c_str(), spec.wildcard.c_str(), m_type.namespaceUri.c_str(), spec.minOccurs, spec.maxOccurs));
        else if (spec.occurs == Occurs::Collection)
            m_values[i].SetXmlCollection(new TestCollection(spec.name.c_str(), spec.namespaceUri.c_str(),
                spec.minOccurs, spec.maxOccurs, spec.classId < 0 ? nullptr : &TestClass::ById(spec.classId).Data()));
        else if (spec.held)
            m_values[i].SetXmlObject(CreateById(spec.classId, spec.name.c_str()));
    }
}

void NillableTestObject::Init()
{
    TestObject::Init();
    m_isNil = false;
}

void TestObject::AccessProperty(int index, bool read, ZrVariant& value)
{
    const std::size_t i = static_cast<std::size_t>(index);
    if (m_onAccess)
        m_onAccess(m_type.properties.at(i).name, read);
    if (read)
        value = m_values.at(i);
    else
        m_values.at(i) = value;
}

ZrVariant& TestObject::operator[](const wchar_t* property)
{
    return m_values[static_cast<std::size_t>(m_type.IndexOf(property))];
}

TestObject& TestObject::Set(const wchar_t* property, const wchar_t* text)
{
    const PropertySpec& spec = m_type.properties[static_cast<std::size_t>(m_type.IndexOf(property))];
    if (IsEnum(spec))
        (*this)[property].SetI4(StringToColour(text));
    else
        (*this)[property].FromString(text, spec.itemType, CWhitespaceUtils::Rule_None);
    return *this;
}

TestObject* TestObject::Add(const wchar_t* property, const TestClass* derived)
{
    const PropertySpec& spec = m_type.properties[static_cast<std::size_t>(m_type.IndexOf(property))];
    const CSmartPtr<TestObject> child = (derived ? *derived : TestClass::ById(spec.classId)).Create(property);
    if (TestCollection* collection = Collection(property))
        collection->AppendItem(child);
    else
        (*this)[property].SetXmlObject(child);
    return child;
}

TestObject* TestObject::Child(const wchar_t* property)
{
    return static_cast<TestObject*>((*this)[property].GetXmlObject().GetPtr());
}

TestCollection* TestObject::Collection(const wchar_t* property)
{
    return static_cast<TestCollection*>((*this)[property].GetXmlCollection().GetPtr());
}

CAttributeCol* TestObject::Attributes(const wchar_t* property)
{
    return static_cast<CAttributeCol*>((*this)[property].GetXmlCollection().GetPtr());
}

CElementCol* TestObject::Elements(const wchar_t* property)
{
    return static_cast<CElementCol*>((*this)[property].GetXmlCollection().GetPtr());
}

CSmartPtr<CXmlObjectBase> TestCollection::CreateItem(CXmlElement* element)
{
    if (!m_itemClass)
        return CreateByElement(element);
    return CreateById(m_itemClass->id, ElementName().c_str());
}

ZrXmlLib16Data::XmlElementType TestCollection::GetItemElementType() const
{
    return m_itemClass ? m_itemClass->elementType : ZrXmlLib16Data::XmlElementType_Element;
}

std::wstring DescribeObject(const TestObject& object)
{
    const auto* nillable = dynamic_cast<const INillable*>(&object);
    if (nillable && nillable->IsNil())
        return object.ElementName() + L"=nil";
    std::wstring text;
    for (std::size_t i = 0; i < object.m_values.size(); ++i) {
        const PropertySpec& spec = object.m_type.properties[i];
        if (!IsEmpty(object.m_values[i]))
            text += (text.empty() ? L"" : L",") + spec.name + L"=" + DescribeValue(spec, object.m_values[i]);
    }
    return object.ElementName() + L"{" + text + L"}";
}

} // namespace TestSupport
