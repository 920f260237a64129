// SPDX-License-Identifier: MIT
#include "fuzz/RandomObject.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

using namespace ZrXmlLib16;
using TestSupport::DescribeObject;
using TestSupport::TestClass;
using TestSupport::TestObject;

namespace Fuzz {

namespace {

enum class Format { Xml, Json, FastInfoset };

struct Settings {
    Format format = Format::Xml;
    bool header = false;
    bool formatted = false;
    EOLType lineEnd = EOL_LF;
    CompressionType compression = Compression_None;
    FInfoDecl declaration = FInfoDecl_None;
    CSerializationContext context;
};

void DrawVocabulary(CFastInfosetContext& fastInfoset)
{
    fastInfoset.SetUseGeneratedVocabulary(true);
    CFIVocabulary& vocabulary = *fastInfoset.GetVocabulary();
    for (const wchar_t* name : {L"e0", L"e1", L"e2"}) {
        vocabulary.AddElement(L"", L"", name);
        vocabulary.AddElement(L"p", L"urn:a", name);
    }
    vocabulary.AddAttribute(L"", L"", L"a1");
    vocabulary.AddAttributeValue(L"true");
    vocabulary.AddElementValue(L"-");
}

void DrawFastInfoset(CFastInfosetContext& fastInfoset, InputReader& input)
{
    const unsigned bits = input.Octet();
    if (bits & 1U)
        fastInfoset.SetSuggestedValues();
    if (bits & 2U)
        DrawVocabulary(fastInfoset);
    if (bits & 4U)
        fastInfoset.SetAttributeMaxAddLength(input.Octet());
    if (bits & 8U)
        fastInfoset.SetElementMaxAddLength(input.Octet());
}

void DrawSettings(Settings& settings, bool hasNamespaces, InputReader& input)
{
    settings.format = static_cast<Format>(input.Below(3));
    const unsigned bits = input.Octet();
    settings.header = (bits & 1U) != 0;
    settings.formatted = (bits & 2U) != 0;
    settings.lineEnd = bits & 4U ? EOL_CRLF : EOL_LF;
    settings.compression = bits & 8U ? (bits & 16U ? Compression_GZip : Compression_ZLib) : Compression_None;
    settings.context.SetWriteTypeAttribute(true);
    settings.context.SetWriteDefaultElementValues((bits & 64U) != 0);
    settings.context.SetNoOptionalAttributeDefaultOutput((bits & 128U) != 0);
    settings.declaration = static_cast<FInfoDecl>(input.Below(10));
    const unsigned more = input.Octet();
    // In JSON every namespace needs an alias.
    if ((more & 1U) || settings.format == Format::Json) {
        settings.context.GetNamespaceAliases().Add(L"p", L"urn:a");
        settings.context.GetNamespaceAliases().Add(L"q", L"urn:b");
        settings.context.GetNamespaceAliases().Add(L"o", L"urn:other");
    }
    // It is not undeclared for elements without a namespace.
    if ((more & 2U) && hasNamespaces)
        settings.context.SetDefaultNamespaceURI(more & 4U ? L"urn:a" : L"urn:b");
    if (more & 8U)
        settings.context.SetIndentChars(L"\t");
    if (more & 16U)
        settings.context.GetProcessingInstructions().push_back(L"<?target data?>");
    DrawFastInfoset(settings.context.GetFIContext(), input);
}

CBinaryData Write(const TestObject& object, const Settings& settings)
{
    switch (settings.format) {
    case Format::Json:
        return object.ToJsonStream(
            settings.formatted, Encoding_UTF8, settings.lineEnd, settings.context, settings.compression);
    case Format::FastInfoset:
        return object.ToFastInfosetStream(settings.declaration, settings.context, settings.compression);
    default:
        return object.ToXmlStream(settings.header, settings.formatted, Encoding_UTF8, settings.lineEnd,
            settings.context, settings.compression);
    }
}

std::string PlainText(const CBinaryData& octets)
{
    CBinaryData plain;
    if (!CZrZip::DecompressData(octets.GetData(), octets.GetLength(), 1UL << 24, plain))
        plain = octets;
    return std::string(reinterpret_cast<const char*>(plain.GetData()), plain.GetLength());
}

void Read(TestObject& object, const CBinaryData& octets, const Settings& settings)
{
    if (settings.format == Format::Json)
        object.FromJsonStream(octets, settings.context);
    else
        object.FromXmlStream(octets, settings.context);
}

} // namespace

int RunRoundTripInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const unsigned number = input.Octet();
    const TestClass type = number % 8 == 0 ? TestSupport::SampleClass() : RandomClass(number);
    Settings settings;
    DrawSettings(settings, number % 2 == 1, input);
    Restrictions restrictions;
    restrictions.nil = restrictions.unwritableInJson = settings.format == Format::Json;
    const CSmartPtr<TestObject> object = type.Create();
    FillObject(*object, type, input, restrictions);
    CBinaryData octets;
    // Not every value has a form in every format, and compressed octets may be more than the plain ones.
    if (!Tolerate([&] { octets = Write(*object, settings); }))
        return 0;
    const CSmartPtr<TestObject> copy = type.Create();
    const std::string document = PlainText(octets);
    RequireSuccess("what is written can be read:\n" + document, [&] { Read(*copy, octets, settings); });
    RequireEqual("what is written reads back:\n" + document, DescribeObject(*object), DescribeObject(*copy));
    return 0;
}

} // namespace Fuzz
