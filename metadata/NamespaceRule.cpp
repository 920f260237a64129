// SPDX-License-Identifier: MIT
#include "metadata/NamespaceRule.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrInvalidNamespaceException.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"

namespace ZrXmlLib16 {

namespace {

const NamespaceRule& AnyNamespace()
{
    static const NamespaceRule rule{L"##any", L""};
    return rule;
}

} // namespace

std::shared_ptr<const NamespaceRule> MakeNamespaceRule(
    const wchar_t* namespaceSpecification, const wchar_t* targetNamespace)
{
    NamespaceRule rule{TextOrEmpty(namespaceSpecification), TextOrEmpty(targetNamespace)};
    if (rule.targetNamespace.empty() && rule.wildcard == AnyNamespace().wildcard) {
        return nullptr;
    }
    return std::make_shared<const NamespaceRule>(std::move(rule));
}

bool Accepts(const NamespaceRule* rule, const std::wstring& namespaceUri)
{
    return !rule || CXmlObjectHelper::IsNamespaceValid(namespaceUri, rule->wildcard, rule->targetNamespace);
}

const std::wstring& WildcardOf(const NamespaceRule* rule)
{
    return (rule ? *rule : AnyNamespace()).wildcard;
}

const std::wstring& TargetNamespaceOf(const NamespaceRule* rule)
{
    return (rule ? *rule : AnyNamespace()).targetNamespace;
}

void ThrowNamespaceInvalid(const std::wstring& namespaceUri, const wchar_t* className, const std::wstring& wildcard)
{
    throw CZrInvalidNamespaceException(
        FormatString(ZrXmlLib16Data::Message::NAMESPACE_INVALID, namespaceUri.c_str(), className, wildcard.c_str()),
        std::wstring());
}

} // namespace ZrXmlLib16
