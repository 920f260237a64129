// SPDX-License-Identifier: MIT
#ifndef FUZZ_RANDOMOBJECT_H
#define FUZZ_RANDOMOBJECT_H

#include "fuzz/FuzzSupport.h"
#include "support/TestObject.h"

namespace Fuzz {

/// What the objects of an input must not hold because the format they go through cannot carry it.
struct Restrictions {
    bool nil = false;
    /// quotation marks and backslashes, empty text, objects without content, numbers that JSON has no form for
    bool unwritableInJson = false;
};

/// One of 64 classes, always the same for a number, made when it is first asked for: classes are never destroyed.
TestSupport::TestClass RandomClass(unsigned number);

/// Fills every property that is mandatory and some of the others.
void FillObject(TestSupport::TestObject& object, const TestSupport::TestClass& type, InputReader& input,
    const Restrictions& restrictions);

/// A lexical form of a value of the type.
std::wstring RandomText(ZrXmlLib16::ItemType type, InputReader& input, const Restrictions& restrictions);

} // namespace Fuzz

#endif
