// SPDX-License-Identifier: MIT
// Sends measurements over a link where every byte counts: sizes of the same objects as XML, JSON and Fast Infoset, with
// gzip, compact values, and a vocabulary that both ends know beforehand. The classes are in shared/telemetry/.
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/Utf8.h"
#include "shared/telemetry/Log.h"

#include <cstdio>

using Telemetry::CLog;
using Telemetry::CReading;
using ZrXmlLib16::CFastInfosetContext;
using ZrXmlLib16::CFIVocabulary;
using ZrXmlLib16::CSerializationContext;

namespace {

void FillLog(CLog& log, unsigned count)
{
    log.SetStation(L"Patscherkofel");
    for (unsigned number = 0; number < count; ++number) {
        CReading& reading = log.GetReading().Add();
        reading.SetSensor(static_cast<unsigned short>(100 + number % 4));
        ZrXmlLib16::CDateTime time(
            2026, 3, 9, 14, static_cast<unsigned char>(number / 60 % 60), static_cast<unsigned char>(number % 60));
        time.SetTimeZone(0);
        reading.SetTime(time);
        reading.SetTemperature(-4.5F + 0.25F * static_cast<float>(number % 7));
        reading.SetPressure(77150 + static_cast<long>(number) * 3 % 50);
        reading.SetHealthy(true);
    }
}

CSerializationContext PlainContext()
{
    CSerializationContext context;
    context.SetDefaultNamespaceURI(Telemetry::NAMESPACE); // no prefixes
    return context;
}

/// Integers, floating-point numbers and booleans as such, dates with two characters to the octet.
CSerializationContext CompactContext()
{
    CSerializationContext context = PlainContext();
    context.GetFIContext().SetSuggestedValues();
    return context;
}

/// What a generator makes of the schema: all names, and values that are frequent. The order gives the indexes, so both
/// ends must build it in the same way.
void FillVocabulary(CFIVocabulary& vocabulary)
{
    for (const wchar_t* name : {L"log", L"reading", L"time", L"temperature", L"pressure", L"healthy"}) {
        vocabulary.AddElement(L"", Telemetry::NAMESPACE, name);
    }
    for (const wchar_t* name : {L"station", L"sensor"}) {
        vocabulary.AddAttribute(L"", L"", name);
    }
    vocabulary.AddAttributeValue(L"Patscherkofel");
}

CSerializationContext VocabularyContext()
{
    CSerializationContext context = CompactContext();
    CFastInfosetContext& settings = context.GetFIContext();
    settings.SetUseGeneratedVocabulary(true);
    settings.SetExternalVocabularyURI(L"urn:example:telemetry:1");
    FillVocabulary(*settings.GetVocabulary());
    return context;
}

/// @return whether the document gives the same objects back.
bool Print(const char* format, const std::string& document, const CLog& sent, const CSerializationContext& context)
{
    CLog received;
    if (document[0] == '{') {
        ReadJson(received, document, context);
    } else {
        ReadXml(received, document, context);
    }
    const bool isEqual = received.ToXml() == sent.ToXml();
    std::printf("  %-46s %6lu bytes%s\n", format, document.length(), isEqual ? "" : ", other objects");
    return isEqual;
}

bool PrintSizes(unsigned count)
{
    CLog log;
    FillLog(log, count);
    const CSerializationContext plain = PlainContext();
    const CSerializationContext compact = CompactContext();
    const CSerializationContext vocabulary = VocabularyContext();
    ZrXmlLib16::XmlOutputOptions xml;
    xml.formatted = false;
    ZrXmlLib16::XmlOutputOptions zippedXml = xml;
    zippedXml.compression = ZrXmlLib16::Compression_GZip;
    ZrXmlLib16::JsonOutputOptions json;
    json.formatted = false;
    ZrXmlLib16::FastInfosetOutputOptions zipped;
    zipped.compression = ZrXmlLib16::Compression_GZip;

    std::printf("%u readings:\n", count);
    bool isEqual = Print("XML", WriteXml(log, xml, plain), log, plain);
    isEqual &= Print("XML, gzip", WriteXml(log, zippedXml, plain), log, plain);
    isEqual &= Print("JSON", WriteJson(log, json, plain), log, plain);
    isEqual &= Print("Fast Infoset", WriteFastInfoset(log, {}, plain), log, plain);
    isEqual &= Print("Fast Infoset, compact values", WriteFastInfoset(log, {}, compact), log, compact);
    isEqual &=
        Print("Fast Infoset, compact values and vocabulary", WriteFastInfoset(log, {}, vocabulary), log, vocabulary);
    // Data that does not get smaller is refused; then it is sent as it is.
    try {
        isEqual &= Print("the same, gzip", WriteFastInfoset(log, zipped, vocabulary), log, vocabulary);
    } catch (const ZrXmlLib16::CZrException& exception) {
        std::printf("  the same, gzip: %s\n", FormatReport(exception).c_str());
    }
    return isEqual;
}

/// The receiver needs the vocabulary of the sender.
bool ReadWithoutVocabulary()
{
    CLog log;
    FillLog(log, 1);
    const std::string document = WriteFastInfoset(log, {}, VocabularyContext());
    try {
        ReadXml(log, document, CompactContext());
        return false;
    } catch (const ZrXmlLib16::CZrException& exception) {
        std::printf("Read without the vocabulary:\n  %s\n", FormatReport(exception).c_str());
        return true;
    }
}

} // namespace

int main()
{
    try {
        return PrintSizes(1) && PrintSizes(10) && PrintSizes(1000) && ReadWithoutVocabulary() ? 0 : 1;
    } catch (const ZrXmlLib16::CZrException& exception) {
        std::fprintf(stderr, "%s\n", FormatReport(exception).c_str());
        return 1;
    }
}
