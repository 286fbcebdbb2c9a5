// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <cstdint>
#include <string>

struct tiff;

namespace LumetraHost {

/// A TIFF file in memory, as the codec library reads and writes it, with the library's messages
/// kept per file. Owns the library's handle; the bytes stay the caller's when reading and are its
/// own when writing.
class TiffStream
{
public:
    /// Reads `content`, which has to outlive the stream. `name` begins the text of every exception.
    TiffStream(const Bytes& content, const std::string& name);
    /// Begins an empty file, to be written.
    explicit TiffStream(const std::string& name);
    TiffStream(const TiffStream&) = delete;
    TiffStream& operator=(const TiffStream&) = delete;
    ~TiffStream();

    tiff* Get() const { return m_tiff; }

    /// Ends the writing and returns the file.
    Bytes Finish();

    /// Zorvik::Exception with the file's name, `text` and the library's first message.
    [[noreturn]] void Throw(const std::string& text) const;

private:
    struct Callbacks;

    void Open(const char* mode);

    const Bytes* m_source = nullptr;
    Bytes m_target;
    std::uint64_t m_position = 0;
    bool m_outOfMemory = false;
    std::string m_name;
    std::string m_message;
    tiff* m_tiff = nullptr;
};

} // namespace LumetraHost
