// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "core/FormatSettings.h"

namespace ZrXmlLib16 {

namespace {

/// Encodes the text of a writer piece by piece, so that the whole of it is never held as wide text.
class Utf8Collector : public CTextStream {
public:
    Utf8Collector()
        : CTextStream(Encoding_UTF8)
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
    }

    const CBinaryData& GetOctets() const { return m_octets; }

private:
    CBinaryData m_octets;
};

} // namespace

CBinaryData CJsonTextReader::ConvertJsonToXml(const std::wstring& json, const CSerializationContext& context)
{
    const CJsonContext& settings = CFormatSettings::Json(context);
    Utf8Collector stream;
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
