// SPDX-License-Identifier: MIT
#include "benchmarks/peers/Peer.h"
#include "benchmarks/peers/ViewBuffer.h"

#include <istream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "purchase-orders.hxx"

#include <xercesc/util/PlatformUtils.hpp>

namespace {

namespace Bound = purchase_orders;

class Xsd : public Peer {
public:
    Xsd() { m_namespaces[""].name = "urn:example:purchase-orders"; }

    const char* GetName() const override { return "XSD"; }

    void Read(const std::string& bytes) override
    {
        ViewBuffer buffer(bytes);
        std::istream stream(&buffer);
        try {
            m_objects =
                Bound::purchaseOrders_(stream, xml_schema::flags::dont_validate | xml_schema::flags::dont_initialize);
        } catch (const xml_schema::exception& failure) {
            throw std::runtime_error(failure.what());
        }
    }

    void Clear() override { m_objects.reset(); }

    void Write() override
    {
        std::ostringstream stream;
        Bound::purchaseOrders_(stream, *m_objects, m_namespaces, "UTF-8",
            xml_schema::flags::dont_initialize | xml_schema::flags::dont_pretty_print);
        m_written = std::move(stream).str();
    }

    std::string GetWritten() const override { return m_written; }

private:
    std::unique_ptr<Bound::purchaseOrders> m_objects;
    xml_schema::namespace_infomap m_namespaces;
    std::string m_written;
};

} // namespace

int main()
{
    xercesc::XMLPlatformUtils::Initialize();
    int status = 1;
    {
        Xsd peer;
        status = RunPeer(peer);
    }
    xercesc::XMLPlatformUtils::Terminate();
    return status;
}
