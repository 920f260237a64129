// SPDX-License-Identifier: MIT
#include "benchmarks/CpuClock.h"
#include "benchmarks/Measurement.h"
#include "benchmarks/ShapeClasses.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <stdexcept>

namespace {

/// What is timed for one shape in one size. An empty action is left out.
struct ShapeCase {
    std::function<void()> read;
    std::function<void()> write;
};

struct Shape {
    const char* name;
    std::vector<std::size_t> sizes;
    ShapeCase (*make)(std::size_t size);
};

/// Reading and writing an object of a class, from the object; proves that what is read is what was written.
template <class Object> ShapeCase Bound(std::shared_ptr<Object> object, Form form)
{
    auto bytes = std::make_shared<std::string>(TextOf(WriteObject(*object, form)));
    Object copy;
    ReadObject(copy, form, *bytes);
    if (TextOf(WriteObject(copy, form)) != *bytes) {
        throw std::runtime_error("a document of a shape changed");
    }
    ShapeCase made;
    made.read = [bytes, form] {
        Object fresh;
        ReadObject(fresh, form, *bytes);
    };
    made.write = [object, form] { WriteObject(*object, form); };
    return made;
}

ShapeCase Text(std::size_t characters, std::size_t lineLength)
{
    std::wstring text(characters, L'x');
    for (std::size_t i = lineLength; i <= characters; i += lineLength) {
        text[i - 1] = L'\n';
    }
    auto object = std::make_shared<Shapes::TextHolder>();
    object->SetText(std::move(text));
    return Bound(object, Form::Xml);
}

ShapeCase OnePieceOfText(std::size_t characters)
{
    return Text(characters, characters + 1);
}

ShapeCase LinesOfText(std::size_t characters)
{
    return Text(characters, 64);
}

std::shared_ptr<Shapes::NoteList> Notes(std::size_t count)
{
    auto list = std::make_shared<Shapes::NoteList>();
    for (std::size_t i = 0; i < count; ++i) {
        list->Add();
    }
    return list;
}

ShapeCase Siblings(std::size_t count)
{
    auto list = std::make_shared<Shapes::NoteList>();
    std::string bytes = "<notes xmlns=\"urn:example:purchase-orders\">";
    for (std::size_t i = 0; i < count; ++i) {
        bytes += "<note>Ring the bell</note>";
    }
    ReadObject(*list, Form::Xml, bytes + "</notes>");
    return Bound(list, Form::Xml);
}

ShapeCase WildcardAttributes(std::size_t count)
{
    auto bag = std::make_shared<Shapes::AttributeBag>();
    for (std::size_t i = 0; i < count; ++i) {
        bag->GetAttributes().Add(L"", L"value", (L"name" + std::to_wstring(i)).c_str());
    }
    return Bound(bag, Form::Xml);
}

ShapeCase JsonNumbers(std::size_t count)
{
    auto list = std::make_shared<Shapes::ValueList<ZrXmlLib16::Ci4Col>>();
    for (std::size_t i = 0; i < count; ++i) {
        list->GetValues().Add(1000000 + static_cast<long>(i));
    }
    return Bound(list, Form::Json);
}

/// All different and short enough for the vocabulary.
ShapeCase FastInfosetValues(std::size_t count)
{
    auto list = std::make_shared<Shapes::ValueList<ZrXmlLib16::CstringCol>>();
    for (std::size_t i = 0; i < count; ++i) {
        const std::wstring digits = std::to_wstring(100000 + i);
        list->GetValues().Add(digits.substr(digits.size() - 5));
    }
    return Bound(list, Form::FastInfoset);
}

ShapeCase IndexedCollection(std::size_t count)
{
    const std::shared_ptr<Shapes::NoteList> list = Notes(count);
    ShapeCase made;
    made.read = [list] {
        const ZrXmlLib16::CXmlCollection& notes = list->GetNotes();
        const int end = notes.GetCount();
        for (int i = 0; i < end; ++i) {
            if (!notes.GetNodeAtIndex(i)->GetItem()) {
                throw std::runtime_error("an item is missing");
            }
        }
    };
    return made;
}

constexpr std::size_t megabyte = 1 << 20;

const Shape shapes[] = {
    {"double-text", {megabyte, 2 * megabyte, 4 * megabyte, 8 * megabyte, 16 * megabyte, 32 * megabyte, 64 * megabyte},
        OnePieceOfText},
    {"double-lines", {megabyte, 2 * megabyte, 4 * megabyte, 8 * megabyte, 16 * megabyte, 32 * megabyte, 64 * megabyte},
        LinesOfText},
    {"double-siblings", {100000, 250000, 500000, 1000000}, Siblings},
    {"double-attributes", {100, 312, 625, 1250, 2500, 5000, 10000}, WildcardAttributes},
    {"double-json-array", {125000, 250000, 500000, 1000000}, JsonNumbers},
    {"double-finf-values", {12500, 25000, 50000, 100000}, FastInfosetValues},
    {"double-collection", {250000, 500000, 1000000, 2000000}, IndexedCollection},
};

/// Best time of one run, within what the effort allows for one size; at least three runs unless that is nothing.
double BestOf(const std::function<void()>& action, double seconds)
{
    double best = 0;
    double spent = 0;
    for (unsigned runs = 0; runs == 0 || spent < seconds || (seconds > 0 && runs < 3); ++runs) {
        const double taken = SecondsOf(action);
        KeepBest(best, taken);
        spent += taken;
    }
    return best;
}

/// Ratio of the times when the size doubles, worst of all steps; steps that are no doublings are converted.
double WorstDoubling(const std::vector<std::size_t>& sizes, const std::vector<double>& seconds)
{
    double worst = 0;
    for (std::size_t i = 1; i < sizes.size(); ++i) {
        const double doublings = std::log2(static_cast<double>(sizes[i]) / static_cast<double>(sizes[i - 1]));
        worst = std::max(worst, std::pow(seconds[i] / seconds[i - 1], 1 / doublings));
    }
    return worst;
}

/// One line of times and the figure of it.
NamedFigure Evaluate(const std::string& name, const std::vector<std::size_t>& sizes, const std::vector<double>& seconds)
{
    const double doublings = std::log2(static_cast<double>(sizes.back()) / static_cast<double>(sizes.front()));
    const double worst = WorstDoubling(sizes, seconds);
    std::printf("%-26s %6.2f %6.2f  ", name.c_str(), worst, std::pow(seconds.back() / seconds.front(), 1 / doublings));
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        std::printf(" %7.1f", seconds[i] * 1e9 / static_cast<double>(sizes[i]));
    }
    std::printf("\n");
    return {name, worst};
}

void MeasureShape(const Shape& shape, const Effort& effort, std::vector<NamedFigure>& figures)
{
    std::vector<std::size_t> sizes;
    for (std::size_t size : shape.sizes) {
        sizes.push_back(std::max<std::size_t>(size / effort.shapeDivisor, sizes.empty() ? 1 : sizes.back() * 2));
    }
    std::vector<double> read(sizes.size());
    std::vector<double> write(sizes.size());
    for (unsigned pass = 0; pass < effort.shapePasses; ++pass) {
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            const ShapeCase sized = shape.make(sizes[i]);
            KeepBest(read[i], BestOf(sized.read, effort.shapeSeconds));
            if (sized.write) {
                KeepBest(write[i], BestOf(sized.write, effort.shapeSeconds));
            }
        }
    }
    const std::string name = shape.name;
    const bool both = write.front() != 0;
    figures.push_back(Evaluate(both ? name + "-read" : name, sizes, read));
    if (both) {
        figures.push_back(Evaluate(name + "-write", sizes, write));
    }
}

} // namespace

std::vector<NamedFigure> MeasureShapes(const Effort& effort, const std::regex& filter)
{
    std::vector<NamedFigure> figures;
    for (const Shape& shape : shapes) {
        if (std::regex_search(shape.name, filter)) {
            if (figures.empty()) {
                std::printf(
                    "\n%-26s %6s %6s   %s\n", "times when doubled", "worst", "mean", "ns per unit of size, by size");
            }
            MeasureShape(shape, effort, figures);
        }
    }
    return figures;
}
