// SPDX-License-Identifier: MIT
// Documents of four times the size may cost about four times as much, not sixteen times: in processor time, because
// what is quadratic here takes no memory. The sizes are such that a quadratic cost is far beyond the bound.
#include "fastinfoset/Octets.h"
#include "robustness/Measure.h"
#include "support/Failure.h"

#include <algorithm>
#include <ctime>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

double SecondsOf(const std::function<void()>& action)
{
    timespec before{}, after{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
    action();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
    return static_cast<double>(after.tv_sec - before.tv_sec)
        + static_cast<double>(after.tv_nsec - before.tv_nsec) / 1e9;
}

/// A quadratic cost would be sixteen times as much, and far more than two seconds.
double LimitOf(double before)
{
    return std::max(12 * before, 2.0);
}

void ReadAndWriteUntyped(const std::string& xml)
{
    const CSmartPtr<CElement> element = new CElement;
    element->FromXmlStream(reinterpret_cast<const unsigned char*>(xml.data()), xml.size());
    element->ToXmlStream(false, Encoding_UTF8);
    element->ToFastInfosetStream(FInfoDecl_None);
    element->Clone();
}

std::string Numbered(const std::string& before, const std::string& after, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += before + std::to_string(i) + after;
    return text;
}

std::string ManyAttributes(int count)
{
    return "<a" + Numbered(" x", "='1'", count) + "/>";
}

std::string ManyNamespacesOfAttributes(int count)
{
    std::string xml = "<a";
    for (int i = 0; i < count; ++i)
        xml += " xmlns:p" + std::to_string(i) + "='u" + std::to_string(i) + "' p" + std::to_string(i) + ":x='1'";
    return xml + "/>";
}

std::string ManyNamespacesOfElements(int count)
{
    std::string xml = "<a>";
    for (int i = 0; i < count; ++i)
        xml += "<p" + std::to_string(i) + ":b xmlns:p" + std::to_string(i) + "='u" + std::to_string(i) + "'/>";
    return xml + "</a>";
}

// Each of 100 levels brings its share.
std::string NestedNamespaces(int count)
{
    constexpr int LEVELS = 100;
    std::string start, end;
    for (int level = 0; level < LEVELS; ++level) {
        start += "<n";
        for (int i = 0; i < count / LEVELS; ++i) {
            const std::string name = std::to_string(level) + "_" + std::to_string(i);
            start += " xmlns:p" + name + "='u" + name + "' p" + name + ":x='1'";
        }
        start += '>';
        end += "</n>";
    }
    return start + end;
}

std::string ManyChildrenAndTexts(int count)
{
    return "<a>" + Repeated("t<b/>&amp;\n", static_cast<std::size_t>(count)) + "</a>";
}

std::string ManyEntities(int count)
{
    return "<!DOCTYPE a [" + Numbered("<!ENTITY e", " 'x'>", count) + "]><a>" + Numbered("&e", ";", count) + "</a>";
}

} // namespace

TEST(Quadratic, NoUntypedDocumentIs)
{
    struct {
        const char* name;
        std::string (*make)(int);
        int count;
    } const rows[] = {{"attributes", ManyAttributes, 20000},
        {"namespaces of attributes", ManyNamespacesOfAttributes, 10000},
        {"namespaces of elements", ManyNamespacesOfElements, 10000}, {"nested namespaces", NestedNamespaces, 8000},
        {"children and texts", ManyChildrenAndTexts, 20000}, {"entities", ManyEntities, 10000}};
    for (const auto& row : rows) {
        const std::string small = row.make(row.count), large = row.make(4 * row.count);
        const double before = SecondsOf([&] { ReadAndWriteUntyped(small); });
        const double after = SecondsOf([&] { ReadAndWriteUntyped(large); });
        EXPECT_GT(LimitOf(before), after) << row.name << ": " << before << " s";
        if (testing::UnitTest::GetInstance()->current_test_info())
            RecordProperty(row.name, std::to_string(after / before));
    }
}

TEST(Quadratic, NoReportIs)
{
    // The path of a failure behind many siblings of one local name, in as many namespaces.
    const auto failing = [](int count) {
        std::string xml = "<r><a>";
        for (int i = 0; i < count; ++i)
            xml += "<p" + std::to_string(i) + ":b xmlns:p" + std::to_string(i) + "='u" + std::to_string(i) + "'/>";
        return xml + "</a></r>";
    };
    const auto run = [](const std::string& xml) {
        CXmlDocument document;
        LoadOctets(document, xml);
        EXPECT_EQ(L"/r/a/p0:b", document.GetDocumentElement()->GetFirstElement()->GetFirstElement()->GetXPath());
    };
    const std::string small = failing(10000), large = failing(40000);
    const double before = SecondsOf([&] { run(small); });
    const double after = SecondsOf([&] { run(large); });
    EXPECT_GT(LimitOf(before), after) << before << " s";
}

TEST(Quadratic, NoJsonIs)
{
    const auto load = [](const std::string& json) {
        CXmlDocument document;
        document.LoadJsonStream(reinterpret_cast<const unsigned char*>(json.data()), json.size());
    };
    const auto members = [](int count) { return "{\"a\": {" + Numbered("\"n", "\": 1, ", count) + "\"z\": 1}}"; };
    const auto comments = [](int count) {
        return "{\"a\": [" + Repeated("[[1]],", static_cast<std::size_t>(count)) + "1]}";
    };
    const auto attributes = [](int count) { return "{\"a\": {" + Numbered("\"@n", "\": 1, ", count) + "\"b\": 1}}"; };
    for (const auto& make : std::vector<std::function<std::string(int)>>{members, comments, attributes}) {
        const std::string small = make(20000), large = make(80000);
        const double before = SecondsOf([&] {
            try {
                load(small);
            } catch (const CZrException&) {
            }
        });
        const double after = SecondsOf([&] {
            try {
                load(large);
            } catch (const CZrException&) {
            }
        });
        EXPECT_GT(LimitOf(before), after) << before << " s";
    }
}
