// SPDX-License-Identifier: MIT
#ifndef VALUES_INT128_H
#define VALUES_INT128_H

namespace ZrXmlLib16 {

/// Sums of 64-bit duration fields weighed with up to 86,400 need 81 bits.
__extension__ typedef __int128 Int128;
__extension__ typedef unsigned __int128 UInt128;

/// Division that rounds towards minus infinity; the divisor is positive.
template <class Number> constexpr Number FloorDivide(Number dividend, Number divisor)
{
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

} // namespace ZrXmlLib16

#endif
