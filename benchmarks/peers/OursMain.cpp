// SPDX-License-Identifier: MIT
#include "benchmarks/Sample.h"
#include "benchmarks/peers/Peer.h"

namespace {

class Ours : public Peer {
public:
    const char* GetName() const override { return "ZrXmlLib16"; }
    void Read(const std::string& bytes) override
    {
        m_objects = std::make_unique<PurchaseOrders::OrderList>();
        ReadObject(*m_objects, Form::Xml, bytes);
    }
    void Clear() override { m_objects.reset(); }
    void Write() override { m_written = WriteObject(*m_objects, Form::Xml); }
    std::string GetWritten() const override { return TextOf(m_written); }

private:
    std::unique_ptr<PurchaseOrders::OrderList> m_objects;
    ZrXmlLib16::CBinaryData m_written;
};

} // namespace

int main()
{
    Ours peer;
    return RunPeer(peer);
}
