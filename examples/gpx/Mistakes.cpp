// SPDX-License-Identifier: MIT
#include "Mistakes.h"

#include "ZrXmlLib16/ErrorReport.h"
#include "classes/Gpx.h"

namespace Demo {

std::string WriteImpossibleLatitude()
{
    Gpx::CGpx gpx;
    gpx.SetCreator(L"gpx_demo");
    Gpx::CTrksegType& segment = gpx.GetTrk().Add().GetTrkseg().Add();
    Gpx::CWptType& point = segment.GetTrkpt().Add();
    point.SetLat(ZrXmlLib16::CDecimal(91));
    point.SetLon(ZrXmlLib16::CDecimal(L"11.5"));
    try {
        gpx.ToXml();
    } catch (const ZrXmlLib16::CZrException& exception) {
        return FormatReport(exception);
    }
    return {};
}

std::string ReadMisspeltElement()
{
    constexpr char DOCUMENT[] = R"(<gpx version="1.1" creator="somebody" xmlns="http://www.topografix.com/GPX/1/1">
  <trk>
    <trkseg>
      <trkpt lat="47.1" lon="11.5"><ele>1200</ele></trkpt>
      <trkpt lat="47.2" lon="11.6"><elle>1210</elle></trkpt>
    </trkseg>
  </trk>
</gpx>)";
    Gpx::CGpx gpx;
    try {
        gpx.FromXml(DOCUMENT);
    } catch (const ZrXmlLib16::CZrException& exception) {
        return FormatReport(exception);
    }
    return {};
}

} // namespace Demo
