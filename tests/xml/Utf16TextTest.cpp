// SPDX-License-Identifier: MIT
#include "xml/Utf16Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace ZrXmlLib16;

namespace {

constexpr std::size_t LONGEST = 80;

std::vector<Utf16Unit> Letters(std::size_t length)
{
    std::vector<Utf16Unit> units(length);
    for (std::size_t i = 0; i < length; ++i) {
        units[i] = static_cast<Utf16Unit>(0x0D00 + i); // none is a carriage return, though octets are
    }
    return units;
}

} // namespace

TEST(Utf16Text, CopiesEveryLengthWithoutCarriageReturns)
{
    for (std::size_t length = 0; length <= LONGEST; ++length) {
        const std::vector<Utf16Unit> letters = Letters(length);
        std::vector<Utf16Unit> output(length);
        EXPECT_TRUE(CopyWithoutCR(output.data(), letters.data(), length));
        EXPECT_EQ(letters, output);
        for (std::size_t at = 0; at < length; ++at) {
            SCOPED_TRACE(std::to_string(at) + " of " + std::to_string(length));
            std::vector<Utf16Unit> units = letters;
            units[at] = 13;
            EXPECT_FALSE(CopyWithoutCR(output.data(), units.data(), length));
            const Utf16Unit* const end = CopyExcludingCR(output.data(), units.data(), length);
            units.erase(units.begin() + static_cast<std::ptrdiff_t>(at));
            EXPECT_EQ(units, std::vector<Utf16Unit>(static_cast<const Utf16Unit*>(output.data()), end));
        }
    }
}

TEST(Utf16Text, CopiesShortTextsToTheirEnd)
{
    for (std::size_t length = 0; length <= LONGEST; ++length) {
        SCOPED_TRACE(length);
        std::vector<Utf16Unit> text = Letters(length + UTF16_RUN);
        text[length] = 0;
        text[length + 1] = 13; // behind the end
        std::vector<Utf16Unit> output(LONGEST_SHORT_TEXT + 1);
        const std::size_t copied = CopyShortText(output.data(), text.data());
        if (length > LONGEST_SHORT_TEXT) {
            EXPECT_GT(copied, LONGEST_SHORT_TEXT);
            continue;
        }
        ASSERT_EQ(length, copied);
        EXPECT_TRUE(std::equal(output.begin(), output.begin() + static_cast<std::ptrdiff_t>(length), text.begin()));
        for (std::size_t at = 0; at < length; ++at) {
            std::vector<Utf16Unit> units = text;
            units[at] = 13;
            EXPECT_GT(CopyShortText(output.data(), units.data()), LONGEST_SHORT_TEXT) << at;
        }
    }
}
