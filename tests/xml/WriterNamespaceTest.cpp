// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <functional>

using namespace ZrXmlLib16;

namespace {

const std::wstring INSTANCE = L"http://www.w3.org/2001/XMLSchema-instance";

std::wstring Written(const std::function<void(CXmlTextWriter&)>& write)
{
    CTextStream stream;
    CXmlTextWriter writer(stream);
    writer.Open();
    writer.SetFormat(false);
    write(writer);
    writer.Close();
    return stream.GetText();
}

void Empty(CXmlTextWriter& writer, const wchar_t* name, const wchar_t* namespaceUri)
{
    writer.WriteStartElement(name, namespaceUri);
    writer.WriteEndElement();
}

} // namespace

TEST(WriterNamespaces, RootDeclaresWhatWasRegistered)
{
    EXPECT_EQ(L"<AA:a xmlns:AA=\"urn:x\"/>", Written([](CXmlTextWriter& writer) { Empty(writer, L"a", L"urn:x"); }));
    EXPECT_EQ(L"<a xmlns=\"urn:x\"/>", Written([](CXmlTextWriter& writer) {
        writer.SetDefaultNamespace(L"urn:x");
        Empty(writer, L"a", L"urn:x");
    }));
    EXPECT_EQ(L"<q:a xmlns=\"urn:d\" xmlns:p=\"urn:1\" xmlns:q=\"urn:2&amp;&lt;\"><p:b/><xml:c/></q:a>",
        Written([](CXmlTextWriter& writer) {
            writer.SetDefaultNamespace(L"urn:d");
            writer.AddNamespace(L"q", L"urn:2&<");
            writer.AddNamespace(L"old", L"urn:1");
            writer.AddNamespace(L"p", L"urn:1");
            writer.WriteStartElement(L"a", L"urn:2&<");
            Empty(writer, L"b", L"urn:1");
            Empty(writer, L"c", CXmlWriter::XML_NAMESPACE.c_str());
            writer.WriteEndElement();
        }));
}

TEST(WriterNamespaces, EmptyPrefixesCountAsNone)
{
    EXPECT_EQ(L"<a xmlns:p=\"urn:2\"><AA:b xmlns:AA=\"urn:1\"/></a>", Written([](CXmlTextWriter& writer) {
        writer.AddNamespace(L"", L"urn:1");
        writer.AddNamespace(L"p", L"urn:2");
        writer.WriteStartElement(L"a", L"");
        Empty(writer, L"b", L"urn:1");
        writer.WriteEndElement();
    }));
}

TEST(WriterNamespaces, keeps_SiblingsInventingTheSamePrefix)
{
    EXPECT_EQ(L"<r><AA:a xmlns:AA=\"urn:1\"><AA:b/><AB:c xmlns:AB=\"urn:2\"/><AB:d xmlns:AB=\"urn:3\"/></AA:a>"
              L"<AA:a xmlns:AA=\"urn:2\"/><AA:a xmlns:AA=\"urn:1\"/></r>",
        Written([](CXmlTextWriter& writer) {
            writer.WriteStartElement(L"r", L"");
            writer.WriteStartElement(L"a", L"urn:1");
            Empty(writer, L"b", L"urn:1");
            Empty(writer, L"c", L"urn:2");
            Empty(writer, L"d", L"urn:3");
            writer.WriteEndElement();
            Empty(writer, L"a", L"urn:2");
            Empty(writer, L"a", L"urn:1");
            writer.WriteEndElement();
        }));
}

TEST(WriterNamespaces, keeps_PrefixesOfAttributesInTheDefaultNamespace)
{
    EXPECT_EQ(L"<a xmlns=\"urn:d\" xmlns:AA=\"urn:d\" AA:x=\"1\" AA:y=\"2\" z=\"3\" xmlns:AB=\"urn:e\" "
              L"AB:w=\"4\"><b/><n/></a>",
        Written([](CXmlTextWriter& writer) {
            writer.SetDefaultNamespace(L"urn:d");
            writer.WriteStartElement(L"a", L"urn:d");
            writer.WriteAttributeString(L"x", L"urn:d", L"1", ItemType_string);
            writer.WriteAttributeString(L"y", L"urn:d", L"2", ItemType_string);
            writer.WriteAttributeString(L"z", L"", L"3", ItemType_string);
            writer.WriteAttributeString(L"w", L"urn:e", L"4", ItemType_string);
            Empty(writer, L"b", L"urn:d");
            Empty(writer, L"n", L""); // kept: the default namespace is not undeclared
            writer.WriteEndElement();
        }));
}

TEST(WriterNamespaces, keeps_TwoBlanksAfterAnInventedTypePrefix)
{
    EXPECT_EQ(L"<a xmlns=\"urn:d\" xmlns:AA=\"urn:t\"  xmlns:AB=\"" + INSTANCE
            + L"\" AB:type=\"AA:T\"><b AB:type=\"AA:U\"/>"
            + L"<c AB:type=\"V\"/><d AB:type=\"W\" AB:nil=\"true\"/></a>",
        Written([](CXmlTextWriter& writer) {
            writer.SetDefaultNamespace(L"urn:d");
            writer.WriteStartElement(L"a", L"urn:d");
            writer.WriteAttributeType(L"T", L"urn:t", ItemType_none);
            writer.WriteStartElement(L"b", L"urn:d");
            writer.WriteAttributeType(L"U", L"urn:t", ItemType_none);
            writer.WriteEndElement();
            writer.WriteStartElement(L"c", L"urn:d");
            writer.WriteAttributeType(L"V", L"urn:d", ItemType_none);
            writer.WriteEndElement();
            writer.WriteStartElement(L"d", L"urn:d");
            writer.WriteAttributeType(L"W", L"", ItemType_none);
            writer.WriteAttributeNil();
            writer.WriteEndElement();
            writer.WriteEndElement();
        }));
}

TEST(WriterNamespaces, ChangesOnAnOpenElementServeItsDescendants)
{
    EXPECT_EQ(
        L"<a xmlns=\"urn:d\"><AA:b xmlns:AA=\"urn:e\"><c/><p:c/></AA:b><b/></a>", Written([](CXmlTextWriter& writer) {
            writer.SetDefaultNamespace(L"urn:d");
            writer.WriteStartElement(L"a", L"urn:d");
            writer.WriteStartElement(L"b", L"urn:e");
            writer.SetDefaultNamespace(L"urn:f");
            writer.AddNamespace(L"q", L"urn:e");
            writer.AddNamespace(L"p", L"urn:g");
            Empty(writer, L"c", L"urn:f");
            Empty(writer, L"c", L"urn:g");
            writer.WriteEndElement();
            Empty(writer, L"b", L"urn:d");
            writer.WriteEndElement();
        }));
}

TEST(WriterNamespaces, ASecondRootStartsFromTheWriterAgain)
{
    EXPECT_EQ(L"<p:a xmlns:p=\"urn:1\" xmlns:AA=\"urn:2\" AA:x=\"\"/><p:a xmlns:p=\"urn:1\"/>",
        Written([](CXmlTextWriter& writer) {
            writer.AddNamespace(L"p", L"urn:1");
            writer.WriteStartElement(L"a", L"urn:1");
            writer.WriteAttributeString(L"x", L"urn:2", L"", ItemType_string);
            writer.WriteEndElement();
            Empty(writer, L"a", L"urn:1");
        }));
}

TEST(WriterNamespaces, keeps_InventedPrefixesPastTheAlphabet)
{
    const struct {
        int number;
        const wchar_t* prefix;
    } cases[] = {{0, L"AA"}, {25, L"AZ"}, {26, L"BA"}, {675, L"ZZ"}, {676, L"[A"}};
    for (const auto& row : cases) {
        EXPECT_EQ(row.prefix, CXmlWriter::NsIntToString(row.number));
    }
    CTextStream stream;
    CXmlTextWriter writer(stream);
    CXmlWriter::NamespaceMap map{{L"urn:x", L"x"}, {L"urn:lower", L"Aa"}, {L"urn:none", L""}, {L"urn:long", L"AAA"}};
    for (int number = 0; number < 800; ++number) {
        EXPECT_EQ(CXmlWriter::NsIntToString(number), writer.GetUniquePrefix(map));
        map[std::to_wstring(number)] = CXmlWriter::NsIntToString(number);
    }
    map.erase(L"30");
    EXPECT_EQ(L"BE", writer.GetUniquePrefix(map));
}

TEST(WriterNamespaces, OutputReadsBack)
{
    const std::wstring text = Written([](CXmlTextWriter& writer) {
        writer.SetDefaultNamespace(L"urn:d");
        writer.WriteStartElement(L"a", L"urn:d");
        writer.WriteAttributeString(L"x", L"urn:e", L"\"<&>'\n\t", ItemType_string);
        writer.WriteStartElement(L"b", L"urn:f");
        writer.WriteString(L"]]>\n<&\"\xD83D\xDE00", ItemType_string, false);
        writer.WriteEndElement();
        writer.WriteEndElement();
    });
    CXmlDocument document;
    document.LoadXml(text.c_str());
    EXPECT_EQ(L"{urn:d}a @{urn:e}x=\"<&>'\n  ({urn:f}b ']]>\n<&\"\xD83D\xDE00')",
        TestSupport::TreeText(document.GetDocumentElement()));
}
