// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace ZrXmlLib16;

namespace {

std::wstring Pattern(std::size_t length)
{
    std::wstring text;
    for (std::size_t i = 0; i < length; ++i)
        text.push_back(static_cast<wchar_t>(L'!' + i % 90));
    return text;
}

std::string Encoded(CTextStream& stream)
{
    const CBinaryData data = stream.GetEncodedStream();
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

} // namespace

TEST(StringBuffer, EveryWayOfAppendingCrossesBlockBorders)
{
    for (const unsigned long length : {0ul, 1ul, 4094ul, 4095ul, 4096ul, 4097ul, 8190ul, 8191ul, 20000ul}) {
        SCOPED_TRACE(length);
        const std::wstring text = Pattern(length);
        CStringBuffer buffers[4];
        for (const wchar_t character : text)
            buffers[0].Append(character);
        buffers[1].Append(text.c_str());
        buffers[2].Append(text);
        for (unsigned long at = 0; at < length; at += 777)
            buffers[3].Append(text.data() + at, std::min(777ul, length - at));
        for (CStringBuffer& buffer : buffers) {
            EXPECT_EQ(length, buffer.GetLength());
            EXPECT_EQ(text, buffer.GetText());
            buffer.Append(L'+');
            buffer.Append(text);
            EXPECT_EQ(text + L'+' + text, buffer.GetText());
        }
    }
}

TEST(StringBuffer, BlocksHoldTheConfiguredNumberOfCharacters)
{
    const std::pair<unsigned long, std::size_t> sizes[] = {{4096, 4095}, {0, 1}, {1, 1}, {2, 1}, {100, 99}};
    for (const auto& [configured, blockSize] : sizes) {
        SCOPED_TRACE(configured);
        CStringBuffer buffer(configured);
        buffer.Append(Pattern(blockSize));
        const wchar_t* const first = buffer.GetText();
        buffer.Append(L'x'); // begins a second block, so the text is joined
        EXPECT_NE(first, buffer.GetText());
        EXPECT_EQ(Pattern(blockSize) + L'x', buffer.GetText());
    }
}

TEST(StringBuffer, EmptyKeepsASingleBlock)
{
    CStringBuffer buffer;
    buffer.Append(L"first");
    const wchar_t* const block = buffer.GetText();
    buffer.Empty();
    const std::wstring taker(4095, L'?'); // would get the memory of a freed block
    EXPECT_STREQ(L"", buffer.GetText());
    buffer.Append(L"2");
    EXPECT_EQ(block, buffer.GetText());
    buffer.Append(Pattern(5000));
    buffer.Empty();
    buffer.Append(L"again");
    EXPECT_STREQ(L"again", buffer.GetText());
    buffer.Clear();
    EXPECT_EQ(0u, buffer.GetLength());
}

TEST(StringBuffer, TakesItsOwnText)
{
    for (const std::size_t length : {10u, 3000u, 4095u, 9000u}) {
        CStringBuffer buffer;
        const std::wstring text = Pattern(length);
        buffer.SetText(text.c_str());
        buffer.Append(buffer.GetText());
        buffer.Append(buffer.GetText() + 1, length);
        EXPECT_EQ(text + text + (text + text).substr(1, length), buffer.GetText());
        buffer.SetText(buffer.GetText() + length);
        EXPECT_EQ(text + (text + text).substr(1, length), buffer.GetText());
        buffer.SetText(nullptr);
        buffer.Append(static_cast<const wchar_t*>(nullptr));
        buffer.Append(nullptr, 0);
        EXPECT_STREQ(L"", buffer.GetText());
    }
}

TEST(TextStream, KeepsItsTextUntilItIsOpenedAgain)
{
    CTextStream stream(Encoding_UTF8);
    stream.Append(std::wstring(L"abc"));
    stream.Append(L"def", 2);
    stream.Flush();
    stream.Close();
    EXPECT_EQ("abcde", Encoded(stream));
    stream.Open();
    EXPECT_EQ("", Encoded(stream));
}

TEST(TextStream, Utf8IsTheSameWhateverLiesAtTheBlockBorder)
{
    const std::wstring middles[] = {L"\xD83D\xDE00", L"\xD83D", L"\xDE00", L"\xD83D\xD83D\xDE00", L"\u20AC", L"ab"};
    for (std::size_t position = 4088; position <= 4097; ++position) {
        for (const std::wstring& middle : middles) {
            for (const std::size_t tail : {0u, 1u, 30u, 4100u}) {
                const std::wstring text = Pattern(position) + middle + Pattern(tail);
                CTextStream stream(Encoding_UTF8);
                stream.Append(text);
                ASSERT_EQ(CEncoder::UnicodeToUtf8(text), Encoded(stream)) << position << ' ' << tail;
            }
        }
    }
}

TEST(TextStream, WideEncodingCopiesTheStorage)
{
    const std::wstring text = Pattern(5000) + L"\xD83D\xDE00";
    CTextStream stream(Encoding_Wide);
    stream.Append(text);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)), Encoded(stream));
}

TEST(TextStream, keeps_WideningTheFirstQuarterOfTheStorageAsUtf16)
{
    CTextStream stream(Encoding_UTF16);
    EXPECT_EQ("", Encoded(stream));
    stream.Append(L"AB");
    EXPECT_EQ(std::string("A\0\0\0", 4), Encoded(stream));
    stream.Append(Pattern(5000));
    const std::string encoded = Encoded(stream);
    ASSERT_EQ(2u * 5002u, encoded.size());
    // The fourth character's octets are units 8 to 11 although the text went over a block border.
    EXPECT_EQ(std::string("A\0\0\0\0\0\0\0B\0\0\0\0\0\0\0!\0\0\0", 20), encoded.substr(0, 20));
}

TEST(TextStream, UnknownEncodingsAreRefused)
{
    for (const int encoding : {0, 4, -1}) {
        CTextStream stream(static_cast<XmlEncoding>(encoding));
        EXPECT_EQ(L"Unknown Encoding, select UTF-8 (contact our support team)",
            TestSupport::MessageOf<CZrException>([&] { stream.GetEncodedStream(); }));
    }
}
