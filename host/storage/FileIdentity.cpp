// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/FileIdentity.h"

#include <QFile>

#include <filesystem>
#include <system_error>
#include <tuple>

#include <sys/stat.h>

namespace LumetraHost {
namespace {

namespace Files = std::filesystem;

constexpr int MostLinks = 40; ///< the system's own limit

/// The absolute path, without links and dots as far as there are such folders. A link without a
/// target is followed to the name that is missing. No errors: a loop of links ends at one of them.
Files::path Resolve(const Files::path& given)
{
    std::error_code error;
    Files::path path = Files::absolute(given, error);
    for (int i = 0; i < MostLinks && Files::is_symlink(path, error); ++i)
        path = path.parent_path() / Files::read_symlink(path, error);
    const Files::path resolved = Files::weakly_canonical(path, error);
    return error ? path.lexically_normal() : resolved;
}

} // namespace

FileIdentity FileIdentity::Of(const QString& path)
{
    FileIdentity identity;
    if (path.isEmpty())
        return identity;
    struct stat status = {};
    Files::path place(QFile::encodeName(path).toStdString());
    bool isThere = ::stat(place.c_str(), &status) == 0;
    if (!isThere) {
        place = Resolve(place);
        isThere = ::stat(place.c_str(), &status) == 0;
    }
    if (!isThere) {
        const bool hasFolder = ::stat(place.parent_path().c_str(), &status) == 0;
        const Files::path name = hasFolder ? place.filename() : place;
        identity.m_name = QByteArray::fromStdString(name.native());
        if (!hasFolder)
            return identity;
    }
    identity.m_device = static_cast<std::uint64_t>(status.st_dev);
    identity.m_inode = static_cast<std::uint64_t>(status.st_ino);
    return identity;
}

bool operator==(const FileIdentity& first, const FileIdentity& second)
{
    return first.m_device == second.m_device && first.m_inode == second.m_inode &&
           first.m_name == second.m_name;
}

bool operator<(const FileIdentity& first, const FileIdentity& second)
{
    return std::tie(first.m_device, first.m_inode, first.m_name) <
           std::tie(second.m_device, second.m_inode, second.m_name);
}

} // namespace LumetraHost
