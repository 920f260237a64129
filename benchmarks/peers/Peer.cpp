// SPDX-License-Identifier: MIT
#include "benchmarks/peers/Peer.h"

#include "ZrXmlLib16/Version.h"
#include "ZrXmlLib16/ZrException.h"
#include "benchmarks/CpuClock.h"
#include "benchmarks/ExpatFloor.h"
#include "benchmarks/Sample.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr unsigned orders = 1000;
constexpr unsigned passes = 3;
constexpr unsigned repetitions = 15;

/// However the peer spells its values, they have to be the document's.
void RequireSameValues(const std::string& written, const std::string& document)
{
    PurchaseOrders::OrderList objects;
    ReadObject(objects, Form::Xml, written);
    if (TextOf(WriteObject(objects, Form::Xml)) != document) {
        throw std::runtime_error("the document that was written has other values");
    }
}

void Measure(Peer& peer)
{
    const std::string document = PurchaseOrders::MakeDocument(orders, false).bytes;
    peer.Read(document);
    peer.Write();
    RequireSameValues(peer.GetWritten(), document);
    peer.Clear();
    double floor = 0;
    double read = 0;
    double write = 0;
    for (unsigned pass = 0; pass < passes; ++pass) {
        for (unsigned i = 0; i < repetitions; ++i) {
            KeepBest(floor, SecondsOf([&] { ParseOnly(document); }));
            KeepBest(read, SecondsOf([&] {
                peer.Read(document);
                peer.Clear();
            }));
        }
        peer.Read(document);
        for (unsigned i = 0; i < repetitions; ++i) {
            KeepBest(floor, SecondsOf([&] { ParseOnly(document); }));
            KeepBest(write, SecondsOf([&] { peer.Write(); }));
        }
        peer.Clear();
    }
    std::printf(
        "%-12s %10.1f %10.1f %8.2f %8.2f\n", peer.GetName(), read * 1e6, write * 1e6, read / floor, write / floor);
}

} // namespace

int RunPeer(Peer& peer)
{
    try {
        ZrXmlLib16::Register(16, 1, "", "", "");
        Measure(peer);
        return 0;
    } catch (const ZrXmlLib16::CZrException& failure) {
        std::fprintf(stderr, "%s: %ls\n", peer.GetName(), failure.GetFullMessage().c_str());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", peer.GetName(), failure.what());
    }
    return 1;
}
