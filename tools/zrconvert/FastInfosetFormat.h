// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_FASTINFOSETFORMAT_H
#define ZRCONVERT_FASTINFOSETFORMAT_H

#include "Formats.h"

namespace Convert {

bool IsFastInfoset(const Bytes& bytes);
Document ReadFastInfoset(const Bytes& bytes, const Settings& settings);
ZrXmlLib16::CBinaryData WriteFastInfoset(const Document& document, const Settings& settings);

} // namespace Convert

#endif
