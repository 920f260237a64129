// SPDX-License-Identifier: MIT
#include "support/TestObject.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

struct SampleValue {
    ItemType type;
    const wchar_t* name;
    const wchar_t* text;
};

const SampleValue sampleValues[] = {{ItemType_hexBinary, L"hexBinary", L"00FF7F"},
    {ItemType_base64Binary, L"base64Binary", L"AP9/QQ=="}, {ItemType_i1, L"i1", L"-128"},
    {ItemType_i2, L"i2", L"-32768"}, {ItemType_i4, L"i4", L"-2147483648"},
    {ItemType_i8, L"i8", L"-9223372036854775808"}, {ItemType_ui1, L"ui1", L"255"}, {ItemType_ui2, L"ui2", L"65535"},
    {ItemType_ui4, L"ui4", L"4294967295"}, {ItemType_ui8, L"ui8", L"18446744073709551615"},
    {ItemType_r4, L"r4", L"1.5"}, {ItemType_r8, L"r8", L"-0.015625"},
    {ItemType_duration, L"duration", L"P1Y2M3DT4H5M6S"}, {ItemType_yearMonth, L"yearMonth", L"2024-05"},
    {ItemType_monthDay, L"monthDay", L"--02-29"}, {ItemType_year, L"year", L"2024"},
    {ItemType_month, L"month", L"--05"}, {ItemType_day, L"day", L"---17"}, {ItemType_date, L"date", L"2024-02-29"},
    {ItemType_datetime, L"datetime", L"2024-02-29T23:59:58"}, {ItemType_time, L"time", L"23:59:58"},
    {ItemType_char, L"char", L"x"}, {ItemType_string, L"string", L"a <b> & caf\u00e9 \u20ac"},
    {ItemType_boolean, L"boolean", L"true"}, {ItemType_decimal, L"decimal", L"-12345678901234567890.125"},
    {ItemType_integer, L"integer", L"123456789012345678901234567890"}};

TestClass ValuesClass()
{
    TestClass values = Class(L"values");
    for (const SampleValue& value : sampleValues)
        values.Prim(value.name, value.type);
    for (const SampleValue& value : sampleValues)
        values.Attr((std::wstring(L"a_") + value.name).c_str(), value.type);
    return values;
}

// The same records in each of the three groups; a choice holds one of them, so it is repeated to hold all.
TestClass GroupClass(const wchar_t* name, const TestClass& leaf)
{
    TestClass group = Class(name);
    group.Prim(L"prim", ItemType_i4).Prim(L"primOpt").Opt().Prim(L"primCol", ItemType_i4).Col();
    group.Enum(L"enum").Enum(L"enumOpt").Opt().Enum(L"enumCol").Col();
    group.Cls(L"cls", leaf).Cls(L"clsOpt", leaf).Opt().Cls(L"clsCol", leaf).Col();
    return group.AbsCls(L"absCls").AbsCls(L"absClsOpt").Opt().AbsCls(L"absClsCol").Col();
}

void FillGroup(TestObject* group, const TestClass& derived)
{
    group->Set(L"prim", L"7").Set(L"primOpt", L"seven").Set(L"enum", L"green").Set(L"enumOpt", L"blue");
    group->Add(L"primCol")->Set(L"#value", L"1");
    group->Add(L"primCol")->Set(L"#value", L"2");
    group->Add(L"enumCol")->Set(L"#value", L"red");
    for (const wchar_t* name : {L"cls", L"clsOpt", L"clsCol", L"clsCol"})
        group->Add(name)->Set(L"text", name).Set(L"id", L"5");
    for (const wchar_t* name : {L"absCls", L"absClsOpt", L"absClsCol", L"absClsCol"})
        group->Add(name, &derived)->Set(L"text", name).Set(L"more", L"true");
}

const TestClass& DerivedClass()
{
    static const TestClass derived =
        Class(L"sampleDerived").TypeAttribute().Prim(L"text").Prim(L"more", ItemType_boolean);
    return derived;
}

} // namespace

TestClass SampleClass()
{
    static const TestClass sample = [] {
        const TestClass leaf = Class(L"sampleLeaf").Prim(L"text").Attr(L"id", ItemType_i4).Required();
        const TestClass note = Class(L"sampleNote").Nil().Value(ItemType_string).EnumAttr(L"colour");
        // What is written inline sees the attributes of the whole element.
        const TestClass pseudo =
            Class(L"samplePseudo").Pseudo().AnyAttributes().Prim(L"inner", ItemType_i4).Attr(L"innerId");
        const TestClass group = Class(L"sampleGroup").Group().AnyAttributes().Choice().Prim(L"either").Prim(L"or");
        TestClass everything = Class(L"sample").AnyAttributes().Cls(L"values", ValuesClass());
        everything.Cls(L"sequence", GroupClass(L"sequence", leaf)).Cls(L"all", GroupClass(L"all", leaf).All());
        everything.Cls(L"choice", GroupClass(L"choice", leaf).Choice()).Col().Cls(L"note", note).Cls(L"nothing", note);
        everything.Prim(L"defaulted").Default(L"usual").Cls(L"pseudo", pseudo).Cls(L"group", group).CreateInline();
        return everything.AnyAttr(L"others", L"##other");
    }();
    return sample;
}

void FillSample(TestObject& object)
{
    TestObject* values = object.Add(L"values");
    for (const SampleValue& value : sampleValues) {
        values->Set(value.name, value.text);
        values->Set((std::wstring(L"a_") + value.name).c_str(), value.text);
    }
    FillGroup(object.Add(L"sequence"), DerivedClass());
    FillGroup(object.Add(L"all"), DerivedClass());
    object.Add(L"choice")->Set(L"primOpt", L"chosen");
    object.Add(L"choice")->Set(L"enum", L"red");
    object.Add(L"choice")->Add(L"clsCol")->Set(L"text", L"one").Set(L"id", L"1");
    object.Add(L"choice")->Add(L"absCls", &DerivedClass())->Set(L"text", L"two").Set(L"more", L"false");
    object.Add(L"note")->Set(L"#value", L"remark").Set(L"colour", L"blue");
    dynamic_cast<NillableTestObject&>(*object.Add(L"nothing")).SetNil(true);
    object.Set(L"defaulted", L"usual");
    object.Add(L"pseudo")->Set(L"inner", L"3").Set(L"innerId", L"p3");
    object.Add(L"group")->Set(L"or", L"else");
    object.Attributes(L"others")->Add(L"urn:other", L"1", L"extra");
}

void CheckSample(const TestObject& object)
{
    TestObject expected(SampleClass());
    FillSample(expected);
    EXPECT_EQ(Narrow(DescribeObject(expected)), Narrow(DescribeObject(object)));
}

} // namespace TestSupport
