// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/FormatSettings.h"
#include "streams/Utf8TextStream.h"
#include "json/JsonReaderMessages.h"
#include "json/JsonTapeWriter.h"

namespace ZrXmlLib16 {

namespace {

/// The octets of a document that may not become arbitrarily long.
class LimitedStream : public CUtf8TextStream {
public:
    explicit LimitedStream(unsigned long maximumOctets)
        : m_maximumOctets(maximumOctets)
    {
    }

    void Flush() override
    {
        CUtf8TextStream::Flush();
        if (GetOctetCount() > m_maximumOctets) {
            throw CZrException(FormatString(Message::JSON_EXPANDS_TOO_FAR, m_maximumOctets));
        }
    }

private:
    const unsigned long m_maximumOctets;
};

} // namespace

CBinaryData CJsonTextReader::ConvertJsonToXml(const std::wstring& json, const CSerializationContext& context)
{
    return ConvertTextToXml(json, context);
}

CBinaryData CJsonTextReader::ConvertTextToXml(std::wstring_view json, const CSerializationContext& context)
{
    const CJsonContext& settings = CFormatSettings::Json(context);
    // The items of an array repeat its name: a short text may stand for a very long document.
    LimitedStream stream(CFormatSettings::MaximumExpansion(context, json.size()));
    CXmlTextWriter writer(stream);
    JsonTapeWriter::LetJoinCalls(writer);
    CJsonTextReader reader(json);
    CJsonReaderToXmlHandler handler(writer, settings.GetSupportRoundtrip(), *reader.GetErrorPathProvider());
    reader.SetJsonReaderHandler(&handler);
    reader.SetAllowComments(settings.GetAllowComments());
    reader.SetRootElementName(settings.GetRootElementName().c_str());
    reader.Read();
    writer.Close();
    return stream.TakeOctets();
}

} // namespace ZrXmlLib16
