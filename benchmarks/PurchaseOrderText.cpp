// SPDX-License-Identifier: MIT
#include "benchmarks/PurchaseOrderText.h"

#include <cstdio>
#include <random>

namespace PurchaseOrders {
namespace {

constexpr const char* names[] = {"Alice Smith", "Robert Smith &amp; Sons", "J\u00F6rg M\u00FCller",
    "Fran\u00E7oise Dupont", "Maria Hernandez", "Northern Hardware Supplies Ltd", "Green Valley Gardening"};
constexpr const char* streets[] = {
    "123 Maple Street", "8 Oak Avenue", "Hauptstra\u00DFe 17", "221 Long Acre, Second Floor", "42 Rue de la Gare"};
constexpr const char* cities[] = {
    "Mill Valley", "Old Town", "K\u00F6ln", "Saint-\u00C9tienne", "London", "Springfield"};
constexpr const char* countries[] = {"AT", "CH", "DE", "FR", "GB", "US"};
constexpr const char* products[] = {"Lawnmower, electric, 1600 W", "Baby Monitor", "Garden Hose 25 m", "Cordless Drill",
    "Paint, white &lt; 5 litres", "Ladder, aluminium"};
constexpr const char* texts[] = {"Hurry, my lawn is going wild!", "Please ring the bell twice.",
    "Leave the parcel with the neighbours if nobody is at home.", "Confirm this is electric"};
constexpr const char* languages[] = {"en", "de", "fr"};
constexpr const char* statuses[] = {"open", "packed", "shipped", "cancelled"};
constexpr const char* units[] = {"g", "kg", "lb"};
constexpr const char* weights[] = {"0.25", "1.5", "12", "148.75", "3.125"};
constexpr const char* terms[] = {"P30D", "P14D", "P1M", "P2MT12H"};

enum class Kind { Typed, Text };

/// Appends start tags, attributes and text, counting what it appends.
class TextBuilder {
public:
    TextBuilder(Document& document, bool indented)
        : m_document(document)
        , m_indented(indented)
    {
    }

    void Begin(const char* element)
    {
        StartTag(element);
        ++m_document.objects;
        ++m_depth;
    }
    void Attribute(const char* name, const std::string& value, Kind kind)
    {
        Append(" ", name, "=\"");
        Append(value.c_str(), "\"");
        ++m_document.attributes;
        CountValue(kind);
    }
    void Content(const std::string& value, Kind kind)
    {
        Append(">", value.c_str());
        m_startTagOpen = false;
        m_hasText = true;
        CountValue(kind);
    }
    void Leaf(const char* element, const std::string& value, Kind kind)
    {
        StartTag(element);
        m_startTagOpen = false;
        Append(">", value.c_str());
        Append("</", element, ">");
        EndLine();
        CountValue(kind);
    }
    void End(const char* element)
    {
        --m_depth;
        if (!m_hasText) {
            Indent();
        }
        m_hasText = false;
        Append("</", element, ">");
        EndLine();
    }

private:
    void StartTag(const char* element)
    {
        if (m_startTagOpen) {
            Append(">", "");
            EndLine();
        }
        Indent();
        Append("<", element);
        m_startTagOpen = true;
        ++m_document.elements;
    }
    void Append(const char* first, const char* second, const char* third = "")
    {
        m_document.bytes.append(first).append(second).append(third);
    }
    void Indent()
    {
        if (m_indented) {
            m_document.bytes.append(m_depth, '\t');
        }
    }
    void EndLine()
    {
        if (m_indented) {
            m_document.bytes.push_back('\n');
        }
    }
    void CountValue(Kind kind) { ++(kind == Kind::Typed ? m_document.typedValues : m_document.strings); }

    Document& m_document;
    bool m_indented;
    std::size_t m_depth = 0;
    bool m_startTagOpen = false;
    bool m_hasText = false;
};

/// Text by printf rules. Braces around the arguments fix the order in which they draw from the random numbers.
struct Formatted : std::string {
    template <class... Values> Formatted(const char* format, Values... values)
    {
        char text[64];
        std::snprintf(text, sizeof(text), format, values...);
        assign(text);
    }
};

class OrderWriter {
public:
    OrderWriter(TextBuilder& builder, unsigned number)
        : m_builder(builder)
        , m_number(number)
        , m_random(number)
    {
    }

    void Write()
    {
        m_builder.Begin("purchaseOrder");
        m_builder.Attribute("number", std::to_string(m_number), Kind::Typed);
        m_builder.Attribute("placedAt",
            Formatted{"20%02u-%02u-%02uT%02u:%02u:%02u", Below(30), 1 + Below(12), 1 + Below(28), Below(24), Below(60),
                Below(60)},
            Kind::Typed);
        m_builder.Attribute("status", OneOf(statuses), Kind::Typed);
        if (Chance(50)) {
            m_builder.Attribute("confirmed", Chance(50) ? "true" : "false", Kind::Typed);
        }
        WriteAddress("shipTo");
        if (Chance(40)) {
            WriteAddress("billTo");
        }
        if (Chance(30)) {
            m_builder.Leaf("comment", OneOf(texts), Kind::Text);
        }
        const unsigned items = IsFirst() ? 3 : 2 + Below(3);
        for (unsigned line = 1; line <= items; ++line) {
            WriteItem(line);
        }
        const unsigned notes = IsFirst() ? 2 : Below(3);
        for (unsigned i = 0; i < notes; ++i) {
            WriteNote();
        }
        m_builder.Leaf("total", Formatted{"%u.%02u", 100 + Below(9900), 1 + 10 * Below(10)}, Kind::Typed);
        WritePayment();
        m_builder.End("purchaseOrder");
    }

private:
    void WriteAddress(const char* element)
    {
        m_builder.Begin(element);
        m_builder.Attribute("country", OneOf(countries), Kind::Typed);
        m_builder.Leaf("name", OneOf(names), Kind::Text);
        m_builder.Leaf("street", OneOf(streets), Kind::Text);
        m_builder.Leaf("city", OneOf(cities), Kind::Text);
        m_builder.Leaf("postalCode", std::to_string(10000 + Below(89999)), Kind::Typed);
        m_builder.End(element);
    }
    void WriteItem(unsigned line)
    {
        m_builder.Begin("item");
        m_builder.Attribute(
            "partNumber", Formatted{"%03u-%c%c", Below(1000), 'A' + Below(26), 'A' + Below(26)}, Kind::Text);
        m_builder.Attribute("line", std::to_string(line), Kind::Typed);
        m_builder.Leaf("productName", OneOf(products), Kind::Text);
        m_builder.Leaf("quantity", std::to_string(1 + Below(250)), Kind::Typed);
        m_builder.Leaf("price", Formatted{"%u.%u", 1 + Below(400), 1 + Below(9)}, Kind::Typed);
        if (Chance(60)) {
            m_builder.Leaf(
                "shipDate", Formatted{"20%02u-%02u-%02u", Below(30), 1 + Below(12), 1 + Below(28)}, Kind::Typed);
        }
        if (Chance(50)) {
            m_builder.Begin("weight");
            m_builder.Attribute("unit", OneOf(units), Kind::Typed);
            m_builder.Content(OneOf(weights), Kind::Typed);
            m_builder.End("weight");
        }
        m_builder.End("item");
    }
    void WriteNote()
    {
        m_builder.Begin("note");
        if (Chance(50)) {
            m_builder.Attribute("lang", OneOf(languages), Kind::Text);
        }
        m_builder.Content(OneOf(texts), Kind::Text);
        m_builder.End("note");
    }
    void WritePayment()
    {
        m_builder.Begin("payment");
        switch (Below(3)) {
        case 0:
            m_builder.Begin("card");
            m_builder.Leaf(
                "number", Formatted{"4000-%04u-%04u-%04u", Below(10000), Below(10000), Below(10000)}, Kind::Text);
            m_builder.Leaf("expires", Formatted{"20%02u-%02u", 30 + Below(10), 1 + Below(12)}, Kind::Typed);
            m_builder.End("card");
            break;
        case 1:
            m_builder.Begin("transfer");
            m_builder.Leaf("account",
                Formatted{"DE%02u %04u %04u %04u", Below(100), Below(10000), Below(10000), Below(10000)}, Kind::Text);
            m_builder.Leaf("signature", Signature(), Kind::Typed);
            m_builder.End("transfer");
            break;
        default:
            m_builder.Begin("invoice");
            m_builder.Leaf("terms", OneOf(terms), Kind::Typed);
            m_builder.Leaf("contact", OneOf(names), Kind::Text);
            m_builder.End("invoice");
            break;
        }
        m_builder.End("payment");
    }

    std::string Signature()
    {
        constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        std::string text(32, 'A');
        for (char& c : text) {
            c = alphabet[Below(64)];
        }
        return text;
    }

    bool IsFirst() const { return m_number == 1; }
    bool Chance(unsigned percent) { return Below(100) < percent || IsFirst(); }
    unsigned Below(unsigned limit) { return static_cast<unsigned>(m_random() >> 8) % limit; }
    template <std::size_t n> const char* OneOf(const char* const (&choices)[n])
    {
        return choices[Below(static_cast<unsigned>(n))];
    }
    TextBuilder& m_builder;
    unsigned m_number;
    std::minstd_rand m_random;
};

} // namespace

Document MakeDocument(unsigned orders, bool indented)
{
    Document document;
    document.bytes = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    TextBuilder builder(document, indented);
    builder.Begin("purchaseOrders");
    document.bytes += " xmlns=\"urn:example:purchase-orders\"";
    for (unsigned number = 1; number <= orders; ++number) {
        OrderWriter(builder, number).Write();
    }
    builder.End("purchaseOrders");
    return document;
}

} // namespace PurchaseOrders
