// SPDX-License-Identifier: MIT
#include "fastinfoset/OctetReader.h"

#include "ZrXmlLib16/ZrException.h"

namespace ZrXmlLib16 {

void ThrowFastInfosetFailure(const wchar_t* message)
{
    throw CZrException(message);
}

std::uint64_t OctetReader::DecodeLonger(const Codec& codec, unsigned char first, const wchar_t* invalid)
{
    for (std::size_t i = 2; i < codec.count; ++i) {
        const CodecRange& range = codec.ranges[i];
        if ((first & range.patternMask) == range.pattern) {
            std::uint64_t offset = first & ValueMask(range);
            for (unsigned octet = 0; octet < range.octets; ++octet) {
                offset = offset << 8 | Fetch();
            }
            if (offset > range.last - range.first) {
                break;
            }
            return range.first + offset;
        }
    }
    ThrowFastInfosetFailure(invalid);
}

std::uint64_t OctetReader::ReadIntegerOrZeroOnBit2(unsigned char first)
{
    constexpr unsigned char ZERO = 0x7F;
    if ((first & ZERO) == ZERO) {
        return 0;
    }
    return Decode<INTEGER_ON_BIT_2>(first, FastInfosetReaderMessages::INVALID_INTEGER_OR_ZERO_ON_BIT_2);
}

std::uint64_t OctetReader::ReadSequenceLength()
{
    constexpr std::uint64_t FIRST_LONG_LENGTH = 129;
    const std::uint64_t first = Fetch();
    if (first < 0x80) {
        return first + 1;
    }
    const std::uint64_t second = Fetch();
    return ((first & 0x0F) << 16 | second << 8 | Fetch()) + FIRST_LONG_LENGTH;
}

} // namespace ZrXmlLib16
