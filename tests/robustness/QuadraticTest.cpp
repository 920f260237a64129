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

/// Sixteen times the input may cost a lot more than that, because it leaves the caches; quadratic work would cost at
/// least 256 times. Another program may spoil a measurement, but hardly three of them.
testing::AssertionResult IsNotQuadratic(const std::function<void()>& run, const std::function<void()>& runSixteenfold)
{
    constexpr double NEGLIGIBLE_SECONDS = 0.2;
    double before = 0;
    double after = 0;
    for (int attempt = 0; attempt < 3; ++attempt) {
        before = SecondsOf(run);
        after = SecondsOf(runSixteenfold);
        if (after < std::max(220 * before, NEGLIGIBLE_SECONDS))
            return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << before << " s became " << after << " s";
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
    } const rows[] = {{"attributes", ManyAttributes, 5000},
        {"namespaces of attributes", ManyNamespacesOfAttributes, 2500},
        {"namespaces of elements", ManyNamespacesOfElements, 2500}, {"nested namespaces", NestedNamespaces, 2000},
        {"children and texts", ManyChildrenAndTexts, 5000}, {"entities", ManyEntities, 2500}};
    for (const auto& row : rows) {
        const std::string small = row.make(row.count), large = row.make(16 * row.count);
        EXPECT_TRUE(IsNotQuadratic([&] { ReadAndWriteUntyped(small); }, [&] { ReadAndWriteUntyped(large); }))
            << row.name;
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
    const std::string small = failing(2500), large = failing(40000);
    EXPECT_TRUE(IsNotQuadratic([&] { run(small); }, [&] { run(large); }));
}

TEST(Quadratic, NoJsonIs)
{
    const auto load = [](const std::string& json) {
        CXmlDocument document;
        try {
            document.LoadJsonStream(reinterpret_cast<const unsigned char*>(json.data()), json.size());
        } catch (const CZrException&) {
            // What is no document costs no more either.
        }
    };
    const auto members = [](int count) { return "{\"a\": {" + Numbered("\"n", "\": 1, ", count) + "\"z\": 1}}"; };
    const auto comments = [](int count) {
        return "{\"a\": [" + Repeated("[[1]],", static_cast<std::size_t>(count)) + "1]}";
    };
    const auto attributes = [](int count) { return "{\"a\": {" + Numbered("\"@n", "\": 1, ", count) + "\"b\": 1}}"; };
    for (const auto& make : std::vector<std::function<std::string(int)>>{members, comments, attributes}) {
        const std::string small = make(5000), large = make(80000);
        EXPECT_TRUE(IsNotQuadratic([&] { load(small); }, [&] { load(large); }));
    }
}
