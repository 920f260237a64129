// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <memory>
#include <stdexcept>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::TreeText;

namespace {

const CXmlElement* Descend(const CXmlDocument& document, const std::vector<int>& indexes)
{
    const CXmlElement* element = document.GetDocumentElement();
    for (int index : indexes) {
        element = element->GetFirstElement();
        for (; index > 0; --index) {
            element = element->GetNextSiblingElement();
        }
    }
    return element;
}

} // namespace

TEST(Document, BuilderMakesTheSameTreeAsTheParser)
{
    CXmlDocument built;
    CXmlElement* root = built.AddDocElement(L"urn:a", L"order");
    built.AddElementAttribute(root, L"id", L"7", L"");
    built.AppendTextExcludingCR(root, L"x\r\ny\0z", 6);
    CXmlElement* item = built.AddChildElement(L"", L"item");
    built.AddElementAttribute(item, L"code", L"c", L"urn:b");
    built.EndElement();
    built.AppendTextExcludingCR(root, std::wstring(L"tail"));
    EXPECT_EQ(root, built.GetCurrentElement());
    built.EndElement();
    EXPECT_EQ(nullptr, built.GetCurrentElement());

    CXmlDocument parsed;
    parsed.LoadXml("<a:order xmlns:a='urn:a' id='7'>x\n"
                   "y<item xmlns:b='urn:b' b:code='c'/>tail</a:order>");
    EXPECT_EQ(L"{urn:a}order @id=7 'x\nytail' (item @{urn:b}code=c)", TreeText(parsed.GetDocumentElement()));
    EXPECT_EQ(TreeText(parsed.GetDocumentElement()), TreeText(built.GetDocumentElement()));
}

TEST(Document, BuilderRefusesToWorkWithoutAnOpenElement)
{
    CXmlDocument document;
    const std::wstring expected = L"The document has no open element.";
    EXPECT_EQ(expected, MessageOf<CZrInvalidStateException>([&] { document.AddChildElement(L"", L"a"); }));
    EXPECT_EQ(expected, MessageOf<CZrInvalidStateException>([&] { document.EndElement(); }));
    EXPECT_EQ(expected, MessageOf<CZrInvalidStateException>([&] { document.AppendTextExcludingCR(nullptr, L"x"); }));
    EXPECT_EQ(
        expected, MessageOf<CZrInvalidStateException>([&] { document.AddElementAttribute(nullptr, L"a", L"", L""); }));
    document.AddDocElement(L"", L"first");
    document.AddDocElement(L"", L"second");
    EXPECT_EQ(L"second", TreeText(document.GetDocumentElement()));
}

TEST(Document, PathsNameEveryElementUniquely)
{
    CXmlDocument document;
    document.LoadXml("<o xmlns:p='urn:p' xmlns:q='urn:p' xmlns:r='urn:r' xmlns='urn:d' xmlns:zz='urn:d'>"
                     "<a/><b/><a><p:price/><q:price/><r:price/></a></o>");
    const struct {
        std::vector<int> indexes;
        const wchar_t* path;
    } cases[] = {{{}, L"/o"}, {{0}, L"/o/a[1]"}, {{1}, L"/o/b"}, {{2}, L"/o/a[2]"}, {{2, 0}, L"/o/a[2]/p:price[1]"},
        {{2, 1}, L"/o/a[2]/p:price[2]"}, {{2, 2}, L"/o/a[2]/r:price"}};
    for (const auto& row : cases) {
        EXPECT_EQ(row.path, Descend(document, row.indexes)->GetXPath());
    }
}

TEST(Document, PrefixLookupsKeepTheLastDeclarationAndTheFirstPrefix)
{
    CXmlDocument document;
    document.LoadXml("<a xmlns:z='urn:1' xmlns:b='urn:1' xmlns:c='urn:2'><d xmlns:c='urn:3'/><e xmlns=''/></a>");
    EXPECT_EQ(L"b", document.LookupAliasFromNamespace(L"urn:1"));
    EXPECT_EQ(L"urn:3", document.LookupNamespaceFromAlias(L"c"));
    EXPECT_EQ(L"", document.LookupAliasFromNamespace(L"urn:2"));
    EXPECT_EQ(L"", document.LookupNamespaceFromAlias(L"unknown"));
    const std::map<std::wstring, std::wstring> declarations{
        {L"", L""}, {L"b", L"urn:1"}, {L"c", L"urn:3"}, {L"z", L"urn:1"}};
    EXPECT_EQ(declarations, document.GetNamespaceDeclarations());
    document.Cleanup();
    EXPECT_TRUE(document.GetNamespaceDeclarations().empty());
    EXPECT_EQ(L"", document.LookupNamespaceFromAlias(L"b"));
    EXPECT_EQ(nullptr, document.GetDocumentElement());
    EXPECT_EQ(0u, document.GetInputSize());
}

TEST(Document, keeps_PrefixBeforeTheAtSignInAttributePaths)
{
    CXmlDocument document;
    document.LoadXml("<order xmlns:AA='urn:a' AA:code='1' plain='2'/>");
    const auto& attributes = document.GetDocumentElement()->GetAttributes();
    ASSERT_EQ(2u, attributes.size());
    EXPECT_EQ(L"/order/AA:@code", attributes[0]->GetXPath());
    EXPECT_EQ(L"/order/@plain", attributes[1]->GetXPath());
    EXPECT_EQ(L"/@alone", CXmlAttribute(nullptr, L"alone", L"", L"urn:a").GetXPath());
}

TEST(Document, keeps_DeclarationNamespaceForInfrastructureAttributes)
{
    const wchar_t* const instance = L"http://www.w3.org/2001/XMLSchema-instance";
    const wchar_t* const declarations = L"http://www.w3.org/2000/xmlns/";
    const struct {
        const wchar_t* namespaceUri;
        const wchar_t* name;
        bool isNamespaceAttribute;
        bool isNil;
    } cases[] = {{instance, L"nil", false, true}, {declarations, L"nil", false, true}, {L"", L"nil", false, false},
        {instance, L"type", true, false}, {declarations, L"xmlns", true, false}, {L"", L"type", false, false},
        {instance, L"schemaLocation", true, false}, {instance, L"noNamespaceSchemaLocation", true, false},
        {instance, L"other", false, false}};
    CXmlDocument document;
    CXmlElement* root = document.AddDocElement(L"", L"a");
    for (const auto& row : cases) {
        SCOPED_TRACE(TestSupport::Narrow(row.name));
        const CXmlAttribute alone(nullptr, row.name, L"", row.namespaceUri);
        root->AddAttribute(row.name, L"", row.namespaceUri);
        for (const CXmlAttribute* attribute :
            {&alone, static_cast<const CXmlAttribute*>(root->GetAttributes().back())}) {
            EXPECT_EQ(row.isNamespaceAttribute, attribute->IsNamespaceAttribute());
            EXPECT_EQ(row.isNil, attribute->IsNilAttribute());
        }
    }
}

TEST(Element, FindsAttributesByBothNames)
{
    CXmlDocument document;
    document.LoadXml("<a xmlns:p='urn:p' c='1' p:c='2'/>");
    const CXmlElement& root = *document.GetDocumentElement();
    EXPECT_EQ(L"1", root.GetAttribute(L"c", L""));
    EXPECT_EQ(L"2", root.GetAttribute(L"c", L"urn:p"));
    EXPECT_EQ(L"", root.GetAttribute(L"d", L""));
    EXPECT_EQ(&root.GetAttribute(L"d", L""), &root.GetAttribute(L"e", L"urn:p"));
}

TEST(Element, WorksWithoutADocument)
{
    CXmlElement root(nullptr, nullptr);
    EXPECT_EQ(L"/", root.GetXPath());
    root.SetElementName(L"root");
    root.SetNamespace(L"urn:a");
    root.AddAttribute(L"n", L"v", L"urn:b");
    root.CreateNewChildElement()->SetElementName(L"first");
    CXmlElement* second = root.CreateNewChildElement();
    second->SetElementName(L"first");
    second->AppendText(L"te", 2);
    second->AppendText(L"\rxt");
    EXPECT_EQ(L"/root/first[2]", second->GetXPath());
    EXPECT_EQ(L"{urn:a}root @{urn:b}n=v (first, first 'te\rxt')", TreeText(&root));
    std::unique_ptr<CXmlElement> removed(root.RemoveLastChildElement());
    EXPECT_EQ(second, removed.get());
    EXPECT_EQ(L"/first", removed->GetXPath());
    removed.reset(root.RemoveLastChildElement());
    EXPECT_EQ(nullptr, root.RemoveLastChildElement());
    root.CreateNewChildElement()->SetElementName(L"again");
    EXPECT_EQ(L"{urn:a}root @{urn:b}n=v (again)", TreeText(&root));
}

TEST(Element, RemovedElementsOutliveTheirDocument)
{
    std::unique_ptr<CXmlElement> removed;
    {
        CXmlDocument document;
        document.LoadXml("<a><kept n='1'><child>text</child></kept></a>");
        removed.reset(document.GetDocumentElement()->RemoveLastChildElement());
        document.LoadXml("<other/>");
    }
    EXPECT_EQ(L"kept @n=1 (child 'text')", TreeText(removed.get()));
}

TEST(Callback, RemovesElementsButNeverTheRoot)
{
    CXmlDocument all([](CXmlElement*) { return true; });
    all.LoadXml("<r><a><b/>x</a><c/></r>");
    EXPECT_EQ(L"r", TreeText(all.GetDocumentElement()));

    CXmlDocument some([](CXmlElement* element) { return element->GetLocalName() == L"drop"; });
    some.LoadXml("<r><keep/><drop><keep/></drop><keep n='1'/><drop/></r>");
    EXPECT_EQ(L"r (keep, keep @n=1)", TreeText(some.GetDocumentElement()));
}

TEST(Callback, SeesPathAndChildrenOfTheClosedElement)
{
    static std::vector<std::wstring> seen;
    seen.clear();
    CXmlDocument document([](CXmlElement* element) {
        seen.push_back(element->GetXPath() + L" " + TreeText(element->GetFirstElement()));
        return false;
    });
    document.LoadXml("<r><a>1</a><a/></r>");
    EXPECT_EQ((std::vector<std::wstring>{L"/r/a ", L"/r/a[2] ", L"/r a '1', a"}), seen);
}

TEST(Callback, ExceptionsLeaveTheLoadUnchanged)
{
    CXmlDocument document([](CXmlElement* element) -> bool {
        if (element->GetLocalName() == L"bad") {
            throw CZrInvalidStateException(L"stop");
        }
        if (element->GetLocalName() == L"worse") {
            throw std::runtime_error("worse");
        }
        return false;
    });
    for (const char* text : {"<r><a/><bad xmlns:p='u'/><a/></r>", "<r><a/><bad>x</bad>&undefined;</r>"}) {
        EXPECT_EQ(L"stop", MessageOf<CZrInvalidStateException>([&] { document.LoadXml(text); })) << text;
    }
    EXPECT_EQ(L"r (a, bad 'x')", TreeText(document.GetDocumentElement()));
    EXPECT_THROW(document.LoadXml("<worse/>"), std::runtime_error);
    document.LoadXml("<good/>");
    EXPECT_EQ(L"good", TreeText(document.GetDocumentElement()));
}

TEST(Document, AMillionNestedElementsNeedNoStack)
{
    constexpr std::size_t DEPTH = 1000000;
    std::string text;
    for (std::size_t i = 0; i < DEPTH; ++i) {
        text += "<a>";
    }
    for (std::size_t i = 0; i < DEPTH; ++i) {
        text += "</a>";
    }
    CXmlDocument document;
    document.LoadXml(text.c_str());
    const CXmlElement* deepest = document.GetDocumentElement();
    while (deepest->GetFirstElement()) {
        deepest = deepest->GetFirstElement();
    }
    EXPECT_EQ(2 * DEPTH, deepest->GetXPath().size());
    document.Cleanup();
    EXPECT_EQ(nullptr, document.GetDocumentElement());
}

TEST(Document, SchemaTypeIsReadByInitOnly)
{
    CSerializationContext context;
    CXmlDocument document(context);
    context.SetSchemaType(SchemaType_DTD);
    document.LoadXml("<a/>");
    EXPECT_EQ(SchemaType_XSD, document.GetSchemaType());
    document.Init();
    EXPECT_EQ(SchemaType_DTD, document.GetSchemaType());
    EXPECT_EQ(nullptr, document.GetDocumentElement());
    EXPECT_EQ(&context, &document.GetSerializationContext());
}
