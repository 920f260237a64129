// SPDX-License-Identifier: MIT
#include "fastinfoset/CodecWriter.h"
#include "support/TestText.h"

#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

using Octets = std::vector<unsigned char>;

// A first octet and the low octets of a number behind it.
Octets Layout(unsigned int first, std::uint64_t number, int octets)
{
    Octets result{static_cast<unsigned char>(first)};
    for (int i = octets - 1; i >= 0; --i) {
        result.push_back(static_cast<unsigned char>(number >> 8 * i));
    }
    return result;
}

unsigned int Bits(std::uint64_t number, int shift)
{
    return static_cast<unsigned int>(number >> shift);
}

Octets IntegerOnBit2(std::uint64_t value)
{
    if (value == 0) {
        return {0x7F};
    }
    if (value <= 64) {
        return Layout(Bits(value - 1, 0), 0, 0);
    }
    if (value <= 8256) {
        return Layout(0x40 | Bits(value - 65, 8), value - 65, 1);
    }
    return Layout(0x60 | Bits(value - 8257, 16), value - 8257, 2);
}

Octets IntegerOnBit3(std::uint64_t value)
{
    if (value <= 32) {
        return Layout(Bits(value - 1, 0), 0, 0);
    }
    if (value <= 2080) {
        return Layout(0x20 | Bits(value - 33, 8), value - 33, 1);
    }
    if (value <= 526368) {
        return Layout(0x28 | Bits(value - 2081, 16), value - 2081, 2);
    }
    return Layout(0x30, value - 526368, 3);
}

Octets IntegerOnBit4(std::uint64_t value)
{
    if (value <= 16) {
        return Layout(Bits(value - 1, 0), 0, 0);
    }
    if (value <= 1040) {
        return Layout(0x10 | Bits(value - 17, 8), value - 17, 1);
    }
    if (value <= 263184) {
        return Layout(0x14 | Bits(value - 1041, 16), value - 1041, 2);
    }
    return Layout(0x18, value - 263185, 3);
}

Octets Length(std::uint64_t value, std::uint64_t lastShort, unsigned int oneOctet, unsigned int fourOctets)
{
    if (value <= lastShort) {
        return Layout(Bits(value - 1, 0), 0, 0);
    }
    const std::uint64_t lastMiddle = lastShort + 256;
    if (value <= lastMiddle) {
        return Layout(oneOctet, value - lastShort - 1, 1);
    }
    return Layout(fourOctets, value - lastMiddle - 1, 4);
}

Octets Written(const Codec& codec, std::uint64_t value, unsigned int leadingBits)
{
    unsigned char out[MAXIMUM_CODE_OCTETS];
    const unsigned long n = WriteCode(codec, value, leadingBits, out);
    return Octets(out, out + n);
}

} // namespace

TEST(CodecWriter, WritesEveryInteger)
{
    const struct {
        const char* name;
        const Codec& codec;
        Octets (*expected)(std::uint64_t);
        unsigned char leadingBits;
    } cases[] = {
        {"bit 2", INTEGER_ON_BIT_2, IntegerOnBit2, 0x80},
        {"bit 3", INTEGER_ON_BIT_3, IntegerOnBit3, 0x40},
        {"bit 4", INTEGER_ON_BIT_4, IntegerOnBit4, 0xA0},
    };
    for (const auto& row : cases) {
        for (std::uint64_t value = 1; value <= MAXIMUM_INDEX; ++value) {
            Octets expected = row.expected(value);
            expected[0] = static_cast<unsigned char>(expected[0] | row.leadingBits);
            const Octets written = Written(row.codec, value, row.leadingBits);
            ASSERT_EQ(written, expected) << row.name << ' ' << value;
        }
    }
    EXPECT_EQ(IntegerOnBit2(0), Octets{ZERO_ON_BIT_2});
}

TEST(CodecWriter, WritesLengths)
{
    const struct {
        const char* name;
        const Codec& codec;
        std::uint64_t lastShort;
        unsigned char oneOctet;
        unsigned char fourOctets;
        unsigned char leadingBits;
    } cases[] = {
        {"bit 2", LENGTH_ON_BIT_2, 64, 0x40, 0x60, 0x80},
        {"bit 5", LENGTH_ON_BIT_5, 8, 0x08, 0x0C, 0x70},
        {"bit 7", LENGTH_ON_BIT_7, 2, 0x02, 0x03, 0x9C},
    };
    for (const auto& row : cases) {
        const std::uint64_t longest = row.lastShort + 257 + 0xFFFFFFFF;
        std::vector<std::uint64_t> lengths{65535, 65536, 0xFFFFFFFF, 0x100000000, longest - 1, longest};
        for (std::uint64_t length = 1; length <= 1000; ++length) {
            lengths.push_back(length);
        }
        for (const std::uint64_t length : lengths) {
            Octets expected = Length(length, row.lastShort, row.oneOctet, row.fourOctets);
            expected[0] = static_cast<unsigned char>(expected[0] | row.leadingBits);
            EXPECT_EQ(Written(row.codec, length, row.leadingBits), expected) << row.name << ' ' << length;
        }
        EXPECT_EQ(MessageOf<CZrException>([&] { Written(row.codec, longest + 1, 0); }),
            L"Failed to write FastInfoset. Value too long.");
    }
}

TEST(CodecWriter, keeps_LastRangeOfBit3OneTooHigh)
{
    EXPECT_EQ(Written(INTEGER_ON_BIT_3, 526368, 0), (Octets{0x2F, 0xFF, 0xFF}));
    EXPECT_EQ(Written(INTEGER_ON_BIT_3, 526369, 0), (Octets{0x30, 0x00, 0x00, 0x01}));
    EXPECT_EQ(Written(INTEGER_ON_BIT_3, 1048576, 0), (Octets{0x30, 0x07, 0xF7, 0xE0}));
}
