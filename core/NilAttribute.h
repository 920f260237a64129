// SPDX-License-Identifier: MIT
#ifndef CORE_NILATTRIBUTE_H
#define CORE_NILATTRIBUTE_H

namespace ZrXmlLib16 {

class CSerializationContext;
class CXmlAttribute;

/// What the value of a nil attribute says: "true" or "1", "false" or "0", in any case.
/// @throws CZrValidationException at the attribute's path for any other value.
bool ParseNil(const CXmlAttribute& attribute);

/// Whether the value says that the element is not nil.
bool IsNilFalse(const CXmlAttribute& attribute);

/// Whether the attribute is no data of its element: the instance attributes other than nil and, where names are taken
/// without namespace processing, a namespace declaration.
bool IsDeclaration(const CSerializationContext& context, const CXmlAttribute& attribute);

/// Whether the attribute has the name of a namespace declaration: "xmlns", or one that starts with "xmlns:".
bool HasDeclarationName(const CXmlAttribute& attribute);

/// Whether the attribute is the declaration of a default namespace, as far as its name tells.
bool IsDefaultDeclaration(const CXmlAttribute& attribute);

/// Whether the attribute is a namespace declaration that arrived as an ordinary attribute, without namespace
/// processing.
bool IsUnprocessedDeclaration(const CSerializationContext& context, const CXmlAttribute& attribute);

} // namespace ZrXmlLib16

#endif
