// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_PEERS_VIEWBUFFER_H
#define ZRXML_BENCHMARKS_PEERS_VIEWBUFFER_H

#include <streambuf>
#include <string>

/// A stream buffer over bytes that stay where they are.
class ViewBuffer : public std::streambuf {
public:
    explicit ViewBuffer(const std::string& bytes)
    {
        char* begin = const_cast<char*>(bytes.data()); // a get area is never written to
        setg(begin, begin, begin + bytes.size());
    }
};

#endif
