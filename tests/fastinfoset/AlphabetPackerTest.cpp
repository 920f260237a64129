// SPDX-License-Identifier: MIT
#include "fastinfoset/AlphabetPacker.h"
#include "fastinfoset/OctetText.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::OctetText;

namespace {

// Characters from U+0041 on, which reaches beyond ASCII.
std::wstring AlphabetOf(std::size_t length)
{
    std::wstring alphabet(length, L'A');
    for (std::size_t i = 0; i < length; ++i) {
        alphabet[i] = static_cast<wchar_t>(L'A' + static_cast<wchar_t>(i));
    }
    return alphabet;
}

std::string Packed(const std::wstring& alphabet, const std::wstring& text)
{
    std::vector<unsigned char> octets{0x55};
    AlphabetPacker(alphabet).Pack(text, octets);
    return OctetText(octets.data(), octets.size());
}

} // namespace

TEST(AlphabetPacker, TakesFourOrEightBits)
{
    for (const std::size_t length : {8U, 9U, 14U, 15U}) {
        const std::wstring alphabet = AlphabetOf(length);
        EXPECT_EQ(Packed(alphabet, L"BCH"), "12 7F") << length;
        EXPECT_EQ(Packed(alphabet, L"AHGD"), "07 63") << length;
    }
    EXPECT_EQ(Packed(AlphabetOf(128), {L'B', L'A', wchar_t{0xC0}}), "01 00 7F");
    EXPECT_EQ(Packed(AlphabetOf(255), {wchar_t{0x13F}, L'B', wchar_t{0x80}}), "FE 01 3F");
    EXPECT_EQ(Packed(L"abcabcabc", L"cba"), "21 0F") << "the first of equal characters counts";
}

TEST(AlphabetPacker, RefusesOtherSizesAndCharacters)
{
    const struct {
        std::size_t length;
        const wchar_t* message;
    } cases[] = {
        {0, Message::ALPHABET_LENGTH_INVALID},
        {1, Message::ALPHABET_LENGTH_INVALID},
        {2, Message::ALPHABET_NOT_PACKABLE},
        {7, Message::ALPHABET_NOT_PACKABLE},
        {16, Message::ALPHABET_NOT_PACKABLE},
        {127, Message::ALPHABET_NOT_PACKABLE},
        {256, Message::ALPHABET_NOT_PACKABLE},
        {1048576, Message::ALPHABET_NOT_PACKABLE},
        {1048577, Message::ALPHABET_LENGTH_INVALID},
    };
    for (const auto& row : cases) {
        const std::wstring alphabet(row.length, L'x');
        EXPECT_EQ(MessageOf<CZrException>([&] { AlphabetPacker packer(alphabet); }), row.message) << row.length;
    }
    for (const wchar_t foreign : {L'@', L'\0', wchar_t{0x7F}, wchar_t{0x80}, wchar_t{0x20AC}, wchar_t{-1}}) {
        EXPECT_EQ(MessageOf<CZrException>([&] {
            Packed(AlphabetOf(15), {L'A', foreign});
        }),
            Message::CHARACTER_NOT_IN_ALPHABET);
    }
}
