// SPDX-License-Identifier: MIT
#include "benchmarks/Report.h"

#include <cstdio>

namespace {

const DocumentFigures& DocumentOf(const RowFigures& figures, const Row& row)
{
    return figures.documents[static_cast<std::size_t>(row.document)];
}

double Ratio(const RowFigures& figures, const Row& row)
{
    return row.bestSeconds / DocumentOf(figures, row).floorSeconds;
}

/// The figure of a row of the large document over that of the same row without "/32"; 0 when there is none.
double TimesStandard(const RowFigures& figures, const Row& row)
{
    for (const Row& other : figures.rows) {
        if (row.name == std::string(other.name) + "/32" && row.task != Task::Floor) {
            return Ratio(figures, row) / Ratio(figures, other);
        }
    }
    return 0;
}

/// Peak per byte of the document as XML, the caller's input included.
double PeakPerByte(const RowFigures& figures, const Row& row)
{
    const double bytes = static_cast<double>(DocumentOf(figures, row).bytes);
    const double input = row.task == Task::Read && row.form == Form::Xml ? bytes : 0;
    return (static_cast<double>(row.peakBytes) + input) / bytes;
}

void PrintRow(const RowFigures& figures, const Row& row)
{
    const DocumentFigures& document = DocumentOf(figures, row);
    std::printf("%-24s %11.1f %8.1f %7.2f", row.name, row.bestSeconds * 1e6,
        static_cast<double>(document.bytes) / row.bestSeconds / 1e6, Ratio(figures, row));
    const double timesStandard = TimesStandard(figures, row);
    if (timesStandard != 0) {
        std::printf(" %10.2f", timesStandard);
    } else {
        std::printf(" %10s", "-");
    }
    std::printf(" %13.2f %10.1f\n", static_cast<double>(row.blocks) / static_cast<double>(document.counts.elements),
        PeakPerByte(figures, row));
}

void PrintMemoryLine(const RowFigures& figures, const char* rowName, const char* lineName)
{
    for (const Row& row : figures.rows) {
        if (std::string(row.name) == rowName) {
            std::printf("x %s %.3f\n", lineName, PeakPerByte(figures, row));
        }
    }
}

} // namespace

void PrintTable(const RowFigures& figures)
{
    const char* const names[] = {"small", "1 MB", "indented", "/32", "indented/32"};
    for (std::size_t kind = 0; kind < documentKinds; ++kind) {
        const DocumentFigures& document = figures.documents[kind];
        if (document.bytes != 0) {
            std::printf("%-12s %zu bytes, %zu objects, %zu elements, %zu attributes, %zu typed values, %zu strings\n",
                names[kind], document.bytes, document.counts.objects, document.counts.elements,
                document.counts.attributes, document.counts.typedValues, document.counts.strings);
        }
    }
    std::printf(
        "\n%-24s %11s %8s %7s %10s %13s %10s\n", "row", "us", "MB/s", "x", "times 1 MB", "blocks/elem.", "peak B/B");
    for (const Row& row : figures.rows) {
        PrintRow(figures, row);
    }
}

void PrintSizes(const Effort& effort)
{
    Sample sample(effort.standardOrders, false);
    const struct {
        const char* name;
        Form form;
    } forms[] = {{"XML", Form::Xml}, {"JSON", Form::Json}, {"Fast Infoset", Form::FastInfoset},
        {"Fast Infoset, compact", Form::CompactFastInfoset}};
    const double xmlBytes = static_cast<double>(sample.GetDocument().bytes.size());
    std::printf("\n%-24s %11s %8s %11s %8s\n", "size in bytes", "plain", "of XML", "gzip", "of XML");
    for (const auto& form : forms) {
        const std::size_t plain = sample.GetBytes(form.form).size();
        const std::size_t gzip =
            WriteObject(sample.GetObjects(), form.form, false, ZrXmlLib16::Compression_GZip).GetLength();
        std::printf("%-24s %11zu %8.2f %11zu %8.2f\n", form.name, plain, static_cast<double>(plain) / xmlBytes, gzip,
            static_cast<double>(gzip) / xmlBytes);
    }
}

void PrintLines(const RowFigures& figures, const std::vector<NamedFigure>& others)
{
    std::printf("\n");
    for (const Row& row : figures.rows) {
        if (row.task != Task::Floor) {
            std::printf("x %s %.3f\n", row.name, Ratio(figures, row));
        }
    }
    PrintMemoryLine(figures, "xml-read/32", "mem-read/32");
    PrintMemoryLine(figures, "xml-write/32", "mem-write/32");
    for (const NamedFigure& figure : others) {
        std::printf("x %s %.3f\n", figure.name.c_str(), figure.value);
    }
    for (const Row& row : figures.rows) {
        const double timesStandard = TimesStandard(figures, row);
        if (timesStandard != 0) {
            std::printf("times-1MB %s %.3f\n", row.name, timesStandard);
        }
    }
}
