// SPDX-License-Identifier: MIT
#include "robustness/Growth.h"

#include "fastinfoset/Octets.h"
#include "robustness/Measure.h"
#include "support/TestObject.h"

#include <memory>

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

using Prepare = std::function<std::function<void()>(std::size_t)>;

struct Shape {
    const char* name;
    std::string (*make)(std::size_t octets);
    bool isJson; // whether it has a form in JSON
};

const unsigned char* Bytes(const std::string& octets)
{
    return reinterpret_cast<const unsigned char*>(octets.data());
}

/// The parts, numbered, between a start and an end.
std::string Numbered(
    std::size_t octets, const std::string& start, std::string (*part)(const std::string&), const std::string& end)
{
    std::string text = start;
    for (std::size_t i = 0; text.size() < octets; ++i)
        text += part(std::to_string(100000000 + i));
    return text + end;
}

std::string Wide(std::size_t octets)
{
    return Numbered(
        octets, "<a>", [](const std::string& n) { return "<item><id>" + n + "</id></item>"; }, "</a>");
}

// Chains of a depth that the walks accept.
std::string Deep(std::size_t octets)
{
    const std::string chain = Repeated("<n>", 90) + Repeated("</n>", 90);
    return "<a>" + Repeated(chain, octets / chain.size() + 1) + "</a>";
}

std::string ManyAttributes(std::size_t octets)
{
    return Numbered(
        octets, "<a", [](const std::string& n) { return " x" + n + "='1'"; }, "/>");
}

std::string ManyNamespaces(std::size_t octets)
{
    return Numbered(
        octets, "<a>", [](const std::string& n) { return "<b xmlns='u" + n + "'/>"; }, "</a>");
}

std::string ManyPrefixes(std::size_t octets)
{
    return Numbered(
        octets, "<a", [](const std::string& n) { return " xmlns:p" + n + "='u" + n + "' p" + n + ":x=''"; }, "/>");
}

std::string LongText(std::size_t octets)
{
    return "<a>" + Repeated("long text, caf\xC3\xA9 &amp;\n", octets / 24 + 1) + "</a>";
}

const Shape shapes[] = {{"wide", Wide, true}, {"deep", Deep, true}, {"attributes", ManyAttributes, true},
    {"namespaces", ManyNamespaces, false}, {"prefixes", ManyPrefixes, false}, {"text", LongText, true}};

std::shared_ptr<std::string> Shared(const CBinaryData& octets)
{
    return std::make_shared<std::string>(octets.GetData(), octets.GetData() + octets.GetLength());
}

CSmartPtr<CElement> Tree(const std::string& xml)
{
    const CSmartPtr<CElement> element = new CElement;
    element->FromXmlStream(Bytes(xml), xml.size());
    return element;
}

std::function<void()> ReadingOf(const std::shared_ptr<std::string>& octets)
{
    return [octets] {
        const CSmartPtr<CElement> element = new CElement;
        element->FromXmlStream(Bytes(*octets), octets->size());
    };
}

void AddShape(std::vector<GrowthCase>& cases, const Shape& shape)
{
    const auto make = shape.make;
    const std::string name = shape.name;
    const auto add = [&](const std::string& operation, Prepare prepare) {
        cases.push_back({operation + " " + name, std::move(prepare)});
    };
    add("read-xml", [make](std::size_t n) { return ReadingOf(std::make_shared<std::string>(make(n))); });
    add("read-infoset", [make](std::size_t n) { return ReadingOf(Shared(Tree(make(n))->ToFastInfosetStream())); });
    add("write-xml", [make](std::size_t n) { return [tree = Tree(make(n))] { tree->ToXmlStream(); }; });
    add("write-infoset", [make](std::size_t n) { return [tree = Tree(make(n))] { tree->ToFastInfosetStream(); }; });
    add("copy", [make](std::size_t n) { return [tree = Tree(make(n))] { tree->Clone(); }; });
    if (!shape.isJson)
        return;
    add("read-json", [make](std::size_t n) {
        return [json = Shared(Tree(make(n))->ToJsonStream())] {
            const CSmartPtr<CElement> element = new CElement;
            element->FromJsonStream(Bytes(*json), json->size());
        };
    });
    add("write-json", [make](std::size_t n) { return [tree = Tree(make(n))] { tree->ToJsonStream(); }; });
}

// The typed walks over a collection, and its items by index from both ends.
void AddCollections(std::vector<GrowthCase>& cases)
{
    static const TestClass list = Class(L"a").Cls(L"item", Class(L"item").Prim(L"id", ItemType_i4)).Col();
    cases.push_back({"read-objects wide",
        [](std::size_t n) { return [xml = Wide(n)] { list.Create()->FromXmlStream(Bytes(xml), xml.size()); }; }});
    const auto filled = [](std::size_t n) {
        const CSmartPtr<TestObject> object = list.Create();
        const std::string xml = Wide(n);
        object->FromXmlStream(Bytes(xml), xml.size());
        return object;
    };
    cases.push_back(
        {"write-objects wide", [filled](std::size_t n) { return [object = filled(n)] { object->ToXmlStream(); }; }});
    cases.push_back({"index-objects wide", [filled](std::size_t n) {
                         return [object = filled(n)] {
                             TestCollection& items = *object->Collection(L"item");
                             for (int i = 0; i < items.GetCount(); ++i)
                                 items.Item(i);
                             for (int i = items.GetCount(); i > 0; --i)
                                 items.Item(i - 1);
                         };
                     }});
}

} // namespace

const std::vector<GrowthCase>& GrowthCases()
{
    static const std::vector<GrowthCase> cases = [] {
        std::vector<GrowthCase> all;
        for (const Shape& shape : shapes)
            AddShape(all, shape);
        AddCollections(all);
        return all;
    }();
    return cases;
}

} // namespace TestSupport
