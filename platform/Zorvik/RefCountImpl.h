// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <atomic>

namespace Zorvik {

/// The counter inside a counted object starts at 0, and so does the counter of a copy; assigning
/// one object to another leaves both counts alone. The counting operations are safe on any thread.
class ZORVIKPLATFORM_EXPORT RefCountImpl
{
public:
    RefCountImpl();
    RefCountImpl(const RefCountImpl& other);
    RefCountImpl& operator=(const RefCountImpl& other);

    /// Adds one and returns the new count.
    unsigned AddRefImpl() const;
    /// Takes one away and returns the new count. The owner must delete itself when that is 0.
    unsigned ReleaseImpl() const;
    /// Returns the current count, which another thread may already have changed.
    unsigned GetRefCountImpl() const;

private:
    mutable std::atomic<unsigned> m_count;
};

} // namespace Zorvik
