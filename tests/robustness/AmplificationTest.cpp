// SPDX-License-Identifier: MIT
// Small inputs that stand for very large documents: each is refused by a limit, in bounded memory.
#include "fastinfoset/Octets.h"
#include "robustness/Measure.h"
#include "support/Failure.h"
#include "support/TestText.h"

#include <zlib.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

constexpr std::size_t MEBI = std::size_t(1) << 20;

CSerializationContext Limited(void (CInputLimits::*set)(unsigned long), unsigned long value)
{
    CInputLimits limits;
    (limits.*set)(value);
    CSerializationContext context;
    context.SetInputLimits(limits);
    return context;
}

/// The failure to load the octets as a document of XML or Fast Infoset; empty when they are loaded.
std::string LoadFailure(const std::string& octets, const CSerializationContext& context = CSerializationContext())
{
    return Narrow(FailureOf(octets, context));
}

std::string JsonFailure(const std::string& octets, const CSerializationContext& context = CSerializationContext())
{
    return TestSupport::FailureOf(std::function<void()>([&] {
        CXmlDocument(context).LoadJsonStream(reinterpret_cast<const unsigned char*>(octets.data()), octets.size());
    }));
}

/// A gzip member of that many blanks. All blocks are alike once the first is behind, so that its octets are repeated.
std::string GzipOfBlanks(std::size_t mebibytes)
{
    const std::string blanks(MEBI, ' ');
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, 31, 9, Z_DEFAULT_STRATEGY);
    std::string result;
    std::string output(MEBI, '\0');
    const auto deflateOnce = [&](int flush) {
        stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(blanks.data()));
        stream.avail_in = static_cast<uInt>(blanks.size());
        stream.next_out = reinterpret_cast<Bytef*>(&output[0]);
        stream.avail_out = static_cast<uInt>(output.size());
        deflate(&stream, flush);
        return output.substr(0, output.size() - stream.avail_out);
    };
    // A full flush ends at an octet and refers to nothing before it.
    result += deflateOnce(Z_FULL_FLUSH);
    result += Repeated(deflateOnce(Z_FULL_FLUSH), mebibytes - 1);
    deflateEnd(&stream);
    return result;
}

} // namespace

TEST(InputLimits, EachIsRefusedByItsNameAndAcceptedAtItsBound)
{
    const std::string xml = "<a><b/><b/></a>";
    const std::string atOctets = LoadFailure(xml, Limited(&CInputLimits::SetMaxDocumentOctets, 15));
    EXPECT_EQ("", atOctets);
    EXPECT_EQ("The document exceeds the limit of 14 octets.",
        LoadFailure(xml, Limited(&CInputLimits::SetMaxDocumentOctets, 14)));
    EXPECT_EQ("", LoadFailure(xml, Limited(&CInputLimits::SetMaxElements, 3)));
    EXPECT_EQ(
        "The document exceeds the limit of 2 elements.", LoadFailure(xml, Limited(&CInputLimits::SetMaxElements, 2)));
    const std::string infoset = FastInfoset("3C 00'a' 3C 00'b' F0 3C 00'b' FF");
    EXPECT_EQ("", LoadFailure(infoset, Limited(&CInputLimits::SetMaxElements, 3)));
    EXPECT_EQ("The document exceeds the limit of 2 elements.",
        LoadFailure(infoset, Limited(&CInputLimits::SetMaxElements, 2)));

    CBinaryData data;
    const std::string padded = "<a>" + std::string(1000, ' ') + "</a>";
    data.SetBuffer(reinterpret_cast<unsigned char*>(const_cast<char*>(padded.data())), padded.size());
    CZrZip::CompressData(data, Compression_GZip);
    const std::string zipped(data.GetData(), data.GetData() + data.GetLength());
    EXPECT_EQ("", LoadFailure(zipped, Limited(&CInputLimits::SetMaxInflatedOctets, padded.size())));
    EXPECT_EQ("The decompressed document exceeds the limit of 1006 octets.",
        LoadFailure(zipped, Limited(&CInputLimits::SetMaxInflatedOctets, padded.size() - 1)));
}

TEST(InputLimits, HoldForWideTextAndJsonToo)
{
    const CSerializationContext octets = Limited(&CInputLimits::SetMaxDocumentOctets, 20);
    TestObject object(Class(L"a").Prim(L"b").Opt());
    EXPECT_NE(std::string::npos,
        Read(Class(L"a").Prim(L"b").Opt(), L"<a><b>1</b></a>", octets).find("exceeds the limit of 20 octets"));
    EXPECT_EQ("Zr: The document exceeds the limit of 20 octets.", JsonFailure(R"({"a": {"b": "123456"}})", octets));
    EXPECT_EQ("", JsonFailure(R"({"a": {"b": "1"}})", octets));
}

TEST(InputLimits, AreCopiedWithTheContext)
{
    CSerializationContext copy(Limited(&CInputLimits::SetMaxElements, 7));
    EXPECT_EQ(7U, copy.GetInputLimits().GetMaxElements());
    EXPECT_EQ(1UL << 34, copy.GetInputLimits().GetMaxDocumentOctets());
    copy.SetInputLimits(CInputLimits());
    EXPECT_EQ(1UL << 28, copy.GetInputLimits().GetMaxElements());
}

TEST(Amplification, FourGibibytesOfBlanksInAFewMebibytes)
{
    const std::string bomb = GzipOfBlanks(4096);
    EXPECT_GT(8 * MEBI, bomb.size());
    std::string message;
    const Cost cost =
        CostOf([&] { message = LoadFailure(bomb, Limited(&CInputLimits::SetMaxInflatedOctets, 32 * MEBI)); });
    EXPECT_EQ("The decompressed document exceeds the limit of 33554432 octets.", message);
    EXPECT_GT(160 * MEBI, cost.peakBytes); // the copy of the bomb included
    EXPECT_EQ("Zr: The decompressed document exceeds the limit of 33554432 octets.",
        JsonFailure(bomb, Limited(&CInputLimits::SetMaxInflatedOctets, 32 * MEBI)));
}

TEST(Amplification, AChunkOfAMebibyteReferredToAThousandTimes)
{
    const std::string chunk =
        FastInfoset("3C 00'a' 3C 00'b' 93") + BigEndian(MEBI - 259, 4) + std::string(MEBI, 'x') + '\xF0';
    const std::string bomb = chunk + Repeated(Octets("01 A0 F0"), 1000) + '\xFF';
    std::string message;
    const Cost cost = CostOf([&] { message = LoadFailure(bomb); });
    EXPECT_EQ(0U, message.find("Failed to parse FastInfoset. Indexed text exceeds the limit of [")) << message;
    EXPECT_GT(600 * MEBI, cost.peakBytes);
}

TEST(Amplification, EntitiesOfXml)
{
    std::string nested = "<!DOCTYPE a [<!ENTITY e0 'lol lol lol'>";
    for (int i = 1; i < 12; ++i)
        nested += "<!ENTITY e" + std::to_string(i) + " '" + Repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    const std::string flat =
        "<!DOCTYPE a [<!ENTITY e '" + std::string(100000, 'x') + "'>]><a>" + Repeated("&e;", 20000);
    for (const std::string& bomb : {nested + "]><a>&e11;</a>", flat + "</a>", nested + "]><a b='&e11;'/>"}) {
        std::string message;
        const Cost cost = CostOf([&] { message = LoadFailure(bomb); });
        EXPECT_EQ(0U, message.find("limit on input amplification factor (from DTD and entities) breached")) << message;
        EXPECT_GT(200 * MEBI, cost.peakBytes);
    }
    EXPECT_EQ("",
        LoadFailure("<!DOCTYPE a SYSTEM 'file:///etc/passwd' [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><a>&e;</a>"));
}

TEST(Amplification, ALongNamespaceBehindAShortPrefix)
{
    const std::string uri = std::string(MEBI, 'u');
    // The parser itself writes the namespace out for every attribute of a tag.
    std::string attributes = "<a xmlns:p='" + uri + "'><b";
    for (int i = 0; i < 20000; ++i)
        attributes += " p:x" + std::to_string(i) + "=''";
    EXPECT_EQ("A start tag exceeds the limit of ", LoadFailure(attributes + "/></a>").substr(0, 33));
    // Each object that is read keeps its name.
    const std::string elements = "<a xmlns:p='" + uri + "'>" + Repeated("<p:b/>", 2000) + "</a>";
    EXPECT_EQ("The names of the document exceed the limit of ", LoadFailure(elements).substr(0, 46));
    const std::string infoset = FastInfoset("3C 00'a' 3C 60") + BigEndian(MEBI - 321, 4) + uri + '\xF0'
        + Repeated(Octets("01 F0"), 2000) + '\xFF';
    EXPECT_EQ("The names of the document exceed the limit of ", LoadFailure(infoset).substr(0, 46));
    const std::string infosetAttributes = FastInfoset("3C 00'a' 7C 00'b' 78 60") + BigEndian(MEBI - 321, 4) + uri
        + Octets("FF FF") + Repeated(Octets("41 00 FF FF"), 2000) + '\xFF';
    EXPECT_EQ("The names of the document exceed the limit of ", LoadFailure(infosetAttributes).substr(0, 46));
    // A document of its own size may have them.
    EXPECT_EQ("", LoadFailure("<a xmlns:p='" + uri + "'>" + Repeated("<p:b/>", 50) + "</a>"));
}

TEST(Amplification, LongNamesRepeatedByArraysOfJson)
{
    const std::string bomb = "{\"a\": {\"" + std::string(1000, 'n') + "\": [" + Repeated("1,", 200000) + "1]}}";
    std::string message;
    const Cost cost = CostOf([&] { message = JsonFailure(bomb); });
    EXPECT_EQ("Zr: The JSON document exceeds the limit of 67108864 expanded characters.", message);
    EXPECT_GT(400 * MEBI, cost.peakBytes);
    EXPECT_NE("", JsonFailure("{\"a\": {\"" + std::string(50000, 'n') + "\": [1, 2]}}"));
}
