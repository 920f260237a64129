// SPDX-License-Identifier: MIT
// Every integer and length, written by an encoder that knows nothing of the library's ranges.
#include "ZrXmlLib16/FastInfosetContext.h"
#include "fastinfoset/Octets.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::BigEndian;
using TestSupport::FastInfoset;
using TestSupport::Octets;
using TestSupport::TreeOf;

namespace {

constexpr unsigned long LAST = 1048576;

/// The octets of a value, with bits set in the first of them.
std::string Code(unsigned long offset, int octets, unsigned first)
{
    std::string code = BigEndian(offset, octets);
    code[0] = static_cast<char>(static_cast<unsigned char>(code[0]) | first);
    return code;
}

std::string IntegerOnBit2(unsigned long value, unsigned lead)
{
    if (value <= 64)
        return Code(value - 1, 1, lead);
    return value <= 8256 ? Code(value - 65, 2, lead | 0x40) : Code(value - 8257, 3, lead | 0x60);
}

std::string IntegerOnBit3(unsigned long value, unsigned lead)
{
    if (value <= 32)
        return Code(value - 1, 1, lead);
    if (value <= 2080)
        return Code(value - 33, 2, lead | 0x20);
    return value <= 526368 ? Code(value - 2081, 3, lead | 0x28) : Code(value - 526369, 4, lead | 0x30);
}

std::string IntegerOnBit4(unsigned long value, unsigned lead)
{
    if (value <= 16)
        return Code(value - 1, 1, lead);
    if (value <= 1040)
        return Code(value - 17, 2, lead | 0x10);
    return value <= 263184 ? Code(value - 1041, 3, lead | 0x14) : Code(value - 263185, 4, lead | 0x18);
}

std::string Length(unsigned long length, unsigned long secondRange, unsigned long thirdRange, unsigned secondPattern,
    unsigned thirdPattern, unsigned lead)
{
    if (length < secondRange)
        return BigEndian(lead | (length - 1), 1);
    if (length < thirdRange)
        return BigEndian(lead | secondPattern, 1) + BigEndian(length - secondRange, 1);
    return BigEndian(lead | thirdPattern, 1) + BigEndian(length - thirdRange, 4);
}

std::string LengthOnBit2(unsigned long length, unsigned lead)
{
    return Length(length, 65, 321, 0x40, 0x60, lead);
}

std::string LengthOnBit5(unsigned long length, unsigned lead)
{
    return Length(length, 9, 265, 0x08, 0x0C, lead);
}

std::string LengthOnBit7(unsigned long length, unsigned lead)
{
    return Length(length, 3, 259, 0x02, 0x03, lead);
}

/// A short text of its own for every index.
std::wstring TextOf(unsigned long index)
{
    return {static_cast<wchar_t>(L'a' + (index >> 10)), static_cast<wchar_t>(L'a' + (index & 0x3FF))};
}

/// Settings with a vocabulary whose tables are all full.
const CSerializationContext& FullTables()
{
    static const CSerializationContext context = [] {
        CSerializationContext full;
        CFIVocabulary& vocabulary = *full.GetFIContext().GetVocabulary();
        for (unsigned long index = 1; index <= LAST; ++index) {
            vocabulary.AddValueToVector(TextOf(index), vocabulary.GetLocalNamesTable());
            vocabulary.AddValueToVector(TextOf(index), vocabulary.GetAttributeValuesTable());
            vocabulary.AddValueToVector(TextOf(index), vocabulary.GetCharacterChunksTable());
            vocabulary.AddQNameToVector(0, 0, index, vocabulary.GetElementNamesTable());
            vocabulary.AddQNameToVector(0, 0, index, vocabulary.GetAttributeNamesTable());
        }
        full.GetFIContext().SetUseGeneratedVocabulary(true);
        return full;
    }();
    return context;
}

/// Whether the index is to be tried where one costs much: near the ends of the ranges, and some in between.
bool IsSample(unsigned long index)
{
    for (const unsigned long border : {0ul, 32ul, 64ul, 2080ul, 8256ul, 526368ul, LAST})
        if (index + 20 >= border && index <= border + 20)
            return true;
    return index % 251 == 0;
}

} // namespace

TEST(CodecReader, DecodesEveryIndexOfTextAndValues)
{
    static unsigned long expected;
    static unsigned long wrong;
    expected = 0;
    wrong = 0;
    CXmlDocument document(
        [](CXmlElement* element) {
            if (element->GetParent()) {
                const std::wstring text = TextOf(++expected);
                wrong += element->GetText() != text || element->GetAttribute(L"x", L"") != text;
            }
            return true;
        },
        FullTables());
    std::string octets = FastInfoset("3C 00'a'");
    for (unsigned long index = 1; index <= LAST; ++index) {
        octets += Octets("7C 00'b' 78 00'x'") + IntegerOnBit2(index, 0x80) + '\xF0';
        octets += IntegerOnBit4(index, 0xA0) + '\xF0';
    }
    TestSupport::LoadOctets(document, octets + '\xF0');
    EXPECT_EQ(LAST, expected);
    EXPECT_EQ(0u, wrong);
}

TEST(CodecReader, DecodesIndexesOfNames)
{
    static std::vector<unsigned long> samples;
    static unsigned long ended;
    static unsigned long wrong;
    samples.clear();
    ended = 0;
    wrong = 0;
    CXmlDocument document(
        [](CXmlElement* element) {
            if (element->GetParent()) {
                const std::wstring name = TextOf(samples[ended / 2]);
                ++ended;
                wrong += element->GetLocalName() != name;
                for (const CXmlAttribute* attribute : element->GetAttributes())
                    wrong += attribute->GetLocalName() != name;
            }
            return true;
        },
        FullTables());
    // An element and its attribute by the indexes of their names, and in it one by the index of its local name.
    std::string octets = FastInfoset("3C 00'a'");
    for (unsigned long index = 1; index <= LAST; ++index) {
        if (IsSample(index)) {
            samples.push_back(index);
            octets += IntegerOnBit3(index, 0x40) + IntegerOnBit2(index, 0) + "\xFF\xF0";
            octets += '\x3C' + IntegerOnBit2(index, 0x80) + '\xFF';
        }
    }
    TestSupport::LoadOctets(document, octets + '\xF0');
    EXPECT_EQ(2 * samples.size(), ended);
    EXPECT_EQ(0u, wrong);
}

TEST(CodecReader, DecodesEveryLength)
{
    std::vector<unsigned long> lengths;
    for (unsigned long length = 1; length <= 700; ++length)
        lengths.push_back(length);
    lengths.insert(lengths.end(), {4096, 65535, 65536, 65537, 65536 + 259, 65536 + 265, 65536 + 321, 1 << 20});
    for (const unsigned long length : lengths) {
        const std::string content(length, 'x');
        const std::string octets = FastInfoset("7C") + LengthOnBit2(length, 0) + content + Octets("78 00'x'")
            + LengthOnBit5(length, 0) + content + Octets("F0") + LengthOnBit7(length, 0x80) + content
            + Octets("80'.' FF");
        const std::wstring text(length, L'x');
        EXPECT_TRUE(text + L" @x=" + text + L" '" + text + L".'" == TreeOf(octets)) << length;
    }
}

TEST(CodecReader, DecodesTableNumbersAcrossOctets)
{
    // Alphabets and algorithms from 1 to 256, those that exist and those that do not.
    for (unsigned number = 1; number <= 256; ++number) {
        const std::string chunk = Code((number - 1) << 2, 2, 0x88) + "\x11";
        const std::string value = Code((number - 1) << 4, 2, 0x20) + "\x11";
        const wchar_t* const text = number == 1 || number == 2 ? L"11" : L"";
        const wchar_t* const failure = *text ? L""
                                             : L"Failed to parse FastInfoset. Invalid Encoding of Restricted Alphabet. "
                                               L"Alphabet must contain between 2 and 2^20 characters.";
        const std::string asChunk = FastInfoset("3C 00'a'") + chunk + '\xFF';
        const std::string asValue = FastInfoset("7C 00'a' 78 00'x'") + value + '\xFF';
        EXPECT_EQ(failure, TestSupport::FailureOf(asChunk)) << number;
        EXPECT_EQ(failure, TestSupport::FailureOf(asValue)) << number;
        if (*text) {
            EXPECT_EQ(L"a '11'", TreeOf(asChunk));
            EXPECT_EQ(L"a @x=11", TreeOf(asValue));
        }
        std::string algorithm = asChunk;
        algorithm[8] = static_cast<char>(algorithm[8] | 0x04);
        const std::wstring message = TestSupport::FailureOf(algorithm);
        EXPECT_EQ(number >= 10, message == L"Unknown byte encoding.") << number << TestSupport::Narrow(message);
    }
}
