// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::ParsedTree;
using TestSupport::TreeText;

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

    const std::wstring tree = L"{urn:a}order @id=7 'x\nytail' (item @{urn:b}code=c)";
    EXPECT_EQ(tree, TreeText(built.GetDocumentElement()));
    EXPECT_EQ(tree,
        ParsedTree("<a:order xmlns:a='urn:a' id='7'>x\n"
                   "y<item xmlns:b='urn:b' b:code='c'/>tail</a:order>"));
}

// Of every length around those at which a name changes its form, and with characters that do not fit every form.
TEST(Document, NamesComeBackWhole)
{
    CXmlDocument document;
    const CXmlElement* const root = document.AddDocElement(L"", L"r");
    std::set<std::wstring> names;
    for (const wchar_t special : {L'n', L'\0', L'\r', L'|', L'\xE9', static_cast<wchar_t>(0x1F600)}) {
        for (const std::size_t length : {1u, 3u, 4u, 15u, 16u, 17u, 127u, 128u, 129u, 300u}) {
            for (const std::size_t place : {std::size_t{0}, length / 2, length - 1}) {
                std::wstring name(length, L'n');
                name[place] = special;
                const CXmlElement* const element = document.AddChildElement(L"urn:a", name);
                document.EndElement();
                EXPECT_TRUE(name == element->GetLocalName()) << length << ' ' << place << ' ' << int(special);
                names.insert(name);
            }
        }
    }
    for (const std::wstring& name : names) {
        const CXmlElement* const again = document.AddChildElement(L"urn:a", name);
        document.EndElement();
        std::size_t count = 0;
        for (const CXmlElement* child = root->GetFirstElement(); child; child = child->GetNextSiblingElement()) {
            count += child->GetLocalName() == name;
        }
        EXPECT_LE(2u, count) << name.size();
        EXPECT_TRUE(name == again->GetLocalName()) << name.size();
    }
}

TEST(Document, BuilderRefusesToWorkWithoutAnOpenElement)
{
    CXmlDocument document;
    const std::function<void()> calls[] = {[&] { document.AddChildElement(L"", L"a"); }, [&] { document.EndElement(); },
        [&] { document.AppendTextExcludingCR(nullptr, L"x"); },
        [&] { document.AddElementAttribute(nullptr, L"a", L"", L""); }};
    for (const auto& call : calls)
        EXPECT_EQ(L"The document has no open element.", MessageOf<CZrInvalidStateException>(call));
    document.AddDocElement(L"", L"first");
    document.AddDocElement(L"", L"second");
    EXPECT_EQ(L"second", TreeText(document.GetDocumentElement()));
}

TEST(Document, PathsNameEveryElementUniquely)
{
    CXmlDocument document;
    document.LoadXml("<o xmlns:p='urn:p' xmlns:q='urn:p' xmlns:r='urn:r' xmlns='urn:d' xmlns:zz='urn:d'>"
                     "<a/><b/><a><p:price/><q:price/><r:price/></a></o>");
    const CXmlElement* const root = document.GetDocumentElement();
    std::wstring paths = root->GetXPath();
    for (const CXmlElement* child = root->GetFirstElement(); child; child = child->GetNextSiblingElement()) {
        paths += L" " + child->GetXPath();
        for (const CXmlElement* leaf = child->GetFirstElement(); leaf; leaf = leaf->GetNextSiblingElement())
            paths += L" " + leaf->GetXPath();
    }
    EXPECT_EQ(L"/o /o/a[1] /o/b /o/a[2] /o/a[2]/p:price[1] /o/a[2]/p:price[2] /o/a[2]/r:price", paths);
}

TEST(Document, PrefixLookupsKeepTheLastDeclarationAndTheFirstPrefix)
{
    CXmlDocument document;
    document.LoadXml("<a xmlns:z='urn:1' xmlns:b='urn:1' xmlns:c='urn:2'><d xmlns:c='urn:3'/><e xmlns=''/></a>");
    EXPECT_EQ(L"b", document.LookupAliasFromNamespace(L"urn:1"));
    EXPECT_EQ(L"urn:3", document.LookupNamespaceFromAlias(L"c"));
    EXPECT_EQ(L"", document.LookupAliasFromNamespace(L"urn:2"));
    EXPECT_EQ(L"", document.LookupNamespaceFromAlias(L"unknown"));
    const std::map<std::wstring, std::wstring> declarations = {
        {L"", L""}, {L"b", L"urn:1"}, {L"c", L"urn:3"}, {L"z", L"urn:1"}};
    EXPECT_EQ(declarations, document.GetNamespaceDeclarations());
    document.Cleanup();
    EXPECT_EQ(0u, document.GetNamespaceDeclarations().size());
    EXPECT_EQ(L"", document.LookupNamespaceFromAlias(L"b"));
    EXPECT_EQ(nullptr, document.GetDocumentElement());
}

TEST(Document, keeps_PrefixBeforeTheAtSignInAttributePaths)
{
    CXmlDocument document;
    document.LoadXml("<order xmlns:AA='urn:a' AA:code='1' plain='2'/>");
    const auto& attributes = document.GetDocumentElement()->GetAttributes();
    EXPECT_EQ(L"12",
        document.GetDocumentElement()->GetAttribute(L"code", L"urn:a")
            + document.GetDocumentElement()->GetAttribute(L"plain", L"")
            + document.GetDocumentElement()->GetAttribute(L"plain", L"urn:a"));
    EXPECT_EQ(L"/order/AA:@code", attributes[0]->GetXPath());
    EXPECT_EQ(L"/order/@plain", attributes[1]->GetXPath());
    EXPECT_EQ(L"/@alone", CXmlAttribute(nullptr, L"alone", L"", L"urn:a").GetXPath());
}

TEST(Document, keeps_DeclarationNamespaceForInfrastructureAttributes)
{
    const wchar_t* const instance = L"http://www.w3.org/2001/XMLSchema-instance";
    const wchar_t* const declarations = L"http://www.w3.org/2000/xmlns/";
    const struct {
        const wchar_t *namespaceUri, *name;
        bool isNamespaceAttribute, isNil;
    } cases[] = {{instance, L"nil", false, true}, {declarations, L"nil", false, true}, {L"", L"nil", false, false},
        {instance, L"type", true, false}, {declarations, L"xmlns", true, false}, {L"", L"type", false, false},
        {instance, L"schemaLocation", true, false}, {instance, L"noNamespaceSchemaLocation", true, false},
        {instance, L"other", false, false}};
    CXmlDocument document;
    CXmlElement* root = document.AddDocElement(L"", L"a");
    for (const auto& row : cases) {
        const CXmlAttribute alone(nullptr, row.name, L"", row.namespaceUri);
        root->AddAttribute(row.name, L"", row.namespaceUri);
        for (const CXmlAttribute* attribute :
            std::initializer_list<const CXmlAttribute*>{&alone, root->GetAttributes().back()}) {
            EXPECT_EQ(row.isNamespaceAttribute, attribute->IsNamespaceAttribute()) << row.name;
            EXPECT_EQ(row.isNil, attribute->IsNilAttribute()) << row.name;
        }
    }
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
    second->AppendText(L"t\rext", 4);
    EXPECT_EQ(L"/root/first[2]", second->GetXPath());
    EXPECT_EQ(L"{urn:a}root @{urn:b}n=v (first, first 't\rex')", TreeText(&root));
    std::unique_ptr<CXmlElement> removed(root.RemoveLastChildElement());
    EXPECT_EQ(L"/first", removed->GetXPath());
    removed.reset(root.RemoveLastChildElement());
    EXPECT_EQ(nullptr, root.RemoveLastChildElement());
    root.CreateNewChildElement()->SetElementName(L"again");
    EXPECT_EQ(L"{urn:a}root @{urn:b}n=v (again)", TreeText(&root));
}

TEST(Element, RemovedElementsOutliveTheirDocument)
{
    auto document = std::make_unique<CXmlDocument>();
    document->LoadXml("<a><kept n='1'><child>text</child></kept></a>");
    const std::unique_ptr<CXmlElement> removed(document->GetDocumentElement()->RemoveLastChildElement());
    document.reset();
    EXPECT_EQ(L"kept @n=1 (child 'text')", TreeText(removed.get()));
}

// What callers hold by reference follows later changes, whichever form the text had before.
TEST(Element, ReferencesFollowLaterChanges)
{
    for (const bool early : {false, true}) {
        CXmlDocument document;
        document.LoadXml("<r a='1'>x&#13;<i/>y<i/>z</r>");
        CXmlElement* const root = document.GetDocumentElement();
        if (early) {
            EXPECT_EQ(L"xyz", root->GetText());
            EXPECT_EQ(1u, root->GetAttributes().size());
        }
        root->AppendText(L"-\r", 2);
        const std::wstring& text = root->GetText();
        const std::vector<CXmlAttribute*>& attributes = root->GetAttributes();
        root->AppendText(L"\x1F600");
        root->AddAttribute(L"b", L"\x1F600", L"");
        root->AddAttribute(L"c", L"", L"urn:c");
        EXPECT_EQ(L"xyz-\r\x1F600", text);
        ASSERT_EQ(3u, attributes.size());
        EXPECT_EQ(L"\x1F600", attributes[1]->GetValue());
        EXPECT_EQ(attributes[0]->GetValue(), root->GetAttribute(L"a", L""));
        EXPECT_EQ(L"r @a=1 @b=\x1F600 @{urn:c}c= 'xyz-\r\x1F600' (i, i)", TreeText(root));
    }
}

TEST(Element, TextOfManyPiecesIsComplete)
{
    std::string xml = "<r>";
    std::wstring expected;
    for (int piece = 0; piece < 3000; ++piece) {
        xml += "p" + std::to_string(piece) + "\n<i>" + std::string(static_cast<std::size_t>(piece) % 50, 'c') + "</i>";
        expected += L"p" + std::to_wstring(piece) + L"\n";
    }
    const std::string tail(100000, 't');
    CXmlDocument document;
    document.LoadXml((xml + tail + "</r>").c_str());
    EXPECT_EQ(expected + std::wstring(tail.begin(), tail.end()), document.GetDocumentElement()->GetText());
    std::unique_ptr<CXmlElement> last(document.GetDocumentElement()->RemoveLastChildElement());
    last->AppendText(L"+", 1); // no longer in the arena
    EXPECT_EQ(std::wstring(49, L'c') + L"+", last->GetText());
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
    static std::wstring seen;
    seen.clear();
    CXmlDocument document([](CXmlElement* element) {
        seen += element->GetXPath() + L" " + TreeText(element->GetFirstElement()) + L";";
        return false;
    });
    document.LoadXml("<r><a>1</a><a/></r>");
    EXPECT_EQ(L"/r/a ;/r/a[2] ;/r a '1', a;", seen);
}

TEST(Callback, ExceptionsLeaveTheLoadUnchanged)
{
    CXmlDocument document([](CXmlElement* element) -> bool {
        if (element->GetLocalName() == L"bad")
            throw CZrInvalidStateException(L"stop");
        if (element->GetLocalName() == L"worse")
            throw std::runtime_error("worse");
        return false;
    });
    for (const char* text : {"<r><a/><bad xmlns:p='u'/><a/></r>", "<r><a/><bad>x</bad>&undefined;</r>"})
        EXPECT_EQ(L"stop", MessageOf<CZrInvalidStateException>([&] { document.LoadXml(text); })) << text;
    EXPECT_EQ(L"r (a, bad 'x')", TreeText(document.GetDocumentElement()));
    EXPECT_THROW(document.LoadXml("<worse/>"), std::runtime_error);
}

TEST(Document, AMillionNestedElementsNeedNoStack)
{
    constexpr std::size_t DEPTH = 1000000;
    std::string text;
    for (std::size_t i = 0; i < 2 * DEPTH; ++i)
        text += i < DEPTH ? "<a>" : "</a>";
    CXmlDocument document;
    document.LoadXml(text.c_str());
    const CXmlElement* deepest = document.GetDocumentElement();
    while (deepest->GetFirstElement())
        deepest = deepest->GetFirstElement();
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
}
