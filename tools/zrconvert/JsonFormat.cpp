// SPDX-License-Identifier: MIT
#include "JsonFormat.h"

#include "JsonEscapes.h"
#include "XmlFormat.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/XmlDocument.h"

#include <algorithm>

namespace Convert {

namespace {

const unsigned char* FirstCharacter(const Bytes& bytes)
{
    constexpr unsigned char MARK[] = {0xEF, 0xBB, 0xBF};
    const unsigned char* const begin = bytes.data();
    const unsigned char* const end = begin + bytes.size();
    const bool isMarked = bytes.size() >= sizeof(MARK) && std::equal(std::begin(MARK), std::end(MARK), begin);
    return std::find_if(isMarked ? begin + sizeof(MARK) : begin, end,
        [](unsigned char octet) { return octet != ' ' && octet != '\t' && octet != '\r' && octet != '\n'; });
}

} // namespace

bool LooksLikeJson(const Bytes& bytes)
{
    const unsigned char* const first = FirstCharacter(bytes);
    return first != bytes.data() + bytes.size() && (*first == '{' || *first == '[');
}

Document ReadJson(const Bytes& bytes, const Settings& settings)
{
    Document document;
    document.context.GetJsonContext().SetSupportRoundtrip(settings.jsonMode);
    Bytes converted;
    {
        const Bytes plain = DecodeUnicodeEscapes(bytes);
        const ZrXmlLib16::CBinaryData xml =
            ZrXmlLib16::CXmlDocument(document.context).LoadJsonStream(plain.data(), plain.size());
        converted.assign(xml.GetData(), xml.GetData() + xml.GetLength());
    }
    // The XML that the library makes of JSON is indented.
    TextRules texts = settings.texts;
    texts.trim = true;
    return ReadTree(document, converted, texts);
}

ZrXmlLib16::CBinaryData WriteJson(const Document& document, const Settings& settings)
{
    EscapeForJson(*document.root, document.context);
    document.context.GetJsonContext().SetSupportRoundtrip(settings.jsonMode);
    return document.root->ToJsonStream(
        settings.format, ZrXmlLib16::Encoding_UTF8, settings.endOfLine, document.context, settings.compression);
}

} // namespace Convert
