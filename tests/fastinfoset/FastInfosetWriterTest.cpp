// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "fastinfoset/WriterFixture.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::OctetsOf;
using TestSupport::OctetText;
using TestSupport::WriterFixture;

namespace {

// One letter per event: ( start, ) end, a attribute, t text, z empty text, p PI, c comment and schema.
void Play(WriterFixture& test, const char* events)
{
    for (; *events != '\0'; ++events) {
        switch (*events) {
        case '(':
            test.Start(L"e");
            break;
        case ')':
            test.End();
            break;
        case 'a':
            test.Attribute(L"a", L"", L"v");
            break;
        case 't':
            test.String(L"t");
            break;
        case 'z':
            test.String(L"");
            break;
        case 'p':
            test.writer.WritePI(L"<?p?>");
            break;
        default:
            test.writer.WriteComment(L"comment");
            test.writer.WriteInlineSchema(L"schema");
        }
    }
}

} // namespace

// A whole document, octet by octet.
TEST(FastInfosetWriter, WritesTheOctetsOfADocument)
{
    CFastInfosetContext context;
    context.SetSuggestedValues();
    WriterFixture test(context);
    test.writer.SetDefaultNamespace(L"urn:d");
    test.writer.AddNamespace(L"p", L"urn:p");
    test.writer.Open();
    test.writer.WriteStartDocument(FInfoDecl_None);
    test.Start(L"order", L"urn:d");
    test.Attribute(L"id", L"", L"7");
    test.Attribute(L"id", L"urn:p", L"7");
    test.Start(L"item", L"urn:d");
    test.String(L"abc");
    test.End();
    test.Start(L"item", L"urn:d");
    test.String(L"abc");
    test.End();
    test.Start(L"date", L"urn:p");
    test.String(L"2020-01-31", ItemType_date);
    test.End();
    test.Start(L"qty");
    test.String(L"-2", ItemType_i4);
    test.End();
    test.Start(L"note", L"urn:d");
    test.String(L"literal");
    test.Start(L"flag");
    test.Attribute(L"on", L"", L"true", ItemType_boolean);
    test.End();
    test.End();
    test.End();
    test.writer.WriteEndDocument();
    test.writer.Close();

    const std::string expected =
        // Identification, version 1, no optional components.
        "E0 00 00 01 00"
        // The root has attributes (40) and namespaces (38). Namespaces get index 2 and 3 after the built-in one.
        " 78"
        " CD 04 75 72 6E 3A 64"       // default namespace: 5 octets urn:d
        " CF 00 70 04 75 72 6E 3A 70" // prefix p, namespace urn:p
        " F0"                         // end of the namespaces
        // Literal name (3C) with a namespace (01): that of index 2, local name order. Element name 1.
        " 3D 81 04 6F 72 64 65 72"
        // Literal attribute name: local name id, which becomes 2. The value is to be added (40): 1 octet.
        " 78 01 69 64 40 37"
        // Literal attribute name with prefix and namespace (03): prefix 2, namespace 3, local name 2; value 1.
        " 7B 81 82 81 80"
        " F0" // end of the attributes
        // item, literal, element name 2. Chunk to be added (90), of 3 octets (02 00): abc.
        " 3D 81 03 69 74 65 6D 92 00 61 62 63"
        " F0" // end of item
        // Element name 2, chunk 1 (A0).
        " 01 A0"
        " F0" // end of item
        // date, literal with prefix 2, namespace 3. Chunk not to be added (80) in an alphabet (08): number 2 (04), 5
        // octets (02 02), two digits in each.
        " 3F 81 82 03 64 61 74 65 88 06 02 20 20 A0 1A 31"
        " F0" // end of date
        // qty in no namespace. Chunk to be added (90), by an algorithm (0C): number 4 (0C), 4 octets (02 01).
        " 3C 02 71 74 79 9C 0E 01 FF FF FF FE"
        " F0" // end of qty
        // note. Chunk not to be added: 7 octets.
        " 3D 81 03 6E 6F 74 65 82 04 6C 69 74 65 72 61 6C"
        // flag has attributes (40): on, with a value to be added (40) by an algorithm (30): number 6 (50), 1 octet.
        " 7C 03 66 6C 61 67 78 01 6F 6E 70 50 38"
        " F0" // end of the attributes
        " FF" // end of flag and note
        " FF" // end of order and of the document
        ;
    EXPECT_EQ(OctetText(test.data), expected);
}

TEST(FastInfosetWriter, WritesTheStartOfTheDocument)
{
    const struct {
        FInfoDecl declaration;
        bool hasVocabulary;
        const wchar_t* uri;
        const char* text;
        const char* octets;
    } cases[] = {
        {FInfoDecl_None, false, L"urn:ignored", "", "E0 00 00 01 00"},
        {FInfoDecl_Enc, false, L"", "<?xml encoding='finf'?>", "E0 00 00 01 00"},
        {FInfoDecl_10EncYes, false, L"", "<?xml version='1.0' encoding='finf' standalone='yes'?>", "E0 00 00 01 00"},
        {FInfoDecl_11EncNo, true, L"u:1", "<?xml version='1.1' encoding='finf' standalone='no'?>",
            "E0 00 00 01 20 10 00 02 75 3A 31"},
        {FInfoDecl_None, true, L"", "",
            "E0 00 00 01 20 10 00 22 75 72 6E 3A 7A 72 78 6D 6C 6C 69 62 31 36 3A 76 6F 63 61 62 75 6C 61 72 79 3A 67 "
            "65 6E 65 72 61 74 65 64"},
    };
    for (const auto& row : cases) {
        CFastInfosetContext context;
        context.SetUseGeneratedVocabulary(row.hasVocabulary);
        context.SetExternalVocabularyURI(row.uri);
        WriterFixture test(context);
        test.writer.WriteStartDocument(row.declaration);
        Play(test, "()");
        test.writer.WriteEndDocument();
        const std::string text = row.text;
        const std::string declaration =
            OctetText(reinterpret_cast<const unsigned char*>(text.data()), text.size()) + (text.empty() ? "" : " ");
        EXPECT_EQ(OctetText(test.data), declaration + row.octets + " 3C 00 65 FF") << row.declaration;
    }
    for (const int invalid : {-1, 10}) {
        WriterFixture test{CFastInfosetContext()};
        EXPECT_EQ(MessageOf<CZrException>([&] { test.writer.WriteStartDocument(static_cast<FInfoDecl>(invalid)); }),
            L"Failed to write FastInfoset. Invalid declaration value [" + std::to_wstring(invalid) + L"]");
    }
}

TEST(FastInfosetWriter, MergesAndOwesTerminators)
{
    const struct {
        const char* events;
        const char* octets;
    } cases[] = {
        {"()", "3C 00 65 FF"},
        {"(z)", "3C 00 65 FF"},
        {"(p)", "3C 00 65 FF"},
        {"(())", "3C 00 65 00 FF F0"},
        {"(()())", "3C 00 65 00 F0 00 FF F0"},
        {"((()))", "3C 00 65 00 00 FF FF"},
        {"(t)", "3C 00 65 90 74 FF"},
        {"(tt)", "3C 00 65 90 74 A0 FF"},
        {"(()t)", "3C 00 65 00 F0 90 74 FF"},
        {"(()z)", "3C 00 65 00 FF F0"},
        {"((t)t)", "3C 00 65 00 90 74 F0 A0 FF"},
        {"(a)", "7C 00 65 78 00 61 40 76 F0 FF"},
        {"(ca)", "7C 00 65 78 00 61 40 76 F0 FF"},
        {"(az)", "7C 00 65 78 00 61 40 76 F0 FF"},
        {"(at)", "7C 00 65 78 00 61 40 76 F0 90 74 FF"},
        {"(apa)", "7C 00 65 78 00 61 40 76 00 80 F0 FF"},
        {"(a(a))", "7C 00 65 78 00 61 40 76 F0 40 00 80 F0 FF F0"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(OctetsOf(CFastInfosetContext(), [&](WriterFixture& test) { Play(test, row.events); }), row.octets)
            << row.events;
    }
}

TEST(FastInfosetWriter, RefusesEventsOutOfOrder)
{
    for (const char* events : {"a", "()a", "(ta", "(za", "(pa", "(()a", "(atta"}) {
        const CFastInfosetContext context;
        WriterFixture test(context);
        EXPECT_EQ(MessageOf<CZrException>([&] { Play(test, events); }), L"Attributes must be added before elements")
            << events;
    }
    const CFastInfosetContext context;
    WriterFixture test(context);
    EXPECT_EQ(MessageOf<CZrInvalidStateException>([&] { test.End(); }), L"There is no open element to end.");
    Play(test, "()z");
    EXPECT_EQ(MessageOf<CZrInvalidStateException>([&] { test.String(L"t"); }),
        L"Failed to write FastInfoset. Text must be inside an element.");
    Play(test, "(");
    EXPECT_EQ(MessageOf<CZrException>([&] { test.writer.Close(); }), L"An Element has not been closed.");
    test.Start(L"");
    EXPECT_EQ(MessageOf<CZrException>([&] { test.End(); }), L"Failed to write FastInfoset. A name must not be empty.");
}

TEST(FastInfosetWriter, DeclaresTheNamespacesOfTheRoot)
{
    const CFastInfosetContext context;
    // In the order of the URIs, without the XML namespace, an unusable prefix and an unusable URI.
    EXPECT_EQ(OctetsOf(context,
                  [](WriterFixture& test) {
                      test.writer.AddNamespace(L"b", L"u:1");
                      test.writer.AddNamespace(L"a", L"u:2");
                      test.writer.AddNamespace(L"", L"u:0");
                      test.writer.AddNamespace(L"c", L"");
                      test.writer.AddNamespace(L"x", L"http://www.w3.org/XML/1998/namespace");
                      test.Start(L"e", L"u:2");
                      test.End();
                  }),
        "38 CF 00 62 02 75 3A 31 CF 00 61 02 75 3A 32 F0 3F 82 82 00 65 FF");
    // Only such: no list at all. The XML namespace has its indexes from the start.
    EXPECT_EQ(OctetsOf(context,
                  [](WriterFixture& test) {
                      test.writer.AddNamespace(L"", L"u:0");
                      test.Start(L"e");
                      test.Attribute(L"lang", L"http://www.w3.org/XML/1998/namespace", L"");
                      test.End();
                  }),
        "7C 00 65 7B 80 80 03 6C 61 6E 67 FF F0 FF");
    // An element of the default namespace has no prefix, an attribute of it gets one.
    EXPECT_EQ(OctetsOf(context,
                  [](WriterFixture& test) {
                      test.writer.SetDefaultNamespace(L"u:1");
                      test.Start(L"e", L"u:1");
                      test.Start(L"e", L"u:1");
                      test.Attribute(L"e", L"u:1", L"");
                      test.End();
                      test.End();
                  }),
        "38 CD 02 75 3A 31 F0 3D 81 00 65 40 7B 01 41 41 81 80 FF F0 FF F0");
}

TEST(FastInfosetWriter, keeps_AttributePresenceInFrontOfTheNamespaces)
{
    EXPECT_EQ(OctetsOf(CFastInfosetContext(),
                  [](WriterFixture& test) {
                      test.writer.SetDefaultNamespace(L"u");
                      Play(test, "(a)");
                  }),
        "78 CD 00 75 F0 3C 00 65 78 00 61 40 76 F0 FF");
}

TEST(FastInfosetWriter, InventsPrefixesPerElement)
{
    const CFastInfosetContext context;
    // Siblings invent the same prefix; a child uses its parent's.
    EXPECT_EQ(OctetsOf(context,
                  [](WriterFixture& test) {
                      test.Start(L"r");
                      test.Start(L"a", L"u:1");
                      test.Start(L"a", L"u:1");
                      test.End();
                      test.End();
                      test.Start(L"a", L"u:2");
                      test.End();
                      test.End();
                  }),
        "3C 00 72 3F 01 41 41 02 75 3A 31 00 61 01 FF 3F 81 02 75 3A 32 81 FF F0");
}

TEST(FastInfosetWriter, WritesTheInstanceAttributes)
{
    CFastInfosetContext context;
    context.SetEncoding(ItemType_boolean, {CFastInfosetContext::EncodingAlgorithm, 6});
    // The namespace of the type gets its prefix first: AA, then AB for the instance namespace.
    const std::string octets = OctetsOf(context, [](WriterFixture& test) {
        test.Start(L"e");
        test.writer.WriteAttributeType(L"T", L"u:1", ItemType_string);
        test.writer.WriteAttributeNil();
        test.End();
    });
    const std::string uri = "28 68 74 74 70 3A 2F 2F 77 77 77 2E 77 33 2E 6F 72 67 2F 32 30 30 31 2F 58 4D 4C 53 63 68 "
                            "65 6D 61 2D 69 6E 73 74 61 6E 63 65";
    EXPECT_EQ(
        octets, "7C 00 65 7B 01 41 42 " + uri + " 03 74 79 70 65 43 41 41 3A 54 7B 81 81 02 6E 69 6C 70 50 38 F0 FF");
    // The name alone in no namespace and in the default one.
    for (const wchar_t* typeNamespace : {L"", L"u:1"}) {
        EXPECT_EQ(OctetsOf(context,
                      [&](WriterFixture& test) {
                          test.writer.SetDefaultNamespace(L"u:1");
                          test.writer.AddNamespace(L"i", L"http://www.w3.org/2001/XMLSchema-instance");
                          test.Start(L"e");
                          test.writer.WriteAttributeType(L"T", typeNamespace, ItemType_string);
                          test.End();
                      }),
            "78 CD 02 75 3A 31 CF 00 69 " + uri + " F0 3C 00 65 7B 81 82 03 74 79 70 65 40 54 F0 FF");
    }
    WriterFixture test(context);
    Play(test, "(t");
    for (const auto& action : {std::function<void()>([&] { test.writer.WriteAttributeType(L"T", L"", ItemType_none); }),
             std::function<void()>([&] { test.writer.WriteAttributeNil(); })}) {
        EXPECT_EQ(MessageOf<CZrException>(action), L"Attributes must be added before elements");
    }
}
