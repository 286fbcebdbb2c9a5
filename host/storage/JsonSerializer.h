// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include "Zorvik/Brassel/ISerializer.h"

#include <memory>
#include <string>

namespace LumetraHost {

class ContentFolder;
class IJsonLocation;

/// A serializer over a JSON object.
///
/// A node is a JSON object. A collection is an array, whose elements have no names, or an object,
/// whose members are named elements in order. A created collection becomes an object when its
/// first element has a name; all its elements then need names of their own. Elements that are not
/// objects are refused when they are asked for. `null` is a value of no kind: GetKind() says None,
/// every read refuses it. Errors are JsonExceptions.
class JsonSerializer
{
public:
    /// Wraps `object` without copying. `fileName` begins every path and stands in the places.
    /// `contents` holds the tables that the file names by their hash; null when it has to hold
    /// everything itself.
    static Zorvik::Brassel::SerializerPtr
    Create(const JsonValue::Object& object, const std::string& fileName,
           const std::shared_ptr<const ContentFolder>& contents = nullptr);
    /// Wraps a node inside a file: `path` leads there, without the file's name.
    static Zorvik::Brassel::SerializerPtr
    Create(const JsonValue::Object& object, const std::string& fileName, const std::string& path,
           const std::string& name, const std::shared_ptr<const ContentFolder>& contents = nullptr);
    /// Wraps a node whose place is worked out only when it is asked for.
    static Zorvik::Brassel::SerializerPtr
    Create(const JsonValue::Object& object, const std::shared_ptr<const IJsonLocation>& location,
           const std::string& name);

    /// The contents of the file that `node` belongs to; null when it has none, or is no node of
    /// this kind.
    static std::shared_ptr<const ContentFolder>
    FindContents(const Zorvik::Brassel::ISerializer& node);
};

} // namespace LumetraHost
