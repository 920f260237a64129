// SPDX-License-Identifier: MIT
#include "fuzz/Targets.h"

// libFuzzer has the main program and calls this; the build defines the target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return Fuzz::ZRXML_FUZZ_FUNCTION(data, size);
}
