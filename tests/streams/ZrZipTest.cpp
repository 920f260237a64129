// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrZip.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

using namespace ZrXmlLib16;

namespace {

/// A caller's buffer as the compressor takes it.
struct Buffer {
    explicit Buffer(const std::string& octets)
        : data(new unsigned char[octets.size()])
        , length(octets.size())
    {
        std::copy(octets.begin(), octets.end(), data);
    }
    ~Buffer() { delete[] data; }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    std::string Content() const { return std::string(reinterpret_cast<const char*>(data), length); }

    unsigned char* data;
    unsigned long length;
};

std::string Compressed(const std::string& octets, CompressionType type)
{
    Buffer buffer(octets);
    CZrZip::Compress(&buffer.data, &buffer.length, type);
    return buffer.Content();
}

std::string Decompressed(const std::string& octets)
{
    Buffer buffer(octets);
    CZrZip::Decompress(&buffer.data, &buffer.length);
    return buffer.Content();
}

std::string SampleText(std::size_t length)
{
    std::string text;
    for (int number = 0; text.size() < length; ++number)
        text += "<item>" + std::to_string(number) + "</item>";
    return text.substr(0, length);
}

} // namespace

TEST(ZrZip, BothFormatsRoundTrip)
{
    for (const std::size_t length : {300u, 65535u, 65536u, 65537u, 1000000u}) {
        const std::string text = SampleText(length);
        const std::string gzip = Compressed(text, Compression_GZip);
        const std::string zlib = Compressed(text, Compression_ZLib);
        EXPECT_EQ("\x1F\x8B\x78\x01", gzip.substr(0, 2) + zlib.substr(0, 2));
        EXPECT_TRUE(zlib.size() < gzip.size() && gzip.size() < length);
        EXPECT_TRUE(Decompressed(zlib) == text);
        EXPECT_TRUE(Decompressed(gzip + "trailing") == text);
    }
}

TEST(ZrZip, keeps_RefusingDataThatDoesNotShrink)
{
    std::string random;
    std::mt19937 generator(7);
    for (int i = 0; i < 100000; ++i)
        random.push_back(static_cast<char>(generator()));
    for (const std::string& octets : {std::string(), std::string("a"), std::string("<a/>"), random}) {
        for (const CompressionType type : {Compression_GZip, Compression_ZLib}) {
            Buffer buffer(octets);
            const unsigned char* const before = buffer.data;
            const std::wstring message =
                TestSupport::MessageOf<CZrException>([&] { CZrZip::Compress(&buffer.data, &buffer.length, type); });
            EXPECT_EQ(0u, message.find(L"Failed to compress data. [Error Code: ")) << message;
            EXPECT_EQ(before, buffer.data);
            EXPECT_EQ(octets, buffer.Content());
        }
    }
}

TEST(ZrZip, WhatIsNotCompressedPassesThrough)
{
    const std::string gzip = Compressed(SampleText(5000), Compression_GZip);
    std::string cases[] = {gzip, gzip, "", "x", "\x1F", "\x78", "<?xml version=\"1.0\"?><a/>", "\x1F\x8B plain",
        "\x78\x01 plain", "\x78\xBB\x11\x22\x33\x44 preset dictionary"};
    cases[0][gzip.size() / 2] ^= '\x7F'; // damaged data
    cases[1][gzip.size() - 6] ^= '\x7F'; // wrong checksum
    for (const std::string& octets : cases) {
        Buffer buffer(octets);
        const unsigned char* const before = buffer.data;
        CZrZip::Decompress(&buffer.data, &buffer.length);
        EXPECT_EQ(before, buffer.data);
        EXPECT_TRUE(octets == buffer.Content());
    }
    for (std::size_t length = 0; length < gzip.size(); ++length)
        ASSERT_TRUE(Decompressed(gzip.substr(0, length)) == gzip.substr(0, length)) << length;
    unsigned char* null = nullptr;
    unsigned long length = 0;
    CZrZip::Decompress(&null, &length);
    EXPECT_EQ(nullptr, null);
    EXPECT_EQ("", Decompressed(std::string("\x78\x9C\x03\x00\x00\x00\x00\x01", 8))) << "nothing, compressed";
}

TEST(ZrZip, TheMaximumItselfIsAccepted)
{
    const std::string packed = Compressed(SampleText(5000), Compression_GZip);
    const auto* const octets = reinterpret_cast<const unsigned char*>(packed.data());
    CBinaryData plain;
    EXPECT_TRUE(CZrZip::DecompressData(octets, packed.size(), 5000, plain));
    EXPECT_EQ(5000U, plain.GetLength());
    CBinaryData refused;
    EXPECT_THROW(CZrZip::DecompressData(octets, packed.size(), 4999, refused), CZrException);
}

TEST(ZrZip, ValuesAreCompressedOrStayAsTheyWere)
{
    const std::string text = SampleText(4000);
    CBinaryData data;
    data.Append(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    const CBinaryData copy(data);
    CZrZip::CompressData(data, static_cast<CompressionType>(3));
    EXPECT_TRUE(data == copy) << "an unknown type compresses nothing";
    CZrZip::CompressData(data, Compression_GZip);
    EXPECT_EQ(text, Decompressed(std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength())));
    EXPECT_EQ(text.size(), copy.GetLength());
    CBinaryData tooShort(L"a");
    EXPECT_THROW(CZrZip::CompressData(tooShort, Compression_ZLib), CZrException);
    EXPECT_TRUE(tooShort == CBinaryData(L"a"));
}
