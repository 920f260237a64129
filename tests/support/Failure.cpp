// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include "support/TestText.h"

#include <typeinfo>

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

const char* TypeName(const CZrException& exception)
{
    const std::type_info& type = typeid(exception);
    if (type == typeid(CZrValidationException))
        return "Validation";
    if (type == typeid(CZrInvalidValueException))
        return "InvalidValue";
    if (type == typeid(CZrInvalidNamespaceException))
        return "InvalidNamespace";
    if (type == typeid(CZrInvalidParamException))
        return "InvalidParam";
    if (type == typeid(CZrInvalidStateException))
        return "InvalidState";
    if (type == typeid(CZrOverFlowException))
        return "OverFlow";
    return type == typeid(CZrException) ? "Zr" : "?";
}

} // namespace

std::string FailureOf(const std::function<void()>& action)
{
    std::string chain;
    try {
        action();
    } catch (const CZrException& exception) {
        for (const CZrException* part = &exception; part; part = part->GetInnerException())
            chain += (chain.empty() ? "" : " <- ") + std::string(TypeName(*part)) + ": " + Narrow(part->GetMessage());
    }
    return chain;
}

std::string Unprocessed(const std::string& path, const std::string& inner)
{
    return "Validation: Failed to process the element.\nPath: " + path + " <- " + inner;
}

std::string LeftOver(const std::string& path, const std::string& parent, const std::string& child)
{
    return "Zr: Failed read all the elements held within the element [" + parent + "]. The unexpected element [" + child
        + "] remains un processed\nPath: " + path;
}

std::string Read(const TestClass& type, const wchar_t* xml, const CSerializationContext& context)
{
    const CSmartPtr<TestObject> object = type.Create();
    const std::string failure = FailureOf([&] { object->FromXml(xml, context); });
    return failure.empty() ? Narrow(DescribeObject(*object)) : failure;
}

std::string Write(const TestObject& object, const CSerializationContext& context)
{
    std::wstring text;
    const std::string failure = FailureOf([&] { text = object.ToXml(false, false, EOL_LF, context); });
    return failure.empty() ? Narrow(text) : failure;
}

} // namespace TestSupport
