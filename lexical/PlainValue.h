// SPDX-License-Identifier: MIT
#ifndef LEXICAL_PLAINVALUE_H
#define LEXICAL_PLAINVALUE_H

#include "ZrXmlLib16/ZrVariant.h"

#include <cstddef>

namespace ZrXmlLib16 {

/// Values in the plain form in which nearly all of them are written: short, without white space and needless signs.
/// Everything else, and everything that is wrong, is left to the conversions; these give the same values for what is
/// read here.
class PlainValue {
public:
    /// Octets behind the units that are read, though they mean nothing.
    static constexpr std::size_t OVERREAD = 16;

    /// @param value invalid before.
    /// @return false when the text is not plain; the variant is then invalid.
    static bool Read(const unsigned short* units, std::size_t length, ItemType type, ZrVariant& value);
    /// Stores the text as it is.
    /// @param value invalid before.
    static void ReadString(const unsigned short* units, std::size_t length, ZrVariant& value);

private:
    [[gnu::noinline]] static void ReadLongString(const unsigned short* units, std::size_t length, ZrVariant& value);
    template <class T, class Stored> static bool ReadInteger(const unsigned short* units, std::size_t length,
        ItemType type, Stored ZrVariant::Value::*member, ZrVariant& value);
    static bool ReadReal(const unsigned short* units, std::size_t length, ZrVariant& value);
    static bool ReadBoolean(const unsigned short* units, std::size_t length, ZrVariant& value);
    static bool ReadDecimal(const unsigned short* units, std::size_t length, ZrVariant& value);
    static bool ReadDateTime(
        const unsigned short* units, std::size_t length, ItemType type, int dateType, ZrVariant& value);
};

} // namespace ZrXmlLib16

#endif
