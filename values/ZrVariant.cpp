// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrVariant.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "ZrXmlLib16/ZrException.h"
#include "lexical/ItemTypeTable.h"
#include "values/ValueMessages.h"

#include <iterator>
#include <new>
#include <type_traits>
#include <utility>

namespace ZrXmlLib16 {

namespace {

/// Which member of the storage a type uses.
enum class StorageClass : unsigned char {
    Scalar,
    Binary,
    Duration,
    DateTime,
    String,
    Decimal,
    Integer,
    Object,
    Collection
};

constexpr StorageClass STORAGE_CLASSES[] = {
    StorageClass::Scalar,     // none
    StorageClass::Binary,     // hexBinary
    StorageClass::Binary,     // base64Binary
    StorageClass::Scalar,     // i1
    StorageClass::Scalar,     // i2
    StorageClass::Scalar,     // i4
    StorageClass::Scalar,     // i8
    StorageClass::Scalar,     // ui1
    StorageClass::Scalar,     // ui2
    StorageClass::Scalar,     // ui4
    StorageClass::Scalar,     // ui8
    StorageClass::Scalar,     // r4
    StorageClass::Scalar,     // r8
    StorageClass::Duration,   // duration
    StorageClass::DateTime,   // yearMonth
    StorageClass::DateTime,   // monthDay
    StorageClass::Scalar,     // year
    StorageClass::Scalar,     // month
    StorageClass::Scalar,     // day
    StorageClass::DateTime,   // date
    StorageClass::DateTime,   // datetime
    StorageClass::DateTime,   // time
    StorageClass::Scalar,     // char
    StorageClass::String,     // string
    StorageClass::Scalar,     // boolean
    StorageClass::Decimal,    // decimal
    StorageClass::Integer,    // integer
    StorageClass::Object,     // object
    StorageClass::Collection, // collection
};
static_assert(std::size(STORAGE_CLASSES) == ItemType_collection + 1, "one storage class per item type");

/// The member that holds the value: none but the scalar one for nil, which has no value.
StorageClass StorageOf(ItemType type, bool nil)
{
    return nil ? StorageClass::Scalar : STORAGE_CLASSES[type];
}

/// Calls the action with the class member of both storages, and does nothing for scalars.
template <class LeftValue, class RightValue, class Action>
void WithClassMembers(StorageClass storage, LeftValue& left, RightValue& right, Action action)
{
    switch (storage) {
    case StorageClass::Scalar:
        break;
    case StorageClass::Binary:
        action(left.binary, right.binary);
        break;
    case StorageClass::Duration:
        action(left.duration, right.duration);
        break;
    case StorageClass::DateTime:
        action(left.dateTime, right.dateTime);
        break;
    case StorageClass::String:
        action(left.string, right.string);
        break;
    case StorageClass::Decimal:
        action(left.decimal, right.decimal);
        break;
    case StorageClass::Integer:
        action(left.integer, right.integer);
        break;
    case StorageClass::Object:
        action(left.object, right.object);
        break;
    case StorageClass::Collection:
        action(left.collection, right.collection);
        break;
    }
}

template <class T> void Destroy(T& member)
{
    member.~T();
}

template <class T> const T& EmptyValue()
{
    static const T empty{};
    return empty;
}

const ItemTypeRow& ConvertibleRow(int type)
{
    // kept: required behaviour. The text speaks of converting to a string for both directions.
    const ItemTypeRow* row = FindItemType(type);
    if (!row) {
        throw CZrException(FormatString(ValueMessages::INVALID_TYPE_TO_CONVERT, type));
    }
    return *row;
}

} // namespace

ZrVariant::ZrVariant(const ZrVariant& other)
    : ZrVariant()
{
    CopyFrom(other);
}

ZrVariant::ZrVariant(ZrVariant&& other) noexcept
    : ZrVariant()
{
    MoveFrom(other);
}

ZrVariant& ZrVariant::operator=(const ZrVariant& other)
{
    if (this != &other) {
        // The copy comes first: the source may belong to an object that only this variant keeps alive.
        ZrVariant copy(other);
        Clear();
        MoveFrom(copy);
    }
    return *this;
}

ZrVariant& ZrVariant::operator=(ZrVariant&& other) noexcept
{
    if (this != &other) {
        ZrVariant taken(std::move(other));
        Clear();
        MoveFrom(taken);
    }
    return *this;
}

/// This variant is invalid before.
void ZrVariant::CopyFrom(const ZrVariant& other)
{
    if (other.m_isBorrowed) {
        SetString(*other.m_value.borrowed);
        return;
    }
    const StorageClass storage = StorageOf(other.m_type, other.m_nil);
    if (storage == StorageClass::Scalar) {
        m_value.ui8 = other.m_value.ui8;
    }
    WithClassMembers(storage, m_value, other.m_value, [](auto& target, const auto& source) {
        using Member = std::decay_t<decltype(target)>;
        new (&target) Member(source);
    });
    m_nil = other.m_nil;
    m_type = other.m_type;
}

/// This variant is invalid before, the other one after.
void ZrVariant::MoveFrom(ZrVariant& other) noexcept
{
    if (other.m_isBorrowed) {
        Borrow(*other.m_value.borrowed);
        other.Clear();
        return;
    }
    const StorageClass storage = StorageOf(other.m_type, other.m_nil);
    if (storage == StorageClass::Scalar) {
        m_value.ui8 = other.m_value.ui8;
    }
    WithClassMembers(storage, m_value, other.m_value, [](auto& target, auto& source) {
        using Member = std::decay_t<decltype(target)>;
        new (&target) Member(std::move(source));
    });
    m_nil = other.m_nil;
    m_type = other.m_type;
    other.Clear();
}

/// The variant owns a value before.
void ZrVariant::DropValue()
{
    // The variant is invalid before the value goes: the destructor of an object may come back to it.
    const StorageClass storage = STORAGE_CLASSES[m_type];
    m_type = ItemType_none;
    if (storage == StorageClass::String) { // most values
        Destroy(m_value.string);
    } else {
        WithClassMembers(storage, m_value, m_value, [](auto& member, auto&) { Destroy(member); });
    }
    m_value.ui8 = 0;
}

void ZrVariant::SetNil()
{
    const ItemType type = m_type;
    Clear();
    m_type = type;
    m_nil = true;
}

/// Takes the value by value: what the caller passed may be part of the value that is dropped.
template <class T> void ZrVariant::Store(ItemType type, T Value::*member, T value)
{
    Clear();
    new (&(m_value.*member)) T(std::move(value));
    m_type = type;
}

template <class T> const T& ZrVariant::Read(ItemType type, T Value::*member) const
{
    return StorageOf(m_type, m_nil) == STORAGE_CLASSES[type] ? m_value.*member : EmptyValue<T>();
}

void ZrVariant::SetHexBinary(const CBinaryData& value)
{
    Store(ItemType_hexBinary, &Value::binary, value);
}

const CBinaryData& ZrVariant::GetHexBinary() const
{
    return Read(ItemType_hexBinary, &Value::binary);
}

void ZrVariant::SetBase64Binary(const CBinaryData& value)
{
    Store(ItemType_base64Binary, &Value::binary, value);
}

const CBinaryData& ZrVariant::GetBase64Binary() const
{
    return Read(ItemType_base64Binary, &Value::binary);
}

void ZrVariant::SetDuration(const CDateTimeSpan& value)
{
    Store(ItemType_duration, &Value::duration, value);
}

const CDateTimeSpan& ZrVariant::GetDuration() const
{
    return Read(ItemType_duration, &Value::duration);
}

void ZrVariant::SetYearMonth(const CDateTime& value)
{
    Store(ItemType_yearMonth, &Value::dateTime, value);
}

const CDateTime& ZrVariant::GetYearMonth() const
{
    return Read(ItemType_yearMonth, &Value::dateTime);
}

void ZrVariant::SetMonthDay(const CDateTime& value)
{
    Store(ItemType_monthDay, &Value::dateTime, value);
}

const CDateTime& ZrVariant::GetMonthDay() const
{
    return Read(ItemType_monthDay, &Value::dateTime);
}

void ZrVariant::SetDate(const CDateTime& value)
{
    Store(ItemType_date, &Value::dateTime, value);
}

const CDateTime& ZrVariant::GetDate() const
{
    return Read(ItemType_date, &Value::dateTime);
}

void ZrVariant::SetDateTime(const CDateTime& value)
{
    Store(ItemType_datetime, &Value::dateTime, value);
}

const CDateTime& ZrVariant::GetDateTime() const
{
    return Read(ItemType_datetime, &Value::dateTime);
}

void ZrVariant::SetTime(const CDateTime& value)
{
    Store(ItemType_time, &Value::dateTime, value);
}

const CDateTime& ZrVariant::GetTime() const
{
    return Read(ItemType_time, &Value::dateTime);
}

void ZrVariant::SetString(std::wstring value)
{
    Store(ItemType_string, &Value::string, std::move(value));
}

void ZrVariant::SetString(const wchar_t* text, unsigned long length)
{
    if (!m_isBorrowed && StorageOf(m_type, m_nil) == StorageClass::String) {
        m_value.string.assign(text, length);
    } else {
        SetString(std::wstring(text, length));
    }
}

void ZrVariant::LendString(const std::wstring& value)
{
    if (m_mayBorrow) {
        Clear();
        Borrow(value);
    } else {
        SetString(value);
    }
}

/// This variant is invalid before.
void ZrVariant::Borrow(const std::wstring& value) noexcept
{
    m_value.borrowed = &value;
    m_type = ItemType_string;
    m_isBorrowed = true;
}

const std::wstring& ZrVariant::GetString() const
{
    if (m_isBorrowed) {
        return *m_value.borrowed;
    }
    return Read(ItemType_string, &Value::string);
}

std::wstring ZrVariant::TakeString()
{
    if (m_isBorrowed) {
        return *m_value.borrowed;
    }
    return StorageOf(m_type, m_nil) == StorageClass::String ? std::move(m_value.string) : std::wstring();
}

void ZrVariant::SetDecimal(const CDecimal& value)
{
    Store(ItemType_decimal, &Value::decimal, value);
}

const CDecimal& ZrVariant::GetDecimal() const
{
    return Read(ItemType_decimal, &Value::decimal);
}

void ZrVariant::SetInteger(const CBigInteger& value)
{
    Store(ItemType_integer, &Value::integer, value);
}

const CBigInteger& ZrVariant::GetInteger() const
{
    return Read(ItemType_integer, &Value::integer);
}

void ZrVariant::SetXmlObject(CXmlObjectBase* value)
{
    Store(ItemType_object, &Value::object, CSmartPtr<CXmlObjectBase>(value));
}

void ZrVariant::AdoptXmlObject(CSmartPtr<CXmlObjectBase> value)
{
    Store(ItemType_object, &Value::object, std::move(value));
}

CSmartPtr<CXmlObjectBase> ZrVariant::TakeXmlObject()
{
    return StorageOf(m_type, m_nil) == StorageClass::Object ? std::move(m_value.object) : CSmartPtr<CXmlObjectBase>();
}

CSmartPtr<CXmlObjectBase> ZrVariant::GetXmlObject() const
{
    return CSmartPtr<CXmlObjectBase>(BorrowXmlObject());
}

CXmlObjectBase* ZrVariant::BorrowXmlObject() const
{
    return StorageOf(m_type, m_nil) == StorageClass::Object ? m_value.object.GetPtr() : nullptr;
}

void ZrVariant::SetXmlCollection(CXmlCollectionBase* value)
{
    Store(ItemType_collection, &Value::collection, CSmartPtr<CXmlCollectionBase>(value));
}

CSmartPtr<CXmlCollectionBase> ZrVariant::GetXmlCollection() const
{
    return CSmartPtr<CXmlCollectionBase>(BorrowXmlCollection());
}

CXmlCollectionBase* ZrVariant::BorrowXmlCollection() const
{
    return StorageOf(m_type, m_nil) == StorageClass::Collection ? m_value.collection.GetPtr() : nullptr;
}

std::wstring ZrVariant::ToString(const wchar_t* format) const
{
    std::wstring text;
    FormatTo(format, text);
    return text;
}

void ZrVariant::FormatTo(const wchar_t* format, std::wstring& text) const
{
    ConvertibleRow(m_nil ? ItemType_none : m_type).format(*this, format ? format : L"", text);
}

void ZrVariant::FromString(const std::wstring& text, ItemType type, CWhitespaceUtils::WhitespaceRule rule)
{
    ConvertibleRow(type).parse(text, rule, *this);
}

const wchar_t* ZrVariant::GetType() const
{
    const ItemTypeRow* row = FindItemType(m_type);
    if (!row) {
        throw CZrException(FormatString(ValueMessages::INVALID_TYPE, static_cast<int>(m_type)));
    }
    return row->name;
}

} // namespace ZrXmlLib16
