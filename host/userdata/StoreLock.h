// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLockFile>

class QString;

namespace LumetraHost {

/// Keeps other programs off one file of the user while it is read again, merged and written. Held
/// for milliseconds; the lock of a killed program is removed after two seconds.
class StoreLock
{
public:
    /// Waits up to ten seconds. Exception that names the file and the lock file, and says who holds
    /// it, as far as known, or why it cannot be made.
    explicit StoreLock(const QString& path);

private:
    QLockFile m_lock;
};

} // namespace LumetraHost
