// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_TELEMETRY_LOG_H
#define EXAMPLES_SHARED_TELEMETRY_LOG_H

#include "shared/ObjectCollection.h"
#include "shared/telemetry/Reading.h"

#include <optional>
#include <string>
#include <utility>

namespace Telemetry {

/// The readings of a station: the root of a document.
class CLog : public CTelemetryObject {
public:
    explicit CLog(const wchar_t* elementName = L"log");

    /// Mandatory.
    const std::optional<std::wstring>& GetStation() const { return m_station; }
    void SetStation(std::optional<std::wstring> value) { m_station = std::move(value); }
    /// Any number of them.
    Shared::CObjectCollection<CReading>& GetReading() const { return *m_reading; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Station, Property_Reading };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_station;
    ZrXmlLib16::CSmartPtr<Shared::CObjectCollection<CReading>> m_reading;
};

} // namespace Telemetry

#endif
