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

/// An implementer writes itself into a serializer node and reads itself back from one.
class ZORVIKPLATFORM_EXPORT ISerializable
{
public:
    ISerializable() = default;
    ISerializable(const ISerializable&) = default;
    ISerializable& operator=(const ISerializable&) = default;

    /// Names the kind of object; some owners store the object under this key. The default is the
    /// empty string.
    virtual const std::string& GetClassId() const;
    /// Writes the object into `node`, which is not null and usually empty. Exceptions of the
    /// serializer pass, and some keys may then be missing.
    virtual void Serialize(const SerializerPtr& node) const = 0;
    /// Reads the object from `node`; a missing key gives a default or keeps the current value.
    /// Implementations take null for an empty node. A value of the wrong kind is an Exception, and
    /// the keys read before it have then been taken.
    virtual void Deserialize(const ConstSerializerPtr& node) = 0;

    virtual ~ISerializable();
};

} // namespace Zorvik::Brassel
