// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetBinaryData.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "fastinfoset/OctetText.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::OctetText;

namespace {

CFastInfosetBinaryData FromHex(const wchar_t* digits)
{
    CBinaryData data;
    data.SetAsHexString(digits);
    return CFastInfosetBinaryData(data);
}

} // namespace

TEST(FastInfosetBinaryData, EncodesOneValueAndDecodesIt)
{
    const struct {
        unsigned long algorithm;
        const wchar_t* text;
        const char* octets;
        const wchar_t* decoded; // null: the same text
    } cases[] = {
        {1, L"00ffA5", "00 FF A5", L"00FFA5"},
        {1, L"", "", nullptr},
        {1, nullptr, "", L""},
        {2, L"AQID", "01 02 03", nullptr},
        {2, L"AQI", "01 02", L"AQI="},
        {2, L" ", "", L""},
        {3, L"-2", "FF FE", nullptr},
        {3, L"32767", "7F FF", nullptr},
        {3, L" +5", "00 05", L"5"},
        {4, L"-2147483648", "80 00 00 00", nullptr},
        {4, L"2147483647", "7F FF FF FF", nullptr},
        {5, L"-9223372036854775808", "80 00 00 00 00 00 00 00", nullptr},
        {5, L"1099511627776", "00 00 01 00 00 00 00 00", nullptr},
        {6, L"true", "38", nullptr},
        {6, L"0", "30", L"false"},
        {7, L"1.5", "3F C0 00 00", nullptr},
        {7, L"-INF", "FF 80 00 00", nullptr},
        {7, L"NaN", "7F C0 00 00", nullptr},
        {8, L"-0.1", "BF B9 99 99 99 99 99 9A", nullptr},
        {9, L"00112233445566778899aabbccddeeff", "00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF",
            L"00112233445566778899AABBCCDDEEFF"},
    };
    for (const auto& row : cases) {
        CFastInfosetBinaryData data(L"old");
        data.SetAsEncodedString(row.algorithm, row.text);
        SCOPED_TRACE(std::to_string(row.algorithm) + " " + row.octets);
        EXPECT_EQ(OctetText(data), row.octets);
        EXPECT_EQ(data.GetAsString(row.algorithm), row.decoded ? row.decoded : row.text);
    }
}

TEST(FastInfosetBinaryData, DecodesArrays)
{
    const struct {
        unsigned long algorithm;
        const wchar_t* octets;
        const wchar_t* text;
    } cases[] = {
        {3, L"", L""},
        {3, L"FFFE00018000", L"-2 1 -32768"},
        {4, L"0000000100000002", L"1 2"},
        {5, L"FFFFFFFFFFFFFFFF0000000000000000", L"-1 0"},
        {6, L"", L""},
        {6, L"08", L"true false false false"},
        {6, L"0A", L"true false true false"},
        {6, L"7AAA", L"true false true false true"},
        {6, L"40", L""},
        {6, L"5F", L""},
        {6, L"F0", L""},
        {6, L"F0FFFF", L"false false false false true"},
        {7, L"3F800000C0000000", L"1 -2"},
        {8, L"3FF00000000000007FF0000000000000", L"1 INF"},
        {9, L"00112233445566778899AABBCCDDEEFFFFEEDDCCBBAA99887766554433221100",
            L"00112233445566778899AABBCCDDEEFF FFEEDDCCBBAA99887766554433221100"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(FromHex(row.octets).GetAsString(row.algorithm), row.text)
            << row.algorithm << ' ' << TestSupport::Narrow(row.octets);
    }
}

TEST(FastInfosetBinaryData, RefusesOctetsOfNoWholeValues)
{
    const struct {
        unsigned long algorithm;
        const wchar_t* octets;
        const wchar_t* message;
    } cases[] = {
        {3, L"000001", L"Invalid value for SHORT byte encoding."},
        {4, L"000000", L"Invalid value for INT byte encoding."},
        {5, L"00000000000000", L"Invalid value for LONG byte encoding."},
        {7, L"0000000000", L"Invalid value for FLOAT byte encoding."},
        {8, L"000000000000000000", L"Invalid value for DOUBLE byte encoding."},
        {9, L"000102030405060708090A0B0C0D0E", L"Invalid value for UUID byte encoding."},
        {0, L"00", L"Unknown byte encoding."},
        {11, L"00", L"Unknown byte encoding."},
        {0x100000001, L"00", L"Unknown byte encoding."},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(MessageOf<CZrException>([&] { FromHex(row.octets).GetAsString(row.algorithm); }), row.message);
    }
}

TEST(FastInfosetBinaryData, RefusesTextThatIsNoValue)
{
    const struct {
        unsigned long algorithm;
        const wchar_t* text;
        const wchar_t* message;
    } cases[] = {
        {1, L"0", L"Invalid length in hex string"},
        {9, L"0g", L"Invalid char in hex string [g]"},
        {3, L"32768", L"The value [32768] is to large to fit in a i2"},
        {3, L"", L"The value [] can not be converted to a i4"},
        {4, L"2147483648", L"The value [2147483648] is to large to fit in a i4"},
        {4, L"-2147483649", L"The value [-2147483649] is to large to fit in a i4"},
        {4, L"1 ", L"The value [1 ] can not be converted to a i4"},
        {5, L"9223372036854775808", L"The value [9223372036854775808] is to large to fit in a i8"},
        {6, L" true",
            L"A Boolean Value read from an XML document was invalid [ true]. Valid values are 'true', 'false', '1', or "
            L"'0'"},
        {7, L"x", L"The value [x] can not be converted to a r4"},
        {8, L"1 2", L"The value [1 2] can not be converted to a r8"},
    };
    for (const auto& row : cases) {
        CFastInfosetBinaryData data(L"old");
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { data.SetAsEncodedString(row.algorithm, row.text); }),
            row.message);
        EXPECT_EQ(data.GetLength(), 0U);
    }
    for (const unsigned long algorithm : {0U, 11U}) {
        EXPECT_EQ(MessageOf<CZrException>([&] { CFastInfosetBinaryData().SetAsEncodedString(algorithm, L"1"); }),
            L"Unknown byte encoding.");
    }
}

TEST(FastInfosetBinaryData, keeps_CdataThatCannotBeDecoded)
{
    CFastInfosetBinaryData data;
    data.SetAsEncodedString(10, L"\u00E9<\xD83D\xDE00");
    EXPECT_EQ(OctetText(data), "C3 A9 3C F0 9F 98 80");
    EXPECT_EQ(MessageOf<CZrException>([&] { data.GetAsString(10); }), L"Unknown byte encoding.");
}

TEST(FastInfosetBinaryData, keeps_UuidsThatCannotBeDecoded)
{
    CFastInfosetBinaryData data;
    data.SetAsEncodedString(9, L"0123");
    EXPECT_EQ(OctetText(data), "01 23");
    EXPECT_EQ(MessageOf<CZrException>([&] { data.GetAsString(9); }), L"Invalid value for UUID byte encoding.");
}

TEST(FastInfosetBinaryData, HoldsOctetsLikeItsBase)
{
    unsigned char octets[] = {0x30, 0x38};
    EXPECT_EQ(OctetText(CFastInfosetBinaryData(octets, 2, false)), "30 38");
    EXPECT_EQ(CFastInfosetBinaryData().GetLength(), 0U);
    EXPECT_EQ(CFastInfosetBinaryData(L"ab").GetLength(), 2 * sizeof(wchar_t));
    CFastInfosetBinaryData shared(CBinaryData(octets, 1, false));
    CBinaryData copy = shared;
    shared.Clear();
    EXPECT_EQ(OctetText(copy), "30");
}
