// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_JSONFORMAT_H
#define ZRCONVERT_JSONFORMAT_H

#include "Formats.h"

namespace Convert {

bool LooksLikeJson(const Bytes& bytes);
Document ReadJson(const Bytes& bytes, const Settings& settings);
ZrXmlLib16::CBinaryData WriteJson(const Document& document, const Settings& settings);

} // namespace Convert

#endif
