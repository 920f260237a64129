// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_GPX_H
#define EXAMPLES_GPX_CLASSES_GPX_H

#include "classes/ExtensionsType.h"
#include "classes/GpxCollection.h"
#include "classes/GpxObject.h"
#include "classes/MetadataType.h"
#include "classes/RteType.h"
#include "classes/TrkType.h"
#include "classes/WptType.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// Root of a GPX 1.1 document (gpxType).
class CGpx : public CGpxObject {
public:
    explicit CGpx(const wchar_t* elementName = L"gpx");

    /// Always "1.1". Mandatory.
    const std::optional<std::wstring>& GetVersion() const { return m_version; }
    void SetVersion(std::optional<std::wstring> value) { m_version = std::move(value); }
    /// The program that made the document. Mandatory.
    const std::optional<std::wstring>& GetCreator() const { return m_creator; }
    void SetCreator(std::optional<std::wstring> value) { m_creator = std::move(value); }
    /// About the document; may be null.
    CMetadataType* GetMetadata() const { return m_metadata; }
    void SetMetadata(CMetadataType* value);
    /// Waypoints.
    CGpxCollection<CWptType>& GetWpt() const { return *m_wpt; }
    /// Routes.
    CGpxCollection<CRteType>& GetRte() const { return *m_rte; }
    /// Tracks.
    CGpxCollection<CTrkType>& GetTrk() const { return *m_trk; }
    /// What others add; may be null.
    CExtensionsType* GetExtensions() const { return m_extensions; }
    void SetExtensions(CExtensionsType* value);

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property {
        Property_Version,
        Property_Creator,
        Property_Metadata,
        Property_Wpt,
        Property_Rte,
        Property_Trk,
        Property_Extensions,
        Property_Count
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_version;
    std::optional<std::wstring> m_creator;
    ZrXmlLib16::CSmartPtr<CMetadataType> m_metadata;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CWptType>> m_wpt;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CRteType>> m_rte;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CTrkType>> m_trk;
    ZrXmlLib16::CSmartPtr<CExtensionsType> m_extensions;
};

} // namespace Gpx

#endif
