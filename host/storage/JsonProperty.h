// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include "Zorvik/Core/Property.h"

#include <cstddef>
#include <string>

namespace LumetraHost {

/// Turns trees of the platform's properties into JSON values and back. A tree that Write() has
/// taken comes back from Read() with all its keys in their order, every integer to the digit and
/// every double to the bit; only the name of a child node becomes the key that it stands under.
///
/// A node is an object and a list an array of objects. The name of a list's element, where it has
/// one, stands in the element under the empty key. Numbers with a fraction or an exponent are
/// doubles, all others integers of 64 bits.
class JsonProperty
{
public:
    /// How much Write() takes. Whoever gives more makes a mistake, such as a tree in itself.
    struct Limits
    {
        std::size_t depth;  ///< nodes and lists inside each other, the first node included
        std::size_t values; ///< all of them, the first node included
    };

    /// The most keys of one node: a property looks through all of them for each.
    static constexpr std::size_t MaxKeys = 10'000;

    /// Stands in an element that was no node in its JSON text: the element's value has this key.
    static constexpr char ValueKey[] = "value";

    /// Zorvik::Exception, with the place below `place`, for a null node, a number that is not
    /// finite, a key or text that is no UTF-8, an empty key, one key twice, and for more than
    /// MaxKeys and `limits` allow.
    static JsonValue::Object Write(const Zorvik::Core::Property& property, const std::string& place,
                                   const Limits& limits);

    /// Reads any JSON. Some of it has no equal in a tree of properties: null is left out, an
    /// element of an array that is no object becomes a node with the element under ValueKey
    /// (without it for null), and an integer that does not fit 64 bits becomes a double. A
    /// member under the empty key is left out unless it is the name of an element.
    /// Zorvik::Exception, with `place`, for an object of more than MaxKeys members.
    static Zorvik::Core::Property::Ptr Read(const JsonObject& object, const std::string& place);

    /// True when both trees have the same keys in the same order with the same values; an integer
    /// and a double never are the same. The names of the two first nodes do not count.
    static bool AreEqual(const Zorvik::Core::Property& first, const Zorvik::Core::Property& second);
};

} // namespace LumetraHost
