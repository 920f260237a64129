// SPDX-License-Identifier: MIT
// Reads documents of a newer version of the schema than the classes were made for. Each switch of the context forgives
// one kind of difference; each is shown with what happens without it. The classes are in shared/orders/.
#include "ZrXmlLib16/ContextScope.h"
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/Utf8.h"
#include "shared/orders/SampleOrder.h"

#include <cstdio>
#include <functional>
#include <string>

using namespace Orders;
using ZrXmlLib16::CContextScope;
using ZrXmlLib16::CSerializationContext;
using ZrXmlLib16::CZrException;

namespace {

struct Difference {
    const char* title;
    /// What stands in a document of today's version, and what the other version has instead.
    const char* today;
    const char* newer;
    const char* switchName;
    std::function<void(CSerializationContext&)> tolerate;
};

const Difference DIFFERENCES[] = {
    {"An element that the classes do not know", "<payment>", "<carrier>Post</carrier>\n\t<payment>",
        "SetIgnoreUnknownElements", [](CSerializationContext& context) { context.SetIgnoreUnknownElements(true); }},
    {"An attribute that the classes do not know", "number=\"4711\"", "number=\"4711\" channel=\"web\"",
        "SetIgnoreUnknownAttributes", [](CSerializationContext& context) { context.SetIgnoreUnknownAttributes(true); }},
    {"A mandatory element that is optional now", "<placed>2026-03-09T14:30:00Z</placed>", "",
        "SetIgnoreMissingMandatoryElements",
        [](CSerializationContext& context) { context.SetIgnoreMissingMandatoryElements(true); }},
    {"Three lines in a street, where two were allowed", "<city>", "<street>2nd floor</street>\n\t\t<city>",
        "SetIgnoreInvalidCollectionCounts",
        [](CSerializationContext& context) { context.SetIgnoreInvalidCollectionCounts(true); }},
    {"A mandatory choice with none of its alternatives", "<phone>+43 732 123456</phone>", "", "SetIgnoreMissingChoice",
        [](CSerializationContext& context) { context.SetIgnoreMissingChoice(true); }},
    {"A namespace with the version in it", "\"urn:example:orders\"", "\"urn:example:orders:2\"", "SetIgnoreNamespaces",
        [](CSerializationContext& context) { context.SetIgnoreNamespaces(true); }},
};

std::string MakeDocument()
{
    COrder order;
    FillOrder(order);
    return WriteXml(order, {}, ReadablePrefixes());
}

std::string Replace(std::string text, const std::string& part, const std::string& other)
{
    return text.replace(text.find(part), part.length(), other);
}

bool TryToRead(const std::string& document, const CSerializationContext& context)
{
    try {
        COrder order;
        ReadXml(order, document, context);
        std::printf("  read: order %lu, %d items, %d lines of street\n", order.GetNumber().value_or(0),
            order.GetItem().GetCount(), order.GetShipTo()->GetStreet().GetCount());
        return true;
    } catch (const CZrException& exception) {
        std::printf("  %s\n", FormatReport(exception).c_str());
        return false;
    }
}

/// @return whether the switch makes the difference.
bool Show(const Difference& difference, CSerializationContext& context)
{
    const std::string document = Replace(MakeDocument(), difference.today, difference.newer);
    std::printf("\n%s. Strictly:\n", difference.title);
    const bool strict = TryToRead(document, context);
    std::printf(" with %s:\n", difference.switchName);
    const CContextScope scope(context); // gives the context its settings back
    difference.tolerate(context);
    return TryToRead(document, context) && !strict;
}

/// Unknown elements and missing ones cannot be forgiven together: a misspelt element would be both.
bool ShowContradiction()
{
    CSerializationContext context;
    context.SetIgnoreUnknownElements(true);
    try {
        context.SetIgnoreMissingMandatoryElements(true);
        return false;
    } catch (const CZrException& exception) {
        std::printf("\nBoth kinds of elements at once:\n  %s\n", FormatReport(exception).c_str());
        return true;
    }
}

/// What most readers of foreign documents want: whatever is there more than expected is skipped.
bool ShowUsualSettings()
{
    CSerializationContext context;
    context.SetIgnoreUnknownElements(true);
    context.SetIgnoreUnknownAttributes(true);
    context.SetIgnoreNamespaces(true);
    std::string document = MakeDocument();
    for (const int index : {0, 1, 5}) {
        document = Replace(document, DIFFERENCES[index].today, DIFFERENCES[index].newer);
    }
    std::printf("\nUnknown elements and attributes and another namespace, in one document:\n");
    return TryToRead(document, context);
}

} // namespace

int main()
{
    try {
        CSerializationContext context;
        bool expected = true;
        for (const Difference& difference : DIFFERENCES) {
            expected = Show(difference, context) && expected;
        }
        return expected && ShowContradiction() && ShowUsualSettings() ? 0 : 1;
    } catch (const CZrException& exception) {
        std::fprintf(stderr, "%s\n", FormatReport(exception).c_str());
        return 1;
    }
}
