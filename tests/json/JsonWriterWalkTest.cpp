// SPDX-License-Identifier: MIT
// Generated classes written as JSON.
#include "support/TestText.h"
#include "json/JsonWriting.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

TEST(JsonWriterWalk, CollectionsOfEveryKind)
{
    const TestClass leaf = Class(L"leaf").Prim(L"text").Attr(L"id", ItemType_i4);
    const TestClass derived = Class(L"derived").TypeAttribute().Prim(L"more", ItemType_boolean);
    TestClass type = Class(L"order").Prim(L"n", ItemType_i4).Col().Prim(L"s").Col().Enum(L"colour").Col();
    type.Cls(L"leaf", leaf).Col().AbsCls(L"base").Col().Any(L"##any", L"free").Col().Prim(L"last", ItemType_decimal);
    TestObject order(type);
    for (const wchar_t* number : {L"1", L"2"})
        order.Add(L"n")->Set(L"#value", number);
    order.Add(L"colour")->Set(L"#value", L"red");
    order.Add(L"leaf")->Set(L"text", L"a").Set(L"id", L"1");
    order.Add(L"leaf")->Set(L"text", L"b");
    order.Add(L"base", &derived)->Set(L"more", L"true");
    for (const wchar_t* value : {L"x", L"y"})
        order.Elements(L"free")->Add(L"free", L"")->SetText(value);
    order.Set(L"last", L"1.5");
    ExpectJson(L"{\"order\": {\"n\": [1,2],\"colour\": [\"red\"],\"leaf\": [{\"@id\": 1,\"text\": \"a\"},{\"text\": "
               L"\"b\"}],\"base\": [{\"@xmlns:xsi\": \"http://www.w3.org/2001/XMLSchema-instance\",\"@xsi:type\": "
               L"\"derived\",\"more\": true}],\"free\": [\"x\",\"y\"],\"last\": 1.5}}",
        JsonWalk(order), JsonRoundTrip_Full);
}

TEST(JsonWriterWalk, SimpleContentEnumerationsAndNil)
{
    NillableTestObject note(Class(L"note").Nil().EnumAttr(L"colour").Value(ItemType_r8));
    note.Set(L"colour", L"green").Set(L"#value", L"2.5");
    ExpectJson(L"{\"note\": {\"@colour\": \"green\",\"#text\": 2.5}}", JsonWalk(note), JsonRoundTrip_Full);
    note.SetNil(true);
    ExpectJson(L"{\"note\": {\"@colour\": \"green\"}}", JsonWalk(note), JsonRoundTrip_Full);
}

TEST(JsonWriterWalk, RootSettingsOfTheContext)
{
    CSerializationContext context;
    context.GetProcessingInstructions() = {L"<?one?>"};
    context.GetNamespaceAliases().Add(L"a", L"urn:a");
    context.SetDefaultNamespaceURI(L"urn:d");
    context.SetInLineSchema(L"<s/>");
    context.GetAdditionalRootAttributes()->Add(L"urn:a", L"1", L"extra");
    TestObject order(Class(L"order").In(L"urn:d").Prim(L"q", ItemType_i4).Ns(L"urn:a"));
    order.Set(L"q", L"5");
    ExpectJson(L"{\"order\": {\"@xmlns\": \"urn:d\",\"@xmlns:a\": \"urn:a\",\"@a:extra\": \"1\",\"a:q\": 5}}",
        JsonWalk(order, context), JsonRoundTrip_Full);
    ExpectJson(L"{\"order\": {\"extra\": \"1\",\"q\": 5}}", JsonWalk(order, context), JsonRoundTrip_Plain);
}

// The sample has values of all types and records of all kinds; a nil element would be no JSON.
TEST(JsonWriterWalk, TheSampleIsJsonInEveryForm)
{
    TestObject sample(SampleClass());
    FillSample(sample);
    dynamic_cast<NillableTestObject&>(*sample.Child(L"nothing")).SetNil(false);
    sample.Child(L"nothing")->Set(L"#value", L"something");
    CSerializationContext context;
    context.GetNamespaceAliases().Add(L"o", L"urn:other");
    for (const JsonRoundTrip mode : {JsonRoundTrip_Plain, JsonRoundTrip_Attributes, JsonRoundTrip_Full}) {
        for (const bool isFormatted : {false, true}) {
            const rapidjson::Document document = ParseJson(WriteJson(JsonWalk(sample, context), {mode, isFormatted}));
            ASSERT_FALSE(document.HasParseError());
            const rapidjson::Value& root = document["sample"];
            const rapidjson::Value& values = root["values"];
            EXPECT_STREQ("18446744073709551615", values["ui8"].GetString());
            EXPECT_STREQ("2024-02-29T23:59:58", values["datetime"].GetString());
            EXPECT_EQ(4u, root["choice"].Size());
            EXPECT_EQ(2u, root["all"]["primCol"].Size());
            EXPECT_STREQ("blue", root["note"][mode == JsonRoundTrip_Plain ? "colour" : "@colour"].GetString());
            EXPECT_EQ(mode == JsonRoundTrip_Full, root.HasMember("@o:extra"));
        }
    }
}
