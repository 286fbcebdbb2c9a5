// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zorvik {

/// An object that counts its references and deletes itself when the last one is released.
/// Held as `boost::intrusive_ptr`. The count is atomic; everything else about a counted object
/// belongs to the GUI thread. Form no `intrusive_ptr` from `this` in a constructor or destructor:
/// the count is 0 there, so that pointer would delete the object.
class ZORVIKPLATFORM_EXPORT IRefCountable
{
public:
    IRefCountable() = default;
    IRefCountable(const IRefCountable&) = default;
    IRefCountable& operator=(const IRefCountable&) = default;

    /// Adds one reference. Returns the new count.
    virtual unsigned AddRef() const = 0;
    /// Takes one reference. Returns the new count; at 0 the object is gone.
    virtual unsigned Release() const = 0;
    virtual unsigned GetRefCount() const = 0;

protected:
    virtual ~IRefCountable();
};

ZORVIKPLATFORM_EXPORT void intrusive_ptr_add_ref(const IRefCountable* object);
ZORVIKPLATFORM_EXPORT void intrusive_ptr_release(const IRefCountable* object);

} // namespace Zorvik
