// SPDX-License-Identifier: MIT
#include "MappedFile.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

[[noreturn]] void Throw(const char* action)
{
    throw std::system_error(errno, std::generic_category(), action);
}

void Write(int descriptor, const std::string& text)
{
    for (std::size_t written = 0; written < text.length();) {
        const ssize_t count = write(descriptor, text.data() + written, text.length() - written);
        if (count < 0) {
            Throw("cannot write the temporary file");
        }
        written += static_cast<std::size_t>(count);
    }
}

std::string Reading(unsigned number)
{
    char text[256];
    std::snprintf(text, sizeof text,
        "<reading sensor=\"%u\"><time>2026-03-09T%02u:%02u:%02uZ</time><temperature>%u.%u</temperature>"
        "<pressure>%u</pressure><healthy>true</healthy></reading>\n",
        number % 16, number / 3600 % 24, number / 60 % 60, number % 60, 15 + number % 10, number % 7,
        101000 + number % 500);
    return text;
}

} // namespace

int MakeLogFile(unsigned long size)
{
    std::string name = std::filesystem::temp_directory_path() / "large-document-XXXXXX";
    const int descriptor = mkstemp(name.data());
    if (descriptor < 0) {
        Throw("cannot make a temporary file");
    }
    unlink(name.c_str());
    std::string block = "<log xmlns=\"urn:example:telemetry\" station=\"Patscherkofel\">\n";
    unsigned long length = 0;
    for (unsigned number = 0; length < size; ++number) {
        block += Reading(number);
        if (block.length() > 65536) {
            Write(descriptor, block);
            length += block.length();
            block.clear();
        }
    }
    Write(descriptor, block + "</log>\n");
    return descriptor;
}

MappedFile::MappedFile(int descriptor)
{
    struct stat status { };
    void* data = MAP_FAILED;
    if (fstat(descriptor, &status) == 0) {
        m_size = static_cast<unsigned long>(status.st_size);
        data = mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    }
    const int error = errno;
    close(descriptor);
    if (data == MAP_FAILED) {
        errno = error;
        Throw("cannot map the temporary file");
    }
    m_data = static_cast<unsigned char*>(data);
}

MappedFile::~MappedFile()
{
    munmap(m_data, m_size);
}

void MappedFile::ReleasePages() const
{
    madvise(m_data, m_size, MADV_DONTNEED);
}
