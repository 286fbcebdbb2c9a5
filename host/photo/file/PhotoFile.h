// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <QFile>
#include <QString>

#include <cstdint>
#include <string>

namespace LumetraHost {

/// A photo's file, open for reading. Anything but a regular file is refused before it is read, so
/// that nobody waits at a pipe. Every error is a Zorvik::Exception that begins with the path.
class PhotoFile
{
public:
    explicit PhotoFile(const QString& path);

    const std::string& GetName() const { return m_name; }
    /// Bytes, when it was opened.
    std::uint64_t GetSize() const { return m_size; }

    /// The bytes from `offset` on: `size` of them, or fewer where the file ends.
    Bytes ReadPart(std::uint64_t offset, std::size_t size);
    /// The whole file. It may not have changed its size meanwhile.
    Bytes ReadAll();

private:
    [[noreturn]] void Fail(const std::string& text) const;
    void CheckKind(const QString& path) const;

    std::string m_name;
    QFile m_file;
    std::uint64_t m_size = 0;
};

} // namespace LumetraHost
