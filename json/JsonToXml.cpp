// SPDX-License-Identifier: MIT
#include "json/JsonToXml.h"

#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "core/FormatSettings.h"
#include "streams/Utf8Encoding.h"
#include "json/JsonParser.h"
#include "json/JsonTapeRecorder.h"
#include "json/JsonTapeWriter.h"
#include "json/JsonXmlStream.h"

#include <cstdint>

namespace ZrXmlLib16 {

namespace {

constexpr std::uint32_t FIRST_SURROGATE = 0xD800;

} // namespace

// No XML declaration: the text is wide when it is parsed, and a declared encoding would then contradict it.
WideText ConvertJsonToText(std::wstring_view json, const CSerializationContext& context)
{
    const CJsonContext& settings = CFormatSettings::Json(context);
    JsonTape tape(settings.GetSupportRoundtrip(), json);
    const JsonTapePath path(tape);
    JsonScanner scanner(json, settings.GetAllowComments(), path);
    JsonTapeRecorder recorder(tape, path);
    JsonParser<JsonTapeRecorder>(scanner, recorder).Parse(settings.GetRootElementName());
    // The items of an array repeat its name: a short text may stand for a very long document.
    JsonXmlStream stream(tape.GetXmlLength(), CFormatSettings::MaximumExpansion(context, json.size()));
    CXmlTextWriter writer(stream);
    JsonTapeWriter::LetJoinCalls(writer);
    writer.Open();
    JsonTapeWriter(tape, writer, path).Write();
    writer.Close();
    return stream.TakeText();
}

WideText MakeWellFormed(WideText xml)
{
    bool isWellFormed = true;
    for (const wchar_t unit : xml.View()) {
        isWellFormed &= static_cast<std::uint32_t>(unit) < FIRST_SURROGATE;
    }
    if (isWellFormed) {
        return xml;
    }
    const CBinaryData octets = EncodeXml(xml);
    return DecodeUtf8Text(octets.GetData(), octets.GetLength());
}

CBinaryData EncodeXml(const WideText& xml)
{
    const TextPiece piece = {xml.characters.get(), xml.length};
    return EncodeUtf8(&piece, 1);
}

CBinaryData CJsonTextReader::ConvertJsonToXml(const std::wstring& json, const CSerializationContext& context)
{
    return EncodeXml(ConvertJsonToText(json, context));
}

} // namespace ZrXmlLib16
