// SPDX-License-Identifier: MIT
#include "Extensions.h"

namespace Demo {

using Gpx::CExtensionsType;
using Gpx::CGpxCollection;
using Gpx::CWptType;
using ZrXmlLib16::CElement;

namespace {

template <class T> void AddExtensionsOf(const T& owner, std::vector<const CExtensionsType*>& found)
{
    if (const CExtensionsType* extensions = owner.GetExtensions()) {
        found.push_back(extensions);
    }
}

void AddExtensionsOfPoints(const CGpxCollection<CWptType>& points, std::vector<const CExtensionsType*>& found)
{
    for (const CWptType& point : points) {
        AddExtensionsOf(point, found);
    }
}

std::wstring Trim(const std::wstring& text)
{
    constexpr wchar_t BLANKS[] = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(BLANKS);
    return first == std::wstring::npos ? L"" : text.substr(first, text.find_last_not_of(BLANKS) - first + 1);
}

} // namespace

std::vector<const CExtensionsType*> FindExtensions(const Gpx::CGpx& gpx)
{
    std::vector<const CExtensionsType*> found;
    if (const Gpx::CMetadataType* metadata = gpx.GetMetadata()) {
        AddExtensionsOf(*metadata, found);
    }
    AddExtensionsOfPoints(gpx.GetWpt(), found);
    for (const Gpx::CRteType& route : gpx.GetRte()) {
        AddExtensionsOf(route, found);
        AddExtensionsOfPoints(route.GetRtept(), found);
    }
    for (const Gpx::CTrkType& track : gpx.GetTrk()) {
        AddExtensionsOf(track, found);
        for (const Gpx::CTrksegType& segment : track.GetTrkseg()) {
            AddExtensionsOfPoints(segment.GetTrkpt(), found);
            AddExtensionsOf(segment, found);
        }
    }
    AddExtensionsOf(gpx, found);
    return found;
}

std::vector<CElement*> FindUntypedElements(const Gpx::CGpx& gpx)
{
    std::vector<CElement*> found;
    for (const CExtensionsType* extensions : FindExtensions(gpx)) {
        found.insert(found.end(), extensions->GetAnyElement().begin(), extensions->GetAnyElement().end());
    }
    for (std::size_t index = 0; index < found.size(); ++index) {
        for (CElement* child : *found[index]->GetElements()) {
            found.push_back(child);
        }
    }
    return found;
}

void RemoveIndentation(const Gpx::CGpx& gpx)
{
    for (CElement* element : FindUntypedElements(gpx)) {
        if (element->GetElements()->GetCount() > 0) {
            element->SetText(Trim(element->GetText()).c_str());
        }
    }
}

} // namespace Demo
