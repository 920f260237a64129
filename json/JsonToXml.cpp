// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/FormatSettings.h"
#include "json/JsonReaderMessages.h"

namespace ZrXmlLib16 {

namespace {

/// Encodes the text of a writer piece by piece, so that the whole of it is never held as wide text.
class Utf8Collector : public CTextStream {
public:
    /// @param maximumOctets of the encoded text.
    explicit Utf8Collector(unsigned long maximumOctets)
        : CTextStream(Encoding_UTF8)
        , m_maximumOctets(maximumOctets)
    {
    }

    void Open() override
    {
        CTextStream::Open();
        m_octets.Clear();
    }

    void Close() override { Flush(); }

    void Flush() override
    {
        m_octets.Append(GetEncodedStream());
        EmptyText();
        if (m_octets.GetLength() > m_maximumOctets) {
            throw CZrException(FormatString(Message::JSON_EXPANDS_TOO_FAR, m_maximumOctets));
        }
    }

    const CBinaryData& GetOctets() const { return m_octets; }

private:
    const unsigned long m_maximumOctets;
    CBinaryData m_octets;
};

} // namespace

CBinaryData CJsonTextReader::ConvertJsonToXml(const std::wstring& json, const CSerializationContext& context)
{
    const CJsonContext& settings = CFormatSettings::Json(context);
    // The items of an array repeat its name: a short text may stand for a very long document.
    Utf8Collector stream(CFormatSettings::MaximumExpansion(context, json.size()));
    CXmlTextWriter writer(stream);
    CJsonTextReader reader(json);
    CJsonReaderToXmlHandler handler(writer, settings.GetSupportRoundtrip(), *reader.GetErrorPathProvider());
    reader.SetJsonReaderHandler(&handler);
    reader.SetAllowComments(settings.GetAllowComments());
    reader.SetRootElementName(settings.GetRootElementName().c_str());
    reader.Read();
    writer.Close();
    return stream.GetOctets();
}

} // namespace ZrXmlLib16
