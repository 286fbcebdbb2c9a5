// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <string>

namespace Zorvik::Brassel {

class ISerializer;
class ISerializerCollection;
using SerializerPtr = boost::intrusive_ptr<ISerializer>;
using ConstSerializerPtr = boost::intrusive_ptr<const ISerializer>;
using CollectionPtr = boost::intrusive_ptr<ISerializerCollection>;
using ConstCollectionPtr = boost::intrusive_ptr<const ISerializerCollection>;

/// An object that writes itself into a serializer node and reads itself back from one.
class ZORVIKPLATFORM_EXPORT ISerializable
{
public:
    ISerializable() = default;
    ISerializable(const ISerializable&) = default;
    ISerializable& operator=(const ISerializable&) = default;

    /// Names the kind of object; some owners store the object under this key. The default is empty.
    virtual const std::string& GetClassId() const;
    virtual void Serialize(const SerializerPtr& node) const = 0;
    virtual void Deserialize(const ConstSerializerPtr& node) = 0;

    virtual ~ISerializable();
};

} // namespace Zorvik::Brassel
