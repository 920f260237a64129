// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRVARIANT_H
#define ZRXMLLIB16_ZRVARIANT_H

#include "ZrXmlLib16/BigInteger.h"
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/Decimal.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/WhitespaceUtils.h"

#include <new>
#include <string>

namespace ZrXmlLib16 {

class CXmlObjectBase;
class CXmlCollectionBase;

/// One value of any item type, or nil, or nothing: what properties of generated objects travel in.
///
/// Values are stored inline and copied deeply; objects and collections are shared, the variant holds one reference to
/// each. A setter first clears what is there. A getter does not check the type: asked for another one than the stored,
/// it returns the bits of the storage for scalars, an empty value for classes, and null for objects and collections. A
/// moved-from variant is invalid. One variant belongs to one thread.
class ZRXML_API ZrVariant {
public:
    /// Invalid: type none, not nil.
    ZrVariant()
        : m_nil(false)
        , m_mayBorrow(false)
        , m_isBorrowed(false)
        , m_type(ItemType_none)
    {
    }
    /// Copies the value; shares an object or collection.
    ZrVariant(const ZrVariant& other);
    virtual ~ZrVariant() { Clear(); }
    ZrVariant& operator=(const ZrVariant& other);

    /// True when there is a type or the value is nil.
    bool IsValid() const { return m_nil || m_type != ItemType_none; }
    /// Drops the value; the variant is then invalid.
    void SetInvalid() { Clear(); }
    /// Drops the value and keeps the type.
    void SetNil();
    /// Whether the value is nil.
    bool IsNil() const { return m_nil; }
    /// Drops the value; the variant is then invalid.
    void Clear()
    {
        if (OwnsValue()) {
            DropValue();
        } else {
            m_isBorrowed = false;
            m_nil = false;
            m_type = ItemType_none;
            m_value.ui8 = 0;
        }
    }

    /// @{
    /// Set: clears what is there and stores a value of the type that the name says. Get: the value of that type,
    /// borrowed when it is a class.
    void SetHexBinary(const CBinaryData& value);
    const CBinaryData& GetHexBinary() const;
    void SetBase64Binary(const CBinaryData& value);
    const CBinaryData& GetBase64Binary() const;
    void SetI1(char value) { Restart(ItemType_i1).i1 = value; }
    char GetI1() const { return m_value.i1; }
    void SetI2(short value) { Restart(ItemType_i2).i2 = value; }
    short GetI2() const { return m_value.i2; }
    void SetI4(long value) { Restart(ItemType_i4).i4 = value; }
    long GetI4() const { return m_value.i4; }
    void SetI8(long long value) { Restart(ItemType_i8).i8 = value; }
    long long GetI8() const { return m_value.i8; }
    void SetUI1(unsigned char value) { Restart(ItemType_ui1).ui1 = value; }
    unsigned char GetUI1() const { return m_value.ui1; }
    void SetUI2(unsigned short value) { Restart(ItemType_ui2).ui2 = value; }
    unsigned short GetUI2() const { return m_value.ui2; }
    void SetUI4(unsigned long value) { Restart(ItemType_ui4).ui4 = value; }
    unsigned long GetUI4() const { return m_value.ui4; }
    void SetUI8(unsigned long long value) { Restart(ItemType_ui8).ui8 = value; }
    unsigned long long GetUI8() const { return m_value.ui8; }
    void SetR4(float value) { Restart(ItemType_r4).r4 = value; }
    float GetR4() const { return m_value.r4; }
    void SetR8(double value) { Restart(ItemType_r8).r8 = value; }
    double GetR8() const { return m_value.r8; }
    void SetDuration(const CDateTimeSpan& value);
    const CDateTimeSpan& GetDuration() const;
    void SetYearMonth(const CDateTime& value);
    const CDateTime& GetYearMonth() const;
    void SetMonthDay(const CDateTime& value);
    const CDateTime& GetMonthDay() const;
    void SetYear(unsigned short value) { Restart(ItemType_year).ui2 = value; }
    unsigned short GetYear() const { return m_value.ui2; }
    void SetMonth(unsigned char value) { Restart(ItemType_month).ui1 = value; }
    unsigned char GetMonth() const { return m_value.ui1; }
    void SetDay(unsigned char value) { Restart(ItemType_day).ui1 = value; }
    unsigned char GetDay() const { return m_value.ui1; }
    void SetDate(const CDateTime& value);
    const CDateTime& GetDate() const;
    void SetDateTime(const CDateTime& value);
    const CDateTime& GetDateTime() const;
    void SetTime(const CDateTime& value);
    const CDateTime& GetTime() const;
    void SetChar(wchar_t value) { Restart(ItemType_char).character = value; }
    wchar_t GetChar() const { return m_value.character; }
    /// @}
    /// Stores a string, which may be moved in.
    void SetString(std::wstring value);
    /// Copies a text into the storage of the string that is already there, if there is one.
    /// @param text not null; may lie in the variant's own string.
    void SetString(const wchar_t* text, unsigned long length);
    /// The same for a string that stays as it is while the variant is in use. A variant that the library reads at once
    /// refers to it; any other one copies it.
    void LendString(const std::wstring& value);
    /// The string, borrowed until the next change.
    const std::wstring& GetString() const;
    /// Moves the string out, which a setter may do with the value it is given; empty when the value is none. The
    /// variant stays a string, of unspecified text.
    std::wstring TakeString();
    /// @{
    /// As the setters and getters above.
    void SetBoolean(bool value) { Restart(ItemType_boolean).boolean = value; }
    bool GetBoolean() const { return m_value.ui1 != 0; }
    void SetDecimal(const CDecimal& value);
    const CDecimal& GetDecimal() const;
    void SetInteger(const CBigInteger& value);
    const CBigInteger& GetInteger() const;
    /// @}
    /// Takes a reference to the object. @param value may be null.
    void SetXmlObject(CXmlObjectBase* value);
    /// The same, with the reference that the caller has.
    void AdoptXmlObject(CSmartPtr<CXmlObjectBase> value);
    /// The object with a new reference; null when the value is none.
    CSmartPtr<CXmlObjectBase> GetXmlObject() const;
    /// Moves the reference out, so that the variant holds null afterwards; null when the value is no object.
    CSmartPtr<CXmlObjectBase> TakeXmlObject();
    /// Takes a reference to the collection. @param value may be null.
    void SetXmlCollection(CXmlCollectionBase* value);
    /// The collection with a new reference; null when the value is none.
    CSmartPtr<CXmlCollectionBase> GetXmlCollection() const;

    /// The text form of the value.
    /// @param format for r4, r8 and decimal; null or empty gives the default.
    /// @throws CZrException when the type has no text form, and for nil.
    std::wstring ToString(const wchar_t* format) const;
    /// Replaces the text by what ToString returns, reusing its storage.
    void FormatTo(const wchar_t* format, std::wstring& text) const;
    /// Parses a text and stores the value; on failure the old value stays.
    /// @throws CZrException when the type has no text form, CZrInvalidValueException when the text is not one of the
    /// type.
    void FromString(const std::wstring& text, ItemType type, CWhitespaceUtils::WhitespaceRule rule);
    /// The name of the type. @throws CZrException when it has none.
    const wchar_t* GetType() const;

    /// Type of the value, also of nil; ItemType_none when invalid.
    ItemType GetItemType() const { return m_type; }
    /// The object without a new reference, valid as long as the variant keeps it; null when the value is none.
    CXmlObjectBase* BorrowXmlObject() const;
    /// The collection without a new reference, valid as long as the variant keeps it; null when the value is none.
    CXmlCollectionBase* BorrowXmlCollection() const;
    /// Takes the value over; the other variant is then invalid.
    ZrVariant(ZrVariant&& other) noexcept;
    ZrVariant& operator=(ZrVariant&& other) noexcept;

protected:
    struct Borrowing { };
    /// Invalid; refers to the string that it is lent.
    explicit ZrVariant(Borrowing)
        : ZrVariant()
    {
        m_mayBorrow = true;
    }

private:
    /// Scalars of all sizes share the first eight bytes; the class members are constructed and destroyed by the
    /// variant.
    union Value {
        Value() noexcept
            : ui8(0)
        {
        }
        ~Value() { }

        unsigned long long ui8;
        long long i8;
        unsigned long ui4;
        long i4;
        unsigned short ui2;
        short i2;
        unsigned char ui1;
        char i1;
        float r4;
        double r8;
        wchar_t character;
        bool boolean;
        CBinaryData binary;
        CDateTimeSpan duration;
        CDateTime dateTime;
        std::wstring string;
        const std::wstring* borrowed; // when m_isBorrowed
        CDecimal decimal;
        CBigInteger integer;
        CSmartPtr<CXmlObjectBase> object;
        CSmartPtr<CXmlCollectionBase> collection;
    };

    /// Clears and sets the type; the value is zero.
    friend class PlainValue;

    /// Whether the value has a destructor that does something: that of a date, time or duration does not.
    bool OwnsValue() const
    {
        constexpr unsigned long OWNING_TYPES = 1UL << ItemType_hexBinary | 1UL << ItemType_base64Binary
            | 1UL << ItemType_string | 1UL << ItemType_decimal | 1UL << ItemType_integer | 1UL << ItemType_object
            | 1UL << ItemType_collection;
        return (OWNING_TYPES >> m_type & 1) != 0 && !m_isBorrowed && !m_nil;
    }
    Value& Restart(ItemType type)
    {
        Clear();
        m_type = type;
        return m_value;
    }
    void DropValue();
    void Borrow(const std::wstring& value) noexcept;
    void CopyFrom(const ZrVariant& other);
    void MoveFrom(ZrVariant& other) noexcept;
    /// This variant is invalid before.
    template <class T, class... Arguments> T& Begin(ItemType type, T Value::*member, const Arguments&... arguments)
    {
        T* const value = new (&(m_value.*member)) T(arguments...);
        m_type = type;
        return *value;
    }
    template <class T> void Store(ItemType type, T Value::*member, T value);
    template <class T> const T& Read(ItemType type, T Value::*member) const;

    bool m_nil;
    bool m_mayBorrow;
    bool m_isBorrowed; // the type is string, and the value is somebody else's
    ItemType m_type;
    Value m_value;
};

} // namespace ZrXmlLib16

#endif
