// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_OCTETREADER_H
#define FASTINFOSET_OCTETREADER_H

#include "fastinfoset/CodecRanges.h"
#include "fastinfoset/FastInfosetReaderMessages.h"

#include <cstddef>
#include <cstdint>

namespace ZrXmlLib16 {

/// Octets inside the input.
struct OctetString {
    const unsigned char* octets;
    unsigned long length;
};

/// @throws CZrException always, with the message as it is.
[[noreturn]] void ThrowFastInfosetFailure(const wchar_t* message);

/// Takes the octets of a Fast Infoset document one after the other and decodes the integers and lengths in them. The
/// input is not owned. Nothing is ever read beyond its end: what is missing there is refused.
///
/// The readers of a code get the octet that it starts in, already fetched; the bits before the starting one are not
/// looked at.
class OctetReader {
public:
    OctetReader(const unsigned char* octets, unsigned long length) noexcept
        : m_position(octets)
        , m_end(octets + length)
    {
    }

    unsigned char Fetch()
    {
        if (m_position == m_end) {
            ThrowFastInfosetFailure(FastInfosetReaderMessages::UNEXPECTED_END);
        }
        return *m_position++;
    }

    /// How much of the input has not been taken yet.
    std::size_t GetRest() const noexcept { return static_cast<std::size_t>(m_end - m_position); }

    /// Integers from 1 to 2^20.
    std::uint64_t ReadIntegerOnBit2(unsigned char first)
    {
        return Decode<INTEGER_ON_BIT_2>(first, FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
    }
    std::uint64_t ReadIntegerOnBit3(unsigned char first)
    {
        return Decode<INTEGER_ON_BIT_3>(first, FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_3);
    }
    std::uint64_t ReadIntegerOnBit4(unsigned char first)
    {
        return Decode<INTEGER_ON_BIT_4>(first, FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_4);
    }
    /// Integers from 0 to 2^20.
    std::uint64_t ReadIntegerOrZeroOnBit2(unsigned char first);

    /// Octet strings that are not empty.
    OctetString ReadStringOnBit2(unsigned char first)
    {
        return Take(Decode<LENGTH_ON_BIT_2>(first, FastInfosetReaderMessages::INVALID_LENGTH_ON_BIT_2));
    }
    OctetString ReadStringOnBit5(unsigned char first)
    {
        return Take(Decode<LENGTH_ON_BIT_5>(first, FastInfosetReaderMessages::INVALID_LENGTH_ON_BIT_5));
    }
    OctetString ReadStringOnBit7(unsigned char first)
    {
        // No pattern of two bits is invalid.
        return Take(Decode<LENGTH_ON_BIT_7>(first, nullptr));
    }

    /// Number of items of a sequence, from 1 to 2^20 (X.891, C.21).
    std::uint64_t ReadSequenceLength();

private:
    // The code is an argument of the template so that its ranges are constants.
    template <const Codec& CODEC> std::uint64_t Decode(unsigned char first, const wchar_t* invalid)
    {
        constexpr const CodecRange& shortest = CODEC.ranges[0];
        if ((first & shortest.patternMask) == shortest.pattern) {
            return shortest.first + (first & ValueMask(shortest));
        }
        constexpr const CodecRange& second = CODEC.ranges[1];
        static_assert(second.octets == 1 && second.last - second.first == (ValueMask(second) << 8 | 0xFF));
        if ((first & second.patternMask) == second.pattern) {
            return second.first + ((first & ValueMask(second)) << 8 | Fetch());
        }
        return DecodeLonger(CODEC, first, invalid);
    }
    static constexpr unsigned ValueMask(const CodecRange& range)
    {
        // The value fills what is right of the pattern.
        return (range.patternMask & (0u - range.patternMask)) - 1;
    }
    /// The third range and those behind it.
    std::uint64_t DecodeLonger(const Codec& codec, unsigned char first, const wchar_t* invalid);

    OctetString Take(std::uint64_t length)
    {
        if (length > GetRest()) {
            ThrowFastInfosetFailure(FastInfosetReaderMessages::UNEXPECTED_END);
        }
        const OctetString taken = {m_position, length};
        m_position += length;
        return taken;
    }

    const unsigned char* m_position;
    const unsigned char* const m_end;
};

} // namespace ZrXmlLib16

#endif
