// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/RecordingWriter.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

CSmartPtr<CElement> Parse(const char* xml)
{
    const CSmartPtr<CElement> element = new CElement;
    element->FromXml(xml);
    return element;
}

std::string Written(
    const CElement& element, const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    return Narrow(element.ToXml(false, false, EOL_LF, context));
}

std::string Refused(const std::string& uri, const std::string& className, const std::string& rule)
{
    return "InvalidNamespace: The namespace " + uri + " in the class " + className + " is invalid against restriction "
        + rule;
}

#if defined(__SANITIZE_ADDRESS__)
const int manyLevels = 100000;
#else
const int manyLevels = 1000000;
#endif

int DepthOf(const CElement* element)
{
    int depth = 1;
    while (element->GetElements()->GetCount() > 0) {
        element = element->GetElements()->Item(0);
        ++depth;
    }
    return depth;
}

} // namespace

TEST(UntypedElement, ConstructionIsValidated)
{
    const auto failure = [](auto... arguments) { return FailureOf([=] { CElement element(arguments...); }); };
    const wchar_t *a = L"a", *u = L"urn:u", *any = L"##any", *none = nullptr;
    const std::string noName = "InvalidParam: Element Name must have a value";
    EXPECT_EQ("", failure(a));
    EXPECT_EQ(noName, failure(L""));
    EXPECT_EQ(noName, failure(none, any));
    for (const wchar_t* keyword : {L"##any", L"##other", L"##local", L"##targetNamespace"})
        EXPECT_EQ("", failure(a, keyword));
    for (const wchar_t* text : {L"", L"urn:u", L"##Any", L"##any ##local"})
        EXPECT_EQ("InvalidParam: Invalid Namespace [" + Narrow(text) + "].", failure(a, text));
    EXPECT_EQ("", failure(a, none, any, u));
    EXPECT_EQ(noName, failure(none, u, none, none));
    EXPECT_EQ("InvalidParam: Namespace Restriction must have a value", failure(a, u, none, L""));
    EXPECT_EQ("InvalidParam: Target Namespace must have a value", failure(a, u, any, none));
    EXPECT_EQ("InvalidParam: The source of an untyped element may not be NULL",
        failure(static_cast<CXmlObjectBase*>(nullptr), u));
    CElement element(L"a", L"urn:a", L"##other", L"urn:t");
    EXPECT_EQ("InvalidParam: Target Namespace must have a value",
        FailureOf([&] { element.Init(L"b", L"urn:b", L"##any", L""); }));
    EXPECT_EQ(L"a", element.GetElementName());
    EXPECT_EQ(L"urn:a", element.GetNamespace());
    EXPECT_EQ(L"urn:t", element.GetTargetNamespace());
    EXPECT_EQ(&element, element.GetBase());
    EXPECT_EQ(noName, FailureOf([] { CElement().ToXml(); }));
}

TEST(UntypedElement, NamespaceRestrictions)
{
    CElement element(L"a", L"urn:a", L"##any", L"urn:t");
    element.SetNamespaceRestrictions(L"urn:a ##local", L"urn:t");
    EXPECT_EQ(Refused("urn:a", "CElement", "##local"),
        FailureOf([&] { element.SetNamespaceRestrictions(L"##local", L"urn:t"); }));
    EXPECT_EQ(Refused("urn:b", "CElement", "urn:a ##local"), FailureOf([&] { element.SetNamespace(L"urn:b"); }));
    element.SetNamespace(L"");
    element.SetNamespaceRestrictions(L"##targetNamespace", L"");
    EXPECT_EQ(L"", element.GetTargetNamespace());

    CElement local(L"a", L"##local");
    CXmlDocument document;
    document.LoadXml("<b xmlns='urn:b'>x</b>");
    const std::string refusal = Refused("urn:b", "CElement", "##local");
    EXPECT_EQ(refusal, FailureOf([&] { local.FromXml("<b xmlns='urn:b'>x</b>"); }));
    EXPECT_EQ(refusal, FailureOf([&] { local.FromXml(L"<b xmlns='urn:b'>x</b>"); }));
    EXPECT_EQ(refusal, FailureOf([&] { local.FromXmlElement(document.GetDocumentElement()); }));
    EXPECT_EQ("<a/>", Written(local));
    local.CopyXmlElement(document.GetDocumentElement());
    EXPECT_EQ(L"urn:b", local.GetNamespace());
}

TEST(UntypedElement, ReadingReplacesTheContent)
{
    CElement element(L"old");
    element.SetText(L"old");
    element.GetAttributes()->Add(L"", L"1", L"old");
    element.GetElements()->Add(L"old", L"");
    element.FromXml("<a x='1' p:y='2' xmlns:p='urn:p'>t<b>u</b>v</a>");
    EXPECT_EQ("<a x=\"1\" xmlns:AA=\"urn:p\" AA:y=\"2\"><b>u</b>tv</a>", Written(element));
    EXPECT_EQ(L"tv", element.GetText());
    EXPECT_EQ(element.GetElements().GetPtr(), element.GetElements().GetPtr());
    element.GetElements()->SetNamespaceRestrictions(L"##local", L"");
    EXPECT_EQ("Validation: Invalid Element [c] found.\nPath: /a/p:c",
        FailureOf([&] { element.FromXml("<a><b/><p:c xmlns:p='urn:p'/></a>"); }));
    EXPECT_EQ("InvalidParam: The source of an untyped element may not be NULL",
        FailureOf([&] { element.CopyXmlElement(nullptr); }));
}

TEST(UntypedElement, ClonesShareNothing)
{
    const CSmartPtr<CElement> element = Parse("<a x='1' xmlns='urn:a'>t<b y='2'><c/><d xmlns=''>u</d></b><e/></a>");
    const std::string before = Written(*element);
    element->GetElements()->SetNamespaceRestrictions(L"urn:a", L"");
    const CSmartPtr<CElement> clone = element->Clone();
    EXPECT_EQ(before, Written(*clone));
    EXPECT_EQ(Refused("urn:b", "CElement", "urn:a"), FailureOf([&] { clone->GetElements()->Add(L"b", L"urn:b"); }));
    clone->SetText(L"");
    clone->GetAttributes()->Clear();
    clone->GetElements()->Item(0)->GetElements()->Clear();
    EXPECT_EQ("<AA:a xmlns:AA=\"urn:a\"><AA:b y=\"2\"/><AA:e/></AA:a>", Written(*clone));
    EXPECT_EQ(before, Written(*element));
}

TEST(UntypedElement, GeneratedObjectsThereAndBack)
{
    TestObject sample(SampleClass());
    FillSample(sample);
    const CSmartPtr<CElement> element = new CElement(&sample, L"");
    EXPECT_EQ(L"##any: " + sample.GetTargetNamespace(), L"##any: " + element->GetTargetNamespace());
    TestObject copy(SampleClass());
    copy.FromXmlElement(element.GetPtr());
    CheckSample(copy);
    EXPECT_EQ("Zr: The document has no root element.",
        FailureOf([&] { copy.FromXmlElement(static_cast<CElement*>(nullptr)); }));
    const TestClass order = Class(L"order").In(L"urn:o").Prim(L"id").Ns(L"urn:o");
    TestObject object(order);
    object.Set(L"id", L"1");
    EXPECT_EQ(
        "<order xmlns=\"urn:o\"><id>1</id></order>", Written(*CSmartPtr<CElement>(new CElement(&object, L"urn:o"))));
}

TEST(UntypedElement, RootsAreWrittenLikeThoseOfClasses)
{
    CSerializationContext context;
    context.GetProcessingInstructions().push_back(L"<?go?>");
    context.GetNamespaceAliases().Add(L"o", L"urn:o");
    context.SetDefaultNamespaceURI(L"urn:a");
    EXPECT_EQ("<?go?>\n\n<a xmlns=\"urn:a\" xmlns:o=\"urn:o\"><o:b><c/></o:b></a>",
        Written(*Parse("<a xmlns='urn:a'><b xmlns='urn:o'><c xmlns='urn:a'/></b></a>"), context));
    RecordingWriter writer;
    const TestClass type = Class(L"r").Any(L"##any");
    const CSmartPtr<TestObject> object = type.Create();
    object->FromXml("<r><a k='v'>t<b/></a></r>");
    object->ToXml_Int(&writer, true, L"", CSerializationContext::m_defaultContext, false);
    EXPECT_EQ("<r <a @k='v':23 <b '':23 > 't':23 > >", writer.m_events);
}

TEST(UntypedElement, DeclarationsAreNoAttributes)
{
    CSerializationContext raw;
    raw.SetSchemaType(SchemaType_DTD);
    const char xml[] = "<a xmlns='urn:a' xmlns:p='urn:p' x='1'><p:b xmlns=''/></a>";
    CElement read, copied;
    read.FromXml(xml, raw);
    CXmlDocument document(raw);
    document.LoadXml(xml);
    copied.CopyXmlElement(document.GetDocumentElement());
    for (const CElement* element : {&read, &copied}) {
        EXPECT_EQ(1, element->GetAttributes()->GetCount());
        EXPECT_EQ("<a xmlns=\"urn:a\" x=\"1\"><p:b/></a>", Written(*element));
    }
}

TEST(UntypedElement, keeps_TextBehindChildren)
{
    EXPECT_EQ("<p><b>bold</b><i/>one  two\n</p>", Written(*Parse("<p>one <b>bold</b> two<i/>\n</p>")));
}

TEST(UntypedElement, keeps_TypePrefixWithoutDeclaration)
{
    EXPECT_EQ("<a xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" AA:type=\"p:T\"/>",
        Written(*Parse("<a xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='urn:p' xsi:type='p:T'/>")));
}

TEST(UntypedElement, MillionLevelsAreCopiedAndDestroyed)
{
    std::string xml;
    for (int i = 0; i < manyLevels; ++i)
        xml += "<n>";
    for (int i = 0; i < manyLevels; ++i)
        xml += "</n>";
    const CSmartPtr<CElement> copy = new CElement;
    CSmartPtr<CElement> inner;
    {
        CXmlDocument document;
        document.LoadXml(xml.c_str());
        copy->CopyXmlElement(document.GetDocumentElement());
    }
    EXPECT_EQ(manyLevels, DepthOf(copy));
    inner = copy->GetElements()->Item(0)->GetElements()->Item(0);
    // What somebody else holds stays whole.
    copy->GetElements()->Clear();
    EXPECT_EQ(manyLevels - 2, DepthOf(inner));
    const CSmartPtr<CElementCol> children = inner->GetElements();
    inner = nullptr;
    EXPECT_EQ(manyLevels - 3, DepthOf(children->Item(0)));
    const CElement* half = children->Item(0);
    for (int i = 0; i < manyLevels / 2; ++i)
        half = half->GetElements()->Item(0);
    EXPECT_EQ(manyLevels - manyLevels / 2 - 3, DepthOf(half->Clone()));
}

TEST(UntypedElement, ManyAttributesAndChildren)
{
    std::string xml = "<a";
    for (int i = 0; i < 50000; ++i)
        xml += " a" + std::to_string(i) + "='" + std::to_string(i) + "'";
    xml += ">";
    for (int i = 0; i < 100000; ++i)
        xml += "<c>" + std::to_string(i) + "</c>";
    const CSmartPtr<CElement> element = Parse((xml + "</a>").c_str());
    const CSmartPtr<CAttributeCol> attributes = element->GetAttributes();
    const CSmartPtr<CElementCol> children = element->GetElements();
    ASSERT_EQ(50000, attributes->GetCount());
    ASSERT_EQ(100000, children->GetCount());
    for (int i = 0; i < children->GetCount(); ++i)
        ASSERT_EQ(std::to_wstring(i), children->Item(i)->GetText());
    EXPECT_EQ(attributes->Item(7), attributes->Add(L"", L"new", L"a7"));
    attributes->Remove(7);
    EXPECT_EQ(nullptr, attributes->Find(L"a7", L""));
    EXPECT_EQ(attributes->Item(7), attributes->Find(L"a8", L""));
    attributes->Clear();
    EXPECT_EQ(nullptr, attributes->Find(L"a8", L""));
}

TEST(ElementCol, AddsUnderItsConstraint)
{
    const CSmartPtr<CElementCol> any = new CElementCol(L"AnyElement");
    EXPECT_EQ("InvalidState: A Namespace has not been set for this Collection", FailureOf([&] { any->Add(L"a"); }));
    EXPECT_EQ("InvalidParam: Element Name must have a value", FailureOf([&] { any->Add(L"", L"urn:a"); }));
    EXPECT_EQ("InvalidParam: An item of a collection may not be NULL",
        FailureOf([&] { any->Add(static_cast<CElement*>(nullptr)); }));
    EXPECT_EQ("InvalidParam: A CElementCol may only hold CElement objects",
        FailureOf([&] { any->AppendItem(CSmartPtr<TestObject>(Class(L"x").Create())); }));
    any->Add(L"a", L"urn:a")->SetText(L"1");
    any->Add(L"b", nullptr);
    EXPECT_EQ(L"urn:a", any->Item(0)->GetNamespace());
    EXPECT_EQ(Refused("urn:a", "CElementCol", "##local"),
        FailureOf([&] { any->SetNamespaceRestrictions(L"##local", L"urn:t"); }));

    for (const wchar_t* rule : {L"##targetNamespace", L"##any", L"urn:x urn:t"}) {
        const CSmartPtr<CElementCol> target = new CElementCol(L"AnyElement", rule, L"urn:t");
        EXPECT_EQ(L"urn:t", target->Add(L"a")->GetNamespace());
        EXPECT_EQ(L"urn:t", target->GetTargetNamespace());
    }
    const CSmartPtr<CElementCol> other = new CElementCol(L"AnyElement", L"##other", L"urn:t");
    EXPECT_EQ("InvalidState: A Namespace has not been set for this Collection", FailureOf([&] { other->Add(L"a"); }));
    EXPECT_EQ(Refused("urn:t", "CElement", "##other"), FailureOf([&] { other->Add(L"a", L"urn:t"); }));
    const CSmartPtr<CElement> shared = any->Item(0);
    other->Add(shared);
    EXPECT_EQ(L"urn:t", shared->GetTargetNamespace());

    std::wstring names;
    for (const CElement* element : *any)
        names += element->GetElementName();
    EXPECT_EQ(L"ab", names);
    EXPECT_EQ(CElementCol::iterator(), CSmartPtr<CElementCol>(new CElementCol(L""))->begin());
}

TEST(ElementCol, ReadsElementsOfOneName)
{
    CXmlDocument document;
    document.LoadXml("<r><a/><a xmlns='urn:a'/><b/><a/></r>");
    CXmlElement* root = document.GetDocumentElement();
    CSerializationContext context, ignoring;
    ignoring.SetIgnoreNamespaces(true);
    const struct {
        const wchar_t* rule;
        const wchar_t* name;
        const wchar_t* uri;
        const CSerializationContext* context;
        int taken;
    } cases[] = {
        {L"##any", L"a", L"##any", &context, 2},
        {L"##any", L"a", L"", &context, 1},
        {L"##any", L"a", nullptr, &ignoring, 2},
        {L"##any", L"a", L"urn:a", &context, 0},
        {L"##local", L"a", L"##any", &context, 1},
        {L"##any", L"b", L"##any", &context, 0},
    };
    for (const auto& row : cases) {
        const CSmartPtr<CElementCol> elements = new CElementCol(L"x", row.rule);
        const CXmlElement* rest =
            elements->FromXmlLockElementName_Int(row.name, row.uri, root, root->GetFirstElement(), *row.context);
        EXPECT_EQ(row.taken, elements->GetCount());
        EXPECT_EQ(L"/r/" + std::wstring(row.taken == 2 ? L"b" : row.taken == 1 ? L"a[2]" : L"a[1]"), rest->GetXPath());
    }
    EXPECT_EQ(nullptr,
        CSmartPtr<CElementCol>(new CElementCol(L"x"))->FromXmlLockElementName_Int(L"a", L"", root, nullptr, context));
}
