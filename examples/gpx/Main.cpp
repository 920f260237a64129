// SPDX-License-Identifier: MIT
// Reads a GPX file into objects, changes them, writes them, and reads them back.
#include "Difference.h"
#include "Extensions.h"
#include "GpxFile.h"
#include "Mistakes.h"
#include "OtherFormats.h"
#include "SampleWalk.h"
#include "Summary.h"
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/ErrorReport.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

using Demo::Cost;
using ZrXmlLib16::CEncoder;

constexpr char USAGE[] = "Usage: gpx_demo [FILE [OUTPUT]]\n"
                         "Reads the GPX 1.1 file FILE, gzip-compressed or not, and writes a changed copy to OUTPUT.\n"
                         "Without FILE it makes a sample first. Files that are not named lie beside the program.\n";

void Print(const std::wstring& text)
{
    std::fputs(CEncoder::UnicodeToUtf8(text).c_str(), stdout);
}

void PrintReport(const char* title, const std::string& report)
{
    std::string indented = "  | ";
    for (const char character : report) {
        indented += character;
        if (character == '\n') {
            indented += "  | ";
        }
    }
    std::printf("\n%s\n%s\n", title, indented.c_str());
}

void PrintCost(const char* action, const std::string& fileName, const Cost& cost)
{
    constexpr double MEGABYTE = 1e6;
    std::printf("%s %s\n  %lu bytes in %.1f ms, %.1f MB/s\n", action, fileName.c_str(), cost.bytes,
        cost.seconds * 1000.0, static_cast<double>(cost.bytes) / MEGABYTE / cost.seconds);
}

std::string BesideProgram(const char* fileName)
{
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / fileName).string();
}

std::string MakeSampleFile()
{
    const std::string fileName = BesideProgram("sample.gpx");
    std::ofstream file(fileName, std::ios::binary);
    file << Demo::MakeSampleWalk();
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + fileName);
    }
    return fileName;
}

/// @throws CZrException with the name of the file.
Demo::ReadResult Read(const std::string& fileName)
{
    const std::wstring wideName = CEncoder::Utf8ToUnicode(fileName);
    try {
        return Demo::ReadGpxFile(wideName);
    } catch (const ZrXmlLib16::CZrException& exception) {
        throw ZrXmlLib16::CZrException(L"cannot read " + wideName, exception);
    }
}

/// @throws CZrException with the name of the file.
Cost Write(const Gpx::CGpx& gpx, const Demo::Prefixes& prefixes, const std::string& fileName)
{
    const std::wstring wideName = CEncoder::Utf8ToUnicode(fileName);
    try {
        return Demo::WriteGpxFile(gpx, prefixes, wideName);
    } catch (const ZrXmlLib16::CZrException& exception) {
        throw ZrXmlLib16::CZrException(L"cannot write " + wideName, exception);
    }
}

void Change(Gpx::CGpx& gpx)
{
    Gpx::CWptType& waypoint = gpx.GetWpt().Add();
    waypoint.SetLat(ZrXmlLib16::CDecimal(L"47.0600"));
    waypoint.SetLon(ZrXmlLib16::CDecimal(L"11.4150"));
    waypoint.SetName(L"Added by gpx_demo <\u00e4\u00f6\u00fc & \u20ac>");
    ZrXmlLib16::CDateTime noon(2026, 5, 16, 12, 0, 0, 125);
    noon.SetTimeZone(0);
    waypoint.SetTime(noon);
    waypoint.SetFix(Gpx::FixType_3d);
    std::printf("\nChanged: appended a waypoint");
    if (gpx.GetTrk().GetCount() > 0) {
        Gpx::CTrkType& track = gpx.GetTrk().GetAt(0);
        track.SetName(track.GetName().value_or(L"Track") + L" (renamed)");
        std::printf(", renamed the first track");
    }
    std::printf("\n\n");
}

/// Shows that the comparison sees a change of a value, and one inside the extensions.
void ChangeCopy(const Gpx::CGpx& gpx, const Gpx::CGpx& copy)
{
    const std::vector<ZrXmlLib16::CElement*> untyped = Demo::FindUntypedElements(copy);
    if (!untyped.empty()) {
        const std::wstring text = untyped.back()->GetText();
        untyped.back()->SetText((text + L"!").c_str());
        Print(L"  After one change to its extensions they differ, first at " + Demo::FindDifference(gpx, copy) + L"\n");
        untyped.back()->SetText(text.c_str());
    }
    copy.GetWpt().GetAt(copy.GetWpt().GetCount() - 1).SetEle(ZrXmlLib16::CDecimal(L"0.001"));
    Print(L"  After one change to the copy they differ, first at " + Demo::FindDifference(gpx, copy) + L"\n");
}

/// @return whether no format gives other objects back.
bool CompareFormats(const Gpx::CGpx& gpx, const Demo::Prefixes& prefixes)
{
    std::printf("\nThe same objects in each format:       bytes   write ms   read ms\n");
    bool equal = true;
    for (const Demo::RoundTrip& trip : Demo::TryFormats(gpx, prefixes)) {
        std::printf("  %-32s %10lu %10.1f %9.1f  ", trip.format, trip.bytes, trip.writeSeconds * 1000.0,
            trip.readSeconds * 1000.0);
        if (!trip.failure.empty()) {
            Print(trip.failure + L"\n");
        } else {
            Print(trip.difference.empty() ? L"equal objects\n" : L"differ at " + trip.difference + L"\n");
        }
        equal = equal && trip.difference.empty();
    }
    return equal;
}

/// @return whether reading the file gives objects equal to the given ones.
bool CheckCopy(Gpx::CGpx& gpx, const std::string& fileName)
{
    const Demo::ReadResult copy = Read(fileName);
    PrintCost("Read again", fileName, copy.cost);
    if (!copy.deviation.empty()) {
        PrintReport("The copy breaks a rule:", copy.deviation);
        return false;
    }
    const std::wstring difference = Demo::FindDifference(gpx, *copy.gpx);
    if (!difference.empty()) {
        Print(L"  The objects differ, first at " + difference + L"\n");
        return false;
    }
    std::printf("  The second reading gives equal objects.\n");
    ChangeCopy(gpx, *copy.gpx);
    return true;
}

int Run(const std::string& input, const std::string& output)
{
    const Demo::ReadResult original = Read(input);
    PrintCost("Read", input, original.cost);
    Print(Demo::Summarise(*original.gpx));
    if (!original.deviation.empty()) {
        PrintReport("The file breaks the schema; what it does not allow was ignored. The first such thing:",
            original.deviation);
    }
    Change(*original.gpx);
    PrintCost("Wrote", output, Write(*original.gpx, original.prefixes, output));
    bool equal = CheckCopy(*original.gpx, output);
    equal = CompareFormats(*original.gpx, original.prefixes) && equal;
    PrintReport("A mistake on writing, latitude 91:", Demo::WriteImpossibleLatitude());
    PrintReport("A mistake on reading, <elle> for <ele>:", Demo::ReadMisspeltElement());
    return equal ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 3 || (argc == 2 && std::string(argv[1]) == "--help")) {
        std::fputs(USAGE, argc > 3 ? stderr : stdout);
        return argc > 3 ? 2 : 0;
    }
    try {
        return Run(argc > 1 ? argv[1] : MakeSampleFile(), argc > 2 ? argv[2] : BesideProgram("changed.gpx"));
    } catch (const ZrXmlLib16::CZrException& exception) {
        std::fprintf(stderr, "gpx_demo: %s\n", FormatReport(exception).c_str());
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "gpx_demo: %s\n", exception.what());
    }
    return 1;
}
