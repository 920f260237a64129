// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonTextReader.h"

#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/IJsonReaderHandler.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::Narrow;

namespace {

/// Keeps the events as text.
class EventRecorder : public IJsonReaderHandler {
public:
    void ReadStartDocument() override { events += L"("; }
    void ReadEndDocument() override { events += L")"; }
    void ReadName(const std::wstring& name) override { events += name + L"="; }
    void ReadString(const std::wstring& value) override { events += L"'" + value + L"' "; }
    void ReadNumber(const std::wstring& text) override { events += text + L" "; }
    void ReadStartObject() override { events += L"{"; }
    void ReadEndObject() override { events += L"}"; }
    void ReadStartArray() override { events += L"["; }
    void ReadEndArray() override { events += L"]"; }
    void ReadBool(bool value) override { events += value ? L"T " : L"F "; }
    void ReadNull() override { events += L"N "; }

    std::wstring events;
};

enum Comments { NoComments, WithComments };

std::wstring EventsOf(const std::wstring& text, Comments comments = NoComments, const wchar_t* rootName = L"")
{
    EventRecorder recorder;
    CJsonTextReader reader(text);
    reader.SetJsonReaderHandler(&recorder);
    reader.SetAllowComments(comments == WithComments);
    reader.SetRootElementName(rootName);
    reader.Read();
    return recorder.events;
}

std::wstring MessageOf(const std::wstring& text, Comments comments = NoComments)
{
    return TestSupport::MessageOf<CZrValidationException>([&] { EventsOf(text, comments); });
}

std::wstring Repeat(const wchar_t* part, std::size_t count)
{
    std::wstring text;
    for (std::size_t i = 0; i < count; ++i) {
        text += part;
    }
    return text;
}

} // namespace

TEST(JsonTextReader, ReportsEvents)
{
    const struct {
        const wchar_t* text;
        const wchar_t* events;
    } cases[] = {
        {L"", L"()"},
        {L" \t\r\n", L"()"},
        {L"{}", L"({})"},
        {L"[]", L"([])"},
        {L" { } ", L"({})"},
        {L"\"a\"", L"('a' )"},
        {L"[true,false,null]", L"([T F N ])"},
        {L"[0,-0,10,-1.50,1e5,1E+5,2.5e-07,123456789012345678901234567890]",
            L"([0 -0 10 -1.50 1e5 1E+5 2.5e-07 123456789012345678901234567890 ])"},
        {L"{\"a\":{},\"b\":[],\"a\":1}", L"({a={}b=[]a=1 })"},
        {L"{\"a\" : { \"b\" :\n[ 1 , 2 ] } , \"c\" : \"\" }", L"({a={b=[1 2 ]}c='' })"},
        {L"\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"", L"('\"\\/\b\f\n\r\t' )"},
        {L"[\"a\nb\",\"\t\"]", L"(['a\nb' '\t' ])"},
        {L"[\"\U0001F600\",\"\xD83D\xDE00\"]", L"(['\U0001F600' '\xD83D\xDE00' ])"},
        {L"{\"\":\"\"}", L"({='' })"},
        // what follows the first value is not looked at
        {L"1 x", L"(1 )"},
        {L"{}}", L"({})"},
        {L"[1]]]", L"([1 ])"},
        {L"truefalse", L"(T )"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Narrow(test.text));
        EXPECT_EQ(Narrow(EventsOf(test.text)), Narrow(test.events));
    }
}

TEST(JsonTextReader, WrapsTheTextInARootElement)
{
    EXPECT_EQ(EventsOf(L"[1]", NoComments, L"r"), L"({r=[1 ]})");
    EXPECT_EQ(EventsOf(L"", NoComments, L"r"), L"({r=})");
    EXPECT_EQ(EventsOf(Repeat(L"[", 100) + Repeat(L"]", 100), NoComments, L"r").size(), 206U)
        << "the root element costs no depth";
}

TEST(JsonTextReader, ReadsTheSameTextAgain)
{
    const std::wstring text = L"[1,\n2]";
    EventRecorder recorder;
    CJsonTextReader reader(text);
    reader.SetJsonReaderHandler(&recorder);
    reader.Read();
    reader.Read();
    EXPECT_EQ(recorder.events, L"([1 2 ])([1 2 ])");
}

TEST(JsonTextReader, SkipsComments)
{
    const struct {
        const wchar_t* text;
        const wchar_t* events;
    } cases[] = {
        {L"//x\n1", L"(1 )"},
        {L"/*x*/1/**/", L"(1 )"},
        {L"[/*1*/1//x\n,/***/2/*\n*//**/]//", L"([1 2 ])"},
        {L"{/**/\"a\"/**/:/**/1/**/,/**/\"b\"//\n:true/**/}", L"({a=1 b=T })"},
        {L"\"/*x*/\"", L"('/*x*/' )"},
        {L"// at the end", L"()"},
        {L"1 // at the end", L"(1 )"},
        {L"1 /* open", L"(1 )"},
        {L"1 /", L"(1 )"},
        {L"/*/", L"()"},
        {L"/*/1*/2", L"(2 )"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Narrow(test.text));
        EXPECT_EQ(Narrow(EventsOf(test.text, WithComments)), Narrow(test.events));
    }
    EXPECT_EQ(EventsOf(Repeat(L"/**/", 1000000) + L"1", WithComments), L"(1 )");
    EXPECT_EQ(EventsOf(Repeat(L"//\n", 1000000) + L"1", WithComments), L"(1 )");
}

// Message, line, position and path of every error.
TEST(JsonTextReader, RefusesMalformedText)
{
    const struct {
        const wchar_t* text;
        const wchar_t* message;
        const wchar_t* path;
    } cases[] = {
        {L"x",
            L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found 'x' at line 1, position 1.",
            L"$"},
        {L"[1,\n  \xE9]",
            L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found '\xE9' at line 2, position "
            L"3.",
            L"$[1]"},
        {L"[1,]",
            L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found ']' at line 1, position 4.",
            L"$[1]"},
        {L"/**/1",
            L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found '/' at line 1, position 1.",
            L"$"},
        {L"nul", L"Unexpected End of File. Expected value 'NULL' at line 1, position 3.", L"$"},
        {L"[t", L"Unexpected End of File. Expected value 'true' at line 1, position 2.", L"$[0]"},
        {L"fals", L"Unexpected End of File. Expected value 'false' at line 1, position 4.", L"$"},
        {L"[nulL]", L"Expected 'NULL' at line 1, position 5.", L"$[0]"},
        {L"{\"a\":tru\n}", L"Expected 'true' at line 1, position 9.", L"$.a"},
        {L"faLse", L"Expected 'false' at line 1, position 5.", L"$"},
        {L"-a", L"Expected a digit '0' to '9', found 'a' at line 1, position 2.", L"$"},
        {L"-\n", L"Expected a digit '0' to '9', found '\n' at line 2, position 0.", L"$"},
        {L"[1.\x20AC]", L"Expected a digit '0' to '9', found '\x20AC' at line 1, position 4.", L"$[0]"},
        {L"1e+,", L"Expected a digit '0' to '9', found ',' at line 1, position 4.", L"$"},
        {L"1e,", L"Expected a digit '0' to '9', found ',' at line 1, position 3.", L"$"},
        {L"-", L"Unexpected End of File. Expected a number at line 1, position 1.", L"$"},
        {L"1E-", L"Unexpected End of File. Expected a number at line 1, position 3.", L"$"},
        {L"1.", L"Unexpected End of File. Expected a digit '0' to '9' at line 1, position 2.", L"$"},
        {L"1.5e", L"Unexpected End of File. Expected '+', '-' or a number at line 1, position 4.", L"$"},
        {L"[01]", L"Expected Array separator character ',', found '1' at line 1, position 3.", L"$[1]"},
        {L"\"a", L"Unexpected End of File. Expected string value at line 1, position 2.", L"$"},
        {L"\"a\n\n\\", L"Unexpected End of File. Expected string value at line 3, position 1.", L"$"},
        {L"{\"a\\x\":1}", L"Invalid Escape Character 'x' at line 1, position 5.", L"$"},
        {L"\"\\u004", L"Unexpected End of File. Expected 4 hexadecimal digits'\\uxxxx' at line 1, position 6.", L"$"},
        {L"{", L"Unexpected End of File. Expected Object terminator character '}}' at line 1, position 1.", L"$"},
        {L"{\"a\":{ ", L"Unexpected End of File. Expected Object terminator character '}}' at line 1, position 7.",
            L"$.a"},
        {L"{\"a\":1", L"Unexpected End of File. Expected Object terminator character '}' at line 1, position 6.", L"$"},
        {L"{\"a\":1,", L"Unexpected End of File. Expected Object terminator character '}' at line 1, position 7.",
            L"$"},
        {L"{\"a\":{}", L"Unexpected End of File. Expected Object terminator character '}' at line 1, position 7.",
            L"$"},
        {L"{a:1}", L"Expected quotation mark character '\"' before Name, found 'a' at line 1, position 2.", L"$"},
        {L"{\"a\":1,}", L"Expected quotation mark character '\"' before Name, found '}' at line 1, position 8.", L"$"},
        {L"{\"a\"",
            L"Unexpected End of File. Expected Object Name/Value separator character ':' at line 1, position 4.",
            L"$.a"},
        {L"{\"a\" 1}", L"Expected Object Name/Value separator character ':', found '1' at line 1, position 6.", L"$.a"},
        {L"{\"a\":", L"Unexpected End of File. Expected Object Value at line 1, position 5.", L"$.a"},
        {L"{\"a\":1 \"b\":2}", L"Expected Object separator character ',', found '\"' at line 1, position 8.", L"$"},
        {L"[", L"Unexpected End of File. Expected Array terminator character ']' at line 1, position 1.", L"$[0]"},
        {L"[1", L"Unexpected End of File. Expected Array terminator character ']' at line 1, position 2.", L"$[1]"},
        {L"[1,", L"Unexpected End of File. Expected Array terminator character ']' at line 1, position 3.", L"$[1]"},
        {L"[[1 2]]", L"Expected Array separator character ',', found '2' at line 1, position 5.", L"$[0][1]"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Narrow(test.text));
        EXPECT_EQ(Narrow(MessageOf(test.text)), Narrow(std::wstring(test.message) + L"\nPath: " + test.path));
    }
    const std::wstring withNul(L"[1\0]", 4);
    EXPECT_NE(MessageOf(withNul).find(std::wstring(L"found '\0' at", 12)), std::wstring::npos);
}

TEST(JsonTextReader, CountsLinesInsideCommentsAndStrings)
{
    EXPECT_EQ(MessageOf(L"[/*\n\n*/ //\n\"\n\" x", WithComments),
        L"Expected Array separator character ',', found 'x' at line 5, position 3.\nPath: $[1]");
}

TEST(JsonTextReader, LimitsTheDepth)
{
    const std::wstring open = Repeat(L"[", 100);
    const std::wstring close = Repeat(L"]", 100);
    const std::wstring path = L"\nPath: $" + Repeat(L"[0]", 100);
    EXPECT_EQ(EventsOf(open + close).size(), 202U);
    EXPECT_EQ(EventsOf(Repeat(L"{\"a\":", 99) + L"{}" + Repeat(L"}", 99)).size(), 2 + 200 + 2 * 99U);
    EXPECT_EQ(MessageOf(open + L"[]" + close), L"JSON exceeded depth limit at line 1, position 101." + path);
    EXPECT_EQ(MessageOf(open + L"1" + close), L"JSON exceeded depth limit at line 1, position 101." + path);
}

TEST(JsonTextReader, LimitsTheLengthOfNames)
{
    EXPECT_EQ(EventsOf(L"{\"" + Repeat(L"n", 1000) + L"\":1}").size(), 1007U);
    EXPECT_EQ(MessageOf(L"{\"a\":[{\"" + Repeat(L"n", 1001) + L"\":1}]}"),
        L"The JSON name at this place is too long\nPath: $.a[0]");
}

TEST(JsonTextReader, keeps_UnicodeEscapesYieldOneHexDigit)
{
    const struct {
        const wchar_t* text;
        const wchar_t* value;
    } cases[] = {
        {L"\"\\u0041\"", L"3"},
        {L"\"x\\u9999y\"", L"x3y"},
        {L"\"\\uABCD\\uf000\"", L"46"},
        {L"\"\\u00zz\"", L"3"},
        {L"\"\\u\n\"\"\"\"", L"0"},
        {L"\"\\u\x20ACxyz\"", L"A"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Narrow(test.text));
        EXPECT_EQ(Narrow(EventsOf(test.text)), Narrow(std::wstring(L"('") + test.value + L"' )"));
    }
}

// Every proper beginning of a document either ends cleanly, when it is blank, or names the end of the text.
TEST(JsonTextReader, ReportsTheEndOfTheTextEverywhere)
{
    const std::wstring text =
        L" {\"a\" : [ -1.5e+7 , true, false, null, \"x\\n\\u0041\" , {} , [ ] ] , \"b\" : { \"c\" : 0 } }";
    for (std::size_t length = 2; length < text.size(); ++length) {
        SCOPED_TRACE(length);
        const std::wstring message = MessageOf(text.substr(0, length));
        EXPECT_EQ(message.compare(0, 23, L"Unexpected End of File."), 0) << Narrow(message);
    }
    EXPECT_FALSE(EventsOf(text).empty());
}
