// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_LARGE_DOCUMENT_MAPPEDFILE_H
#define EXAMPLES_LARGE_DOCUMENT_MAPPEDFILE_H

/// Makes a log of measurements of at least that size as a temporary file, without holding it in memory.
/// @return a descriptor of the file, which is gone when it is closed.
/// @throws std::system_error when it cannot be made.
int MakeLogFile(unsigned long size);

/// A file as bytes in memory, of which the system reads what is used. Not synchronised.
class MappedFile {
public:
    /// @param descriptor closed by this object.
    /// @throws std::system_error when the file cannot be mapped.
    explicit MappedFile(int descriptor);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    const unsigned char* GetData() const { return m_data; }
    unsigned long GetSize() const { return m_size; }
    /// Gives back the memory of what was read so far. What is used again is read again.
    void ReleasePages() const;

private:
    unsigned char* m_data = nullptr;
    unsigned long m_size = 0;
};

#endif
