// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

#include <memory>
#include <vector>

using namespace ZrXmlLib16;

namespace Fuzz {

namespace {

enum Setting : unsigned { ZLib = 1, CompressFirst = 2, Damage = 4, Json = 8 };

constexpr unsigned long MAXIMUM = 1UL << 22;

CBinaryData Binary(const std::vector<unsigned char>& octets)
{
    CBinaryData binary;
    binary.Append(octets.data(), octets.size());
    return binary;
}

// An array of its own for each call finds reads behind the end.
void CheckInflating(const CBinaryData& input)
{
    CBinaryData limited;
    bool inflated = false;
    const bool fits =
        Tolerate([&] { inflated = CZrZip::DecompressData(input.GetData(), input.GetLength(), MAXIMUM, limited); });
    Require(limited.GetLength() <= MAXIMUM, "more octets than allowed");
    if (!fits || input.GetLength() == 0)
        return;
    unsigned long length = input.GetLength();
    std::unique_ptr<unsigned char[]> buffer(new unsigned char[length]);
    std::copy_n(input.GetData(), length, buffer.get());
    unsigned char* raw = buffer.release();
    Tolerate([&] { CZrZip::Decompress(&raw, &length); });
    const CBinaryData whole(raw, length, true);
    Require(whole == (inflated ? limited : input), "both ways of decompression agree");
}

void CheckDeflating(const CBinaryData& input, CompressionType type)
{
    CBinaryData data = input;
    if (!Tolerate([&] { CZrZip::CompressData(data, type); }) || input.GetLength() == 0)
        return;
    CBinaryData back;
    Require(CZrZip::DecompressData(data.GetData(), data.GetLength(), MAXIMUM, back), "own output decompresses");
    Require(back == input, "decompression restores what was compressed");
}

void CheckTexts(const CBinaryData& input)
{
    CBinaryData back;
    back.SetAsBase64(input.GetAsBase64().c_str());
    Require(back == input, "Base64 restores the octets");
    back.SetAsHexString(input.GetAsHexString().c_str());
    Require(back == input, "hexadecimal restores the octets");
    const std::wstring text = CEncoder::Utf8ToUnicode(input);
    RequireEqual("UTF-8 restores the text", text, CEncoder::Utf8ToUnicode(CEncoder::UnicodeToUtf8(text)));
    back.SetAsBase64(text.c_str());
    Tolerate([&] { back.SetAsHexString(text.c_str()); });
    CEncoder::Utf16ToUnicode(input.GetData(), input.GetLength(), true);
}

} // namespace

int RunCompressionInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const unsigned settings = input.Octet();
    const unsigned damage = input.Octet();
    const CompressionType type = settings & ZLib ? Compression_ZLib : Compression_GZip;
    CBinaryData octets = Binary(std::vector<unsigned char>(input.Rest(), input.Rest() + input.RestSize()));
    CheckTexts(octets);
    CheckDeflating(octets, type);
    if (settings & CompressFirst)
        Tolerate([&] { CZrZip::CompressData(octets, type); });
    if ((settings & Damage) && octets.GetLength() > 0)
        *octets[damage % octets.GetLength()] ^= static_cast<unsigned char>(damage | 1U);
    CheckInflating(octets);
    CSerializationContext context;
    LowerLimits(context);
    Tolerate([&] {
        CXmlDocument document(context);
        if (settings & Json)
            document.LoadJsonStream(octets.GetData(), octets.GetLength());
        else
            document.LoadXmlStream(octets.GetData(), octets.GetLength());
        VisitDocument(document);
    });
    return 0;
}

} // namespace Fuzz
