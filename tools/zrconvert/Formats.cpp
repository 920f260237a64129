// SPDX-License-Identifier: MIT
#include "Formats.h"

#include "FastInfosetFormat.h"
#include "JsonFormat.h"
#include "XmlFormat.h"

#include <algorithm>
#include <iterator>

namespace Convert {

namespace {

/// In the order of asking for what they recognise: XML takes what nobody else wants, because its reader says best why
/// something is no document.
constexpr Format FORMATS[] = {
    {"finf", true, false, IsFastInfoset, ReadFastInfoset, WriteFastInfoset},
    {"json", false, false, LooksLikeJson, ReadJson, WriteJson},
    {"xml", true, true, [](const Bytes&) { return true; }, ReadXml, WriteXml},
};

} // namespace

const Format* FindFormat(const std::string& name)
{
    const Format* const found =
        std::find_if(std::begin(FORMATS), std::end(FORMATS), [&](const Format& row) { return row.name == name; });
    return found == std::end(FORMATS) ? nullptr : found;
}

const Format& RecogniseFormat(const Bytes& bytes)
{
    return *std::find_if(
        std::begin(FORMATS), std::end(FORMATS) - 1, [&](const Format& row) { return row.recognises(bytes); });
}

std::string ListFormats()
{
    std::string names;
    for (auto row = std::rbegin(FORMATS); row != std::rend(FORMATS); ++row) {
        names.append(names.empty() ? "" : "|").append(row->name);
    }
    return names;
}

} // namespace Convert
