// SPDX-License-Identifier: MIT
#include "support/TestClass.h"

#include "support/TestObject.h"

#include <deque>

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;

namespace TestSupport {

namespace {

std::deque<ClassData>& Registry()
{
    static std::deque<ClassData> registry;
    return registry;
}

template <class SeqMnd, class SeqOpt, class Choice, class AllMnd, class AllOpt, class... Arguments>
CElementInfo* NewRecord(XmlElementGroupType group, Occurs occurs, const Arguments&... arguments)
{
    if (group == XmlElementGroup_Choice)
        return new Choice(arguments...);
    if (group == XmlElementGroup_All && occurs == Occurs::Mandatory)
        return new AllMnd(arguments...);
    if (group == XmlElementGroup_All)
        return new AllOpt(arguments...);
    if (occurs == Occurs::Mandatory)
        return new SeqMnd(arguments...);
    return new SeqOpt(arguments...);
}

template <class Seq, class Choice, class All, class... Arguments>
CElementInfo* NewCollection(XmlElementGroupType group, const Arguments&... arguments)
{
    return NewRecord<Seq, Seq, Choice, All, All>(group, Occurs::Collection, arguments...);
}

CElementInfo* NewCollectionRecord(XmlElementGroupType group, const PropertySpec& spec, int id)
{
    const wchar_t* name = spec.name.c_str();
    const wchar_t* uri = spec.namespaceUri.c_str();
    switch (spec.kind) {
    case RecordKind::Prim:
        return NewCollection<CElementInfoSeqPrimCol, CElementInfoChoicePrimCol, CElementInfoAllPrimCol>(
            group, name, uri, id);
    case RecordKind::Enum:
        return NewCollection<CElementInfoSeqEnumCol, CElementInfoChoiceEnumCol, CElementInfoAllCol>(
            group, name, uri, id);
    case RecordKind::AbsCls:
        return NewCollection<CElementInfoSeqAbsClsCol, CElementInfoChoiceAbsClsCol, CElementInfoAllAbsClsCol>(
            group, name, uri, id, XmlElementType_Element);
    case RecordKind::Cls:
        return NewCollection<CElementInfoSeqClsCol, CElementInfoChoiceClsCol, CElementInfoAllClsCol>(
            group, name, uri, id, TestClass::ById(spec.classId).Data().elementType);
    case RecordKind::Untyped:
        return NewCollection<CElementInfoSeqUntpdCol, CElementInfoChoiceUntpdCol, CElementInfoAllUntpdCol>(
            group, name, uri, id);
    default:
        return NewCollection<CElementInfoSeqCol, CElementInfoChoiceCol, CElementInfoAllCol>(group, name, uri, id);
    }
}

CElementInfo* NewElementRecord(const ClassData& owner, const PropertySpec& spec, int id)
{
    const XmlElementGroupType group = owner.group;
    const wchar_t* name = spec.name.c_str();
    const wchar_t* uri = spec.namespaceUri.c_str();
    const wchar_t* byDefault = spec.defaultValue.c_str();
    if (spec.occurs == Occurs::Collection)
        return NewCollectionRecord(group, spec, id);
    if (spec.kind == RecordKind::Prim)
        return NewRecord<CElementInfoSeqPrimMnd, CElementInfoSeqPrimOpt, CElementInfoChoicePrimOpt,
            CElementInfoAllPrimMnd, CElementInfoAllPrimOpt>(group, spec.occurs, name, uri, id, spec.nillable,
            spec.itemType, spec.format.c_str(), spec.rule, spec.facets, byDefault);
    if (spec.kind == RecordKind::Enum)
        return NewRecord<CElementInfoSeqEnumMnd, CElementInfoSeqEnumOpt, CElementInfoChoiceEnumOpt,
            CElementInfoAllEnumMnd, CElementInfoAllEnumOpt>(
            group, spec.occurs, name, uri, id, spec.nillable, &ColourToString, &StringToColour, byDefault);
    if (spec.kind == RecordKind::AbsCls)
        return NewRecord<CElementInfoSeqAbsClsMnd, CElementInfoSeqAbsClsOpt, CElementInfoChoiceAbsClsOpt,
            CElementInfoAllAbsClsMnd, CElementInfoAllAbsClsOpt>(
            group, spec.occurs, name, uri, id, XmlElementType_Element, &CreateByElement);
    if (spec.kind == RecordKind::Untyped)
        return NewRecord<CElementInfoSeqUntpdMnd, CElementInfoSeqUntpdOpt, CElementInfoChoiceUntpdOpt,
            CElementInfoAllUntpdMnd, CElementInfoAllUntpdOpt>(
            group, spec.occurs, name, uri, id, spec.wildcard.c_str(), owner.namespaceUri.c_str());
    return NewRecord<CElementInfoSeqClsMnd, CElementInfoSeqClsOpt, CElementInfoChoiceClsOpt, CElementInfoAllClsMnd,
        CElementInfoAllClsOpt>(group, spec.occurs, name, uri, id, TestClass::ById(spec.classId).Data().elementType,
        &CreateById, spec.classId, spec.createInline);
}

CAttributeInfo* NewAttributeRecord(const ClassData& owner, const PropertySpec& spec, int id)
{
    const wchar_t* name = spec.name.c_str();
    const wchar_t* uri = spec.namespaceUri.c_str();
    const wchar_t* byDefault = spec.defaultValue.c_str();
    const bool optional = spec.occurs == Occurs::Optional;
    if (spec.kind == RecordKind::Attr)
        return new CAttributeInfoPrimitive(
            name, uri, id, optional, spec.itemType, spec.format.c_str(), spec.rule, spec.facets, byDefault);
    if (spec.kind == RecordKind::EnumAttr)
        return new CAttributeInfoEnum(name, uri, id, optional, ColourToString, StringToColour, byDefault);
    return new CAttributeInfoAny(name, uri, id, optional, byDefault, spec.wildcard.c_str(), owner.namespaceUri.c_str());
}

} // namespace

const wchar_t* ColourToString(int value)
{
    static const wchar_t* const names[] = {L"red", L"green", L"blue"};
    return value >= 0 && value < 3 ? names[value] : nullptr;
}

int StringToColour(const wchar_t* text)
{
    for (int value = 0; value < 3; ++value)
        if (std::wstring(text) == ColourToString(value))
            return value;
    throw CZrInvalidValueException(FormatString(L"Unknown colour [%ls]", text));
}

CSmartPtr<CXmlObjectBase> CreateById(int classId, const wchar_t* name)
{
    return TestClass::ById(classId).Create(name);
}

CSmartPtr<CXmlObjectBase> CreateByElement(CXmlElement* element)
{
    std::wstring type = CClassfactoryBase::GetElementType(element);
    if (type.empty())
        type = element->GetLocalName();
    for (auto data = Registry().rbegin(); data != Registry().rend(); ++data)
        if (data->typeName == type)
            return CreateById(data->id, element->GetLocalName().c_str());
    return CSmartPtr<CXmlObjectBase>();
}

ClassData::~ClassData()
{
    delete info;
    for (CElementInfo* record : elements)
        delete record;
    for (CAttributeInfo* record : attributes)
        delete record;
}

void ClassData::BuildTables()
{
    if (info)
        return;
    int valueProperty = -1;
    PropertySpec value;
    for (int index = 0; index < static_cast<int>(properties.size()); ++index) {
        const PropertySpec& spec = properties[static_cast<std::size_t>(index)];
        if (spec.kind == RecordKind::Value) {
            valueProperty = index;
            value = spec;
        } else if (spec.kind == RecordKind::Attr || spec.kind == RecordKind::EnumAttr
            || spec.kind == RecordKind::AnyAttr) {
            attributes.push_back(NewAttributeRecord(*this, spec, index));
        } else {
            elements.push_back(NewElementRecord(*this, spec, index));
        }
    }
    elements.push_back(nullptr);
    attributes.push_back(nullptr);
    info = new CParentElementInfo(group, elementType, typeName.c_str(), namespaceUri.c_str(), rejectUnknown, allowType,
        valueProperty, value.itemType, value.format.c_str(), unparsed);
}

int ClassData::IndexOf(const std::wstring& property) const
{
    for (std::size_t i = 0; i < properties.size(); ++i)
        if (properties[i].name == property)
            return static_cast<int>(i);
    throw CZrException(L"no such property: " + property);
}

TestClass::TestClass(const wchar_t* typeName)
{
    Registry().emplace_back();
    m_data = &Registry().back();
    m_data->id = static_cast<int>(Registry().size()) - 1;
    m_data->typeName = typeName;
}

TestClass TestClass::ById(int classId)
{
    return TestClass(&Registry().at(static_cast<std::size_t>(classId)));
}

CSmartPtr<TestObject> TestClass::Create(const wchar_t* elementName) const
{
    return m_data->nillable ? new NillableTestObject(*this, elementName) : new TestObject(*this, elementName);
}

TestClass& TestClass::Add(RecordKind kind, const wchar_t* name, ItemType type)
{
    m_data->properties.emplace_back();
    Last().kind = kind;
    Last().name = name;
    return With(Last().itemType, type);
}

TestClass& TestClass::Any(const wchar_t* wildcard, const wchar_t* name)
{
    Add(RecordKind::Untyped, name).Last().wildcard = wildcard;
    return *this;
}

TestClass& TestClass::AnyAttr(const wchar_t* name, const wchar_t* wildcard)
{
    Add(RecordKind::AnyAttr, name).Last().wildcard = wildcard;
    return Opt();
}

TestClass& TestClass::Value(ItemType type, const wchar_t* format, bool unparsed)
{
    m_data->unparsed = unparsed;
    return Add(RecordKind::Value, L"#value", type).Format(format);
}

TestClass& TestClass::Col(int minOccurs, int maxOccurs)
{
    PropertySpec& spec = Last();
    spec.occurs = Occurs::Collection;
    spec.minOccurs = minOccurs;
    spec.maxOccurs = maxOccurs;
    // Repeated values are held as objects with simple content, under a type name that no element has.
    const ItemType type = spec.kind == RecordKind::Prim ? spec.itemType : ItemType_string;
    if (spec.kind == RecordKind::Prim || spec.kind == RecordKind::Enum)
        spec.classId = Class((L"#" + spec.name).c_str()).Value(type).Data().id;
    return *this;
}

} // namespace TestSupport
