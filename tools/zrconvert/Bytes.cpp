// SPDX-License-Identifier: MIT
#include "Bytes.h"

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/InputLimits.h"
#include "ZrXmlLib16/ZrZip.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace Convert {

namespace {

constexpr std::size_t BLOCK_SIZE = 1UL << 20;

struct FileCloser {
    // The standard streams stay open: what closes them is the end of the program.
    void operator()(FILE* file) const noexcept
    {
        if (file != stdin && file != stdout) {
            std::fclose(file);
        }
    }
};

typedef std::unique_ptr<FILE, FileCloser> File;

[[noreturn]] void ThrowSystemError()
{
    throw std::system_error(errno, std::generic_category());
}

File Open(const std::string& fileName, const char* mode, FILE* standardStream)
{
    if (fileName == STANDARD_STREAM) {
        return File(standardStream);
    }
    File file(std::fopen(fileName.c_str(), mode));
    if (!file) {
        ThrowSystemError();
    }
    return file;
}

} // namespace

std::vector<unsigned char> ReadBytes(const std::string& fileName)
{
    const File file = Open(fileName, "rb", stdin);
    std::vector<unsigned char> bytes;
    std::size_t length = 0;
    do {
        bytes.resize(length + std::max(BLOCK_SIZE, length));
        length += std::fread(bytes.data() + length, 1, bytes.size() - length, file.get());
    } while (length == bytes.size());
    if (std::ferror(file.get())) {
        ThrowSystemError();
    }
    bytes.resize(length);
    ZrXmlLib16::CBinaryData inflated;
    const unsigned long maximum = ZrXmlLib16::CInputLimits().GetMaxInflatedOctets();
    if (ZrXmlLib16::CZrZip::DecompressData(bytes.data(), bytes.size(), maximum, inflated)) {
        bytes.assign(inflated.GetData(), inflated.GetData() + inflated.GetLength());
    }
    return bytes;
}

void WriteBytes(const std::string& fileName, const void* bytes, unsigned long length)
{
    File file = Open(fileName, "wb", stdout);
    if (std::fwrite(bytes, 1, length, file.get()) != length || std::fflush(file.get()) != 0) {
        ThrowSystemError();
    }
    if (file.get() != stdout && std::fclose(file.release()) != 0) {
        ThrowSystemError();
    }
}

} // namespace Convert
