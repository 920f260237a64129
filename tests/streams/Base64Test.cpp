// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Base64.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using ZrXmlLib16::CBase64;

namespace {

std::wstring Encode(std::string octets)
{
    return CBase64::Encode(reinterpret_cast<unsigned char*>(&octets[0]), static_cast<int>(octets.size()));
}

std::string Decode(const std::wstring& text)
{
    std::vector<unsigned char> out(text.size() + 1, 0xEE);
    const int length = CBase64::Decode(text.c_str(), out.data());
    for (std::size_t i = static_cast<std::size_t>(length); !text.empty() && i < out.size(); ++i)
        EXPECT_EQ(0, out[i]) << "the output was not cleared at " << i;
    return std::string(out.begin(), out.begin() + length);
}

} // namespace

TEST(Base64, EncodesTheStandardVectors)
{
    const std::pair<const char*, const wchar_t*> cases[] = {{"", L""}, {"f", L"Zg=="}, {"fo", L"Zm8="},
        {"foo", L"Zm9v"}, {"foobar", L"Zm9vYmFy"}, {"\xFB\xFF\xBE", L"+/++"}, {"\xFF\xFF\xFF", L"////"}};
    for (const auto& [octets, text] : cases)
        EXPECT_EQ(text, Encode(octets));
    unsigned char octet = 1;
    EXPECT_EQ(L"", CBase64::Encode(nullptr, 3) + CBase64::Encode(&octet, -1));
}

TEST(Base64, RoundTripsEveryLength)
{
    std::string octets;
    for (std::size_t length = 0; length <= 200; ++length) {
        const std::wstring text = Encode(octets);
        ASSERT_EQ((length + 2) / 3 * 4, text.size());
        ASSERT_EQ(octets, Decode(text));
        octets.push_back(static_cast<char>(length * 89 + length / 3));
    }
}

TEST(Base64, ClassifiesEveryCharacterByItsLowSevenBits)
{
    const std::wstring alphabet = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (int character = 1; character < 0x300; ++character) {
        SCOPED_TRACE(character);
        const wchar_t low = static_cast<wchar_t>(character & 0x7F);
        const std::size_t value = low == 0 ? std::wstring::npos : alphabet.find(low);
        const std::wstring text(1, static_cast<wchar_t>(character));
        // Inside a text the character counts with its value or not at all.
        const std::wstring plain = value == std::wstring::npos ? L"" : std::wstring(1, alphabet[value]);
        EXPECT_EQ(Decode(L"Zm9" + plain + L"YmFy"), Decode(L"Zm9" + text + L"YmFy"));
        // At the beginning it must be valid or skippable.
        const bool isSkipped = low == L'=' || low == L' ' || low == L'\t' || low == L'\r';
        const bool decodes = isSkipped || value != std::wstring::npos;
        EXPECT_EQ(decodes ? Decode(plain + L"Zm9v") : "", Decode(text + L"Zm9v"));
    }
}

TEST(Base64, SkipsWhatDoesNotBelongAndDropsLeftOverBits)
{
    // Padding does not end a group.
    const std::pair<const wchar_t*, const char*> cases[] = {{L"Z m\t9\rv\r\nY-m_F*y", "foobar"}, {L"=Zm9v", "foo"},
        {L"Zg==Zm9v", "f\x06\x66\xF6"}, {L"Z", ""}, {L"Zm", "f"}, {L"Zm8", "fo"}, {L"Zm9v=", "foo"}, {L"====", ""}};
    for (const auto& [text, octets] : cases)
        EXPECT_EQ(octets, Decode(text)) << text;
    unsigned char out[8] = {};
    EXPECT_EQ(0, CBase64::Decode(nullptr, out));
    EXPECT_EQ(0, CBase64::Decode(L"Zm9v", nullptr));
}

TEST(Base64, keeps_DecodingToNothingAfterAnInvalidFirstCharacter)
{
    for (const wchar_t* text : {L"\nZm9v", L"-Zm9v", L"\u00AAZm9v"})
        EXPECT_EQ("", Decode(text));
}
