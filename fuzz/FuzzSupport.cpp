// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"

#include "support/TestObject.h"
#include "support/TestText.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

using namespace ZrXmlLib16;
using TestSupport::Narrow;
using TestSupport::TestClass;
using TestSupport::TestObject;

namespace Fuzz {

namespace {

// Paths and positions are looked for along parents and siblings, so asking every element for its path is quadratic.
constexpr int PATHS = 64;

void VisitElement(const CXmlElement& element, bool withPaths)
{
    for (const CXmlAttribute* attribute : element.GetAttributes()) {
        element.GetAttribute(attribute->GetLocalName(), attribute->GetNamespaceURI());
        attribute->IsNilAttribute();
        if (withPaths)
            attribute->GetXPath();
    }
    if (withPaths) {
        element.GetXPath();
        element.GetQName();
        element.GetNameWithPredicate();
    }
}

const CXmlElement* NextInDocument(const CXmlElement* element)
{
    if (element->GetFirstElement())
        return element->GetFirstElement();
    while (element && !element->GetNextSiblingElement())
        element = element->GetParent();
    return element ? element->GetNextSiblingElement() : nullptr;
}

// What is written, read and written again stays the same from the second text on: the first one may hold what reading
// normalises. A value that begins as a CDATA section is written as markup, so the next reader sees something else.
void CheckGenerations(const TestObject& object, const TestClass& type, const CSerializationContext& context)
{
    std::wstring texts[3];
    CSmartPtr<TestObject> next;
    const TestObject* current = &object;
    for (std::wstring& text : texts) {
        const bool passed = Tolerate([&] {
            text = current->ToXml(true, false, EOL_LF, context);
            const CSmartPtr<TestObject> copy = type.Create();
            copy->FromXml(text.c_str(), context);
            next = copy;
        });
        if (!passed || text.find(L"<![CDATA[") != std::wstring::npos)
            return;
        current = next;
    }
    RequireEqual("an object is written as it was read", texts[1], texts[2]);
}

} // namespace

std::uint64_t InputReader::Bits64()
{
    std::uint64_t value = 0;
    for (int i = 0; i < 8; ++i)
        value = value << 8 | Octet();
    return value;
}

void RequireEqual(const std::string& what, const std::wstring& expected, const std::wstring& actual)
{
    if (expected == actual)
        return;
    // From a little before the first difference.
    const auto end = expected.begin() + static_cast<std::ptrdiff_t>(std::min(expected.size(), actual.size()));
    const auto same =
        static_cast<std::size_t>(std::mismatch(expected.begin(), end, actual.begin()).first - expected.begin());
    const std::size_t begin = same < 40 ? 0 : same - 40;
    std::fprintf(stderr, "%s\nexpected: %s\nactual:   %s\n", what.c_str(), Narrow(expected.substr(begin)).c_str(),
        Narrow(actual.substr(begin)).c_str());
    std::abort();
}

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void RequireSuccess(const std::string& what, const std::function<void()>& action)
{
    try {
        action();
    } catch (const CZrException& exception) {
        std::fprintf(stderr, "%s\n%s\n", what.c_str(), Narrow(exception.GetFullMessage()).c_str());
        std::abort();
    }
}

void LowerLimits(CSerializationContext& context)
{
    CInputLimits limits;
    limits.SetMaxDocumentOctets(1UL << 20);
    limits.SetMaxInflatedOctets(1UL << 20);
    limits.SetMaxElements(100000);
    limits.SetMaxExpandedCharacters(1UL << 20);
    context.SetInputLimits(limits);
    context.SetMaxDepth(100);
}

void IgnoreFaults(CSerializationContext& context, bool unknownElements)
{
    context.SetIgnoreInvalidCollectionCounts(true);
    context.SetIgnoreMissingChoice(true);
    if (unknownElements)
        context.SetIgnoreUnknownElements(true);
    else
        context.SetIgnoreMissingMandatoryElements(true);
    context.SetIgnoreUnknownAttributes(true);
    context.SetIgnoreNamespaces(true);
}

void VisitDocument(const CXmlDocument& document)
{
    int paths = PATHS;
    for (const CXmlElement* element = document.GetDocumentElement(); element; element = NextInDocument(element))
        VisitElement(*element, paths-- > 0);
}

TestClass AnyClass()
{
    static const TestClass any =
        TestSupport::Class(L"any").AnyAttributes().Any(L"##any").Col().AnyAttr(L"attributes", L"##any");
    return any;
}

void RunReadActions(const ReadActions& actions, const CSerializationContext& context)
{
    Tolerate([&] {
        CXmlDocument document(context);
        const bool loaded = Tolerate([&] { actions.intoDocument(document); });
        VisitDocument(document);
        if (!loaded || !document.GetDocumentElement())
            return;
        const CSmartPtr<CElement> tree(new CElement);
        tree->CopyXmlElement(document.GetDocumentElement());
        tree->Clone()->ToXmlStream(true, true, Encoding_UTF8, EOL_LF, context);
        tree->ToFastInfosetStream(FInfoDecl_None, context);
        tree->ToJsonStream(true, Encoding_UTF8, EOL_LF, context);
    });
    for (const TestClass& type : {TestSupport::SampleClass(), AnyClass()}) {
        const CSmartPtr<TestObject> object = type.Create();
        if (Tolerate([&] { actions.intoObject(*object); }))
            CheckGenerations(*object, type, context);
    }
}

} // namespace Fuzz
