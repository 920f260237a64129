// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_CONVERSIONS_H
#define ZRXMLLIB16_CONVERSIONS_H

#include "ZrXmlLib16/BigInteger.h"
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/Decimal.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/WhitespaceUtils.h"

#include <string>

namespace ZrXmlLib16 {

/// The lexical forms of the primitive item types (XML Schema Datatypes, chapter 3). Independent of any locale.
/// Stateless.
///
/// The ...FromString operations apply the whitespace rule first and throw CZrInvalidValueException for text they cannot
/// convert; the rule is all the trimming there is. A number that is no rule throws CZrException.
class ZRXML_API CConversions {
public:
    /// @{
    /// Decimal digits with the C library's latitude: leading blanks and a sign are accepted. i4 and ui4 have 64 bits.
    static signed char i1FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static short i2FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static long i4FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static long long i8FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @}
    /// @{
    /// The same; a minus sign is accepted by the unsigned forms too and wraps at 64 bits.
    static unsigned char ui1FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static unsigned short ui2FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static unsigned long ui4FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static unsigned long long ui8FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @}

    /// @{
    /// Decimal or hexadecimal floating point, "NaN" (also "1.#QNAN" and "-NAN"), "INF" and "-INF". Text beyond the
    /// range gives an infinity.
    static float r4FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static double r8FromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @}
    /// true, false (in either case), 1 or 0.
    static bool booleanFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// Exactly one wide character.
    static wchar_t charFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// The text after the whitespace rule.
    static std::wstring stringFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// See CDecimal::Parse.
    static CDecimal decimalFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// See CBigInteger::Parse.
    static CBigInteger integerFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// See CBinaryData::SetAsHexString.
    static CBinaryData hexBinaryFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// See CBinaryData::SetAsBase64, which skips what is no base64 character.
    static CBinaryData base64BinaryFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// See CDateTimeSpan::ParseXSDDuration.
    static CDateTimeSpan durationFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @{
    /// See CDateTime for the accepted forms; the result has the kind of the operation's name.
    static CDateTime dateFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static CDateTime datetimeFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static CDateTime timeFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static CDateTime yearMonthFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static CDateTime monthDayFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @}
    /// @{
    /// A gYear from 0 to 65535, a gMonth (1 to 12), a gDay (1 to 31). A time zone is accepted and lost.
    static unsigned short yearFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static unsigned char monthFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    static unsigned char dayFromString(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule);
    /// @}

    /// @{
    /// Decimal digits, behind a minus sign when negative.
    static std::wstring i1ToString(signed char value);
    static std::wstring i2ToString(short value);
    static std::wstring i4ToString(long value);
    static std::wstring i8ToString(long long value);
    static std::wstring ui1ToString(unsigned char value);
    static std::wstring ui2ToString(unsigned short value);
    static std::wstring ui4ToString(unsigned long value);
    static std::wstring ui8ToString(unsigned long long value);
    /// @}
    /// "NaN", "INF", "-INF" or the number with seven (r4) or sixteen (r8) significant digits, which do not always read
    /// back as the same value.
    static std::wstring r4ToString(float value);
    /// @param format printf conversion of a double (one of aAeEfFgG with flags, width and precision of at most three
    /// digits) with literal text around it; null and empty mean the default. Not used for NaN and infinities.
    /// @throws CZrInvalidParamException for any other format.
    static std::wstring r4ToString(float value, const wchar_t* format);
    /// As r4ToString.
    static std::wstring r8ToString(double value);
    static std::wstring r8ToString(double value, const wchar_t* format);
    /// "true" or "false".
    static std::wstring booleanToString(bool value);
    /// The character.
    static std::wstring charToString(wchar_t value);
    /// The value itself.
    static std::wstring stringToString(const std::wstring& value);
    /// See CDecimal::ToString().
    static std::wstring decimalToString(const CDecimal& value);
    /// @param format see CDecimal::ToString(const wchar_t*).
    static std::wstring decimalToString(const CDecimal& value, const wchar_t* format);
    /// See CBigInteger::ToString().
    static std::wstring integerToString(const CBigInteger& value);
    /// See CBinaryData::GetAsHexString().
    static std::wstring hexBinaryToString(const CBinaryData& value);
    /// See CBinaryData::GetAsBase64().
    static std::wstring base64BinaryToString(const CBinaryData& value);
    /// See CDateTimeSpan::ToString().
    static std::wstring durationToString(const CDateTimeSpan& value);
    /// @{
    /// The value's own kind decides the form of the five date texts; they are one operation.
    static std::wstring dateToString(const CDateTime& value);
    static std::wstring datetimeToString(const CDateTime& value);
    static std::wstring timeToString(const CDateTime& value);
    static std::wstring yearMonthToString(const CDateTime& value);
    static std::wstring monthDayToString(const CDateTime& value);
    /// @}
    /// @{
    /// Without leading zeros and time zone: 476, --07, ---05.
    static std::wstring yearToString(unsigned short value);
    static std::wstring monthToString(unsigned char value);
    static std::wstring dayToString(unsigned char value);
    /// @}
};

} // namespace ZrXmlLib16

#endif
