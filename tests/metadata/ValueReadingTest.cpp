// SPDX-License-Identifier: MIT
// Values in documents are what the conversions make of their texts, however the reader gets at them.
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "support/TestObject.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

constexpr wchar_t Ideograph = 0x4E00 + 0x37; // its low octet is the digit 7

/// Signs, digits, limits of every width, blanks, and letters where they might be taken for something else.
std::vector<std::wstring> Texts()
{
    std::vector<std::wstring> texts = {L"", L"-", L"+", L"0", L"-0", L"+1", L"00", L"007", L"1 ", L" 1", L"\t1\n",
        L"1\r", L"127", L"128", L"-128", L"-129", L"255", L"256", L"-1", L"32767", L"32768", L"-32768", L"-32769",
        L"65535", L"65536", L"999999999999999999", L"-999999999999999999", L"1000000000000000000",
        L"9223372036854775807", L"9223372036854775808", L"-9223372036854775808", L"18446744073709551615",
        L"18446744073709551616", L"1a", L"0x10", L"1e3", L"1e400", L"-1e-400", L".5", L"5.", L"-0.050", L"+.5",
        L"1.5.2", L"00012.3400", L"--1", L"true", L"True", L"false", L"FALSE", L"truee", L"NaN", L"INF", L"-INF",
        L"2024-02-29", L"2023-02-29", L"2024-02-29Z", L"2024-02-29+14:00", L"2024-02-29+14:01", L"2024-02-29T23:59:59",
        L"2024-02-29T24:00:00", L"2024-02-29T24:00:01", L"2024-02-29T12:00:00.123456789Z",
        L"2024-02-29T12:00:00.1234567890Z", L"12:30:00", L"12:30:60", L"12:30:00.5-01:00", L"2024-02", L"--02-29",
        L"--02-30", L"-0044-03-15", L"0044", L"12345-01-01", std::wstring(1, Ideograph),
        L"1" + std::wstring(1, Ideograph)};
    for (const std::size_t length : {7U, 8U, 9U, 47U, 48U, 49U, 200U}) {
        texts.push_back(std::wstring(length, L'1'));
        texts.push_back(L"0." + std::wstring(length - 2, L'3'));
        texts.push_back(std::wstring(length - 1, L'0') + L"1");
    }
    return texts;
}

/// The value's text; nothing when the action refuses it.
template <class Action> std::optional<std::wstring> ValueText(Action action)
{
    ZrVariant value;
    try {
        action(value);
    } catch (const CZrException&) {
        return std::nullopt;
    }
    return value.ToString(nullptr);
}

TEST(ValueReading, GivesWhatTheConversionsGive)
{
    for (int type = ItemType_hexBinary; type <= ItemType_integer; ++type) {
        const ItemType itemType = static_cast<ItemType>(type);
        const TestClass objectClass = Class(L"v").Value(itemType);
        for (const std::wstring& text : Texts()) {
            const std::wstring inDocument = text == L"1\r" ? L"1&#13;" : text;
            const auto convert = [&](ZrVariant& value) {
                // The document loses the carriage return.
                value.FromString(text == L"1\r" ? L"1" : text, itemType, CWhitespaceUtils::Rule_None);
            };
            const auto read = [&](ZrVariant& value) {
                TestObject object(objectClass);
                object.FromXml((L"<v>" + inDocument + L"</v>").c_str());
                value = object[L"#value"];
            };
            EXPECT_EQ(ValueText(convert), ValueText(read)) << Narrow(text) << " as " << type;
        }
    }
}

TEST(ValueReading, KeepsStringsOfAnyLength)
{
    const TestClass objectClass = Class(L"v").Value(ItemType_string);
    for (const std::size_t length : {1U, 3U, 4U, 5U, 15U, 16U, 17U, 1000U, (1U << 20) + 3}) {
        std::wstring text(length, L'x');
        for (std::size_t i = 0; i < length; ++i) {
            text[i] = static_cast<wchar_t>(0x100 + i % 1000);
        }
        TestObject object(objectClass);
        object.FromXml((L"<v>" + text + L"</v>").c_str());
        EXPECT_TRUE(text == object[L"#value"].GetString()) << length;
    }
}

} // namespace
