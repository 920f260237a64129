// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "support/TestText.h"
#include "json/JsonWriting.h"

#include <algorithm>
#include <cwchar>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

// Records the calls of a writer and keeps nothing after a flush.
class RecordingStream : public CTextStream {
public:
    void Close() override { calls += L"close;"; }
    void Flush() override
    {
        calls += L"flush " + std::to_wstring(GetLength()) + L";";
        EmptyText();
    }

    std::wstring calls;
};

JsonEvents Value(const std::wstring& value, ItemType type = ItemType_string)
{
    return [value, type](CJsonTextWriter& writer) {
        writer.WriteStartElement(L"v", L"");
        writer.WriteString(value, type, false);
        writer.WriteEndElement();
    };
}

std::wstring TranslatedCharacter(unsigned code, EOLType endOfLine)
{
    if (code == L'\r')
        return L"";
    if (code == L'\n')
        return endOfLine == EOL_CRLF ? L"\r\n" : L"\n";
    if (code >= 32 || code == 8 || code == 9 || code == 12)
        return std::wstring(1, static_cast<wchar_t>(code));
    wchar_t number[8];
    std::swprintf(number, 8, L"\\u%04X", code);
    return number;
}

} // namespace

TEST(JsonTextWriter, MembersInEveryMode)
{
    const struct {
        const wchar_t *script, *plain, *attributes, *full;
    } cases[] = {
        {L"<r =x >", L"{\"r\": \"x\"}", L"{\"r\": \"x\"}", L"{\"r\": \"x\"}"},
        {L"<r = >", L"{\"r\": \"\"}", L"{\"r\": \"\"}", L"{\"r\": \"\"}"},
        {L"<r @a,,v @n,,1,n >", L"{\"r\": {\"a\": \"v\",\"n\": 1}}", L"{\"r\": {\"@a\": \"v\",\"@n\": 1}}",
            L"{\"r\": {\"@a\": \"v\",\"@n\": 1}}"},
        {L"<r @a,,v nil =x >", L"{\"r\": {\"a\": \"v\",\"\": \"x\"}}", L"{\"r\": {\"@a\": \"v\",\"#text\": \"x\"}}",
            L"{\"r\": {\"@a\": \"v\",\"#text\": \"x\"}}"},
        {L"<r <c d=1 <e f=2 > > g=3 @late,,1,n =4,n >",
            L"{\"r\": {\"c\": {\"d\": 1,\"e\": {\"f\": 2}},\"g\": 3,\"late\": 1,\"\": 4}}",
            L"{\"r\": {\"c\": {\"d\": 1,\"e\": {\"f\": 2}},\"g\": 3,\"@late\": 1,\"#text\": 4}}",
            L"{\"r\": {\"c\": {\"d\": 1,\"e\": {\"f\": 2}},\"g\": 3,\"@late\": 1,\"#text\": 4}}"},
        {L"!urn:d +p,urn:p <r,urn:d @a,urn:p,v <c,urn:p =x > <d,urn:d @e,,1,n > <f =y > >",
            L"{\"r\": {\"a\": \"v\",\"c\": \"x\",\"d\": {\"e\": 1},\"f\": \"y\"}}",
            L"{\"r\": {\"@a\": \"v\",\"c\": \"x\",\"d\": {\"@e\": 1},\"f\": \"y\"}}",
            L"{\"r\": {\"@xmlns\": \"urn:d\",\"@xmlns:p\": \"urn:p\",\"@p:a\": \"v\",\"p:c\": \"x\",\"d\": "
            L"{\"@e\": 1},\"f\": \"y\"}}"},
        {L"!urn:d <r,urn:d =x >", L"{\"r\": \"x\"}", L"{\"r\": \"x\"}",
            L"{\"r\": {\"@xmlns\": \"urn:d\",\"#text\": \"x\"}}"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(Narrow(row.script));
        ExpectJson(row.plain, JsonScript(row.script), JsonRoundTrip_Plain);
        ExpectJson(row.attributes, JsonScript(row.script), JsonRoundTrip_Attributes);
        ExpectJson(row.full, JsonScript(row.script), JsonRoundTrip_Full);
    }
}

TEST(JsonTextWriter, Layout)
{
    const wchar_t* const script = L"<r @k,,1,n [ <i a=1 > <i [ n=1 n=2 ] =t > ] [ n=3 ] <c =x > @l,,2,n >";
    EXPECT_EQ(LR"({
	"r": {
		"@k": 1,
		"i": [
			{
				"a": 1
			},
			{
				"n": [
					1,
					2
				],
				"#text": "t"
			}
		],
		"n": [
			3
		],
		"c": "x",
		"@l": 2
	}
})",
        WriteJson(JsonScript(script), {JsonRoundTrip_Full, true}));
    EXPECT_EQ(L"{\r\n--\"r\": {\r\n----\"n\": [\r\n------1\r\n----]\r\n--}\r\n}",
        WriteJson(JsonScript(L"<r [ n=1 ] >"), {JsonRoundTrip_Full, true, EOL_CRLF, L"--"}));
    EXPECT_EQ(L"{\n\"r\": {\n\"a\": 1\n}\n}",
        WriteJson(JsonScript(L"<r a=1 >"), {JsonRoundTrip_Full, true, EOL_LF, nullptr}));
}

TEST(JsonTextWriter, keeps_NumbersAndBooleansBareAndAllElseQuoted)
{
    for (int type = ItemType_none; type <= ItemType_collection; ++type) {
        const bool isBare = (type >= ItemType_i1 && type <= ItemType_r8) || (type >= 24 && type <= 26);
        const std::wstring expected = isBare ? L"NaN" : L"\"NaN\"";
        EXPECT_EQ(L"{\"v\": " + expected + L"}", WriteJson(Value(L"NaN", static_cast<ItemType>(type)))) << type;
        const auto attribute = [type](CJsonTextWriter& writer) {
            writer.WriteStartElement(L"e", L"");
            writer.WriteAttributeString(L"v", L"", L"NaN", static_cast<ItemType>(type));
            writer.WriteEndElement();
        };
        EXPECT_EQ(L"{\"e\": {\"@v\": " + expected + L"}}", WriteJson(attribute)) << type;
    }
}

TEST(JsonTextWriter, WritesDefaultValues)
{
    const auto events = [](CJsonTextWriter& writer) {
        writer.WriteStartElement(L"v", L"");
        writer.WriteString(L"5", ItemType_i4, true);
        writer.WriteEndElement();
    };
    EXPECT_EQ(L"{\"v\": 5}", WriteJson(events));
}

TEST(JsonTextWriter, keeps_TranslationOfControlCharacters)
{
    for (const EOLType endOfLine : {EOL_CRLF, EOL_LF}) {
        std::wstring all, translated;
        for (unsigned code = 1; code < 0x10000; ++code) {
            all += static_cast<wchar_t>(code);
            translated += TranslatedCharacter(code, endOfLine);
        }
        const JsonForm form{JsonRoundTrip_Full, false, endOfLine};
        EXPECT_TRUE(L"{\"v\": \"" + translated + L"\"}" == WriteJson(Value(all), form));
    }
    EXPECT_EQ(L"{\"v\": \"\\u0001\\u000B\\u001F\"}", WriteJson(Value(L"\x01\r\x0B\x1F")));
    for (unsigned code = 1; code < 0x3000; ++code) {
        const std::wstring translated = TranslatedCharacter(code, EOL_LF);
        if (translated.empty() || translated[0] < 32 || code == L'"' || code == L'\\')
            continue;
        const rapidjson::Document document = ParseJson(WriteJson(Value(std::wstring(1, static_cast<wchar_t>(code)))));
        EXPECT_EQ(Narrow(std::wstring(1, static_cast<wchar_t>(code))), document["v"].GetString());
    }
}

TEST(JsonTextWriter, keeps_QuotationMarksAndBackslashesUnescaped)
{
    EXPECT_EQ(L"{\"v\": \"a\"b\\n\\\"}", WriteJson(Value(L"a\"b\\n\\")));
    EXPECT_EQ(L"{\"r\": {\"@a\": \"\"\\\"}}", WriteJson(JsonScript(L"<r @a,,\"\\ >")));
}

TEST(JsonTextWriter, TextEndsAtNul)
{
    const std::wstring text(L"a\0b", 3);
    EXPECT_EQ(L"{\"v\": \"a\"}", WriteJson(Value(text)));
    EXPECT_EQ(L"{/* a */\n}", WriteJson([&](CJsonTextWriter& writer) { writer.WriteComment(text); }));
}

TEST(JsonTextWriter, keeps_EmptyAndNilElementsWithoutValue)
{
    EXPECT_EQ(L"{\"r\": }", WriteJson(JsonScript(L"<r >")));
    EXPECT_EQ(L"{\"r\": {\"a\": ,\"b\": ,\"c\": 1}}", WriteJson(JsonScript(L"<r <a > <b nil > c=1 >")));
    EXPECT_EQ(L"{\"r\": {\"a\": ,\"a\": [1,]}}", WriteJson(JsonScript(L"<r [ <a > a=1 <a nil > ] >")));
}

TEST(JsonTextWriter, keeps_LineEndsAfterComments)
{
    const auto events = [](CJsonTextWriter& writer) {
        writer.WriteComment(L"a\r\n\x02\"");
        writer.WritePI(L"<?style?>");
        writer.WriteStartElement(L"r", L"");
        writer.WriteInlineSchema(L"<schema/>");
        writer.WriteString(L"x", ItemType_string, false);
        writer.WriteEndElement();
    };
    EXPECT_EQ(L"{/* a\n\\u0002\" */\n\"r\": \"x\"}", WriteJson(events));
    EXPECT_EQ(
        L"{\r\n/* a\r\n\\u0002\" */\r\n\t\"r\": \"x\"\r\n}", WriteJson(events, {JsonRoundTrip_Full, true, EOL_CRLF}));
}

TEST(JsonTextWriter, FlushesAfterTheStartOfTheDocumentAndCommentsOnly)
{
    RecordingStream stream;
    CJsonTextWriter writer(stream);
    writer.SetFormat(false);
    stream.Append(std::wstring(4094, L'x'));
    writer.WriteStartDocument();
    EXPECT_EQ(L"", stream.calls);
    writer.WriteStartDocument();
    EXPECT_EQ(L"flush 4096;", stream.calls);
    JsonScript(L"<r @a,,v <c =x > =t >")(writer);
    Value(std::wstring(5000, L'x'))(writer);
    writer.WriteEndDocument();
    EXPECT_EQ(L"flush 4096;", stream.calls);
    writer.WriteComment(L"");
    EXPECT_EQ(2, std::count(stream.calls.begin(), stream.calls.end(), L';'));
}

TEST(JsonTextWriter, keeps_TheStreamClosedBeforeAnOpenElementIsReported)
{
    RecordingStream stream;
    CJsonTextWriter writer(stream);
    writer.Open();
    writer.WriteStartElement(L"a", L"");
    EXPECT_EQ(L"An Element has not been closed.", MessageOf<CZrException>([&] { writer.Close(); }));
    EXPECT_EQ(L"close;", stream.calls);
}

TEST(JsonTextWriter, RefusesWhatMakesNoSense)
{
    CTextStream stream;
    CJsonTextWriter writer(stream);
    EXPECT_EQ(L"Invalid EOL type.", MessageOf<CZrException>([&] { writer.SetEOLType(static_cast<EOLType>(2)); }));
    EXPECT_EQ(EOL_LF, writer.GetEOLType());
    EXPECT_EQ(
        L"There is no open element to end.", MessageOf<CZrInvalidStateException>([&] { writer.WriteEndElement(); }));
    for (const wchar_t* script : {L"@a,,v", L":T,urn:t"})
        EXPECT_EQ(
            L"Attributes must be added before elements", MessageOf<CZrException>([&] { JsonScript(script)(writer); }));
    JsonScript(L"nil [ =x")(writer);
    EXPECT_EQ(std::wstring(L"\"x\""), stream.GetText());
}

TEST(JsonTextWriter, DeepNestingNeedsNoStack)
{
    std::wstring script, begins, ends;
    for (int i = 0; i < 100000; ++i) {
        script += L"[ <a ";
        begins += L"{\"a\": [";
        ends += L"]}";
    }
    const auto events = [&](CJsonTextWriter& writer) {
        JsonScript(L"<r " + script + L"=1,n")(writer);
        for (int i = 0; i < 100001; ++i)
            writer.WriteEndElement();
    };
    EXPECT_TRUE(L"{\"r\": " + begins + L"1" + ends + L"}" == WriteJson(events));
}
