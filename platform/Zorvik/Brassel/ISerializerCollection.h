// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/IRefCountable.h"

#include <cstddef>
#include <string>

namespace Zorvik::Brassel {

/// A collection is an ordered list of nodes inside a stored form. Its elements may have names. It
/// keeps its tree alive, and stays good while the tree grows.
class ZORVIKPLATFORM_EXPORT ISerializerCollection : public virtual IRefCountable
{
public:
    /// Returns how many elements there are now.
    virtual std::size_t GetCount() const = 0;
    /// Returns element `index`, counted from 0 and never null. An index past the end is an
    /// Exception that names the place.
    virtual ConstSerializerPtr GetElement(std::size_t index) const = 0;
    /// Puts a new empty element at the end and returns it. It stands in the tree at once. The name
    /// is the node's GetName(); "" leaves the element without one. A store may refuse a name that
    /// it cannot keep with an Exception.
    virtual SerializerPtr AddElement(const std::string& name) = 0;

    /// Puts a new empty element without a name at the end and returns it.
    SerializerPtr AddElement();

    /// Lets `object` read itself from element `index`, whose GetName() stays the element's own.
    /// `classId` says what the caller takes the element for; it is not looked at. An index past the
    /// end is an Exception, and `object` is then untouched.
    void ReadObject(std::size_t index, const std::string& classId, ISerializable& object) const;

protected:
    ~ISerializerCollection() override;
};

} // namespace Zorvik::Brassel
