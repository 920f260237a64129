// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_CODECWRITER_H
#define FASTINFOSET_CODECWRITER_H

#include "ZrXmlLib16/ZrException.h"
#include "fastinfoset/CodecRanges.h"
#include "fastinfoset/FastInfosetMessages.h"

namespace ZrXmlLib16 {

constexpr unsigned long MAXIMUM_CODE_OCTETS = 5;

/// Where integers from 0 to 2^20 start on the second bit, this is 0 (X.891, C.26).
constexpr unsigned int ZERO_ON_BIT_2 = 0x7F;

/// What a writer subtracts from the values of a range.
inline std::uint64_t WriterBase(const CodecRange& range)
{
    // Only the last range of the third bit begins there.
    return range.first == WRITER_BASE_OF_LAST_RANGE_ON_BIT_3 + 1 ? WRITER_BASE_OF_LAST_RANGE_ON_BIT_3 : range.first;
}

/// Writes an integer or a length.
/// @param value at least 1.
/// @param leadingBits the bits in front of the code, in the same octet.
/// @param out room for MAXIMUM_CODE_OCTETS.
/// @return the number of octets written.
/// @throws CZrException for a value above the last range.
inline unsigned long WriteCode(const Codec& codec, std::uint64_t value, unsigned int leadingBits, unsigned char* out)
{
    for (std::size_t i = 0; i < codec.count; ++i) {
        const CodecRange& range = codec.ranges[i];
        if (value > range.last) {
            continue;
        }
        const std::uint64_t rest = value - WriterBase(range);
        unsigned int shift = 8U * range.octets;
        out[0] = static_cast<unsigned char>(leadingBits | range.pattern | rest >> shift);
        for (unsigned long octet = 1; octet <= range.octets; ++octet) {
            shift -= 8;
            out[octet] = static_cast<unsigned char>(rest >> shift);
        }
        return 1UL + range.octets;
    }
    throw CZrException(Message::VALUE_TOO_LONG);
}

} // namespace ZrXmlLib16

#endif
