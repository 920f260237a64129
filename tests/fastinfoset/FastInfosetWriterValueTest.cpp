// SPDX-License-Identifier: MIT
// Values, names and vocabularies of the Fast Infoset writer.
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "fastinfoset/WriterFixture.h"
#include "support/TestText.h"

#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::OctetsOf;
using TestSupport::OctetText;
using TestSupport::WriterFixture;

namespace {

// The octets of the value alone, as attribute and as element text.
std::string AttributeValue(const CFastInfosetContext& context, const std::wstring& value, ItemType type)
{
    const std::string octets = OctetsOf(context, [&](WriterFixture& test) {
        test.Start(L"e");
        test.Attribute(L"a", L"", value, type);
        test.End();
    });
    const std::string begin = "7C 00 65 78 00 61 ";
    const std::string end = " F0 FF";
    EXPECT_EQ(octets.substr(0, begin.size()), begin);
    EXPECT_EQ(octets.substr(octets.size() - end.size()), end);
    return octets.substr(begin.size(), octets.size() - begin.size() - end.size());
}

std::string ElementText(const CFastInfosetContext& context, const std::wstring& value, ItemType type)
{
    const std::string octets = OctetsOf(context, [&](WriterFixture& test) {
        test.Start(L"e");
        test.String(value, type);
        test.End();
    });
    const std::string begin = "3C 00 65 ";
    const std::string end = " FF";
    EXPECT_EQ(octets.substr(0, begin.size()), begin);
    EXPECT_EQ(octets.substr(octets.size() - end.size()), end);
    return octets.substr(begin.size(), octets.size() - begin.size() - end.size());
}

struct Failure {
    std::wstring attributeMessage;
    std::wstring textMessage;
};

// The messages for a value that is refused as attribute and as element text.
Failure WriteRefused(const CFastInfosetContext& context, const std::wstring& value)
{
    WriterFixture test(context);
    test.Start(L"e");
    Failure failure;
    failure.attributeMessage = MessageOf<CZrException>([&] { test.Attribute(L"a", L"", value, ItemType_decimal); });
    EXPECT_EQ(OctetText(test.data), "7C 00 65 78 00 61") << "the stream has what was written before";
    failure.textMessage = MessageOf<CZrException>([&] { test.String(value, ItemType_decimal); });
    return failure;
}

constexpr auto ALPHABET = CFastInfosetContext::RestrictedAlphabet;
constexpr auto ALGORITHM = CFastInfosetContext::EncodingAlgorithm;

} // namespace

TEST(FastInfosetWriter, EncodesValuesInBothForms)
{
    const struct {
        CFastInfosetContext::EncodedCharacterString encoding;
        const wchar_t* value;
        const char* attribute;
        const char* text;
    } cases[] = {
        {{CFastInfosetContext::Literal, 0}, L"ab", "41 61 62", "91 61 62"},
        {{CFastInfosetContext::Literal, 0}, L"\u20AC", "42 E2 82 AC", "92 00 E2 82 AC"},
        {{CFastInfosetContext::Literal, 0}, L"\xD83D\xDE00\xDE00", "46 F0 9F 98 80 EF BF BD",
            "92 04 F0 9F 98 80 EF BF BD"},
        {{CFastInfosetContext::Literal, 0}, L"12345678", "07 31 32 33 34 35 36 37 38", "82 05 31 32 33 34 35 36 37 38"},
        {{CFastInfosetContext::Literal, 0}, L"123456789", "08 00 31 32 33 34 35 36 37 38 39",
            "82 06 31 32 33 34 35 36 37 38 39"},
        {{ALPHABET, 1}, L"-1.5e3", "20 02 A1 C5 D3", "88 02 00 A1 C5 D3"},
        {{ALPHABET, 1}, L"+7 ", "60 01 B7 EF", "98 01 B7 EF"},
        {{ALPHABET, 2}, L"23:59:00Z", "20 14 23 B5 9B 00 DF", "88 06 02 23 B5 9B 00 DF"},
        {{ALPHABET, 2}, L"T", "60 10 CF", "98 04 CF"},
        {{ALGORITHM, 1}, L"0aFF", "70 01 0A FF", "9C 01 0A FF"},
        {{ALGORITHM, 2}, L"AQID", "70 12 01 02 03", "9C 06 00 01 02 03"},
        {{ALGORITHM, 3}, L"-2", "70 21 FF FE", "9C 09 FF FE"},
        {{ALGORITHM, 4}, L"1", "70 33 00 00 00 01", "9C 0E 01 00 00 00 01"},
        {{ALGORITHM, 5}, L"1", "70 47 00 00 00 00 00 00 00 01", "9C 12 05 00 00 00 00 00 00 00 01"},
        {{ALGORITHM, 6}, L"false", "70 50 30", "9C 14 30"},
        {{ALGORITHM, 7}, L"1.5", "70 63 3F C0 00 00", "9C 1A 01 3F C0 00 00"},
        {{ALGORITHM, 8}, L"1.5", "70 77 3F F8 00 00 00 00 00 00", "9C 1E 05 3F F8 00 00 00 00 00 00"},
        {{ALGORITHM, 9}, L"0123456789abcdef0123456789ABCDEF",
            "30 88 07 01 23 45 67 89 AB CD EF 01 23 45 67 89 AB CD EF",
            "8C 22 0D 01 23 45 67 89 AB CD EF 01 23 45 67 89 AB CD EF"},
        {{ALGORITHM, 10}, L"\u00E9", "70 91 C3 A9", "9C 25 C3 A9"},
        // No octets cannot be expressed: as a literal.
        {{ALGORITHM, 2}, L" ", "40 20", "90 20"},
    };
    for (const auto& row : cases) {
        CFastInfosetContext context;
        context.SetEncoding(ItemType_decimal, row.encoding);
        SCOPED_TRACE(TestSupport::Narrow(row.value));
        EXPECT_EQ(AttributeValue(context, row.value, ItemType_decimal), row.attribute);
        EXPECT_EQ(ElementText(context, row.value, ItemType_decimal), row.text);
    }
    EXPECT_EQ(AttributeValue(CFastInfosetContext(), L"", ItemType_decimal), "FF");
}

TEST(FastInfosetWriter, IndexesShortValuesAndAllNames)
{
    CFastInfosetContext context;
    context.SetAttributeMaxAddLength(3);
    context.SetElementMaxAddLength(2);
    EXPECT_EQ(OctetsOf(context,
                  [](WriterFixture& test) {
                      test.Start(L"longer");
                      test.Attribute(L"longer", L"", L"12");
                      test.Attribute(L"b", L"", L"123");
                      test.Attribute(L"longer", L"", L"12");
                      test.Attribute(L"b", L"", L"123");
                      test.String(L"1");
                      test.String(L"12");
                      test.String(L"1");
                      test.String(L"12");
                      test.End();
                  }),
        "7C 05 6C 6F 6E 67 65 72 78 80 41 31 32 78 00 62 02 31 32 33 00 80 01 02 31 32 33 F0"
        " 90 31 81 31 32 A0 81 31 32 FF");
    // Same local name, other namespace or prefix: another name. The parts are indexed.
    EXPECT_EQ(OctetsOf(CFastInfosetContext(),
                  [](WriterFixture& test) {
                      test.writer.AddNamespace(L"p", L"u");
                      test.Start(L"e");
                      for (int i = 0; i < 2; ++i) {
                          test.Attribute(L"e", L"", L"");
                          test.Attribute(L"e", L"u", L"");
                          test.Attribute(L"e", L"v", L"");
                      }
                      test.End();
                  }),
        "78 CF 00 70 00 75 F0 3C 00 65 78 80 FF 7B 81 81 80 FF 7B 01 41 41 00 76 80 FF 00 FF 01 FF 02 FF F0 FF");
}

TEST(FastInfosetWriter, keeps_ValuesOfSixCharactersUnindexed)
{
    EXPECT_EQ(ElementText(CFastInfosetContext(), L"12345", ItemType_string), "92 02 31 32 33 34 35");
    EXPECT_EQ(ElementText(CFastInfosetContext(), L"123456", ItemType_string), "82 03 31 32 33 34 35 36");
}

TEST(FastInfosetWriter, RefusesWhatItCannotEncode)
{
    const struct {
        CFastInfosetContext::EncodedCharacterString encoding;
        const wchar_t* message;
    } cases[] = {
        {{ALGORITHM, 0}, L"Failed to write FastInfoset. Invalid Encoding Algorithm value [0]"},
        {{ALGORITHM, 11}, L"Failed to write FastInfoset. Invalid Encoding Algorithm value [11]"},
        {{ALPHABET, 0}, L"Failed to write FastInfoset. Invalid Restricted Alphabet value [0]"},
        {{ALPHABET, 3}, L"Failed to write FastInfoset. Invalid Restricted Alphabet value [3]"},
        {{ALPHABET, 1}, L"Failed to write FastInfoset. Invalid character not found for Restricted Alphabet."},
    };
    for (const auto& row : cases) {
        CFastInfosetContext context;
        context.SetEncoding(ItemType_decimal, row.encoding);
        const Failure failure = WriteRefused(context, L"1E3");
        EXPECT_EQ(failure.attributeMessage, row.message);
        EXPECT_EQ(failure.textMessage, row.message);
    }
}

TEST(FastInfosetWriter, keeps_MessagesThatNameOtherForms)
{
    CFastInfosetContext context;
    context.SetDefaultStringEncoding(CFastInfosetContext::Utf16BE);
    const Failure encoding = WriteRefused(context, L"1");
    EXPECT_EQ(encoding.attributeMessage,
        L"Failed to write FastInfoset. Unsupported Feature UTF16BE in EncodedCharacterStringBit5.");
    EXPECT_EQ(encoding.textMessage, encoding.attributeMessage);

    context.SetEncoding(ItemType_decimal, {static_cast<CFastInfosetContext::EncodingKind>(3), 1});
    const Failure kind = WriteRefused(context, L"1");
    EXPECT_EQ(kind.attributeMessage, L"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit5.");
    EXPECT_EQ(kind.textMessage, L"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit7.");
}

TEST(FastInfosetWriter, PassesFailuresOfTheAlgorithms)
{
    CFastInfosetContext context;
    context.SetSuggestedValues();
    const struct {
        ItemType type;
        const wchar_t* value;
        const wchar_t* message;
    } cases[] = {
        {ItemType_i4, L"1099511627776", L"The value [1099511627776] is to large to fit in a i4"},
        {ItemType_ui8, L"18446744073709551615", L"The value [18446744073709551615] is to large to fit in a i8"},
        {ItemType_hexBinary, L"0x", L"Invalid char in hex string [x]"},
        {ItemType_r8, L"1,5", L"The value [1,5] can not be converted to a r8"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { ElementText(context, row.value, row.type); }), row.message);
    }
}

TEST(FastInfosetWriter, keeps_DatesWithFractionsUnwritable)
{
    CFastInfosetContext context;
    context.SetSuggestedValues();
    for (const wchar_t* value : {L"2020-01-31T10:00:00.5", L"2020-01-31T10:00:00+01:00"}) {
        EXPECT_EQ(MessageOf<CZrException>([&] { ElementText(context, value, ItemType_datetime); }),
            L"Failed to write FastInfoset. Invalid character not found for Restricted Alphabet.");
    }
}

// Texts of many lengths one after the other, so that they fall on the borders of the block in every way.
TEST(FastInfosetWriter, WritesTextsOfEveryLength)
{
    std::vector<unsigned long> lengths{
        1022, 1023, 1024, 1025, 2047, 2048, 2049, 4089, 4090, 4091, 4092, 4093, 4096, 4097, 8192, 10000, 100000};
    for (unsigned long length = 1; length < 300; ++length) {
        lengths.push_back(length);
    }
    const std::wstring patterns[] = {L"x", L"\u00E9", L"ab\u20AC", L"\xD83D\xDE00", L"a\xD83D\xDE00", L"\xD83D"};
    CFastInfosetContext context;
    context.SetElementMaxAddLength(0);
    WriterFixture test(context);
    test.Start(L"e");
    std::string expected{0x3C, 0x00, 0x65};
    for (const std::wstring& pattern : patterns) {
        for (const unsigned long length : lengths) {
            std::wstring text;
            while (text.size() < length) {
                text += pattern;
            }
            test.String(text);
            const std::string utf8 = CEncoder::UnicodeToUtf8(text);
            const unsigned long n = utf8.size();
            if (n <= 2) {
                expected += static_cast<char>(0x80 | (n - 1));
            } else if (n <= 258) {
                expected += {static_cast<char>(0x82), static_cast<char>(n - 3)};
            } else {
                expected += static_cast<char>(0x83);
                for (int shift = 24; shift >= 0; shift -= 8) {
                    expected += static_cast<char>((n - 259) >> shift);
                }
            }
            expected += utf8;
        }
    }
    test.End();
    test.writer.WriteEndDocument();
    expected += static_cast<char>(0xFF);
    const std::string written(reinterpret_cast<const char*>(test.data.GetData()), test.data.GetLength());
    EXPECT_TRUE(written == expected);
}

TEST(FastInfosetWriter, StartsFromAGeneratedVocabulary)
{
    CFastInfosetContext context;
    CFIVocabulary& vocabulary = *context.GetVocabulary();
    vocabulary.AddElement(L"", L"", L"e");
    vocabulary.AddElement(L"p", L"u", L"f");
    vocabulary.AddAttribute(L"", L"", L"a");
    vocabulary.AddElementValue(L"t");
    vocabulary.AddAttributeValue(L"v");
    const auto events = [](WriterFixture& test) {
        test.writer.AddNamespace(L"p", L"u");
        test.Start(L"e");
        test.Attribute(L"a", L"", L"v");
        test.Attribute(L"f", L"u", L"w");
        for (int i = 0; i < 2; ++i) {
            test.Start(L"f", L"u");
            test.String(L"t");
            test.String(L"s");
            test.End();
            test.Start(L"a");
            test.End();
        }
        test.End();
    };
    const std::string plain = OctetsOf(context, events);
    EXPECT_EQ(plain,
        "78 CF 00 70 00 75 F0 3C 00 65 78 00 61 40 76 7B 81 81 00 66 40 77 F0 3F 81 81 82 90 74 90 73 F0 3C 81 F0 01 "
        "A0 A1 F0 02 FF F0");
    context.SetUseGeneratedVocabulary(true);
    for (int i = 0; i < 2; ++i) {
        // Prefix and namespace 2; local names e 1, f 2, a 3; what is new gets the indexes behind.
        EXPECT_EQ(OctetsOf(context, events),
            "78 CF 81 81 F0 00 00 80 7B 81 81 81 40 77 F0 01 A0 90 73 F0 3C 82 F0 01 A0 A1 F0 02 FF F0");
    }
    EXPECT_EQ(vocabulary.GetElementNamesMap().size(), 2U) << "documents do not change the context";
    EXPECT_EQ(vocabulary.GetCharacterChunksMap().size(), 1U);
}

TEST(FastInfosetWriter, StopsIndexingWhenATableIsFull)
{
    constexpr unsigned long limit = 1048576;
    CFastInfosetContext context;
    context.SetElementMaxAddLength(10);
    WriterFixture test(context);
    test.Start(L"e");
    for (unsigned long i = 1; i <= limit + 1; ++i) {
        test.String(std::to_wstring(i));
    }
    test.writer.WriteEndDocument();
    const unsigned long before = test.data.GetLength();
    for (const unsigned long value : {1UL, 17UL, limit, limit + 1}) {
        test.String(std::to_wstring(value));
    }
    test.writer.WriteEndDocument();
    EXPECT_EQ(OctetText(test.data.GetData() + before, test.data.GetLength() - before),
        "A0 B0 00 B8 0B FB EF 92 04 31 30 34 38 35 37 37 F0");
}

TEST(FastInfosetWriter, keeps_HighElementIndexesOneTooHigh)
{
    constexpr unsigned long count = 526369;
    const CFastInfosetContext context;
    WriterFixture test(context);
    for (unsigned long i = 1; i <= count; ++i) {
        test.Start(L"e" + std::to_wstring(i));
        test.End();
    }
    test.writer.WriteEndDocument();
    const unsigned long before = test.data.GetLength();
    test.Start(L"e" + std::to_wstring(count - 1));
    test.End();
    test.Start(L"e" + std::to_wstring(count));
    test.End();
    test.writer.WriteEndDocument();
    EXPECT_EQ(OctetText(test.data.GetData() + before, test.data.GetLength() - before), "2F FF FF F0 30 00 00 01 FF");
}
