// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_PEERS_PEER_H
#define ZRXML_BENCHMARKS_PEERS_PEER_H

#include <string>

/// A library bound to the schema of the document.
class Peer {
public:
    virtual ~Peer() = default;
    virtual const char* GetName() const = 0;
    /// Reads the document into objects; there are none yet.
    /// @throws std::runtime_error when the library refuses the document.
    virtual void Read(const std::string& bytes) = 0;
    /// Destroys the objects, which counts as a part of reading.
    virtual void Clear() = 0;
    /// Writes the objects that were read last, in UTF-8.
    virtual void Write() = 0;
    /// A copy of what Write made.
    virtual std::string GetWritten() const = 0;
};

/// Proves that the peer gives back the same values and measures it, as the main function of its program.
/// @return the exit status.
int RunPeer(Peer& peer);

#endif
