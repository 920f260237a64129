// SPDX-License-Identifier: MIT
#include "benchmarks/JsonYardstick.h"

#include <memory>
#include <stdexcept>

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace {

std::unique_ptr<rapidjson::Document> tree;

} // namespace

void ParseYardstick(const std::string& json)
{
    tree = nullptr;
    tree = std::make_unique<rapidjson::Document>();
    tree->Parse(json.data(), json.size());
    if (tree->HasParseError()) {
        throw std::runtime_error("the yardstick cannot read the JSON text");
    }
}

std::size_t WriteYardstick()
{
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    tree->Accept(writer);
    return buffer.GetSize();
}
