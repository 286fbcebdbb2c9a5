// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/IRefCountable.h"

#include <cstddef>
#include <string>

namespace Zorvik::Brassel {

/// An ordered list of nodes inside a stored form; its elements may have names.
class ZORVIKPLATFORM_EXPORT ISerializerCollection : public virtual IRefCountable
{
public:
    virtual std::size_t GetCount() const = 0;
    /// Element `index`; Exception past the end.
    virtual ConstSerializerPtr GetElement(std::size_t index) const = 0;
    /// A new empty element at the end, in the tree at once.
    virtual SerializerPtr AddElement(const std::string& name) = 0;

    /// The same without a name.
    SerializerPtr AddElement();

    /// Lets `object` read itself from element `index`, which keeps its own name. `classId` says
    /// what the caller takes the element for.
    void ReadObject(std::size_t index, const std::string& classId, ISerializable& object) const;

protected:
    ~ISerializerCollection() override;
};

} // namespace Zorvik::Brassel
