// SPDX-License-Identifier: MIT
// What a failure says in each format: the chain of causes, the path to the node at fault and its line, as one text for
// people, as single parts for programs, and as a std::runtime_error for callers that know nothing else. The classes are
// in shared/orders/.
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "shared/orders/SampleOrder.h"

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

using namespace Orders;
using ZrXmlLib16::CZrException;
using ZrXmlLib16::ToUtf8;

namespace {

std::string Replace(std::string text, const std::string& part, const std::string& other)
{
    return text.replace(text.find(part), part.length(), other);
}

template <class Action> void Report(const char* title, Action action)
{
    try {
        action();
        std::printf("--- %s\nno failure\n\n", title);
    } catch (const CZrException& exception) {
        std::printf("--- %s\n%s\n\n", title, FormatReport(exception).c_str());
    }
}

/// Binding errors: the document is well-formed, but not an order.
void ShowReading(const COrder& order)
{
    const std::string xml = WriteXml(order, {}, ReadablePrefixes());
    Report("XML, a price that is no number", [&] {
        COrder read;
        ReadXml(read, Replace(xml, "24.9", "24,9"));
    });
    Report("XML, an unknown type of product", [&] {
        COrder read;
        ReadXml(read, Replace(xml, "\"Device\"", "\"Gadget\""));
    });
    const std::string json = WriteJson(order, {}, ReadablePrefixes());
    Report("JSON, the same price", [&] {
        COrder read;
        ReadJson(read, Replace(json, "24.9", "\"24,9\""));
    });
    // Fast Infoset has no text to look at: the path is all the more useful. Strings of one length keep it well-formed.
    const std::string binary = WriteFastInfoset(order, {}, ReadablePrefixes());
    Report("Fast Infoset, an unknown country", [&] {
        COrder read;
        ReadXml(read, Replace(binary, "AT", "XX"));
    });
}

/// Documents that are none.
void ShowSyntax(const COrder& order)
{
    COrder read;
    const std::string xml = WriteXml(order, {}, ReadablePrefixes());
    Report("XML that is not well-formed", [&] { ReadXml(read, Replace(xml, "</city>", "</town>")); });
    const std::string json = WriteJson(order, {}, ReadablePrefixes());
    Report("JSON that ends too early", [&] { ReadJson(read, json.substr(0, json.length() / 2)); });
    const std::string binary = WriteFastInfoset(order, {}, ReadablePrefixes());
    Report("Fast Infoset that ends too early", [&] { ReadXml(read, binary.substr(0, binary.length() / 2)); });
    Report("a file that is not there", [&] { read.FromXmlFile(L"/nowhere/order.xml"); });
}

/// The parts of a report, for programs that decide by them.
void ShowParts(COrder& order)
{
    order.GetItem().GetAt(1).SetPrice(ZrXmlLib16::CDecimal(L"0.125"));
    try {
        WriteXml(order);
    } catch (const CZrException& exception) {
        std::printf("--- a price with three decimal places, on writing, level by level\n");
        int level = 0;
        for (const CZrException* link = &exception; link != nullptr; link = link->GetInnerException()) {
            const bool isValidation = dynamic_cast<const ZrXmlLib16::CZrValidationException*>(link) != nullptr;
            std::printf(
                "%d: %s, %s\n", ++level, isValidation ? "validation" : "general", ToUtf8(link->GetMessage()).c_str());
        }
        std::printf("\n");
    }
}

/// The form that editors and build tools turn into a link.
void ShowPlace(const COrder& order)
{
    try {
        COrder read;
        ReadXml(read, Replace(WriteXml(order, {}, ReadablePrefixes()), "<city>", "<town/><city>"));
    } catch (const CZrException& exception) {
        const std::string message = ToUtf8(exception.GetMessage());
        std::printf("--- as a place in a file\norder.xml:%lu:%lu: %s\n\n", exception.GetLine(), exception.GetColumn(),
            message.substr(0, message.find('\n')).c_str());
    }
}

/// For callers that know only std::exception.
void ShowStandardExceptions(const COrder& order)
{
    try {
        ZrXmlLib16::WithStandardExceptions([&] { WriteXml(order); });
    } catch (const std::runtime_error& error) {
        std::printf("--- as a std::runtime_error\n%s\n", error.what());
        try {
            std::rethrow_if_nested(error);
        } catch (const CZrException& exception) {
            std::printf("with the exception itself inside: %s\n", ToUtf8(exception.GetMessage()).c_str());
        }
    }
}

} // namespace

int main()
{
    COrder order;
    FillOrder(order);
    ShowReading(order);
    ShowSyntax(order);
    ShowPlace(order);
    ShowParts(order);
    ShowStandardExceptions(order);
    return 0;
}
