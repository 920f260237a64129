// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

constexpr JsonRoundTrip MODES[] = {JsonRoundTrip_Plain, JsonRoundTrip_Attributes, JsonRoundTrip_Full};

// The declaration that goes into the root when the prefix is used.
#define XSI L" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""

std::wstring Convert(const std::wstring& json, JsonRoundTrip mode, const wchar_t* rootName = L"")
{
    CSerializationContext context;
    context.GetJsonContext().SetSupportRoundtrip(mode);
    context.GetJsonContext().SetRootElementName(rootName);
    return CEncoder::Utf8ToUnicode(CJsonTextReader::ConvertJsonToXml(json, context));
}

std::wstring FailureOf(const std::wstring& json, JsonRoundTrip mode = JsonRoundTrip_Full)
{
    return MessageOf<CZrValidationException>([&] { Convert(json, mode); });
}

/// A single-line document without its line end.
std::wstring Line(const std::wstring& xml)
{
    return xml.empty() || xml.back() != L'\n' ? xml : xml.substr(0, xml.size() - 1);
}

std::size_t CountChildren(const CXmlElement& element)
{
    std::size_t count = 0;
    for (const CXmlElement* child = element.GetFirstElement(); child; child = child->GetNextSiblingElement()) {
        ++count;
    }
    return count;
}

void LoadXml(CXmlDocument& document, const CBinaryData& xml)
{
    document.LoadXmlStream(xml.GetData(), xml.GetLength());
}

} // namespace

TEST(JsonToXml, MapsMembersInEachMode)
{
    const struct {
        const wchar_t* json;
        const wchar_t* xml[3]; // by mode
    } cases[] = {
        // names and prefixes
        {L"{\"p:r\":1}", {L"<r>1</r>", L"<r>1</r>", L"<p:r>1</p:r>"}},
        {L"{\"xml:r\":1}", {L"<xml:r>1</xml:r>", L"<xml:r>1</xml:r>", L"<xml:r>1</xml:r>"}},
        {L"{\"xsi:r\":1}", {L"<xsi:r" XSI ">1</xsi:r>", L"<xsi:r" XSI ">1</xsi:r>", L"<xsi:r" XSI ">1</xsi:r>"}},
        {L"{\"r\":{\"@p:a\":1}}", {L"<r a=\"1\"/>", L"<r a=\"1\"/>", L"<r p:a=\"1\"/>"}},
        {L"{\"r\":{\"@xml:lang\":\"de\"}}",
            {L"<r xml:lang=\"de\"/>", L"<r xml:lang=\"de\"/>", L"<r xml:lang=\"de\"/>"}},
        {L"{\"r\":{\"@xsi:type\":\"t\"}}",
            {L"<r" XSI " xsi:type=\"t\"/>", L"<r" XSI " xsi:type=\"t\"/>", L"<r" XSI " xsi:type=\"t\"/>"}},
        // declarations
        {L"{\"r\":{\"@xmlns\":\"u\",\"@xmlns:p\":\"v\"}}", {L"<r/>", L"<r/>", L"<r xmlns=\"u\" xmlns:p=\"v\"/>"}},
        {L"{\"r\":{\"@xmlns:xsi\":\"u\",\"@xsi:a\":1}}",
            {L"<r" XSI " xsi:a=\"1\"/>", L"<r" XSI " xsi:a=\"1\"/>", L"<r xmlns:xsi=\"u\" xsi:a=\"1\"/>"}},
        {L"{\"r\":{\"@xmlns:xsi\":null,\"@xsi:a\":1}}",
            {L"<r" XSI " xsi:a=\"1\"/>", L"<r" XSI " xsi:a=\"1\"/>", L"<r" XSI " xsi:a=\"1\"/>"}},
        {L"{\"r\":{\"@p:xmlns\":\"u\"}}", {L"<r/>", L"<r/>", L"<r p:xmlns=\"u\"/>"}},
        // attributes
        {L"{\"r\":{\"@n\":null,\"@a\":true,\"@b\":-1.0,\"@c\":\"<&\\\"\"}}",
            {L"<r a=\"true\" b=\"-1.0\" c=\"&lt;&amp;&quot;\"/>", L"<r a=\"true\" b=\"-1.0\" c=\"&lt;&amp;&quot;\"/>",
                L"<r a=\"true\" b=\"-1.0\" c=\"&lt;&amp;&quot;\"/>"}},
        // values
        {L"{\"r\":\"\"}", {L"<r/>", L"<r/>", L"<r/>"}},
        {L"{\"r\":{}}", {L"<r/>", L"<r/>", L"<r/>"}},
        {L"{\"r\":[[1.50]]}", {L"<r>1.50</r>", L"<r>1.50</r>", L"<r>1.50</r>"}},
        {L"{\"r\":null}", {L"<r/>", L"<r/>", L"<r" XSI " xsi:nil=\"true\"/>"}},
        {L"{\"r\":[null]}", {L"<r/>", L"<r/>", L"<r" XSI " xsi:nil=\"true\"/>"}},
        {L"{\"r\":{\"a\":[],\"b\":[[],[[]]]}}", {L"<r/>", L"<r/>", L"<r/>"}},
        // text
        {L"{\"r\":{\"@a\":1,\"#text\":\"x\"}}", {L"<r a=\"1\">x</r>", L"<r a=\"1\">x</r>", L"<r a=\"1\">x</r>"}},
        {L"{\"r\":{\"\":true,\"@a\":1}}", {L"<r a=\"1\">true</r>", L"<r a=\"1\">true</r>", L"<r a=\"1\">true</r>"}},
        {L"{\"r\":{\"#text\":null,\"\":null}}", {L"<r/>", L"<r/>", L"<r/>"}},
        {L"{\"r\":{\"#text\":\"a\",\"b\":{\"c\":1,\"d\":2},\"\":\"e\",\"@f\":3}}",
            {L"<r f=\"3\">a<b><c>1</c><d>2</d></b>e</r>", L"<r f=\"3\">a<b><c>1</c><d>2</d></b>e</r>",
                L"<r f=\"3\">a<b><c>1</c><d>2</d></b>e</r>"}},
        // beside the root
        {L"{\"@a\":1,\"r\":2,\"#text\":3}", {L"<r>2</r>", L"<r>2</r>", L"<r>2</r>"}},
        // no document
        {L" ", {L"", L"", L""}},
    };
    for (const auto& test : cases) {
        for (const JsonRoundTrip mode : MODES) {
            SCOPED_TRACE(Narrow(test.json) + " in mode " + std::to_string(mode));
            EXPECT_EQ(Narrow(Line(Convert(test.json, mode))), Narrow(test.xml[mode]));
        }
    }
}

TEST(JsonToXml, RepeatsElementsForItemsAndDuplicateNames)
{
    EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"a\":[1,[\"x\",[{\"@b\":2}]],{}],\"c\":0,\"a\":3}}", JsonRoundTrip_Full)),
        "<r>\n\t<a>1</a>\n\t<a>x</a>\n\t<a b=\"2\"/>\n\t<a/>\n\t<c>0</c>\n\t<a>3</a>\n</r>\n");
}

TEST(JsonToXml, OmitsOrMarksNullItems)
{
    const std::wstring json = L"{\"r\":{\"a\":null,\"b\":[1,null]}}";
    EXPECT_EQ(Narrow(Convert(json, JsonRoundTrip_Plain)), "<r>\n\t<b>1</b>\n</r>\n");
    EXPECT_EQ(Narrow(Convert(json, JsonRoundTrip_Attributes)), "<r>\n\t<b>1</b>\n</r>\n");
    EXPECT_EQ(Narrow(Convert(json, JsonRoundTrip_Full)),
        Narrow(L"<r" XSI ">\n\t<a xsi:nil=\"true\"/>\n\t<b>1</b>\n\t<b xsi:nil=\"true\"/>\n</r>\n"));
}

// Attributes of one element stand among and behind members whose own content must not be searched for them.
TEST(JsonToXml, CollectsAttributesFromBehindTheChildren)
{
    EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"a\":{\"b\":{\"@x\":1},\"@y\":2},\"@z\":3,\"c\":[{\"@v\":4}],\"@w\":5}}",
                  JsonRoundTrip_Full)),
        "<r z=\"3\" w=\"5\">\n\t<a y=\"2\">\n\t\t<b x=\"1\"/>\n\t</a>\n\t<c v=\"4\"/>\n</r>\n");
}

TEST(JsonToXml, IndentsAroundMixedContentButNotInIt)
{
    EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"a\":{\"#text\":\"x\",\"b\":{\"c\":1,\"#text\":2}},\"d\":{\"e\":3}}}",
                  JsonRoundTrip_Full)),
        "<r>\n\t<a>x<b><c>1</c>2</b></a>\n\t<d>\n\t\t<e>3</e>\n\t</d>\n</r>\n");
}

TEST(JsonToXml, EscapesNames)
{
    const struct {
        const wchar_t* name;
        const wchar_t* xmlName;
    } cases[] = {
        {L"a-b.c_9", L"a-b.c_9"},
        {L"\xE4\x4E2D", L"\xE4\x4E2D"},
        {L"$schema", L"_x0024_schema"},
        {L"9a", L"_x0039_a"},
        {L"-a", L"_x002D_a"},
        {L"a b", L"a_x0020_b"},
        {L"#comment", L"_x0023_comment"},
        {L"a><b/", L"a_x003E__x003C_b_x002F_"},
        {L"a\nb", L"a_x000A_b"},
        {L"\xD83D\xDE00", L"_x0001F600_"},
        {L"a\U0001F600", L"a_x0001F600_"},
        {L"\xD83D", L"_xD83D_"},
        {L"\xDE00\xD83D", L"_xDE00__xD83D_"},
        {L"p:", L"p:_"},
        {L"p:q:r", L"p:q_x003A_r"},
        {L"p:1", L"p:_x0031_"},
        {L":a", L"_x003A_a"},
        {L"1:a", L"_x0031_:a"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Narrow(test.name));
        const std::wstring name(test.name);
        const std::string element = Narrow(std::wstring(L"<") + test.xmlName + L"/>\n");
        const std::string attribute = Narrow(std::wstring(L"<r ") + test.xmlName + L"=\"\"/>\n");
        EXPECT_EQ(Narrow(Convert(L"{\"" + name + L"\":{}}", JsonRoundTrip_Full)), element);
        EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"@" + name + L"\":\"\"}}", JsonRoundTrip_Full)), attribute);
    }
    EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"@\":1}}", JsonRoundTrip_Full)), "<r _=\"1\"/>\n");
    EXPECT_EQ(Narrow(Convert(L"{\"p:q:r\":1}", JsonRoundTrip_Plain)), "<q_x003A_r>1</q_x003A_r>\n");
    EXPECT_EQ(Narrow(Convert(L"{\"p:\":1}", JsonRoundTrip_Plain)), "<_>1</_>\n");
}

TEST(JsonToXml, WritesNoMarkupFromStrings)
{
    const struct {
        const wchar_t* value;
        const wchar_t* text;
    } cases[] = {
        {L"<![CDATA[<x/>]]>", L"&lt;![CDATA[&lt;x/&gt;]]&gt;"},
        {L"<![CDATA[", L"&lt;![CDATA["},
        {L"<![CDATA", L"&lt;![CDATA"},
        {L"]]><b/>&amp;", L"]]&gt;&lt;b/&gt;&amp;amp;"},
    };
    for (const auto& test : cases) {
        const std::wstring quoted = std::wstring(L"\"") + test.value + L"\"";
        const std::wstring xml = std::wstring(L"<r>") + test.text + L"</r>\n";
        EXPECT_EQ(Narrow(Convert(L"{\"r\":" + quoted + L"}", JsonRoundTrip_Full)), Narrow(xml));
        EXPECT_EQ(Narrow(Convert(L"{\"r\":{\"#text\":" + quoted + L"}}", JsonRoundTrip_Full)), Narrow(xml));
    }
    CXmlDocument document;
    LoadXml(document, CJsonTextReader::ConvertJsonToXml(L"{\"r\":\"<![CDATA[<x/>]]>\"}", CSerializationContext()));
    EXPECT_EQ(document.GetDocumentElement()->GetText(), L"<![CDATA[<x/>]]>");
}

TEST(JsonToXml, KeepsSupplementaryCharacters)
{
    for (const wchar_t* const json : {L"{\"r\":\"x\xD83D\xDE00y\"}", L"{\"r\":\"x\U0001F600y\"}"}) {
        CXmlDocument document;
        LoadXml(document, CJsonTextReader::ConvertJsonToXml(json, CSerializationContext()));
        EXPECT_EQ(Narrow(document.GetDocumentElement()->GetText()), "x\xF0\x9F\x98\x80y");
    }
}

TEST(JsonToXml, RequiresOneRootElement)
{
    for (const wchar_t* const json : {L"1", L"\"r\"", L"null", L"[]", L"[{\"r\":1}]", L"{}", L"{\"@a\":1}",
             L"{\"#text\":1}", L"{\"a\":1,\"b\":2}", L"{\"a\":1,\"a\":2}", L"{\"a\":[]}", L"{\"a\":[[],[]]}",
             L"{\"a\":[1,2]}", L"{\"a\":[[1],[2]]}", L"{\"a\":[],\"b\":1}", L"{\"b\":1,\"a\":[]}"}) {
        for (const JsonRoundTrip mode : MODES) {
            SCOPED_TRACE(Narrow(json));
            EXPECT_EQ(Narrow(FailureOf(json, mode)), "A JSON document must hold exactly one root element\nPath: $");
        }
    }
}

TEST(JsonToXml, RequiresSimpleAttributesAndTexts)
{
    const struct {
        const wchar_t* json;
        const wchar_t* message;
    } cases[] = {
        {L"{\"r\":{\"@a\":{}}}", L"The JSON attribute [@a] must have a simple value\nPath: $.r.@a"},
        {L"{\"r\":{\"@a\":[1]}}", L"The JSON attribute [@a] must have a simple value\nPath: $.r.@a[0]"},
        {L"{\"r\":{\"@xmlns:p\":{}}}",
            L"The JSON attribute [@xmlns:p] must have a simple value\nPath: $.r['@xmlns:p']"},
        {L"{\"r\":[{\"#text\":{}}]}", L"The JSON attribute [#text] must have a simple value\nPath: $.r[0].#text"},
        {L"{\"r\":{\"\":{\"a\":1}}}", L"The JSON attribute [] must have a simple value\nPath: $.r['']"},
    };
    for (const auto& test : cases) {
        for (const JsonRoundTrip mode : MODES) {
            EXPECT_EQ(Narrow(FailureOf(test.json, mode)), Narrow(test.message));
        }
    }
}

TEST(JsonToXml, TakesTheSettingsOfTheContext)
{
    EXPECT_EQ(Narrow(Convert(L"{\"a\":1}", JsonRoundTrip_Full, L"r")), "<r>\n\t<a>1</a>\n</r>\n");
    EXPECT_EQ(Narrow(Convert(L"", JsonRoundTrip_Full, L"r")), "<r/>\n");
    EXPECT_EQ(Narrow(Convert(L"[1]", JsonRoundTrip_Full, L"p:r")), "<p:r>1</p:r>\n");

    const CSerializationContext defaults;
    const CBinaryData xml = CJsonTextReader::ConvertJsonToXml(L"{\"p:r\":null}", defaults);
    EXPECT_EQ(Narrow(CEncoder::Utf8ToUnicode(xml)), Narrow(L"<p:r" XSI " xsi:nil=\"true\"/>\n"));
    EXPECT_EQ(MessageOf<CZrValidationException>([&] { CJsonTextReader::ConvertJsonToXml(L"/**/{}", defaults); }),
        L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found '/' at line 1, position 1."
        L"\nPath: $");
    CSerializationContext context;
    context.GetJsonContext().GetAllowComments(true);
    EXPECT_EQ(CJsonTextReader::ConvertJsonToXml(L"/**/{\"r\"://\n1}", context).GetLength(), 9U);
}

// The largest forms of a document: each is converted in time proportional to its length.
TEST(JsonToXml, ConvertsLongAndWideDocuments)
{
    constexpr std::size_t COUNT = 50000;
    std::wstring names;
    std::wstring items;
    for (std::size_t i = 0; i < COUNT; ++i) {
        const std::wstring number = std::to_wstring(i);
        names += (i == 0 ? L"\"@a" : L",\"@a") + number + L"\":1,\"e" + number + L"\":{\"x\":[[],{}]}";
        items += (i == 0 ? L"" : L",") + number;
    }
    for (const std::wstring& json : {L"{\"r\":{" + names + L"}}", L"{\"r\":{\"a\":[" + items + L"]}}"}) {
        CXmlDocument document;
        LoadXml(document, CJsonTextReader::ConvertJsonToXml(json, CSerializationContext()));
        EXPECT_EQ(CountChildren(*document.GetDocumentElement()), COUNT);
    }
}

TEST(JsonToXml, RefusesEventsThatDoNotMatch)
{
    CTextStream stream;
    CXmlTextWriter writer(stream);
    const CJsonReaderDefaultHandler paths;
    CJsonReaderToXmlHandler handler(writer, JsonRoundTrip_Full, paths);
    const wchar_t* const message = L"The starts and ends of the JSON events do not match.";

    handler.ReadStartDocument();
    EXPECT_EQ(MessageOf<CZrInvalidStateException>([&] { handler.ReadEndObject(); }), message);
    handler.ReadStartObject();
    EXPECT_EQ(MessageOf<CZrInvalidStateException>([&] { handler.ReadEndDocument(); }), message);

    handler.ReadStartDocument();
    handler.ReadStartObject();
    handler.ReadName(L"r");
    handler.ReadStartObject();
    handler.ReadNumber(L"1"); // without a name: text
    handler.ReadName(L"a");
    handler.ReadEndObject(); // without the value of "a"
    handler.ReadEndObject();
    handler.ReadEndDocument();
    writer.Close();
    EXPECT_STREQ(stream.GetText(), L"<r>1<a/></r>\n");
}
