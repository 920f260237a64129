// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_CODECRANGES_H
#define FASTINFOSET_CODECRANGES_H

#include <cstddef>
#include <cstdint>

namespace ZrXmlLib16 {

/// One range of the integers or lengths of Fast Infoset: the first octet begins with a pattern, and the value minus the
/// lowest of the range fills the rest of that octet and the octets that follow, most significant first.
struct CodecRange {
    std::uint64_t first;
    std::uint64_t last;
    unsigned char pattern;
    /// The bits of the first octet that tell the range.
    unsigned char patternMask;
    /// How many of the octets that follow hold the value.
    unsigned char octets;
};

/// The ranges of a code that starts on a certain bit of an octet, by ascending value. Shared by writer and reader.
struct Codec {
    static constexpr std::size_t MAXIMUM_RANGES = 4;

    CodecRange ranges[MAXIMUM_RANGES];
    std::size_t count;
};

constexpr std::uint64_t MAXIMUM_INDEX = 1048576;
constexpr std::uint64_t MAXIMUM_FOUR_OCTETS = 0xFFFFFFFF;

/// Integers from 1 to 2^20 that start on the second bit (X.891, C.25). On this bit 0 is 0x7F where it is allowed
/// (C.26).
constexpr Codec INTEGER_ON_BIT_2 = {{
                                        {1, 64, 0x00, 0x40, 0},
                                        {65, 8256, 0x40, 0x60, 1},
                                        {8257, MAXIMUM_INDEX, 0x60, 0x70, 2},
                                    },
    3};
/// On the third bit (C.27).
constexpr Codec INTEGER_ON_BIT_3 = {{
                                        {1, 32, 0x00, 0x20, 0},
                                        {33, 2080, 0x20, 0x38, 1},
                                        {2081, 526368, 0x28, 0x38, 2},
                                        {526369, MAXIMUM_INDEX, 0x30, 0x3C, 3},
                                    },
    4};
/// On the fourth bit (C.28).
constexpr Codec INTEGER_ON_BIT_4 = {{
                                        {1, 16, 0x00, 0x10, 0},
                                        {17, 1040, 0x10, 0x1C, 1},
                                        {1041, 263184, 0x14, 0x1C, 2},
                                        {263185, MAXIMUM_INDEX, 0x18, 0x1C, 3},
                                    },
    4};
/// Lengths of octet strings that are not empty, on the second bit (C.22).
constexpr Codec LENGTH_ON_BIT_2 = {{
                                       {1, 64, 0x00, 0x40, 0},
                                       {65, 320, 0x40, 0x7F, 1},
                                       {321, 321 + MAXIMUM_FOUR_OCTETS, 0x60, 0x7F, 4},
                                   },
    3};
/// On the fifth bit (C.23).
constexpr Codec LENGTH_ON_BIT_5 = {{
                                       {1, 8, 0x00, 0x08, 0},
                                       {9, 264, 0x08, 0x0F, 1},
                                       {265, 265 + MAXIMUM_FOUR_OCTETS, 0x0C, 0x0F, 4},
                                   },
    3};
/// On the seventh bit (C.24).
constexpr Codec LENGTH_ON_BIT_7 = {{
                                       {1, 2, 0x00, 0x02, 0},
                                       {3, 258, 0x02, 0x03, 1},
                                       {259, 259 + MAXIMUM_FOUR_OCTETS, 0x03, 0x03, 4},
                                   },
    3};

/// kept: required behaviour. Writers subtract one less than the first value in the last range of the third bit, so
/// that readers find such an index one too high.
constexpr std::uint64_t WRITER_BASE_OF_LAST_RANGE_ON_BIT_3 = 526368;

} // namespace ZrXmlLib16

#endif
