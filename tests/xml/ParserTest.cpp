// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::ParsedTree;
using TestSupport::TreeText;

TEST(Parser, TurnsEventsIntoTheTree)
{
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"<?xml version='1.0'?><!DOCTYPE a [<!ATTLIST a d CDATA 'given'>]><?pi x?><!--c--><a>1<!--c-->2<?pi?>3</a>",
            L"a @d=given '123'"},
        {"<p:a xmlns:p='urn:p' p:x='1' y='2'><b xmlns='urn:d' z='3' xml:lang='en'/></p:a>",
            L"{urn:p}a @{urn:p}x=1 @y=2 ({urn:d}b @z=3 @{http://www.w3.org/XML/1998/namespace}lang=en)"},
        {"<a>x<b>in</b>y<b/>z</a>", L"a 'xyz' (b 'in', b)"},
        {"<!DOCTYPE a [<!ENTITY e '[&#60;b>in&#60;/b>]'>]><a n=' &lt;&#10;&#13;&quot; '>&e;&amp;&gt;</a>",
            L"a @n= <\n\r\"  '[]&>' (b 'in')"},
        {"<!DOCTYPE a SYSTEM 'nowhere.dtd'><a>x&undefined;y</a>", L"a 'xy'"},
        {"\xEF\xBB\xBF<a>\xC3\xA9\xE2\x82\xAC</a>", L"a '\u00E9\u20AC'"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>", L"a '\u00E9'"}};
    for (const auto& row : cases)
        EXPECT_EQ(row.second, ParsedTree(row.first)) << row.first;
}

TEST(Parser, keeps_NoCarriageReturnsInText)
{
    EXPECT_EQ(L"a 'x\ny\nzw'", ParsedTree("<a>x\r\ny\rz&#13;w</a>"));
    EXPECT_EQ(L"a ']]'", ParsedTree("<a>&#13;]]&#13;&#13;</a>"));
}

TEST(Parser, LongTextArrivesWhole)
{
    std::string text;
    std::wstring expected;
    for (std::size_t i = 0; i < 6000; ++i) {
        const std::string letters(i % 7 + (i == 5999 ? 5000 : 0), static_cast<char>('a' + i % 26));
        text += letters + (i % 3 == 0 ? "\r\n" : "&amp;");
        expected += std::wstring(letters.begin(), letters.end()) + (i % 3 == 0 ? L"\n" : L"&");
    }
    EXPECT_TRUE(L"a '" + expected + L"'" == ParsedTree(("<a>" + text + "</a>").c_str()));
}

TEST(Parser, ValuesOfEveryLengthArriveWhole)
{
    for (std::size_t length = 0; length <= 80; ++length) {
        const std::string letters(length, 'v');
        const std::wstring expected(length, L'v');
        const std::string text = "<a x='" + letters + "' y='" + letters + "&#13;" + letters + "' z='" + letters + "'/>";
        EXPECT_EQ(
            L"a @x=" + expected + L" @y=" + expected + L"\r" + expected + L" @z=" + expected, ParsedTree(text.c_str()));
    }
}

TEST(Parser, TellsManyNamesApart)
{
    std::string text = "<r>";
    std::wstring expected = L"r (";
    for (int i = 0; i < 300; ++i) {
        const std::string number = std::to_string(i);
        text += "<n" + number + " xmlns='urn:" + number + "' a" + number + "='" + number + "'/>";
        const std::wstring wide = std::to_wstring(i);
        expected += (i ? L", {urn:" : L"{urn:") + wide + L"}n" + wide + L" @a" + wide + L"=" + wide;
    }
    EXPECT_EQ(expected + L")", ParsedTree((text + "</r>").c_str()));
}

// Of every length around the blocks in which names are compared, each the beginning of the next, in every order.
TEST(Parser, TellsNamesApartThatBeginAlike)
{
    for (const std::string uri : {"", "u", "urn:example:a-rather-long-namespace"}) {
        std::string text = "<r xmlns=\"" + uri + "\">";
        std::wstring expected;
        const std::string letters(40, 'n');
        for (std::size_t i = 0; i < 400; ++i) {
            const std::size_t length = 1 + i * i % 37;
            text += "<" + letters.substr(0, length) + "/>";
            expected += (expected.empty() ? L"" : L", ")
                + TestSupport::NameText(std::wstring(uri.begin(), uri.end()), std::wstring(length, L'n'));
        }
        EXPECT_EQ(TestSupport::NameText(std::wstring(uri.begin(), uri.end()), L"r") + L" (" + expected + L")",
            ParsedTree((text + "</r>").c_str()));
    }
}

// The parser moves what it has when names get longer and attributes more.
TEST(Parser, TagsOfEverySizeArriveWhole)
{
    std::string begin, end;
    std::wstring expected, closing;
    for (std::size_t size = 1; size <= 2000; size += 1 + size / 2) {
        const std::string name(size, 'n');
        begin += "<" + name;
        expected += (expected.empty() ? L"" : L" (") + std::wstring(size, L'n');
        closing += expected.size() == size ? L"" : L")";
        for (std::size_t i = 0; i < size / 8; ++i) {
            begin += " a" + std::to_string(i) + "='" + name + "'";
            expected += L" @a" + std::to_wstring(i) + L"=" + std::wstring(size, L'n');
        }
        begin += " xmlns:p" + name + "='urn:" + name + "'>";
        end.insert(0, "</" + name + ">");
    }
    EXPECT_EQ(expected + closing, ParsedTree((begin + end).c_str()));
}

TEST(Parser, ReportsErrorsWithTheirLine)
{
    const std::pair<const char*, const wchar_t*> cases[] = {{"<a>\n<b>\n</a>", L"mismatched tag at line 3"},
        {"<a>\n\n", L"no element found at line 3"},
        {" \n<?xml version='1.0'?><a/>", L"XML or text declaration not at start of entity at line 2"},
        {"<a/><b/>", L"junk after document element at line 1"},
        {"<a\nb='1'\nb='2'/>", L"duplicate attribute at line 3"}, {"<p:a/>", L"unbound prefix at line 1"},
        {"<a>&undefined;</a>", L"undefined entity at line 1"}, {"<a xmlns='u|v'/>", L"syntax error at line 1"},
        {"\x01", L"not well-formed (invalid token) at line 1"},
        {"<?xml version='1.0' encoding='nonsense'?><a/>", L"unknown encoding at line 1"}};
    for (const auto& row : cases)
        EXPECT_EQ(row.second, MessageOf<CZrException>([&] { ParsedTree(row.first); })) << row.first;
}

TEST(Parser, KeepsWhatWasBuiltBeforeAnError)
{
    CXmlDocument document;
    EXPECT_THROW(document.LoadXml("<a><b>x</b>tail &"), CZrException);
    EXPECT_EQ(L"a 'tail ' (b 'x')", TreeText(document.GetDocumentElement()));
    document.LoadXml("<d><e/></d>");
    EXPECT_EQ(L"d (e)", TreeText(document.GetDocumentElement()));
}

TEST(Parser, StopsEntityAmplification)
{
    std::string text = "<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 12; ++i) {
        text += "<!ENTITY e" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
            text += "&e" + std::to_string(i - 1) + ";";
        text += "'>";
    }
    text += "]><a>&e11;</a>";
    EXPECT_EQ(L"limit on input amplification factor (from DTD and entities) breached at line 1",
        MessageOf<CZrException>([&] { ParsedTree(text.c_str()); }));
}

TEST(Parser, keeps_SectionDelimitersUnlessStripped)
{
    const char* const text = "<a>1<![CDATA[<x/>\r\n&amp;]]>2<![CDATA[]]></a>";
    CSerializationContext context;
    context.SetStripCDATA(false);
    EXPECT_EQ(L"a '1<![CDATA[<x/>\n&amp;]]>2<![CDATA[]]>'", ParsedTree(text, context));
    context.SetStripCDATA(true);
    EXPECT_EQ(L"a '1<x/>\n&amp;2'", ParsedTree(text, context));
}

TEST(Parser, keeps_PrefixesAndDeclarationsForSchemaType2)
{
    CSerializationContext context;
    context.SetSchemaType(SchemaType_DTD);
    EXPECT_EQ(L"p:a @xmlns:p=urn:p @xmlns=urn:d @p:x=1 (unbound:b)",
        ParsedTree("<p:a xmlns:p='urn:p' xmlns='urn:d' p:x='1'><unbound:b/></p:a>", context));
}

TEST(Parser, keeps_SupplementaryCharactersAsTwoCharacters)
{
    const std::wstring pair = {wchar_t{0xD83D}, wchar_t{0xDE00}};
    EXPECT_EQ(L"a @n=" + pair + L" '" + pair + pair + L"'",
        ParsedTree("<a n='\xF0\x9F\x98\x80'>&#x1F600;\xF0\x9F\x98\x80</a>"));
    CXmlDocument document;
    document.LoadXml((L"<a>" + pair + L"</a>").c_str());
    EXPECT_EQ(pair, document.GetDocumentElement()->GetText());
}

TEST(Parser, keeps_TheLow16BitsOfWideText)
{
    CXmlDocument document;
    document.LoadXml(L"<a>\U0001F600\u20AC</a>");
    EXPECT_EQ(std::wstring({wchar_t{0xF600}, wchar_t{0x20AC}}), document.GetDocumentElement()->GetText());
    // The reason depends on the release of the parser; that it refuses a lone surrogate does not.
    EXPECT_NE(L"", MessageOf<CZrException>([&] {
        document.LoadXml(std::wstring({L'<', L'a', L'>', wchar_t{0xD83D}, L'<', L'/', L'a', L'>'}).c_str());
    }));
}

TEST(Parser, keeps_WideTextThatDeclaresAnEightBitEncodingRefused)
{
    CXmlDocument document;
    EXPECT_EQ(L"encoding specified in XML declaration is incorrect at line 1",
        MessageOf<CZrException>([&] { document.LoadXml(L"<?xml version='1.0' encoding='UTF-8'?><a/>"); }));
    document.LoadXml(L"<?xml version='1.0' encoding='UTF-16'?><a/>");
    EXPECT_EQ(L"a", TreeText(document.GetDocumentElement()));
}
