// SPDX-License-Identifier: MIT
#include "SampleWalk.h"

#include <cmath>
#include <cstdint>
#include <cstdio>

namespace Demo {
namespace {

constexpr int SECONDS_PER_POINT = 5;
constexpr int START_OF_DAY = 7 * 3600 + 12 * 60;

constexpr char HEAD[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- An invented walk; nobody was there. -->
<gpx version="1.1" creator="gpx_demo sample" xmlns="http://www.topografix.com/GPX/1/1" xmlns:body="urn:example:body-sensors" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:schemaLocation="http://www.topografix.com/GPX/1/1 http://www.topografix.com/GPX/1/1/gpx.xsd">
  <metadata>
    <name>Großer Kogel</name>
    <desc><![CDATA[Up the <north> ridge & down the south side.]]></desc>
    <author>
      <name>Anna Beispiel</name>
      <email id="anna" domain="example.org"/>
      <link href="https://example.org/anna"><text>Anna's walks</text></link>
    </author>
    <copyright author="Anna Beispiel"><year>2026</year><license>https://example.org/licence</license></copyright>
    <link href="https://example.org/walks?id=17&amp;lang=en"><text>The walk</text><type>text/html</type></link>
    <time>2026-05-16T17:45:10.250+02:00</time>
    <keywords>walk, hill, ridge</keywords>
    <bounds minlat="47.0295" minlon="11.3990" maxlat="47.0785" maxlon="11.4345"/>
    <extensions>
      <body:sensor model="Pulse 3 &lt;red&gt;" body:id="17"><body:place>chest</body:place><body:strap/></body:sensor>
      <weather xmlns="urn:example:weather" xml:lang="de">Föhn &amp; Sonne<gust unit="km/h">40</gust></weather>
    </extensions>
  </metadata>
  <wpt lat="47.031200" lon="11.403300">
    <ele>978.5</ele><time>2026-05-16T07:12:00Z</time><magvar>3.9</magvar><geoidheight>49.25</geoidheight>
    <name>Car park</name><cmt>Opens at 6</cmt><desc>Start &amp; end</desc><src>survey</src>
    <link href="https://example.org/parking"/><link href="https://example.org/bus"><text>Bus</text></link>
    <sym>Parking Area</sym><type>start</type><fix>pps</fix><sat>11</sat><hdop>0.8</hdop><vdop>1.1</vdop><pdop>1.36</pdop>
  </wpt>
  <wpt lat="47.052000" lon="11.416000"><ele>1630</ele><name>Höhenhütte</name><sym>Lodge</sym></wpt>
  <wpt lat="47.076200" lon="11.432500"><ele>2320.0</ele><name>Großer Kogel</name><sym>Summit</sym></wpt>
  <wpt lat="47.060000" lon="11.409000"><name>Spring</name><sym>Drinking Water</sym><fix>none</fix></wpt>
  <rte>
    <name>Plan</name>
    <number>1</number>
    <type>hiking</type>
)";

/// Noise that is the same in every run.
class CNoise {
public:
    /// -1 to 1.
    double Next()
    {
        m_state = m_state * 1664525U + 1013904223U;
        return static_cast<double>(m_state >> 8) / static_cast<double>(1 << 23) - 1.0;
    }

private:
    std::uint32_t m_state = 20260516U;
};

struct Place {
    double latitude;
    double longitude;
    double elevation;
};

/// @param progress 0 at the car park, 1 at the summit.
Place PlaceAt(double progress)
{
    return {47.0312 + 0.045 * progress + 0.0012 * std::sin(progress * 37.0) * (1.0 - progress),
        11.4015 + 0.031 * progress + 0.0018 * std::cos(progress * 23.0) * (1.0 - progress),
        978.5 + 1341.5 * std::pow(progress, 1.2) + 9.0 * std::sin(progress * 51.0) * (1.0 - progress)};
}

template <class... Arguments> void Append(std::string& text, const char* format, Arguments... arguments)
{
    char line[256];
    const int length = std::snprintf(line, sizeof line, format, arguments...);
    text.append(line, static_cast<std::size_t>(length));
}

void AppendFix(std::string& text, int index, CNoise& noise)
{
    const int satellites = 8 + static_cast<int>(noise.Next() * 3.0);
    const double precision = 1.2 + 0.4 * noise.Next();
    if (index % 97 == 0) {
        Append(text, "<fix>2d</fix><sat>%d</sat><hdop>%.1f</hdop>", satellites, precision + 4.0);
    } else if (index % 11 == 0) {
        Append(text, "<fix>dgps</fix><sat>%d</sat><hdop>%.1f</hdop>", satellites, precision / 2.0);
        Append(text, "<ageofdgpsdata>%.2f</ageofdgpsdata><dgpsid>%d</dgpsid>", 1.5 + noise.Next(), 120 + index % 7);
    } else {
        Append(text, "<fix>3d</fix><sat>%d</sat><hdop>%.1f</hdop>", satellites, precision);
    }
}

/// What another program adds to some points, in a namespace of its own.
void AppendBodyData(std::string& text, CNoise& noise)
{
    const int heartRate = 120 + static_cast<int>(noise.Next() * 30.0);
    const int cadence = 50 + static_cast<int>(noise.Next() * 10.0);
    Append(text, "<extensions><body:heartRate>%d</body:heartRate>", heartRate);
    Append(text, "<body:cadence unit=\"1/min\">%d</body:cadence></extensions>", cadence);
}

void AppendTrackPoint(std::string& text, const Place& place, int index, int second, CNoise& noise)
{
    Append(text, "      <trkpt lat=\"%.6f\" lon=\"%.6f\">", place.latitude + 0.00001 * noise.Next(),
        place.longitude + 0.00001 * noise.Next());
    Append(text, "<ele>%.1f</ele><time>2026-05-16T%02d:%02d:%02dZ</time>", place.elevation + noise.Next(),
        second / 3600, second / 60 % 60, second % 60);
    AppendFix(text, index, noise);
    if (index % 20 == 0) {
        AppendBodyData(text, noise);
    }
    text += "</trkpt>\n";
}

struct Leg {
    const char* name;
    double from; // progress
    double to;
    int segmentLengths[3]; // in points; 0 for none
};

void AppendTrack(std::string& text, const Leg& leg, int number, int& second, CNoise& noise)
{
    Append(text, "  <trk>\n    <name>%s</name>\n    <number>%d</number>\n    <type>hiking</type>\n", leg.name, number);
    int total = 0;
    for (const int length : leg.segmentLengths) {
        total += length;
    }
    int index = 0;
    for (const int length : leg.segmentLengths) {
        if (length == 0) {
            continue;
        }
        text += "    <trkseg>\n";
        for (int point = 0; point < length; ++point, ++index, second += SECONDS_PER_POINT) {
            const double progress = leg.from + (leg.to - leg.from) * index / (total - 1);
            AppendTrackPoint(text, PlaceAt(progress), index, second, noise);
        }
        text += "    </trkseg>\n";
        second += 300;
    }
    text += "  </trk>\n";
}

} // namespace

std::string MakeSampleWalk()
{
    std::string text = HEAD;
    for (int point = 0; point <= 8; ++point) {
        const Place place = PlaceAt(point / 8.0);
        Append(text, "    <rtept lat=\"%.5f\" lon=\"%.5f\"><ele>%.0f</ele>", place.latitude, place.longitude,
            place.elevation);
        Append(text, "<name>P%d</name></rtept>\n", point);
    }
    text += "  </rte>\n";
    CNoise noise;
    int second = START_OF_DAY;
    AppendTrack(text, {"Ascent", 0.0, 1.0, {1100, 800, 0}}, 1, second, noise);
    AppendTrack(text, {"Descent", 1.0, 0.0, {700, 650, 550}}, 2, second, noise);
    text += "</gpx>\n";
    return text;
}

} // namespace Demo
