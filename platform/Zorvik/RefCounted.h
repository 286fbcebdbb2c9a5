// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/RefCountImpl.h"

namespace Zorvik {

/// Gives a class that implements `Interface` its three counting operations and the interface's
/// constructors. A class whose counter has a prescribed place among its fields cannot use it.
template <class Interface>
class RefCounted : public Interface
{
public:
    using Interface::Interface;

    /// These are the counting operations of IRefCountable. Release() deletes the object at 0, so
    /// the object must have been made with `new`.
    unsigned AddRef() const override { return m_references.AddRefImpl(); }

    unsigned Release() const override
    {
        const unsigned count = m_references.ReleaseImpl();
        if (count == 0)
            delete this;
        return count;
    }

    unsigned GetRefCount() const override { return m_references.GetRefCountImpl(); }

private:
    RefCountImpl m_references;
};

} // namespace Zorvik
