// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"
#include "values/BinaryDataHolder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using ZrXmlLib16::CBinaryData;
using ZrXmlLib16::CZrException;
using ZrXmlLib16::CZrInvalidValueException;

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
    CBinaryData reset = Bytes("a");
    reset.SetBuffer(nullptr, 0);
    CBinaryData moved = Bytes("a");
    const CBinaryData target(std::move(moved));
    const CBinaryData empties[] = {CBinaryData(), CBinaryData(&octet, 0, false),
        CBinaryData(new unsigned char[4], 0, true), CBinaryData(static_cast<const wchar_t*>(nullptr)), CBinaryData(L""),
        CBinaryData(nullptr, 5, false), cleared, reset, moved};
    for (const CBinaryData& empty : empties) {
        EXPECT_EQ(nullptr, empty.GetData());
        EXPECT_EQ(0u, empty.GetLength());
        EXPECT_TRUE(empty == CBinaryData());
        EXPECT_TRUE(empty != Bytes("a"));
        EXPECT_TRUE(Bytes(std::string(1, '\0')) != empty);
        EXPECT_EQ(L"", empty.GetAsHexString());
        EXPECT_EQ(L"", empty.GetAsBase64());
        EXPECT_EQ(nullptr, CBinaryData(empty).ReleaseData());
    }
    EXPECT_EQ("a", Content(target));
}

TEST(BinaryData, EqualityComparesLengthAndOctets)
{
    EXPECT_TRUE(Bytes("abc") == Bytes("abc"));
    EXPECT_TRUE(Bytes("abc") != Bytes("abd"));
    EXPECT_TRUE(Bytes("abc") != Bytes("ab"));
    EXPECT_TRUE(Bytes(std::string("a\0b", 3)) != Bytes(std::string("a\0c", 3)));
}

TEST(BinaryData, CopiesShareUntilOneIsModified)
{
    using Change = void (*)(CBinaryData&);
    const Change changes[] = {
        [](CBinaryData& data) { data.Append(static_cast<unsigned char>('x')); },
        [](CBinaryData& data) { *data[0] = 'x'; },
        [](CBinaryData& data) { data.Clear(); },
        [](CBinaryData& data) { delete[] data.ReleaseData(); },
        [](CBinaryData& data) { data.SetAsHexString(L"00"); },
        [](CBinaryData& data) { data.SetBuffer(L"x"); },
        [](CBinaryData& data) { data.Append(data); },
    };
    for (const Change change : changes) {
        const CBinaryData original = Bytes("abc");
        CBinaryData copy(original);
        CBinaryData assigned;
        assigned = copy;
        EXPECT_EQ(original.GetData(), copy.GetData());
        change(copy);
        EXPECT_NE(original.GetData(), copy.GetData());
        EXPECT_EQ(original.GetData(), assigned.GetData());
        EXPECT_EQ("abc", Content(original));
        EXPECT_TRUE(original != copy);
    }
    CBinaryData alone = Bytes("abc");
    const unsigned char* const buffer = alone.GetData();
    EXPECT_EQ(buffer + 1, alone[1]);
}

TEST(BinaryData, AdoptedAndReleasedArraysAreNotCopied)
{
    unsigned char* const array = new unsigned char[3]{1, 2, 3};
    CBinaryData data(array, 3, true);
    EXPECT_EQ(array, data.GetData());
    const CBinaryData sharing(data);
    const std::unique_ptr<unsigned char[]> copy(data.ReleaseData());
    EXPECT_NE(array, copy.get());
    EXPECT_EQ(0u, data.GetLength());
    CBinaryData last(sharing);
    EXPECT_EQ(L"010203", last.GetAsHexString());
    last.Append(static_cast<unsigned char>(4)); // no room in an adopted array
    EXPECT_EQ(L"01020304", last.GetAsHexString());
    unsigned char* const grown = last.GetData();
    const std::unique_ptr<unsigned char[]> released(last.ReleaseData());
    EXPECT_EQ(grown, released.get());
}

TEST(BinaryData, AppendsEveryKindOfData)
{
    CBinaryData data;
    std::string expected;
    data.Append(nullptr, 0);
    data.Append(static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(nullptr, data.GetData());
    data.Append(L'\u20AC');
    data.Append(static_cast<unsigned char>(7));
    data.Append(L"ab");
    data.Append(std::wstring(L"c\0d", 3));
    data.Append(reinterpret_cast<const unsigned char*>("xyz"), 2);
    data.Append(Bytes("end"));
    data.Append(CBinaryData());
    expected = RawUnits(L"\u20AC") + '\7' + RawUnits(L"ab") + RawUnits(std::wstring(L"c\0d", 3)) + "xyend";
    EXPECT_EQ(expected, Content(data));
    EXPECT_EQ(RawUnits(L"ab"), Content(CBinaryData(L"ab")));
}

TEST(BinaryData, GrowsAndDoublesItsCapacity)
{
    CBinaryData data = Bytes("a");
    std::string expected = "a";
    const unsigned char* buffer = data.GetData();
    std::vector<unsigned long> movedAt;
    for (int i = 1; i < 100000; ++i) {
        data.Append(static_cast<unsigned char>(i));
        expected.push_back(static_cast<char>(i));
        if (data.GetData() != buffer) {
            movedAt.push_back(data.GetLength());
            buffer = data.GetData();
        }
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
            EXPECT_EQ(text + text, Content(data));
            data.Append(data.GetData() + length - 1, 2);
            EXPECT_EQ(text + text + "ba", Content(data));
            data.SetBuffer(data.GetData() + 1, length - 1);
            EXPECT_EQ(text.substr(1), Content(data));
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
    EXPECT_EQ(L"Index Out of range [3]", TestSupport::MessageOf<CZrException>([&] { data[3]; }));
    EXPECT_EQ(L"Index Out of range [3]", TestSupport::MessageOf<CZrException>([&] { constant[3]; }));
    EXPECT_EQ(L"Index Out of range [0]", TestSupport::MessageOf<CZrException>([] { CBinaryData()[0]; }));
}

TEST(BinaryData, HexTextRoundTripsForEveryOctet)
{
    CBinaryData data;
    std::wstring expected;
    for (int octet = 0; octet < 256; ++octet) {
        data.Append(static_cast<unsigned char>(octet));
        expected += ZrXmlLib16::FormatString(L"%02X", octet);
    }
    EXPECT_EQ(expected, data.GetAsHexString());
    EXPECT_EQ(L"0001", CBinaryData::GetAsHexString(data.GetData(), 2));
    EXPECT_EQ(L"", CBinaryData::GetAsHexString(nullptr, 2));
    CBinaryData parsed;
    parsed.SetAsHexString(expected.c_str());
    EXPECT_TRUE(parsed == data);
    parsed.SetAsHexString(L"0a1B");
    EXPECT_EQ(L"0A1B", parsed.GetAsHexString());
    parsed.SetAsHexString(L"");
    EXPECT_EQ(nullptr, parsed.GetData());
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
    for (const auto& [text, message] : cases) {
        const wchar_t* const argument = text.c_str();
        CBinaryData data = Bytes("old");
        EXPECT_EQ(message, TestSupport::MessageOf<CZrInvalidValueException>([&] { data.SetAsHexString(argument); }));
        EXPECT_EQ(0u, data.GetLength());
        unsigned char stale = 0;
        unsigned char* parsed = &stale;
        EXPECT_THROW(CBinaryData::ConvertToHexData(argument, &parsed), CZrException);
        EXPECT_EQ(nullptr, parsed);
    }
}

TEST(BinaryData, Base64TextIsDecodedIntoTheValue)
{
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"Zm9v\nYmE=", "fooba"}, {L" Zg==", "f"}, {L"\nZg==", ""}, {L"", ""}, {nullptr, ""}};
    for (const auto& row : cases) {
        CBinaryData data = Bytes("old");
        data.SetAsBase64(row.first);
        EXPECT_EQ(row.second, Content(data));
    }
    EXPECT_EQ(L"Zm9vYmE=", Bytes("fooba").GetAsBase64());
}

TEST(BinaryData, ASharedHolderIsNeitherChangedNorDetached)
{
    const unsigned char octets[] = {1, 2};
    CBinaryData::CDataHolder* const holder = CBinaryData::CDataHolder::Copy(octets, 2);
    holder->AddRef();
    EXPECT_EQ(
        L"Failed to append. [RefCount=2]", TestSupport::MessageOf<CZrException>([&] { holder->Append(octets, 1); }));
    EXPECT_EQ(
        L"Failed to release data. [RefCount=1]", TestSupport::MessageOf<CZrException>([&] { holder->Release(true); }));
    EXPECT_EQ(2u, holder->GetLength());
    holder->Release(false);
    holder->Release(false);
}
