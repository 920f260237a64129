// SPDX-License-Identifier: MIT
// Reads a document that is larger than the memory the program uses. CXmlDocument calls a function at the end of every
// element; each record is handled there and then taken out of the tree, so that the tree never holds more than one.
//
// The document itself must be there as bytes: Load reads a whole file into memory, and LoadXmlStream takes bytes of the
// caller, which are not copied when they are not compressed. So the program maps the file and lets the system page it.
// It is no way for a stream without an end, nor for compressed documents, which are decompressed into memory first.
#include "MappedFile.h"
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "shared/telemetry/Reading.h"

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

constexpr unsigned long MEGABYTE = 1000000;

/// A document that adds up its readings while it is loaded. The function at the end of an element is a plain function;
/// it finds the object through the document that the element belongs to.
class CReadingDocument : public ZrXmlLib16::CXmlDocument {
public:
    explicit CReadingDocument(const MappedFile& file)
        : CXmlDocument(OnElementEnd)
        , m_file(file)
    {
        LoadXmlStream(file.GetData(), file.GetSize());
    }
    unsigned long GetCount() const { return m_count; }
    double GetMeanTemperature() const { return m_temperatures / static_cast<double>(m_count); }

private:
    /// @return whether the element is to be destroyed.
    static bool OnElementEnd(ZrXmlLib16::CXmlElement* element)
    {
        if (element->GetParent() == nullptr || element->GetParent()->GetParent() != nullptr) {
            return false; // the root, and what lies inside a record and goes with it
        }
        static_cast<CReadingDocument*>(element->GetDocument())->Add(*element);
        return true;
    }
    void Add(ZrXmlLib16::CXmlElement& element)
    {
        m_reading.ReadFrom(element, GetSerializationContext());
        m_temperatures += static_cast<double>(*m_reading.GetTemperature());
        constexpr unsigned long recordsBetweenReleases = 10000; // about 2 MB
        if (++m_count % recordsBetweenReleases == 0) {
            m_file.ReleasePages();
        }
    }

    const MappedFile& m_file;
    Telemetry::CReading m_reading;
    unsigned long m_count = 0;
    double m_temperatures = 0;
};

double PeakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024.0 / static_cast<double>(MEGABYTE);
}

int Run(unsigned long megabytes, double limit)
{
    const MappedFile file(MakeLogFile(megabytes * MEGABYTE));
    const CReadingDocument document(file);
    std::printf("document: %lu MB\nreadings: %lu, mean temperature %.2f\npeak memory: %.1f MB\n",
        file.GetSize() / MEGABYTE, document.GetCount(), document.GetMeanTemperature(), PeakMegabytes());
    if (limit > 0 && PeakMegabytes() > limit) {
        std::fprintf(stderr, "That is more than %.0f MB.\n", limit);
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        // large-document [MEGABYTES [LIMIT]]: size of the document, and of the memory that may be used.
        return Run(argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 200, argc > 2 ? std::strtod(argv[2], nullptr) : 0);
    } catch (const ZrXmlLib16::CZrException& exception) {
        std::fprintf(stderr, "%s\n", ZrXmlLib16::FormatReport(exception).c_str());
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
    }
    return 1;
}
