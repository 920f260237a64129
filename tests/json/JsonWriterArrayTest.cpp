// SPDX-License-Identifier: MIT
#include "support/TestText.h"
#include "json/JsonWriting.h"

#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

// The elements of an object in order, arrays taken for repetitions of their name: a(1)b(c(2)).
std::string ElementsOf(const rapidjson::Value& object)
{
    std::string text;
    const auto add = [&](const char* name, const rapidjson::Value& value) {
        text += std::string(name) + "(" + (value.IsObject() ? ElementsOf(value) : value.GetString()) + ")";
    };
    for (const auto& member : object.GetObject()) {
        if (!member.value.IsArray()) {
            add(member.name.GetString(), member.value);
            continue;
        }
        EXPECT_FALSE(member.value.Empty());
        for (const auto& item : member.value.GetArray())
            add(member.name.GetString(), item);
    }
    return text;
}

struct Content {
    std::wstring script;
    std::string elements;
};

} // namespace

TEST(JsonWriterArrays, Forms)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"[ n=0 n=1 ]", L"\"n\": [0,1]"},
        {L"[ n=0 ]", L"\"n\": [0]"},
        {L"[ <i a=1 > <i a=2 b=3 > ]", L"\"i\": [{\"a\": 1},{\"a\": 2,\"b\": 3}]"},
        {L"[ <i @k,,1,n > <i @k,,2,n =t > ]", L"\"i\": [{\"@k\": 1},{\"@k\": 2,\"#text\": \"t\"}]"},
        {L"[ <i @k,,1,n > n=5 ]", L"\"i\": [{\"@k\": 1}],\"n\": [5]"},
        {L"x=1 [ n=0 n=1 ] x=2", L"\"x\": 1,\"n\": [0,1],\"x\": 2"},
        {L"[ <i a=1 > ] <x a=2 >", L"\"i\": [{\"a\": 1}],\"x\": {\"a\": 2}"},
        {L"[ a=1 ] [ b=1 ]", L"\"a\": [1],\"b\": [1]"},
        {L"[ a=1 ] [ a=2 ]", L"\"a\": [1],\"a\": [2]"},
        {L"[ a=1 ] a=2", L"\"a\": [1],\"a\": 2"},
        {L"[ a=1 b=2 a=3 a=4 b=5 ]", L"\"a\": [1],\"b\": [2],\"a\": [3,4],\"b\": [5]"},
        {L"[ a=1 [ b=1 b=2 ] a=2 ]", L"\"a\": [1],\"b\": [1,2],\"a\": 2"},
        {L"[ <i [ n=1 n=2 ] > <i [ n=3 ] x=4 > ] y=5", L"\"i\": [{\"n\": [1,2]},{\"n\": [3],\"x\": 4}],\"y\": 5"},
        {L"[ <i [ <i [ <i a=1 > ] > ] > ]", L"\"i\": [{\"i\": [{\"i\": [{\"a\": 1}]}]}]"},
        {L"[ ] x=1", L"\"x\": 1"},
        {L"x=1 [ ] [ n=1 ]", L"\"x\": 1,\"n\": [1]"},
        {L"[ n=1 ] =t", L"\"n\": [1],\"#text\": \"t\""},
        {L"[ n=1 ] @k,,v", L"\"n\": [1],\"@k\": \"v\""},
        {L"[ n=1 @n,,v n=2 =t n=3 ]", L"\"n\": [1],\"@n\": \"v\",\"n\": [2],\"#text\": \"t\",\"n\": [3]"},
    };
    for (const auto& [script, expected] : cases) {
        SCOPED_TRACE(Narrow(script));
        ExpectJson(L"{\"r\": {" + std::wstring(expected) + L"}}", JsonScript(L"<r " + std::wstring(script) + L" >"),
            JsonRoundTrip_Attributes);
    }
    ExpectJson(L"{\"r\": \"t\"}", JsonScript(L"<r [ ] =t >"), JsonRoundTrip_Full);
    ExpectJson(L"{\"r\": {\"@xmlns:p\": \"urn:p\",\"@xmlns:q\": \"urn:q\",\"p:n\": [\"1\",\"2\"],\"q:n\": [\"3\"]}}",
        JsonScript(L"+p,urn:p +q,urn:q <r [ <n,urn:p =1 > <n,urn:p =2 > <n,urn:q =3 > ] >"), JsonRoundTrip_Full);
}

// All rows of up to three pieces out of those below, each with items of every kind.
TEST(JsonWriterArrays, EveryContentKeepsItsElements)
{
    const Content items[] = {{L"=1,n >", "1"}, {L"@k,,1,n =2,n >", "@k(1)#text(2)"}, {L"c=1 d=2 >", "c(1)d(2)"},
        {L"[ c=1 c=2 ] >", "c(1)c(2)"}, {L"[ <a c=1 > <b [ a=1 ] > ] a=3 >", "a(c(1))b(a(1))a(3)"}};
    std::vector<Content> pieces{{L"[ ] ", ""}, {L"@k,,5,n ", "@k(5)"}};
    for (const auto& [script, elements] : items) {
        const std::wstring a = L"<a " + script + L" ", b = L"<b " + script + L" ";
        const std::string inA = "a(" + elements + ")", inB = "b(" + elements + ")";
        pieces.insert(pieces.end(),
            {{a, inA}, {L"[ " + a + L"] ", inA}, {L"[ " + a + a + L"] ", inA + inA},
                {L"[ " + a + b + a + L"] ", inA + inB + inA},
                {L"[ " + b + L"[ " + a + L"] " + b + L"] ", inB + inA + inB}});
    }
    std::vector<Content> rows{{L"", ""}};
    for (std::size_t first = 0, length = 1; length <= 3; ++length) {
        const std::size_t end = rows.size();
        for (; first < end; ++first) {
            for (const Content& piece : pieces)
                rows.push_back({rows[first].script + piece.script, rows[first].elements + piece.elements});
        }
    }
    for (const auto& [script, elements] : rows) {
        const JsonEvents events = JsonScript(L"<r " + script + L"x=9 >");
        for (const bool isFormatted : {false, true}) {
            const rapidjson::Document document = ParseJson(WriteJson(events, {JsonRoundTrip_Attributes, isFormatted}));
            ASSERT_FALSE(document.HasParseError());
            ASSERT_EQ("r(" + elements + "x(9))", ElementsOf(document)) << Narrow(script);
        }
    }
}
