// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/FailWith.h"

#include "Zorvik/Exception.h"

namespace LumetraHost {
namespace {

/// The path that the compiler knows a source by, from the top of the tree on.
std::string GetPathInTree(const std::string& path)
{
    const std::string here = __FILE__;
    const std::size_t root = here.rfind("host/storage/");
    const bool isInTree = root != std::string::npos && path.compare(0, root, here, 0, root) == 0;
    return isInTree ? path.substr(root) : path;
}

} // namespace

void FailWith(const std::string& description, const char* function, const char* file, int line)
{
    throw Zorvik::Exception(description, function, GetPathInTree(file), line);
}

} // namespace LumetraHost
