// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <sstream>
#include <vector>

using namespace ZrXmlLib16;

namespace {

/// The output for calls written as words: !default-namespace +prefix,namespace <name,namespace > @name,namespace,value
/// :type,namespace and nil.
std::wstring Written(const wchar_t* script)
{
    CTextStream stream;
    CXmlTextWriter writer(stream);
    writer.Open();
    writer.SetFormat(false);
    std::wistringstream words(script);
    for (std::wstring word; words >> word;) {
        std::wistringstream list(word.substr(1));
        std::vector<std::wstring> parts;
        for (std::wstring part; std::getline(list, part, L',');)
            parts.push_back(part);
        parts.resize(3);
        switch (word[0]) {
        case L'!':
            writer.SetDefaultNamespace(parts[0].c_str());
            break;
        case L'+':
            writer.AddNamespace(parts[0].c_str(), parts[1].c_str());
            break;
        case L'<':
            writer.WriteStartElement(parts[0].c_str(), parts[1].c_str());
            break;
        case L'>':
            writer.WriteEndElement();
            break;
        case L'@':
            writer.WriteAttributeString(parts[0].c_str(), parts[1].c_str(), parts[2].c_str(), ItemType_string);
            break;
        case L':':
            writer.WriteAttributeType(parts[0].c_str(), parts[1].c_str(), ItemType_none);
            break;
        default:
            writer.WriteAttributeNil();
        }
    }
    writer.Close();
    return stream.GetText();
}

} // namespace

TEST(WriterNamespaces, DeclarationsStandWhereTheyAreNeeded)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"<a,urn:x >", L"<AA:a xmlns:AA=\"urn:x\"/>"},
        {L"!urn:x <a,urn:x >", L"<a xmlns=\"urn:x\"/>"},
        {L"!urn:d +q,urn:2&< +old,urn:1 +p,urn:1 <a,urn:2&< <b,urn:1 > <c,http://www.w3.org/XML/1998/namespace > >",
            L"<q:a xmlns=\"urn:d\" xmlns:p=\"urn:1\" xmlns:q=\"urn:2&amp;&lt;\"><p:b/><xml:c/></q:a>"},
        // an empty prefix counts as none
        {L"+,urn:1 +p,urn:2 <a <b,urn:1 > >", L"<a xmlns:p=\"urn:2\"><AA:b xmlns:AA=\"urn:1\"/></a>"},
        // changes on an open element serve its descendants
        {L"!urn:d <a,urn:d <b,urn:e !urn:f +q,urn:e +p,urn:g <c,urn:f > <c,urn:g > > <b,urn:d > >",
            L"<a xmlns=\"urn:d\"><AA:b xmlns:AA=\"urn:e\"><c/><p:c/></AA:b><b/></a>"},
        // a second root starts from the writer again
        {L"+p,urn:1 <a,urn:1 @x,urn:2 > <a,urn:1 >",
            L"<p:a xmlns:p=\"urn:1\" xmlns:AA=\"urn:2\" AA:x=\"\"/><p:a xmlns:p=\"urn:1\"/>"},
    };
    for (const auto& [script, expected] : cases)
        EXPECT_EQ(expected, Written(script));
}

TEST(WriterNamespaces, keeps_SiblingsInventingTheSamePrefix)
{
    EXPECT_EQ(L"<r><AA:a xmlns:AA=\"urn:1\"><AA:b/><AB:c xmlns:AB=\"urn:2\"/><AB:d xmlns:AB=\"urn:3\"/></AA:a>"
              L"<AA:a xmlns:AA=\"urn:2\"/><AA:a xmlns:AA=\"urn:1\"/></r>",
        Written(L"<r <a,urn:1 <b,urn:1 > <c,urn:2 > <d,urn:3 > > <a,urn:2 > <a,urn:1 > >"));
}

TEST(WriterNamespaces, keeps_PrefixesOfAttributesInTheDefaultNamespaceWhichIsNotUndeclared)
{
    EXPECT_EQ(L"<a xmlns=\"urn:d\" xmlns:AA=\"urn:d\" AA:x=\"1\" AA:y=\"2\" z=\"3\" xmlns:AB=\"urn:e\" "
              L"AB:w=\"4\"><b/><n/></a>",
        Written(L"!urn:d <a,urn:d @x,urn:d,1 @y,urn:d,2 @z,,3 @w,urn:e,4 <b,urn:d > <n > >"));
}

TEST(WriterNamespaces, keeps_TwoBlanksAfterAnInventedTypePrefix)
{
    EXPECT_EQ(L"<a xmlns=\"urn:d\" xmlns:AA=\"urn:t\"  xmlns:AB=\"http://www.w3.org/2001/XMLSchema-instance\" "
              L"AB:type=\"AA:T\"><b AB:type=\"AA:U\"/><c AB:type=\"V\"/><d AB:type=\"W\" AB:nil=\"true\"/></a>",
        Written(L"!urn:d <a,urn:d :T,urn:t <b,urn:d :U,urn:t > <c,urn:d :V,urn:d > <d,urn:d :W nil > >"));
}

TEST(WriterNamespaces, keeps_InventedPrefixesPastTheAlphabet)
{
    const std::pair<int, const wchar_t*> cases[] = {{0, L"AA"}, {25, L"AZ"}, {26, L"BA"}, {675, L"ZZ"}, {676, L"[A"}};
    for (const auto& [number, prefix] : cases)
        EXPECT_EQ(prefix, CXmlWriter::NsIntToString(number));
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
    CTextStream stream;
    CXmlTextWriter writer(stream);
    writer.SetDefaultNamespace(L"urn:d");
    writer.WriteStartElement(L"a", L"urn:d");
    writer.WriteAttributeString(L"x", L"urn:e", L"\"<&>'\n\t", ItemType_string);
    writer.WriteString(L"]]>\n<&\"\xD83D\xDE00", ItemType_string, false);
    writer.WriteEndElement();
    CXmlDocument document;
    document.LoadXml(stream.GetText());
    EXPECT_EQ(
        L"{urn:d}a @{urn:e}x=\"<&>'\n  ']]>\n<&\"\xD83D\xDE00'", TestSupport::TreeText(document.GetDocumentElement()));
}
