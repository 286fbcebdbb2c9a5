// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ZipWriter.h"

#include "Zorvik/Exception.h"
#include "storage/FailWith.h"

#include <memory>

#include <zip.h>

namespace LumetraHost {
namespace {

constexpr zip_uint16_t FirstDate = (1 << 5) | 1; // 1 January 1980

[[noreturn]] void Fail(const std::string& step)
{
    FailWith("the zip archive cannot be made: " + step);
}

using Source = std::unique_ptr<zip_source_t, void (*)(zip_source_t*)>;

/// Adds the entry; the archive keeps a reference to `content` until it is closed.
void Add(zip_t* archive, const std::string& name, const QByteArray& content)
{
    zip_source_t* const source = zip_source_buffer(archive, content.constData(),
                                                   static_cast<zip_uint64_t>(content.size()), 0);
    const zip_int64_t index =
        source ? zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
    if (index < 0) {
        if (source)
            zip_source_free(source);
        Fail(zip_strerror(archive));
    }
    zip_file_set_dostime(archive, static_cast<zip_uint64_t>(index), 0, FirstDate, 0);
}

QByteArray ReadBack(zip_source_t* buffer)
{
    zip_stat_t facts;
    if (zip_source_stat(buffer, &facts) != 0 || zip_source_open(buffer) != 0)
        Fail("it cannot be read back");
    QByteArray bytes(static_cast<int>(facts.size), Qt::Uninitialized);
    const zip_int64_t count =
        zip_source_read(buffer, bytes.data(), static_cast<zip_uint64_t>(bytes.size()));
    zip_source_close(buffer);
    if (count != bytes.size())
        Fail("it cannot be read back");
    return bytes;
}

} // namespace

QByteArray ZipWriter::Pack(const std::string& name, const QByteArray& content)
{
    zip_error_t error;
    zip_error_init(&error);
    const Source buffer(zip_source_buffer_create(nullptr, 0, 0, &error), zip_source_free);
    if (!buffer)
        Fail(zip_error_strerror(&error));
    zip_source_keep(buffer.get()); // the archive takes one reference
    zip_t* const archive = zip_open_from_source(buffer.get(), ZIP_TRUNCATE, &error);
    if (!archive) {
        zip_source_free(buffer.get());
        Fail(zip_error_strerror(&error));
    }
    try {
        Add(archive, name, content);
        if (zip_close(archive) != 0)
            Fail(zip_strerror(archive));
    } catch (const Zorvik::Exception&) {
        zip_discard(archive);
        throw;
    }
    return ReadBack(buffer.get());
}

} // namespace LumetraHost
