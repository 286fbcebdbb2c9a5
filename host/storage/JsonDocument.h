// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include "Zorvik/Brassel/ISerializer.h"

#include <QByteArray>

#include <string>

class QString;

namespace LumetraHost {

/// A JSON text with an object at the top, read from a file or made anew. It does not write files:
/// what belongs to the user goes through CheckedFileWriter.
class JsonDocument
{
public:
    static constexpr qint64 MAX_FILE_SIZE = 64 * 1024 * 1024;

    /// An empty object. `name` stands for the file in messages.
    explicit JsonDocument(const std::string& name);

    /// Reads a file of at most MAX_FILE_SIZE bytes. Exception when it cannot be read;
    /// JsonException "file:line:column: …" when it is not what JsonReader reads.
    static JsonDocument Read(const QString& fileName);
    /// The same from memory, of any size.
    static JsonDocument Parse(const QByteArray& text, const std::string& name);

    const std::string& GetName() const;
    /// The values themselves, with their places. Never null.
    const JsonValue::Object& GetObject() const;
    /// A serializer over the values; it keeps them alive and changes them in place.
    Zorvik::Brassel::SerializerPtr GetRoot() const;

    /// The text to store: see JsonWriter. Exception for nesting over JsonReader's limit.
    QByteArray ToText() const;

private:
    JsonDocument(const JsonValue::Object& object, const std::string& name);

    JsonValue::Object m_object;
    std::string m_name;
};

} // namespace LumetraHost
