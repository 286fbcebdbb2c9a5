// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/IRefCountable.h"

#include <string>
#include <vector>

namespace Zorvik::Brassel {

/// One node of a stored form: keyed scalars, child nodes and collections of nodes, in the order of
/// writing. How the tree is stored is the implementer's; the node keeps its tree alive.
///
/// Reading: a missing key gives the default. A present value must fit: `bool` and text must match,
/// `double` takes any finite number, `int` a whole number in its range. Anything else is a
/// `Zorvik::Exception` that names the place, e.g.
/// "presets.json/UserPresets/items[3]/popular: expected bool, found string".
/// Writing replaces what stood under the key; a number that is not finite is an Exception.
class ZORVIKPLATFORM_EXPORT ISerializer : public virtual IRefCountable
{
public:
    enum class Kind
    {
        None,
        Bool,
        Number,
        Text,
        Node,
        Collection
    };

    /// The node's own name: its key in the parent, or the name of the collection's element.
    virtual std::string GetName() const = 0;
    /// Where the node stands, for messages, from the root down. The default is the name.
    virtual std::string GetPath() const;
    /// All keys, in the order of writing.
    virtual std::vector<std::string> GetKeys() const = 0;
    /// What stands under `key`; None when there is no such key.
    virtual Kind GetKind(const std::string& key) const = 0;

    virtual bool Get(const std::string& key, bool defaultValue) const = 0;
    virtual int Get(const std::string& key, int defaultValue) const = 0;
    virtual double Get(const std::string& key, double defaultValue) const = 0;
    virtual std::string Get(const std::string& key, const std::string& defaultValue) const = 0;
    /// The child node under `key`, null when absent; Exception when something else stands there.
    virtual ConstSerializerPtr GetNode(const std::string& key) const = 0;
    /// The collection under `key`, null when absent; Exception when something else stands there.
    virtual ConstCollectionPtr GetCollection(const std::string& key) const = 0;

    virtual void Set(const std::string& key, bool value) = 0;
    virtual void Set(const std::string& key, int value) = 0;
    virtual void Set(const std::string& key, double value) = 0;
    virtual void Set(const std::string& key, const std::string& value) = 0;
    /// A new empty child node under `key`, in the tree at once.
    virtual SerializerPtr CreateNode(const std::string& key) = 0;
    /// A new empty collection under `key`, in the tree at once.
    virtual CollectionPtr CreateCollection(const std::string& key) = 0;

    /// True when something of any kind stands under `key`.
    bool Has(const std::string& key) const;

    // A literal would bind to the bool forms; null counts as "".
    std::string Get(const std::string& key, const char* defaultValue) const;
    void Set(const std::string& key, const char* value);

    /// Lets `object` read itself from the child node under `key`. False, and `object` untouched,
    /// when there is none.
    bool ReadObject(const std::string& key, ISerializable& object) const;
    /// Lets `object` write itself into a new child node under `key`.
    void WriteObject(const std::string& key, const ISerializable& object);

protected:
    ~ISerializer() override;
};

} // namespace Zorvik::Brassel
