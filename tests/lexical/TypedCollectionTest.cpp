// SPDX-License-Identifier: MIT
#include "lexical/TypedCollectionFixture.h"
#include "support/Failure.h"
#include "support/RecordingWriter.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

using Facets = CPrimitiveRestrictions;
using Date = const CDateTime&;

Facets Bounded(std::wstring Facets::*facet, const wchar_t* bound)
{
    Facets facets;
    facets.*facet = bound;
    return facets;
}

const auto MinInclusive = [](const wchar_t* bound) { return Bounded(&Facets::m_minInclusive, bound); };
const auto MaxInclusive = [](const wchar_t* bound) { return Bounded(&Facets::m_maxInclusive, bound); };
const auto MinExclusive = [](const wchar_t* bound) { return Bounded(&Facets::m_minExclusive, bound); };
const auto MaxExclusive = [](const wchar_t* bound) { return Bounded(&Facets::m_maxExclusive, bound); };
const auto Length = [](long units) { return Facets(L"", -1, -1, L"", L"", L"", L"", units, -1, -1); };
const auto Digits = [](long total, long digits) { return Facets(L"", -1, -1, L"", L"", L"", L"", -1, total, digits); };

/// Reaches the operation that writes a collection.
struct Output : CXmlObjectBase {
    static std::string Of(const CXmlObjectBase& collection)
    {
        RecordingWriter writer;
        CXmlObjectBase::ToXml_Int(&collection, &writer, false, L"urn:parent", CSerializationContext(), false);
        return writer.m_events;
    }
};

template <class Collection, class Value> CSmartPtr<CXmlTypeCollection> NewOf(const CollectionArguments& arguments)
{
    static_assert(std::is_same_v<decltype(std::declval<const Collection&>().Item(0)), Value>);
    return CSmartPtr<CXmlTypeCollection>(NewTyped<Collection>(arguments).GetPtr());
}

/// Adds items of the collection to itself, which may move them while they are being added.
template <class Collection> void Multiply(CXmlTypeCollection& items)
{
    Collection& collection = static_cast<Collection&>(items);
    collection.Add(collection.Item(0));
    collection.AddAt(0, collection.Item(1));
    collection.AddAt(1, collection.Item(2));
}

struct Case {
    ItemType type;
    CSmartPtr<CXmlTypeCollection> (*create)(const CollectionArguments&);
    void (*multiply)(CXmlTypeCollection&);
    const wchar_t* text;
    Facets facets;
    const wchar_t* refused;
    const char* message; ///< what follows "Invalid Value for n"; null when nothing is refused
};

template <class Collection, class Value>
Case Row(ItemType type, const wchar_t* text, const Facets& facets, const wchar_t* refused, const char* message)
{
    return {type, NewOf<Collection, Value>, Multiply<Collection>, text, facets, refused, message};
}

const Case cases[] = {
    Row<Ci1Col, char>(ItemType_i1, L"-128", MaxInclusive(L"-128"), L"-127", "[-127]"),
    Row<Ci2Col, short>(ItemType_i2, L"32767", MinInclusive(L"32767"), L"32766", "[32766]"),
    Row<Ci4Col, long>(ItemType_i4, L"1099511627776", MinExclusive(L"5"), L"5", "[5]"),
    Row<Ci8Col, long long>(ItemType_i8, L"-9223372036854775808", MaxExclusive(L"0"), L"0", "[0]"),
    Row<Cui1Col, unsigned char>(ItemType_ui1, L"255", MinInclusive(L"200"), L"199", "[199]"),
    Row<Cui2Col, unsigned short>(ItemType_ui2, L"65535", MinExclusive(L"9"), L"9", "[9]"),
    Row<Cui4Col, unsigned long>(ItemType_ui4, L"0", MaxExclusive(L"5000000000"), L"5000000000", "[5000000000]"),
    Row<Cui8Col, unsigned long long>(ItemType_ui8, L"18446744073709551615", MinInclusive(L"10"), L"9", "[9]"),
    Row<Cr4Col, float>(ItemType_r4, L"1.5", MinExclusive(L"0"), L"NaN", "[NaN]."),
    Row<Cr8Col, double>(ItemType_r8, L"-0.015625", MaxExclusive(L"0"), L"0.5", "[0.5]."),
    Row<CbooleanCol, bool>(ItemType_boolean, L"true", MaxInclusive(L"false"), L"true", nullptr),
    Row<CyearCol, unsigned short>(ItemType_year, L"2024", MaxInclusive(L"2024"), L"2025", "[2025]"),
    Row<CmonthCol, unsigned char>(ItemType_month, L"--05", MinInclusive(L"--05"), L"--04", "[4]"),
    Row<CdayCol, unsigned char>(ItemType_day, L"---09", MaxExclusive(L"---10"), L"---10", "[10]"),
    Row<CstringCol, const std::wstring&>(ItemType_string, L"a longer text", Length(13), L"abc", "[abc]."),
    Row<CdecimalCol, const CDecimal&>(ItemType_decimal, L"-12345678901.25", Digits(13, 2), L"1.255", "[1.255]."),
    Row<CintegerCol, const CBigInteger&>(ItemType_integer, L"98765432109876543210", MinExclusive(L"9"), L"9", "[9]."),
    Row<CdurationCol, const CDateTimeSpan&>(ItemType_duration, L"P1Y2M3DT4H", MinInclusive(L"P30D"), L"P1M", "[P1M]."),
    Row<ChexBinaryCol, const CBinaryData&>(ItemType_hexBinary, L"00FF7F", Length(3), L"00", "[00]."),
    Row<Cbase64BinaryCol, const CBinaryData&>(ItemType_base64Binary, L"AP9/QQ==", Length(4), L"AA==", "[AA==]."),
    Row<CdateCol, Date>(ItemType_date, L"2024-02-29Z", MaxInclusive(L"2024-02-29Z"), L"2024-02-29", "[2024-02-29]."),
    Row<CdatetimeCol, Date>(ItemType_datetime, L"2024-02-29T23:59:58.5", MinExclusive(L"2024-02-29T23:59:58"),
        L"2024-02-29T23:59:58", "[2024-02-29T23:59:58]."),
    Row<CtimeCol, Date>(ItemType_time, L"23:59:58", MinInclusive(L"12:00:00"), L"11:59:59", "[11:59:59]."),
    Row<CmonthDayCol, Date>(ItemType_monthDay, L"--02-29", MaxExclusive(L"--03-01"), L"--03-01", "[--03-01]."),
    Row<CyearMonthCol, Date>(ItemType_yearMonth, L"2024-05", MaxInclusive(L"2024-05"), L"2024-06", "[2024-06]."),
};

/// Notes each event as type:data@count.
class Listener : public TestObject {
public:
    using Describe = std::string (*)(const void*);
    explicit Listener(Describe describe)
        : TestObject(Class(L"listener"))
        , m_describe(describe)
    {
    }
    std::string m_events;
    std::function<void(MsgType)> m_onEvent;

    void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) override
    {
        std::string text = "null";
        if (data)
            text = type == BeforeRemove || type == AfterRemove ? std::to_string(*static_cast<int*>(data))
                                                               : m_describe(data);
        const int count = static_cast<CXmlCollectionBase*>(sender)->GetCount();
        m_events += (m_events.empty() ? "" : " ") + std::to_string(type) + ":" + text + "@" + std::to_string(count);
        if (m_onEvent)
            m_onEvent(type);
    }

private:
    Describe m_describe;
};

std::string DescribeLong(const void* data)
{
    return std::to_string(*static_cast<const long*>(data));
}
std::string DescribeString(const void* data)
{
    return Narrow(*static_cast<const std::wstring*>(data));
}

Ci4Col& Fill(Ci4Col& items, std::initializer_list<long> values)
{
    for (const long value : values)
        items.Add(value);
    return items;
}

std::vector<long> Values(const Ci4Col& items)
{
    std::vector<long> values;
    for (int i = 0; i < items.GetCount(); ++i)
        values.push_back(items.Item(i));
    return values;
}

using Longs = std::vector<long>;

} // namespace

TEST(TypedCollection, ValuesAreParsedCheckedStoredAndWritten)
{
    std::set<int> types;
    for (const Case& row : cases) {
        SCOPED_TRACE(Narrow(row.text));
        types.insert(row.type);
        CollectionArguments arguments;
        arguments.namespaceUri = L"urn:n";
        arguments.facets = row.facets;
        const CSmartPtr<CXmlTypeCollection> items = row.create(arguments);
        EXPECT_EQ(row.type, items->GetItemType());
        items->AddFromString(row.text);
        EXPECT_EQ(row.message ? std::string("Zr: Invalid Value for n ") + row.message : "",
            FailureOf([&] { items->AddFromString(row.refused); }));
        const std::string one = "<n{urn:n} '" + Narrow(row.text) + "':" + std::to_string(row.type) + " >";
        EXPECT_EQ(row.message ? one : one + " " + one, Output::Of(*items));
        items->Clear();
        EXPECT_EQ("", Output::Of(*items));
        items->AddFromString(row.text);
        row.multiply(*items);
        EXPECT_EQ(4, items->GetCount());
        EXPECT_EQ(one + " " + one + " " + one + " " + one, Output::Of(*items));
    }
    EXPECT_EQ(25u, types.size()) << "one class for each item type except char";
}

TEST(TypedCollection, TextPassesTheWhitespaceRuleAndNumbersTheFormat)
{
    CollectionArguments arguments;
    arguments.facets = Length(3);
    arguments.rule = CWhitespaceUtils::Rule_Collapse;
    const CSmartPtr<CstringCol> texts = NewTyped<CstringCol>(arguments);
    texts->AddFromString(L" a\t\tb\n");
    texts->AddFromString(L"abc");
    texts->Add(L" \t ");
    EXPECT_EQ("<n 'a b':23 > <n 'abc':23 > <n ' \t ':23 >", Output::Of(*texts));

    const CSmartPtr<Ci4Col> unruled = NewTyped<Ci4Col>();
    EXPECT_EQ(
        "InvalidValue: The value [5 ] can not be converted to a i4", FailureOf([&] { unruled->AddFromString(L"5 "); }));
    arguments.facets = Facets();
    const CSmartPtr<Ci4Col> ruled = NewTyped<Ci4Col>(arguments);
    ruled->AddFromString(L" 5 ");
    EXPECT_EQ(5, ruled->Item(0));

    arguments.format = L"%.2f";
    for (const Case& row : cases) {
        if (row.type == ItemType_r4 || row.type == ItemType_r8 || row.type == ItemType_decimal) {
            const CSmartPtr<CXmlTypeCollection> numbers = row.create(arguments);
            numbers->AddFromString(L"2.5");
            EXPECT_EQ("<n '2.50':" + std::to_string(row.type) + " >", Output::Of(*numbers));
        }
    }
    arguments.format = L"%s";
    const CSmartPtr<Cr8Col> unprintable = NewTyped<Cr8Col>(arguments);
    unprintable->Add(1);
    EXPECT_EQ("InvalidParam: Invalid number format [%s]", FailureOf([&] { Output::Of(*unprintable); }));
}

TEST(TypedCollection, IndexesAreChecked)
{
    const CSmartPtr<Ci4Col> items = NewTyped<Ci4Col>();
    EXPECT_EQ("InvalidParam: Index 0 is out of range, use 0 - 0", FailureOf([&] { items->Item(0); }));
    Fill(*items, {1, 2}).AddAt(0, 0);
    items->AddAt(3, 3);
    items->Remove(1);
    EXPECT_EQ((Longs{0, 2, 3}), Values(*items));
    for (const int index : {-1, 3}) {
        const std::string message = "InvalidParam: Index " + std::to_string(index) + " is out of range, use 0 - 3";
        EXPECT_EQ(message, FailureOf([&] { items->Item(index); }));
        EXPECT_EQ(message, FailureOf([&] { items->Remove(index); }));
    }
    EXPECT_EQ("InvalidParam: Index -1 is out of range, use 0 - 3", FailureOf([&] { items->AddAt(-1, 9); }));
    EXPECT_EQ("InvalidParam: Index 4 is out of range, use 0 - 3", FailureOf([&] { items->AddAt(4, 9); }));
    EXPECT_EQ((Longs{0, 2, 3}), Values(*items));
}

TEST(TypedCollection, ChangesAreAnnouncedInOrder)
{
    Listener listener(DescribeLong);
    const CSmartPtr<Ci4Col> items = NewTyped<Ci4Col>();
    items->AddEventListener(&listener);
    items->Clear();
    Fill(*items, {7, 8});
    EXPECT_EQ("1:7@0 2:7@1 0:null@1 1:8@1 2:8@2 0:null@2", listener.m_events);
    listener.m_events.clear();
    items->AddAt(0, 6);
    items->Remove(1);
    items->Clear();
    EXPECT_EQ("1:6@2 2:6@3 0:null@3 3:1@3 4:1@2 0:null@2 3:null@2 4:null@0 0:null@0", listener.m_events);

    Listener textListener(DescribeString);
    const CSmartPtr<CstringCol> texts = NewTyped<CstringCol>();
    texts->AddEventListener(&textListener);
    texts->AddFromString(L"longer than any short buffer");
    EXPECT_EQ("1:longer than any short buffer@0 2:longer than any short buffer@1 0:null@1", textListener.m_events);

    Listener flagListener([](const void* data) { return std::to_string(*static_cast<const unsigned char*>(data)); });
    const CSmartPtr<CbooleanCol> flags = NewTyped<CbooleanCol>();
    flags->AddEventListener(&flagListener);
    flags->Add(true);
    EXPECT_EQ("1:1@0 2:1@1 0:null@1", flagListener.m_events);
}

TEST(TypedCollection, keeps_AddEventBeforeRefusal)
{
    Listener listener(DescribeLong);
    CollectionArguments arguments;
    arguments.facets = MaxInclusive(L"5");
    const CSmartPtr<Ci4Col> items = NewTyped<Ci4Col>(arguments);
    items->AddEventListener(&listener);
    EXPECT_EQ("Zr: Invalid Value for n [6]", FailureOf([&] { items->Add(6); }));
    // The index is tested before the facets.
    EXPECT_EQ("InvalidParam: Index 1 is out of range, use 0 - 0", FailureOf([&] { items->AddAt(1, 7); }));
    EXPECT_EQ(
        "InvalidValue: The value [x] can not be converted to a i4", FailureOf([&] { items->AddFromString(L"x"); }));
    EXPECT_EQ("1:6@0 1:7@0", listener.m_events);
    EXPECT_EQ(0, items->GetCount());
}

TEST(TypedCollection, ListenersMayChangeTheCollection)
{
    Listener listener(DescribeLong);
    const CSmartPtr<Ci4Col> items = NewTyped<Ci4Col>();
    Fill(*items, {1, 2, 3}).AddEventListener(&listener);
    listener.m_onEvent = [&](IEventSink::MsgType type) {
        listener.m_onEvent = nullptr;
        if (type == IEventSink::BeforeAdd || type == IEventSink::BeforeRemove)
            items->Clear();
    };
    EXPECT_EQ("InvalidParam: Index 2 is out of range, use 0 - 0", FailureOf([&] { items->Remove(2); }));
    Fill(*items, {1, 2});
    listener.m_onEvent = [&](IEventSink::MsgType) {
        listener.m_onEvent = nullptr;
        items->Clear();
    };
    EXPECT_EQ("InvalidParam: Index 1 is out of range, use 0 - 0", FailureOf([&] { items->AddAt(1, 9); }));
}

TEST(TypedCollection, CopiesHaveTheItemsButNotTheListeners)
{
    Listener listener(DescribeLong);
    const CSmartPtr<Ci4Col> items = NewTyped<Ci4Col>();
    Fill(*items, {1, 2}).AddEventListener(&listener);
    listener.m_events.clear();
    const CSmartPtr<Ci4Col> copy = new Ci4Col(*items);
    copy->Add(3);
    EXPECT_EQ((Longs{1, 2, 3}), Values(*copy));
    EXPECT_EQ((Longs{1, 2}), Values(*items));
    EXPECT_EQ("", listener.m_events);
}

TEST(TypedCollection, DatesMustBeOfTheCollectionsKind)
{
    const struct {
        CDateTime::DateType kind;
        const char* name;
        CSmartPtr<CdatetimeBaseCol> items;
    } rows[] = {
        {CDateTime::dt_date, "dt_date", NewTyped<CdateCol>().GetPtr()},
        {CDateTime::dt_dateTime, "dt_dateTime", NewTyped<CdatetimeCol>().GetPtr()},
        {CDateTime::dt_time, "dt_time", NewTyped<CtimeCol>().GetPtr()},
        {CDateTime::dt_gMonthDay, "dt_gMonthDay", NewTyped<CmonthDayCol>().GetPtr()},
        {CDateTime::dt_gYearMonth, "dt_gYearMonth", NewTyped<CyearMonthCol>().GetPtr()},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Listener listener([](const void* data) { return Narrow(static_cast<const CDateTime*>(data)->ToString()); });
        row.items->AddEventListener(&listener);
        for (int kind = CDateTime::dt_dateTime; kind <= CDateTime::dt_gDay; ++kind) {
            const CDateTime value(static_cast<CDateTime::DateType>(kind));
            // The index is not looked at, and nobody is told of a date of another kind.
            const std::string expected = kind == row.kind
                ? "InvalidParam: Index 5 is out of range, use 0 - 0"
                : std::string("InvalidParam: Dates added to this collection must be of type ") + row.name;
            EXPECT_EQ(expected, FailureOf([&] { row.items->AddAt(5, value); })) << kind;
        }
        const CDateTime value(row.kind);
        const std::string text = Narrow(value.ToString());
        EXPECT_EQ("1:" + text + "@0", listener.m_events);
        row.items->Add(value);
        EXPECT_EQ("1:" + text + "@0 1:" + text + "@0 2:" + text + "@1 0:null@1", listener.m_events);
        EXPECT_EQ(row.kind, row.items->Item(0).GetDateType());
        EXPECT_EQ("InvalidParam: Index 1 is out of range, use 0 - 1", FailureOf([&] { row.items->Remove(1); }));
        row.items->Remove(0);
        EXPECT_EQ(0, row.items->GetCount());
    }
}
