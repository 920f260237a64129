// SPDX-License-Identifier: MIT
#include "OtherFormats.h"

#include "Difference.h"
#include "Extensions.h"
#include "Stopwatch.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/ZrException.h"

namespace Demo {

using ZrXmlLib16::CBinaryData;
using ZrXmlLib16::CFastInfosetContext;
using ZrXmlLib16::CSerializationContext;

namespace {

CBinaryData WriteXml(const Gpx::CGpx& gpx, CSerializationContext& context)
{
    return gpx.ToXmlStream(true, false, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context);
}

CBinaryData WriteCompressedXml(const Gpx::CGpx& gpx, CSerializationContext& context)
{
    return gpx.ToXmlStream(
        true, false, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context, ZrXmlLib16::Compression_GZip);
}

CBinaryData WriteJson(const Gpx::CGpx& gpx, CSerializationContext& context)
{
    return gpx.ToJsonStream(false, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context);
}

CBinaryData WriteFastInfoset(const Gpx::CGpx& gpx, CSerializationContext& context)
{
    return gpx.ToFastInfosetStream(ZrXmlLib16::FInfoDecl_None, context);
}

CBinaryData WriteCompactFastInfoset(const Gpx::CGpx& gpx, CSerializationContext& context)
{
    CFastInfosetContext& settings = context.GetFIContext();
    settings.SetSuggestedValues();
    // The alphabet of dates has no full stop, which fractions of a second need.
    settings.SetEncoding(ZrXmlLib16::ItemType_datetime, {CFastInfosetContext::Literal, 0});
    return WriteFastInfoset(gpx, context);
}

void ReadXml(Gpx::CGpx& gpx, const CBinaryData& bytes)
{
    gpx.FromXmlStream(bytes);
}

void ReadJson(Gpx::CGpx& gpx, const CBinaryData& bytes)
{
    gpx.FromJsonStream(bytes);
}

struct Row {
    const char* name;
    CBinaryData (*write)(const Gpx::CGpx& gpx, CSerializationContext& context);
    void (*read)(Gpx::CGpx& gpx, const CBinaryData& bytes);
};

constexpr Row ROWS[] = {
    {"XML", WriteXml, ReadXml},
    {"XML, gzip", WriteCompressedXml, ReadXml},
    {"JSON", WriteJson, ReadJson},
    {"Fast Infoset", WriteFastInfoset, ReadXml},
    {"Fast Infoset, suggested values", WriteCompactFastInfoset, ReadXml},
};

std::wstring FirstLine(const std::wstring& text)
{
    return text.substr(0, text.find(L'\n'));
}

RoundTrip Try(const Row& row, const Gpx::CGpx& gpx, const Prefixes& prefixes)
{
    RoundTrip trip{row.name, 0, 0, 0, {}, {}};
    CSerializationContext context;
    PrepareToWrite(gpx, prefixes, context);
    const ZrXmlLib16::CSmartPtr<Gpx::CGpx> copy = new Gpx::CGpx;
    try {
        const Stopwatch writing;
        const CBinaryData bytes = row.write(gpx, context);
        trip.writeSeconds = writing.GetSeconds();
        trip.bytes = bytes.GetLength();
        const Stopwatch reading;
        row.read(*copy, bytes);
        trip.readSeconds = reading.GetSeconds();
    } catch (const ZrXmlLib16::CZrException& exception) {
        trip.failure = FirstLine(exception.GetMessage());
        return trip;
    }
    RemoveIndentation(*copy);
    trip.difference = FindDifference(gpx, *copy);
    return trip;
}

} // namespace

std::vector<RoundTrip> TryFormats(const Gpx::CGpx& gpx, const Prefixes& prefixes)
{
    std::vector<RoundTrip> trips;
    for (const Row& row : ROWS) {
        trips.push_back(Try(row, gpx, prefixes));
    }
    return trips;
}

} // namespace Demo
