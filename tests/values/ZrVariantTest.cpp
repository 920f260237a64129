// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"
#include "values/BorrowingVariant.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

/// Counts its living instances and can keep a variant.
class CountedCollection : public CXmlCollectionBase {
public:
    CountedCollection()
        : CXmlCollectionBase(L"item", L"", 0, -1)
    {
        ++s_living;
    }
    ~CountedCollection() override { --s_living; }
    int GetCount() const override { return 0; }
    void Clear() override { }

    static int s_living;
    ZrVariant m_kept;

protected:
    void ToXml_Int(CXmlWriter*, bool, const wchar_t*, const CSerializationContext&, bool) const override { }
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* firstChild, const CSerializationContext&, bool) override
    {
        return firstChild;
    }
};

int CountedCollection::s_living = 0;

constexpr struct {
    ItemType type;
    const wchar_t *name, *text;
} TYPES[] = {{ItemType_hexBinary, L"hexBinary", L"00FF"}, {ItemType_base64Binary, L"base64Binary", L"AAECAw=="},
    {ItemType_i1, L"i1", L"-128"}, {ItemType_i2, L"i2", L"-32768"}, {ItemType_i4, L"i4", L"-9223372036854775808"},
    {ItemType_i8, L"i8", L"9223372036854775807"}, {ItemType_ui1, L"ui1", L"255"}, {ItemType_ui2, L"ui2", L"65535"},
    {ItemType_ui4, L"ui4", L"18446744073709551615"}, {ItemType_ui8, L"ui8", L"18446744073709551615"},
    {ItemType_r4, L"r4", L"1.5"}, {ItemType_r8, L"r8", L"-0.25"},
    {ItemType_duration, L"duration", L"P1Y2M3DT4H5M6.789S"}, {ItemType_yearMonth, L"yearMonth", L"2004-02"},
    {ItemType_monthDay, L"monthDay", L"--02-29"}, {ItemType_year, L"year", L"476"}, {ItemType_month, L"month", L"--12"},
    {ItemType_day, L"day", L"---31"}, {ItemType_date, L"date", L"2004-02-29"},
    {ItemType_datetime, L"datetime", L"2004-02-29T12:00:00.5Z"}, {ItemType_time, L"time", L"12:00:00"},
    {ItemType_char, L"char", L"x"}, {ItemType_string, L"string", L"a text that is too long for a small string"},
    {ItemType_boolean, L"boolean", L"true"}, {ItemType_decimal, L"decimal", L"-1234567890.12345678901234567890123"},
    {ItemType_integer, L"integer", L"-123456789012345678901234567890"}};

ZrVariant Parsed(const wchar_t* text, ItemType type)
{
    ZrVariant value;
    value.FromString(text, type, CWhitespaceUtils::Rule_Collapse);
    return value;
}

} // namespace

TEST(ZrVariant, EveryTypeIsReadNamedCopiedMovedAndPrinted)
{
    for (const auto& row : TYPES) {
        SCOPED_TRACE(Narrow(row.name));
        ZrVariant value = Parsed(row.text, row.type);
        EXPECT_EQ(value.ToString(nullptr), row.text);
        EXPECT_EQ(value.GetType(), std::wstring(row.name));
        EXPECT_EQ(value.GetItemType(), row.type);
        for (const auto& old : TYPES) {
            ZrVariant target = Parsed(old.text, old.type);
            target = value;
            ASSERT_EQ(target.ToString(L""), row.text) << "copied over " << Narrow(old.name);
            ZrVariant source(value);
            target = Parsed(old.text, old.type);
            target = std::move(source);
            ASSERT_EQ(target.ToString(L""), row.text) << "moved over " << Narrow(old.name);
            ASSERT_FALSE(source.IsValid()); // NOLINT(bugprone-use-after-move): a moved-from variant is invalid
        }
        const ZrVariant& same = value;
        value = same;
        std::wstring reused = L"old";
        value.FormatTo(L"", reused);
        EXPECT_EQ(reused, row.text);
    }
    static_assert(std::is_nothrow_move_constructible<ZrVariant>::value, "properties are moved");
    static_assert(std::is_nothrow_move_assignable<ZrVariant>::value, "properties are moved");
}

TEST(ZrVariant, ASetterReplacesWhatWasThere)
{
    ZrVariant value;
    value.SetI8(-(1LL << 40));
    value.SetUI1(250);
    EXPECT_EQ(value.GetUI8(), 250U) << "the storage is cleared before a narrow value";
    value.SetR8(0.1);
    EXPECT_EQ(value.ToString(L"%.3f"), L"0.100");
    value.SetDecimal(CDecimal(L"1.5"));
    EXPECT_EQ(value.ToString(L"%.2f"), L"1.50");
    value.SetDecimal(value.GetDecimal());
    EXPECT_EQ(value.ToString(L""), L"1.5");
    value.SetString(L"a text that is too long for a small string");
    EXPECT_TRUE(value.GetDecimal().IsZero()) << "a getter of another class gives an empty value";
    value.SetString(value.GetString());
    value.SetString(value.GetString().c_str() + 2, 30);
    EXPECT_EQ(value.GetString(), L"text that is too long for a sm");
    value.SetDate(CDateTime(2004, 2, 29));
    EXPECT_TRUE(value.GetDate() == CDateTime(2004, 2, 29) && value.GetString().empty());
}

TEST(ZrVariant, LentStringsAreReadCopiedMovedAndTakenLikeOwnOnes)
{
    const std::wstring lent = L"a text that is too long for a small string";
    CBorrowingVariant borrowing;
    ZrVariant copying;
    for (ZrVariant* value : {static_cast<ZrVariant*>(&borrowing), &copying}) {
        value->SetI4(1);
        value->LendString(lent);
        EXPECT_EQ(value == &borrowing, &value->GetString() == &lent);
        EXPECT_EQ(lent, value->ToString(L""));
        ZrVariant copy(*value);
        EXPECT_NE(&lent, &copy.GetString());
        EXPECT_EQ(lent, copy.TakeString());
        const ZrVariant moved(std::move(*value));
        EXPECT_EQ(lent, moved.GetString());
        EXPECT_FALSE(value->IsValid());
        value->LendString(lent);
        value->SetString(L"own", 3);
        EXPECT_EQ(L"own", value->TakeString());
        value->LendString(lent);
        EXPECT_EQ(lent, value->TakeString());
        value->SetNil();
        EXPECT_EQ(L"", value->TakeString());
    }
    EXPECT_EQ(42u, lent.size());
}

TEST(ZrVariant, NilKeepsTheTypeAndHasNoValue)
{
    ZrVariant fresh;
    fresh.SetNil();
    EXPECT_TRUE(fresh.IsValid() && fresh.IsNil() && fresh.GetItemType() == ItemType_none);
    for (const auto& row : TYPES) {
        SCOPED_TRACE(Narrow(row.name));
        ZrVariant value = Parsed(row.text, row.type);
        value.SetNil();
        ZrVariant copy(value);
        for (const ZrVariant& nil : {std::as_const(value), std::as_const(copy)}) {
            EXPECT_TRUE(nil.IsNil());
            EXPECT_EQ(nil.GetType(), std::wstring(row.name));
            EXPECT_EQ(nil.GetUI8() + nil.GetString().size() + nil.GetHexBinary().GetLength(), 0U);
            EXPECT_TRUE(nil.GetDecimal().IsZero() && nil.GetInteger().IsZero());
            EXPECT_TRUE(nil.GetDate() == CDateTime() && nil.GetDuration() == CDateTimeSpan());
            EXPECT_EQ(MessageOf<CZrException>([&] { nil.ToString(nullptr); }), L"Invalid Type 0 to convert to string");
        }
        copy.SetString(L"text");
        EXPECT_EQ(copy.GetString(), L"text");
        value.SetInvalid();
        EXPECT_FALSE(value.IsValid() || copy.IsNil());
    }
}

TEST(ZrVariant, keeps_FromStringErrorsSpeakOfConvertingToAString)
{
    ZrVariant value;
    value.SetI4(42);
    for (const int type : {0, 27, 28, 29, -1}) {
        const auto parse = [&] { value.FromString(L"1", static_cast<ItemType>(type), CWhitespaceUtils::Rule_None); };
        EXPECT_EQ(MessageOf<CZrException>(parse), L"Invalid Type " + std::to_wstring(type) + L" to convert to string");
    }
    EXPECT_THROW(value.FromString(L"x", ItemType_i4, CWhitespaceUtils::Rule_None), CZrInvalidValueException);
    EXPECT_EQ(value.GetI4(), 42);
}

TEST(ZrVariant, TypesWithoutTextFormAreRefused)
{
    ZrVariant values[3];
    values[1].SetXmlObject(nullptr);
    values[2].SetXmlCollection(nullptr);
    const std::wstring messages[] = {L"Invalid Type 0", L"Invalid Type 27", L"Invalid Type 28"};
    for (int i = 0; i < 3; ++i) {
        const ZrVariant& value = values[i];
        EXPECT_EQ(MessageOf<CZrException>([&] { value.ToString(L""); }), messages[i] + L" to convert to string");
        EXPECT_EQ(MessageOf<CZrException>([&] { value.GetType(); }), messages[i]);
        EXPECT_EQ(value.IsValid(), i > 0);
        EXPECT_FALSE(value.BorrowXmlObject() || value.BorrowXmlCollection());
    }
}

TEST(ZrVariant, ObjectsAndCollectionsAreCounted)
{
    ZrVariant outer;
    {
        ZrVariant asObject;
        CountedCollection* const shared = new CountedCollection;
        asObject.SetXmlObject(shared);
        ZrVariant asCollection;
        asCollection.SetXmlCollection(shared);
        EXPECT_EQ(asObject.BorrowXmlObject(), shared);
        EXPECT_EQ(asObject.BorrowXmlCollection(), nullptr);
        EXPECT_EQ(asCollection.GetXmlCollection().GetPtr(), shared);
        EXPECT_EQ(asCollection.GetXmlObject().GetPtr(), nullptr);

        ZrVariant copy(asObject);
        ZrVariant moved(std::move(asObject));
        EXPECT_EQ(shared->AddRef(), 4); // two variants hold it as an object, one as a collection
        moved.SetNil();
        copy.SetXmlObject(copy.BorrowXmlObject());
        EXPECT_EQ(shared->Release(), 2);
        outer = asCollection;
    }
    EXPECT_EQ(CountedCollection::s_living, 1);

    // The value comes from an object that only this variant keeps alive.
    auto* keeper = static_cast<CountedCollection*>(outer.BorrowXmlCollection());
    keeper->m_kept = Parsed(L"12345678901234567890", ItemType_integer);
    outer = keeper->m_kept;
    EXPECT_EQ(outer.ToString(L""), L"12345678901234567890");
    EXPECT_EQ(CountedCollection::s_living, 0);
}
