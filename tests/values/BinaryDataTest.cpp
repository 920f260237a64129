// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"
#include "values/BinaryDataHolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

CBinaryData Bytes(const std::string& octets)
{
    std::string copy(octets);
    return CBinaryData(reinterpret_cast<unsigned char*>(&copy[0]), copy.size(), false);
}

std::string Content(const CBinaryData& data)
{
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

std::string RawUnits(const std::wstring& text)
{
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

} // namespace

TEST(BinaryData, EveryKindOfEmptyValueIsEmpty)
{
    unsigned char octet = 1;
    CBinaryData cleared = Bytes("a");
    cleared.Clear();
    CBinaryData moved = Bytes("a");
    EXPECT_EQ("a", Content(CBinaryData(std::move(moved))));
    const CBinaryData empties[] = {CBinaryData(), CBinaryData(&octet, 0, false), CBinaryData(L""),
        CBinaryData(new unsigned char[4], 0, true), CBinaryData(static_cast<const wchar_t*>(nullptr)),
        CBinaryData(nullptr, 5, false), cleared, moved};
    for (const CBinaryData& empty : empties) {
        EXPECT_TRUE(!empty.GetData() && empty.GetLength() == 0 && !CBinaryData(empty).ReleaseData());
        EXPECT_TRUE(empty == CBinaryData() && empty != Bytes("a") && Bytes(std::string(1, '\0')) != empty);
        EXPECT_EQ(L"", empty.GetAsHexString() + empty.GetAsBase64());
    }
    EXPECT_TRUE(Bytes("abc") != Bytes("ab") && Bytes(std::string("a\0b", 3)) != Bytes(std::string("a\0c", 3)));
}

TEST(BinaryData, CopiesShareUntilOneIsModified)
{
    using Change = void (*)(CBinaryData&);
    const Change changes[] = {
        [](CBinaryData& data) { data.Append(static_cast<unsigned char>('x')); },
        [](CBinaryData& data) { *data[0] = 'x'; },
        [](CBinaryData& data) { delete[] data.ReleaseData(); },
        [](CBinaryData& data) { data.SetAsHexString(L"00"); },
        [](CBinaryData& data) { data.SetBuffer(L"x"); },
        [](CBinaryData& data) { data.Append(data); },
    };
    for (const Change change : changes) {
        const CBinaryData original = Bytes("abc");
        CBinaryData copy;
        copy = CBinaryData(original);
        EXPECT_EQ(original.GetData(), copy.GetData());
        change(copy);
        EXPECT_TRUE(original == Bytes("abc") && original != copy && original.GetData() != copy.GetData());
    }
}

TEST(BinaryData, AdoptedAndReleasedArraysAreNotCopied)
{
    unsigned char* const array = new unsigned char[3]{1, 2, 3};
    CBinaryData data(array, 3, true);
    EXPECT_EQ(array, data.GetData());
    CBinaryData last(data);
    const std::unique_ptr<unsigned char[]> copy(data.ReleaseData());
    EXPECT_NE(array, copy.get());
    EXPECT_EQ(0u, data.GetLength());
    last.Append(static_cast<unsigned char>(4)); // no room in an adopted array
    EXPECT_EQ(L"01020304", last.GetAsHexString());
    unsigned char* const grown = last.GetData();
    const std::unique_ptr<unsigned char[]> released(last.ReleaseData());
    EXPECT_EQ(grown, released.get());
}

TEST(BinaryData, AppendsEveryKindOfData)
{
    CBinaryData data;
    data.Append(nullptr, 0);
    data.Append(static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(nullptr, data.GetData());
    data.Append(L'\u20AC');
    data.Append(static_cast<unsigned char>(7));
    data.Append(L"ab");
    data.Append(std::wstring(L"c\0d", 3));
    data.Append(reinterpret_cast<const unsigned char*>("xyz"), 2);
    data.Append(Bytes("end"));
    EXPECT_EQ(RawUnits(L"\u20AC") + '\7' + RawUnits(std::wstring(L"abc\0d", 5)) + "xyend", Content(data));
}

TEST(BinaryData, GrowsAndDoublesItsCapacity)
{
    CBinaryData data = Bytes("a");
    std::string expected = "a";
    std::vector<unsigned long> movedAt;
    for (int i = 1; i < 100000; ++i) {
        const unsigned char* const buffer = data.GetData();
        data.Append(static_cast<unsigned char>(i));
        expected.push_back(static_cast<char>(i));
        if (data.GetData() != buffer)
            movedAt.push_back(data.GetLength());
    }
    EXPECT_EQ((std::vector<unsigned long>{8193, 16387, 32775, 65551}), movedAt);
    EXPECT_EQ(expected, Content(data));
}

TEST(BinaryData, AppendsAndTakesItsOwnOctets)
{
    for (const std::size_t length : {3u, 5000u, 9000u}) {
        for (const bool isShared : {false, true}) {
            const std::string text = std::string(length - 1, 'a') + 'b';
            CBinaryData data = Bytes(text);
            const CBinaryData sharing = isShared ? data : CBinaryData();
            data.Append(data);
            data.Append(data.GetData() + length - 1, 2);
            EXPECT_EQ(text + text + "ba", Content(data));
            data.SetBuffer(data.GetData() + 1, length - 1);
            const CBinaryData& self = data;
            data = self;
            EXPECT_EQ(text.substr(1), Content(data));
            EXPECT_TRUE(!isShared || Content(sharing) == text);
        }
    }
}

TEST(BinaryData, keeps_AcceptingTheLengthAsIndex)
{
    CBinaryData data(new unsigned char[2]{1, 2}, 2, true);
    const CBinaryData& constant = data;
    EXPECT_EQ(constant.GetData() + 2, constant[2]);
    EXPECT_EQ(data.GetData() + 2, data[2]);
    EXPECT_EQ(L"Index Out of range [3]", MessageOf<CZrException>([&] { data[3]; }));
    EXPECT_EQ(L"Index Out of range [0]", MessageOf<CZrException>([] { CBinaryData()[0]; }));
}

TEST(BinaryData, TextRoundTripsForEveryOctet)
{
    CBinaryData data;
    std::wstring expected;
    for (int octet = 0; octet < 256; ++octet) {
        data.Append(static_cast<unsigned char>(octet));
        expected += FormatString(L"%02X", octet);
    }
    CBinaryData parsed;
    parsed.SetAsHexString(expected.c_str());
    EXPECT_TRUE(parsed == data);
    EXPECT_EQ(expected, data.GetAsHexString());
    parsed.SetAsHexString(L"0a1B");
    EXPECT_EQ(L"0A1B", parsed.GetAsHexString());
    parsed.SetAsBase64(data.GetAsBase64().c_str());
    EXPECT_TRUE(parsed == data);
    parsed.SetAsBase64(nullptr);
    EXPECT_EQ(0u, parsed.GetLength());
}

TEST(BinaryData, HexTextIsRefusedAndLeavesTheValueEmpty)
{
    const std::wstring odd = L"Invalid length in hex string";
    std::vector<std::pair<std::wstring, std::wstring>> cases = {{L"A", odd}, {L"0GX", odd}};
    for (const wchar_t character : std::wstring(L"Gg/:@` \u00E9\uFF11")) {
        const std::wstring message = L"Invalid char in hex string [" + std::wstring(1, character) + L"]";
        cases.emplace_back(std::wstring(L"00") + character + L"0", message);
        cases.emplace_back(std::wstring(L"0") + character, message);
    }
    for (const auto& row : cases) {
        CBinaryData data = Bytes("old");
        const auto parse = [&] { data.SetAsHexString(row.first.c_str()); };
        EXPECT_EQ(row.second, MessageOf<CZrInvalidValueException>(parse));
        EXPECT_EQ(0u, data.GetLength());
        unsigned char stale = 0;
        unsigned char* parsed = &stale;
        EXPECT_THROW(CBinaryData::ConvertToHexData(row.first.c_str(), &parsed), CZrException);
        EXPECT_EQ(nullptr, parsed);
    }
}

TEST(BinaryData, ASharedHolderIsNeitherChangedNorDetached)
{
    const unsigned char octets[] = {1, 2};
    CBinaryData::CDataHolder* const holder = CBinaryData::CDataHolder::Copy(octets, 2);
    holder->AddRef();
    EXPECT_EQ(L"Failed to append. [RefCount=2]", MessageOf<CZrException>([&] { holder->Append(octets, 1); }));
    EXPECT_EQ(L"Failed to release data. [RefCount=1]", MessageOf<CZrException>([&] { holder->Release(true); }));
    EXPECT_EQ(2u, holder->GetLength());
    holder->Release(false);
    holder->Release(false);
}
