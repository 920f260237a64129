// SPDX-License-Identifier: MIT
#include "benchmarks/peers/Peer.h"
#include "benchmarks/peers/ViewBuffer.h"

#include <istream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "ns1.nsmap"
#include "soapH.h"

namespace {

struct SoapDeleter {
    void operator()(soap* context) const
    {
        soap_destroy(context);
        soap_end(context);
        soap_free(context);
    }
};

class Gsoap : public Peer {
public:
    Gsoap()
        : m_context(soap_new1(SOAP_C_UTFSTRING | SOAP_XML_TREE | SOAP_XML_DEFAULTNS))
    {
    }

    const char* GetName() const override { return "gSOAP"; }

    void Read(const std::string& bytes) override
    {
        m_objects = soap_new__ns1__purchaseOrders(m_context.get());
        ViewBuffer buffer(bytes);
        std::istream stream(&buffer);
        m_context->is = &stream;
        const int failure = soap_read__ns1__purchaseOrders(m_context.get(), m_objects);
        m_context->is = nullptr;
        Require(failure);
    }

    void Clear() override
    {
        soap_destroy(m_context.get());
        soap_end(m_context.get());
    }

    void Write() override
    {
        std::ostringstream stream;
        m_context->os = &stream;
        const int failure = soap_write__ns1__purchaseOrders(m_context.get(), m_objects);
        m_context->os = nullptr;
        Require(failure);
        m_written = std::move(stream).str();
    }

    std::string GetWritten() const override { return m_written; }

private:
    void Require(int failure)
    {
        if (failure != SOAP_OK) {
            char message[1000] = "";
            soap_sprint_fault(m_context.get(), message, sizeof(message));
            throw std::runtime_error(message);
        }
    }

    std::unique_ptr<soap, SoapDeleter> m_context;
    _ns1__purchaseOrders* m_objects = nullptr;
    std::string m_written;
};

} // namespace

int main()
{
    Gsoap peer;
    return RunPeer(peer);
}
