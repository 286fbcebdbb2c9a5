// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <atomic>

namespace Zorvik {

/// The counter inside a counted object. It starts at 0, and so does the counter of a copy;
/// assigning one object to another leaves both counts alone.
class ZORVIKPLATFORM_EXPORT RefCountImpl
{
public:
    RefCountImpl();
    RefCountImpl(const RefCountImpl& other);
    RefCountImpl& operator=(const RefCountImpl& other);

    /// Returns the new count.
    unsigned AddRefImpl() const;
    /// Returns the new count. The owner deletes itself when it is 0.
    unsigned ReleaseImpl() const;
    unsigned GetRefCountImpl() const;

private:
    mutable std::atomic<unsigned> m_count;
};

} // namespace Zorvik
