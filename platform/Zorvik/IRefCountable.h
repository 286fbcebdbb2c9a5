// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zorvik {

/// A counted object counts its references and deletes itself when the last one is released. It is
/// held as `boost::intrusive_ptr`. The count is atomic; everything else about the object belongs to
/// the GUI thread. Form no `intrusive_ptr` from `this` in a constructor, a destructor or a const
/// helper: the count may be 0 there, and such a pointer would delete the object.
class ZORVIKPLATFORM_EXPORT IRefCountable
{
public:
    IRefCountable() = default;
    IRefCountable(const IRefCountable&) = default;
    IRefCountable& operator=(const IRefCountable&) = default;

    /// Adds one reference and returns the new count. `boost::intrusive_ptr` calls it; other code
    /// has no need to.
    virtual unsigned AddRef() const = 0;
    /// Takes one reference away and returns the new count; at 0 the object is gone.
    virtual unsigned Release() const = 0;
    /// Returns the current count, which another thread may already have changed.
    virtual unsigned GetRefCount() const = 0;

protected:
    virtual ~IRefCountable();
};

/// `boost::intrusive_ptr` calls these two for every counted class; they forward to AddRef() and
/// Release(). `object` must not be null.
ZORVIKPLATFORM_EXPORT void intrusive_ptr_add_ref(const IRefCountable* object);
ZORVIKPLATFORM_EXPORT void intrusive_ptr_release(const IRefCountable* object);

} // namespace Zorvik
