// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/IRefCountable.h"

#include <string>
#include <vector>

namespace Zorvik::Brassel {

/// One node of a stored form has keyed scalars, child nodes and collections of nodes, in the order
/// of writing. A host implements it over its own storage; every node keeps its tree alive, and
/// stays good while the tree grows.
///
/// Reading gives the default for a missing key. A present value must fit: `bool` and text must
/// match, `double` takes any finite number, `int` takes a whole number in its range. Anything else
/// is a `Zorvik::Exception` that names the place, e.g.
/// "presets.json/UserPresets/items[3]/popular: expected bool, found string".
///
/// Writing replaces what stood under the key, of whatever kind it was. A number that is not finite
/// is an Exception, and what stood there stays.
class ZORVIKPLATFORM_EXPORT ISerializer : public virtual IRefCountable
{
public:
    /// The kind of value under a key; whole numbers and others are one kind.
    enum class Kind
    {
        None,
        Bool,
        Number,
        Text,
        Node,
        Collection
    };

    /// Returns the node's own name: its key in the parent, or the name of the collection's element,
    /// which may be empty.
    virtual std::string GetName() const = 0;
    /// Tells messages where the node stands, from the root down. The default is the name.
    virtual std::string GetPath() const;
    /// Returns all keys in the order of writing.
    virtual std::vector<std::string> GetKeys() const = 0;
    /// Returns the kind of what stands under `key`; None when there is no such key.
    virtual Kind GetKind(const std::string& key) const = 0;

    /// Reads the scalar under `key`; `defaultValue` when the key is missing. The type of
    /// `defaultValue` says what is expected. Any other value there is an Exception.
    virtual bool Get(const std::string& key, bool defaultValue) const = 0;
    virtual int Get(const std::string& key, int defaultValue) const = 0;
    virtual double Get(const std::string& key, double defaultValue) const = 0;
    virtual std::string Get(const std::string& key, const std::string& defaultValue) const = 0;
    /// Returns the child node under `key`, null when the key is missing. Any other value there is
    /// an Exception.
    virtual ConstSerializerPtr GetNode(const std::string& key) const = 0;
    /// Returns the collection under `key`, null when the key is missing. Any other value there is
    /// an Exception.
    virtual ConstCollectionPtr GetCollection(const std::string& key) const = 0;

    /// Writes a scalar under `key`. A finite `double` comes back exactly.
    virtual void Set(const std::string& key, bool value) = 0;
    virtual void Set(const std::string& key, int value) = 0;
    virtual void Set(const std::string& key, double value) = 0;
    virtual void Set(const std::string& key, const std::string& value) = 0;
    /// Puts a new empty child node under `key` and returns it. It stands in the tree at once, so
    /// what is written into it later is stored too.
    virtual SerializerPtr CreateNode(const std::string& key) = 0;
    /// Puts a new empty collection under `key` and returns it. It stands in the tree at once.
    virtual CollectionPtr CreateCollection(const std::string& key) = 0;

    /// True when something of any kind stands under `key`.
    bool Has(const std::string& key) const;

    /// These two forms take texts: without them a literal would bind to the `bool` forms. Null
    /// counts as "".
    std::string Get(const std::string& key, const char* defaultValue) const;
    void Set(const std::string& key, const char* value);

    /// Lets `object` read itself from the child node under `key` and returns true. Returns false,
    /// with `object` untouched, when the key is missing. Another kind of value is an Exception.
    bool ReadObject(const std::string& key, ISerializable& object) const;
    /// Lets `object` write itself into a new child node under `key`, which replaces an older one.
    void WriteObject(const std::string& key, const ISerializable& object);

protected:
    ~ISerializer() override;
};

} // namespace Zorvik::Brassel
