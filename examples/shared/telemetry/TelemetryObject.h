// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_TELEMETRY_TELEMETRYOBJECT_H
#define EXAMPLES_SHARED_TELEMETRY_TELEMETRYOBJECT_H

#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "shared/Generator.h"

#include <string>

namespace Telemetry {

/// Target namespace of the schema.
constexpr wchar_t NAMESPACE[] = L"urn:example:telemetry";

/// Base of the classes of measurements, in the shape of generated code: see shared/orders/OrderObject.h.
class CTelemetryObject : public ZrXmlLib16::CXmlGeneratedClass {
public:
    std::wstring GetNamespace() const override { return NAMESPACE; }
    std::wstring GetTargetNamespace() const override { return NAMESPACE; }

    CTelemetryObject(const CTelemetryObject&) = delete;
    CTelemetryObject& operator=(const CTelemetryObject&) = delete;

protected:
    explicit CTelemetryObject(const wchar_t* elementName)
    {
        Shared::RegisterGenerator();
        SetElementName(elementName);
    }
};

} // namespace Telemetry

#endif
