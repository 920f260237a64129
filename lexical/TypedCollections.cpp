// SPDX-License-Identifier: MIT
// The typed collections. Each is a line of the two tables below; what they do is in TypedCol.
#include "ZrXmlLib16/Conversions.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/base64BinaryCol.h"
#include "ZrXmlLib16/booleanCol.h"
#include "ZrXmlLib16/dateCol.h"
#include "ZrXmlLib16/datetimeCol.h"
#include "ZrXmlLib16/dayCol.h"
#include "ZrXmlLib16/decimalCol.h"
#include "ZrXmlLib16/durationCol.h"
#include "ZrXmlLib16/hexBinaryCol.h"
#include "ZrXmlLib16/i1Col.h"
#include "ZrXmlLib16/i2Col.h"
#include "ZrXmlLib16/i4Col.h"
#include "ZrXmlLib16/i8Col.h"
#include "ZrXmlLib16/integerCol.h"
#include "ZrXmlLib16/monthCol.h"
#include "ZrXmlLib16/monthDayCol.h"
#include "ZrXmlLib16/r4Col.h"
#include "ZrXmlLib16/r8Col.h"
#include "ZrXmlLib16/stringCol.h"
#include "ZrXmlLib16/timeCol.h"
#include "ZrXmlLib16/ui1Col.h"
#include "ZrXmlLib16/ui2Col.h"
#include "ZrXmlLib16/ui4Col.h"
#include "ZrXmlLib16/ui8Col.h"
#include "ZrXmlLib16/yearCol.h"
#include "ZrXmlLib16/yearMonthCol.h"
#include "lexical/FacetCheck.h"
#include "lexical/LexicalMessages.h"
#include "lexical/NumberText.h"
#include "lexical/TypedCol.h"
#include "lexical/ValueText.h"
#include "lexical/Whitespace.h"

#include <type_traits>

namespace ZrXmlLib16 {

namespace {

using Facets = CPrimitiveRestrictions;
using Rule = CWhitespaceUtils::WhitespaceRule;

/// Traits made of the functions that exist for every item type. AppendText may take the number format or not.
template <auto FromString, auto AppendText, auto CheckValue> struct ItemTraits {
    static auto Parse(const std::wstring& text, Rule rule) { return FromString(text, rule); }

    template <class T> static const std::wstring& Text(const T& value, const wchar_t* format, std::wstring& scratch)
    {
        scratch.clear();
        if constexpr (std::is_invocable_v<decltype(AppendText), T, const wchar_t*, std::wstring&>) {
            AppendText(value, format, scratch);
        } else {
            AppendText(value, scratch);
        }
        return scratch;
    }

    template <class T> static void CheckFacets(const wchar_t* name, const T& value, const Facets& facets)
    {
        CheckValue(name, value, facets);
    }
};

/// A string is its own text: nothing is copied but the value itself.
struct StringTraits {
    static std::wstring Parse(std::wstring& text, Rule rule)
    {
        std::wstring scratch;
        return std::move(&Whitespace::Apply(rule, text, scratch) == &text ? text : scratch);
    }
    static const std::wstring& Text(const std::wstring& value, const wchar_t*, std::wstring&) { return value; }
    static constexpr auto& CheckFacets = FacetCheck::CheckString;
};

/// Lexical forms of the types that are no plain numbers.
struct Append {
    template <class T> static void Object(const T& value, std::wstring& text) { value.AppendTo(text); }
    static void Decimal(const CDecimal& value, const wchar_t* format, std::wstring& text)
    {
        value.AppendTo(text, format);
    }
    static void Hex(const CBinaryData& value, std::wstring& text) { text = value.GetAsHexString(); }
    static void Base64(const CBinaryData& value, std::wstring& text) { text = value.GetAsBase64(); }
};

constexpr auto& Signed = NumberText::AppendInteger;
constexpr auto& Unsigned = NumberText::AppendUnsigned;

void RequireKind(const CDateTime& value, CDateTime::DateType kind, const wchar_t* kindName)
{
    if (value.GetDateType() != kind) {
        throw CZrInvalidParamException(FormatString(LexicalMessages::WrongDateKind, kindName));
    }
}

} // namespace

// The members of the public classes differ in names only. All names follow from the name of the item type.

// clang-format off
#define ITEM_TRAITS(name, AppendText)                                                                                  \
    ItemTraits<CConversions::name##FromString, AppendText, CXmlObjectHelper::CheckRestrictionFor##name>

#define PARAMETERS                                                                                                     \
    const wchar_t *name, const wchar_t *namespaceUri, int minOccurs, int maxOccurs, const wchar_t *pattern,            \
    long minLength, long maxLength, const wchar_t *minInclusive, const wchar_t *maxInclusive,                          \
    const wchar_t *minExclusive, const wchar_t *maxExclusive, long length, long totalDigits, long fractionDigits,      \
    CWhitespaceUtils::WhitespaceRule rule, const wchar_t *format

#define ARGUMENTS                                                                                                      \
    name, namespaceUri, minOccurs, maxOccurs, pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive, \
    maxExclusive, length, totalDigits, fractionDigits, rule, format

#define CONSTRUCTION(itemType, Base)                                                                                   \
    C##itemType##Col::C##itemType##Col(PARAMETERS) : Base(ItemType_##itemType, ARGUMENTS) { }                          \
    C##itemType##Col::~C##itemType##Col() = default;

#define STORAGE(Class, Operations, Value)                                                                              \
    void Class::Add(Value value) { AddAt(GetCount(), value); }                                                         \
    Value Class::Item(int index) const { return Operations::Item(m_items, index); }                                    \
    void Class::Remove(int index) { Operations::Remove(*this, m_items, index); }                                       \
    int Class::GetCount() const { return Operations::Count(m_items); }                                                 \
    void Class::Clear() { Operations::Clear(*this, m_items); }                                                         \
    void Class::ToXml_Int(CXmlWriter* writer, bool, const wchar_t*, const CSerializationContext&, bool) const          \
    {                                                                                                                  \
        Operations::Write(*this, m_items, *writer);                                                                    \
    }

#define TYPED_COLLECTION(itemType, Stored, Value, Traits)                                                              \
    template class TypedCol<Stored, Traits>;                                                                           \
    using itemType##Operations = TypedCol<Stored, Traits>;                                                             \
    CONSTRUCTION(itemType, CXmlTypeCollection)                                                                         \
    STORAGE(C##itemType##Col, itemType##Operations, Value)                                                             \
    void C##itemType##Col::AddAt(int index, Value value) { itemType##Operations::AddAt(*this, m_items, index, value); }\
    void C##itemType##Col::AddFromString(std::wstring text) { itemType##Operations::AddText(*this, m_items, text); }

#define DATE_COLLECTION(itemType, kind)                                                                                \
    template class TypedCol<CDateTime, ITEM_TRAITS(itemType, Append::Object<CDateTime>)>;                              \
    using itemType##Operations = TypedCol<CDateTime, ITEM_TRAITS(itemType, Append::Object<CDateTime>)>;                \
    CONSTRUCTION(itemType, CdatetimeBaseCol)                                                                           \
    void C##itemType##Col::AddAt(int index, const CDateTime& value)                                                    \
    {                                                                                                                  \
        RequireKind(value, CDateTime::kind, L## #kind);                                                                \
        CDateTime item = value;                                                                                        \
        itemType##Operations::Admit(*this, index, item);                                                               \
        BaseAddAt(index, item);                                                                                        \
    }                                                                                                                  \
    void C##itemType##Col::AddFromString(std::wstring text) { Add(itemType##Operations::Parse(*this, text)); }
// clang-format on

// item type, how it is stored, how it is passed, what is particular to it
TYPED_COLLECTION(i1, char, char, ITEM_TRAITS(i1, Signed))
TYPED_COLLECTION(i2, short, short, ITEM_TRAITS(i2, Signed))
TYPED_COLLECTION(i4, long, long, ITEM_TRAITS(i4, Signed))
TYPED_COLLECTION(i8, long long, long long, ITEM_TRAITS(i8, Signed))
TYPED_COLLECTION(ui1, unsigned char, unsigned char, ITEM_TRAITS(ui1, Unsigned))
TYPED_COLLECTION(ui2, unsigned short, unsigned short, ITEM_TRAITS(ui2, Unsigned))
TYPED_COLLECTION(ui4, unsigned long, unsigned long, ITEM_TRAITS(ui4, Unsigned))
TYPED_COLLECTION(ui8, unsigned long long, unsigned long long, ITEM_TRAITS(ui8, Unsigned))
TYPED_COLLECTION(r4, float, float, ITEM_TRAITS(r4, ValueText::AppendR4))
TYPED_COLLECTION(r8, double, double, ITEM_TRAITS(r8, ValueText::AppendR8))
TYPED_COLLECTION(boolean, unsigned char, bool, ITEM_TRAITS(boolean, ValueText::AppendBoolean))
TYPED_COLLECTION(year, unsigned short, unsigned short, ITEM_TRAITS(year, Unsigned))
TYPED_COLLECTION(month, unsigned char, unsigned char, ITEM_TRAITS(month, ValueText::AppendMonth))
TYPED_COLLECTION(day, unsigned char, unsigned char, ITEM_TRAITS(day, ValueText::AppendDay))
TYPED_COLLECTION(string, std::wstring, const std::wstring&, StringTraits)
TYPED_COLLECTION(decimal, CDecimal, const CDecimal&, ITEM_TRAITS(decimal, Append::Decimal))
TYPED_COLLECTION(integer, CBigInteger, const CBigInteger&, ITEM_TRAITS(integer, Append::Object<CBigInteger>))
TYPED_COLLECTION(duration, CDateTimeSpan, const CDateTimeSpan&, ITEM_TRAITS(duration, Append::Object<CDateTimeSpan>))
TYPED_COLLECTION(hexBinary, CBinaryData, const CBinaryData&, ITEM_TRAITS(hexBinary, Append::Hex))
TYPED_COLLECTION(base64Binary, CBinaryData, const CBinaryData&, ITEM_TRAITS(base64Binary, Append::Base64))

DATE_COLLECTION(date, dt_date)
DATE_COLLECTION(datetime, dt_dateTime)
DATE_COLLECTION(time, dt_time)
DATE_COLLECTION(monthDay, dt_gMonthDay)
DATE_COLLECTION(yearMonth, dt_gYearMonth)

CdatetimeBaseCol::CdatetimeBaseCol(ItemType type, PARAMETERS)
    : CXmlTypeCollection(type, ARGUMENTS)
{
}

CdatetimeBaseCol::~CdatetimeBaseCol() = default;

// What does not depend on the kind is the same in all of the operations.
STORAGE(CdatetimeBaseCol, datetimeOperations, const CDateTime&)

void CdatetimeBaseCol::BaseAddAt(int index, const CDateTime& value)
{
    datetimeOperations::Insert(*this, m_items, index, value);
}

} // namespace ZrXmlLib16
