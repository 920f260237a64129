// SPDX-License-Identifier: MIT
#include "fuzz/RandomObject.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

#include <algorithm>
#include <map>
#include <random>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace Fuzz {

namespace {

constexpr unsigned CLASS_COUNT = 64;
const wchar_t* const NAMESPACES[] = {L"", L"urn:a", L"urn:b"};

/// Draws the properties of a class. The numbers of this generator are the same everywhere, distributions are not.
class ClassMaker {
public:
    explicit ClassMaker(unsigned seed)
        : m_random(seed)
        , m_withNamespaces(seed % 2 == 1)
    {
    }

    TestClass Make(const std::wstring& name, int levels)
    {
        TestClass type = Class(name.c_str());
        switch (Below(4)) {
        case 0:
            type.Choice();
            break;
        case 1:
            type.All();
            break;
        default:
            break;
        }
        if (levels < 2 && Below(4) == 0)
            type.Nil();
        if (m_withNamespaces)
            type.In(NAMESPACES[1]);
        const unsigned count = 1 + Below(6);
        for (unsigned i = 0; i < count; ++i)
            AddElement(type, L"e" + std::to_wstring(i), levels);
        for (unsigned i = Below(4); i > 0; --i)
            AddAttribute(type, L"a" + std::to_wstring(i));
        return type;
    }

private:
    unsigned Below(unsigned limit) { return static_cast<unsigned>(m_random()) % limit; }
    ItemType AnyType() { return static_cast<ItemType>(1 + Below(26)); }

    void AddElement(TestClass& type, const std::wstring& name, int levels)
    {
        const unsigned kind = Below(levels > 0 ? 8 : 5);
        if (kind < 4)
            type.Prim(name.c_str(), AnyType());
        else if (kind == 4)
            type.Enum(name.c_str());
        else if (levels > 0)
            type.Cls(name.c_str(), Make(L"t" + std::to_wstring(levels) + name, levels - 1));
        if (m_withNamespaces)
            type.Ns(NAMESPACES[1 + Below(2)]);
        const unsigned occurs = Below(3);
        if (occurs == 1)
            type.Opt();
        else if (occurs == 2)
            type.Col();
    }

    void AddAttribute(TestClass& type, const std::wstring& name)
    {
        if (Below(4) == 0)
            type.EnumAttr(name.c_str());
        else
            type.Attr(name.c_str(), AnyType());
        if (m_withNamespaces && Below(2) == 0)
            type.Ns(NAMESPACES[1 + Below(2)]);
        if (Below(2) == 0)
            type.Required();
    }

    std::mt19937 m_random;
    bool m_withNamespaces;
};

class ObjectFiller {
public:
    ObjectFiller(InputReader& input, const Restrictions& restrictions)
        : m_input(input)
        , m_restrictions(restrictions)
    {
    }

    void Fill(TestObject& object, const TestClass& type)
    {
        if (auto* nillable = dynamic_cast<INillable*>(&object)) {
            if (!m_restrictions.nil && m_input.Below(4) == 1) {
                nillable->SetNil(true);
                return;
            }
        }
        const ClassData& data = type.Data();
        const bool isChoice = data.group == ZrXmlLib16Data::XmlElementGroup_Choice;
        const std::size_t chosen = isChoice ? ChooseElement(data) : 0;
        for (std::size_t i = 0; i < data.properties.size(); ++i) {
            const PropertySpec& property = data.properties[i];
            if (!isChoice || !IsElement(property) || i == chosen)
                FillProperty(object, property, isChoice ? IsElement(property) : m_restrictions.unwritableInJson);
        }
    }

private:
    static bool IsElement(const PropertySpec& property)
    {
        return property.kind != RecordKind::Attr && property.kind != RecordKind::EnumAttr
            && property.kind != RecordKind::AnyAttr && property.kind != RecordKind::Value;
    }

    std::size_t ChooseElement(const ClassData& data)
    {
        std::vector<std::size_t> elements;
        for (std::size_t i = 0; i < data.properties.size(); ++i)
            if (IsElement(data.properties[i]))
                elements.push_back(i);
        return elements.empty() ? 0 : elements[m_input.Below(static_cast<unsigned>(elements.size()))];
    }

    void FillProperty(TestObject& object, const PropertySpec& property, bool isNeeded)
    {
        if (property.kind == RecordKind::AnyAttr) {
            if (isNeeded || m_input.Flag())
                object.Attributes(property.name.c_str())
                    ->Add(L"urn:other", AttributeText(ItemType_string).c_str(), L"extra");
        } else if (property.occurs == Occurs::Collection) {
            for (unsigned n = m_input.Below(4) + (isNeeded ? 1 : 0); n > 0; --n)
                AddChild(object, property);
        } else if (property.occurs == Occurs::Optional && !isNeeded && m_input.Flag()) {
            return;
        } else if (property.kind == RecordKind::Cls || property.kind == RecordKind::AbsCls) {
            AddChild(object, property);
        } else if (property.kind == RecordKind::Enum || property.kind == RecordKind::EnumAttr) {
            object[property.name.c_str()].SetI4(static_cast<long>(m_input.Below(3)));
        } else {
            if (property.kind == RecordKind::Attr) {
                object.Set(property.name.c_str(), AttributeText(property.itemType).c_str());
                return;
            }
            // An empty element means its default value.
            const std::wstring text = Text(property.itemType);
            object.Set(property.name.c_str(), text.empty() ? property.defaultValue.c_str() : text.c_str());
        }
    }

    // Abstract elements hold what the sample has for them.
    void AddChild(TestObject& object, const PropertySpec& property)
    {
        if (property.kind == RecordKind::AbsCls) {
            static const TestClass derived =
                Class(L"fuzzDerived").TypeAttribute().Prim(L"text").Prim(L"more", ItemType_boolean);
            Fill(*object.Add(property.name.c_str(), &derived), derived);
        } else {
            Fill(*object.Add(property.name.c_str()), TestClass::ById(property.classId));
        }
    }

    std::wstring Text(ItemType type) { return RandomText(type, m_input, m_restrictions); }

    // A tab is written as it is, and parsers read a space for it.
    std::wstring AttributeText(ItemType type)
    {
        std::wstring text = Text(type);
        std::replace(text.begin(), text.end(), L'\t', L' ');
        return text;
    }

    InputReader& m_input;
    const Restrictions& m_restrictions;
};

} // namespace

TestClass RandomClass(unsigned number)
{
    static std::map<unsigned, TestClass> classes;
    const unsigned seed = number % CLASS_COUNT;
    const auto found = classes.find(seed);
    if (found != classes.end())
        return found->second;
    return classes.emplace(seed, ClassMaker(seed).Make(L"random" + std::to_wstring(seed), 2)).first->second;
}

void FillObject(TestObject& object, const TestClass& type, InputReader& input, const Restrictions& restrictions)
{
    ObjectFiller(input, restrictions).Fill(object, type);
}

} // namespace Fuzz
