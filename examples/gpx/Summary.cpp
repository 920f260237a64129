// SPDX-License-Identifier: MIT
#include "Summary.h"

#include "Extensions.h"
#include "ZrXmlLib16/Formatting.h"

#include <cmath>

namespace Demo {

using Gpx::CWptType;

namespace {

struct TrackStatistics {
    int segments = 0;
    int points = 0;
    int fixes[5] = {};
    double metres = 0.0;
    std::optional<ZrXmlLib16::CDateTime> firstTime;
    std::optional<ZrXmlLib16::CDateTime> lastTime;
    std::optional<ZrXmlLib16::CDecimal> lowest;
    std::optional<ZrXmlLib16::CDecimal> highest;
};

/// The smallest and the largest value that were offered.
template <class T> void Widen(std::optional<T>& smallest, std::optional<T>& largest, const std::optional<T>& value)
{
    if (value && (!smallest || *value < *smallest)) {
        smallest = value;
    }
    if (value && (!largest || *value > *largest)) {
        largest = value;
    }
}

double ToRadians(const std::optional<ZrXmlLib16::CDecimal>& degrees)
{
    constexpr double PI = 3.14159265358979323846;
    return degrees ? degrees->ToDouble() * PI / 180.0 : 0.0;
}

/// Metres along a great circle of a spherical Earth.
double Distance(const CWptType& from, const CWptType& to)
{
    constexpr double EARTH_RADIUS = 6371008.8;
    const double fromLatitude = ToRadians(from.GetLat());
    const double toLatitude = ToRadians(to.GetLat());
    const double north = std::sin((toLatitude - fromLatitude) / 2.0);
    const double east = std::sin((ToRadians(to.GetLon()) - ToRadians(from.GetLon())) / 2.0);
    const double chord = north * north + std::cos(fromLatitude) * std::cos(toLatitude) * east * east;
    return 2.0 * EARTH_RADIUS * std::asin(std::sqrt(std::fmin(chord, 1.0)));
}

void AddSegment(TrackStatistics& statistics, const Gpx::CTrksegType& segment)
{
    ++statistics.segments;
    const CWptType* previous = nullptr;
    for (const CWptType& point : segment.GetTrkpt()) {
        ++statistics.points;
        Widen(statistics.firstTime, statistics.lastTime, point.GetTime());
        Widen(statistics.lowest, statistics.highest, point.GetEle());
        if (point.GetFix()) {
            ++statistics.fixes[*point.GetFix()];
        }
        if (previous) {
            statistics.metres += Distance(*previous, point);
        }
        previous = &point;
    }
}

std::wstring DescribeTracks(const TrackStatistics& statistics)
{
    std::wstring text;
    if (statistics.firstTime) {
        text +=
            L"  times:        " + statistics.firstTime->ToString() + L" to " + statistics.lastTime->ToString() + L"\n";
    }
    if (statistics.lowest) {
        text +=
            L"  elevation:    " + statistics.lowest->ToString() + L" m to " + statistics.highest->ToString() + L" m\n";
    }
    text += ZrXmlLib16::FormatString(L"  track length: %.2f km\n", statistics.metres / 1000.0);
    std::wstring fixes;
    for (int fix = 0; fix < 5; ++fix) {
        if (statistics.fixes[fix] > 0) {
            fixes += fixes.empty() ? L"" : L", ";
            fixes += std::to_wstring(statistics.fixes[fix]) + L" " + Gpx::FixTypeToString(fix);
        }
    }
    return fixes.empty() ? text : text + L"  fixes:        " + fixes + L"\n";
}

} // namespace

std::wstring Summarise(const Gpx::CGpx& gpx)
{
    TrackStatistics statistics;
    std::wstring names;
    for (const Gpx::CTrkType& track : gpx.GetTrk()) {
        names += L"  track:        " + track.GetName().value_or(L"(no name)") + L"\n";
        for (const Gpx::CTrksegType& segment : track.GetTrkseg()) {
            AddSegment(statistics, segment);
        }
    }
    int routePoints = 0;
    for (const Gpx::CRteType& route : gpx.GetRte()) {
        routePoints += route.GetRtept().GetCount();
    }
    const std::wstring name = gpx.GetMetadata() ? gpx.GetMetadata()->GetName().value_or(L"") : L"";
    std::wstring text = name.empty() ? L"" : L"  name:         " + name + L"\n";
    text += L"  creator:      " + gpx.GetCreator().value_or(L"") + L"\n";
    text += ZrXmlLib16::FormatString(L"  waypoints:    %d\n", gpx.GetWpt().GetCount());
    text += ZrXmlLib16::FormatString(L"  routes:       %d with %d points\n", gpx.GetRte().GetCount(), routePoints);
    text += ZrXmlLib16::FormatString(L"  tracks:       %d with %d segments and %d points\n", gpx.GetTrk().GetCount(),
        statistics.segments, statistics.points);
    const std::size_t extensions = FindExtensions(gpx).size();
    if (extensions > 0) {
        text += ZrXmlLib16::FormatString(
            L"  extensions:   %zu with %zu elements\n", extensions, FindUntypedElements(gpx).size());
    }
    return statistics.points == 0 ? text + names : text + names + DescribeTracks(statistics);
}

} // namespace Demo
