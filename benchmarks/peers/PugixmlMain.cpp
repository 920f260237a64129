// SPDX-License-Identifier: MIT
#include "benchmarks/peers/Peer.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include <pugixml.hpp>

// Written by hand: pugixml has no generator. Numbers and booleans are converted; dates, durations, decimals, binary
// values and enumerations stay text.
namespace {

using pugi::xml_node;

struct Address {
    std::string country, name, street, city;
    unsigned postalCode = 0;
};
struct Weight {
    double value = 0;
    std::string unit;
};
struct Note {
    std::string text;
    std::optional<std::string> language;
};
struct Item {
    std::string partNumber;
    int line = 0;
    std::string productName;
    unsigned quantity = 0;
    std::string price;
    std::optional<std::string> shipDate;
    std::optional<Weight> weight;
};
/// Card, transfer or invoice: the name of the element and its two values.
struct Payment {
    std::string kind, first, second;
};
struct Order {
    unsigned number = 0;
    std::string placedAt, status;
    std::optional<bool> confirmed;
    Address shipTo;
    std::optional<Address> billTo;
    std::optional<std::string> comment;
    std::vector<Item> items;
    std::vector<Note> notes;
    std::string total;
    Payment payment;
};

Address ReadAddress(xml_node node)
{
    return {node.attribute("country").value(), node.child_value("name"), node.child_value("street"),
        node.child_value("city"), node.child("postalCode").text().as_uint()};
}

Item ReadItem(xml_node node)
{
    Item item{node.attribute("partNumber").value(), node.attribute("line").as_int(), node.child_value("productName"),
        node.child("quantity").text().as_uint(), node.child_value("price"), {}, {}};
    if (const xml_node shipDate = node.child("shipDate")) {
        item.shipDate = shipDate.child_value();
    }
    if (const xml_node weight = node.child("weight")) {
        item.weight = Weight{weight.text().as_double(), weight.attribute("unit").value()};
    }
    return item;
}

Order ReadOrder(xml_node node)
{
    Order order;
    order.number = node.attribute("number").as_uint();
    order.placedAt = node.attribute("placedAt").value();
    order.status = node.attribute("status").value();
    if (const pugi::xml_attribute confirmed = node.attribute("confirmed")) {
        order.confirmed = confirmed.as_bool();
    }
    order.shipTo = ReadAddress(node.child("shipTo"));
    if (const xml_node billTo = node.child("billTo")) {
        order.billTo = ReadAddress(billTo);
    }
    if (const xml_node comment = node.child("comment")) {
        order.comment = comment.child_value();
    }
    for (xml_node item : node.children("item")) {
        order.items.push_back(ReadItem(item));
    }
    for (xml_node node2 : node.children("note")) {
        Note note{node2.child_value(), {}};
        if (const pugi::xml_attribute language = node2.attribute("lang")) {
            note.language = language.value();
        }
        order.notes.push_back(std::move(note));
    }
    order.total = node.child_value("total");
    const xml_node payment = node.child("payment").first_child();
    order.payment = {payment.name(), payment.first_child().child_value(), payment.last_child().child_value()};
    return order;
}

void AppendText(xml_node parent, const char* name, const std::string& text)
{
    parent.append_child(name).text().set(text.c_str());
}

void AppendAddress(xml_node parent, const char* name, const Address& address)
{
    xml_node node = parent.append_child(name);
    node.append_attribute("country") = address.country.c_str();
    AppendText(node, "name", address.name);
    AppendText(node, "street", address.street);
    AppendText(node, "city", address.city);
    node.append_child("postalCode").text().set(address.postalCode);
}

void AppendItem(xml_node parent, const Item& item)
{
    xml_node node = parent.append_child("item");
    node.append_attribute("partNumber") = item.partNumber.c_str();
    node.append_attribute("line") = item.line;
    AppendText(node, "productName", item.productName);
    node.append_child("quantity").text().set(item.quantity);
    AppendText(node, "price", item.price);
    if (item.shipDate) {
        AppendText(node, "shipDate", *item.shipDate);
    }
    if (item.weight) {
        xml_node weight = node.append_child("weight");
        weight.append_attribute("unit") = item.weight->unit.c_str();
        weight.text().set(item.weight->value);
    }
}

void AppendPayment(xml_node parent, const Payment& payment)
{
    const bool card = payment.kind == "card";
    const bool transfer = payment.kind == "transfer";
    xml_node node = parent.append_child("payment").append_child(payment.kind.c_str());
    AppendText(node, card ? "number" : transfer ? "account" : "terms", payment.first);
    AppendText(node, card ? "expires" : transfer ? "signature" : "contact", payment.second);
}

void AppendOrder(xml_node parent, const Order& order)
{
    xml_node node = parent.append_child("purchaseOrder");
    node.append_attribute("number") = order.number;
    node.append_attribute("placedAt") = order.placedAt.c_str();
    node.append_attribute("status") = order.status.c_str();
    if (order.confirmed) {
        node.append_attribute("confirmed") = *order.confirmed;
    }
    AppendAddress(node, "shipTo", order.shipTo);
    if (order.billTo) {
        AppendAddress(node, "billTo", *order.billTo);
    }
    if (order.comment) {
        AppendText(node, "comment", *order.comment);
    }
    for (const Item& item : order.items) {
        AppendItem(node, item);
    }
    for (const Note& note : order.notes) {
        xml_node child = node.append_child("note");
        if (note.language) {
            child.append_attribute("lang") = note.language->c_str();
        }
        child.text().set(note.text.c_str());
    }
    AppendText(node, "total", order.total);
    AppendPayment(node, order.payment);
}

struct StringWriter : pugi::xml_writer {
    std::string bytes;
    void write(const void* data, std::size_t size) override { bytes.append(static_cast<const char*>(data), size); }
};

class Pugixml : public Peer {
public:
    const char* GetName() const override { return "pugixml"; }

    void Read(const std::string& bytes) override
    {
        pugi::xml_document document;
        if (!document.load_buffer(bytes.data(), bytes.size())) {
            throw std::runtime_error("the document is not well-formed");
        }
        for (xml_node node : document.document_element().children("purchaseOrder")) {
            m_orders.push_back(ReadOrder(node));
        }
    }

    void Clear() override { m_orders = {}; }

    void Write() override
    {
        pugi::xml_document document;
        xml_node root = document.append_child("purchaseOrders");
        root.append_attribute("xmlns") = "urn:example:purchase-orders";
        for (const Order& order : m_orders) {
            AppendOrder(root, order);
        }
        StringWriter writer;
        document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
        m_written = std::move(writer.bytes);
    }

    std::string GetWritten() const override { return m_written; }

private:
    std::vector<Order> m_orders;
    std::string m_written;
};

} // namespace

int main()
{
    Pugixml peer;
    return RunPeer(peer);
}
