// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include "Zorvik/Brassel/ISerializer.h"

#include <QByteArray>

#include <memory>
#include <string>

class QString;

namespace LumetraHost {

class ContentFolder;

/// A JSON text with an object at the top, read from a file or made anew. It does not write files:
/// CheckedFileWriter writes those of the user.
class JsonDocument
{
public:
    static constexpr qint64 MaxFileSize = 64 * 1024 * 1024;

    /// An empty object. `name` stands for the file in messages.
    explicit JsonDocument(const std::string& name);

    /// Reads a file of at most `largest` bytes. Exception when it cannot be read;
    /// JsonException "file:line:column: …" when it is not what JsonReader reads.
    static JsonDocument Read(const QString& fileName, qint64 largest = MaxFileSize);
    /// Reads a file of at most MaxFileSize bytes; `text` gets the whole file.
    static JsonDocument Read(const QString& fileName, QByteArray& text);
    /// Reads from memory, any size; `name` stands for the file in errors.
    static JsonDocument Parse(const QByteArray& text, const std::string& name);

    const std::string& GetName() const { return m_name; }
    /// The top object, whose values know their places. Never null.
    const JsonValue::Object& GetObject() const { return m_object; }
    /// Sets the folder of the contents that the document names by their hash. Null, the default:
    /// the document has to hold everything itself.
    void SetContents(const std::shared_ptr<const ContentFolder>& contents);
    /// A serializer over the values; it keeps them alive and changes them in place.
    Zorvik::Brassel::SerializerPtr GetRoot() const;

    /// The text to store: see JsonWriter. Exception for nesting over JsonReader's limit.
    QByteArray ToText() const;

    /// Reads `text` as Read() would read a file with it, or throws, naming the file and saying that
    /// nothing was written. To be called before a file of the user is replaced: text that cannot be
    /// read again is lost.
    static JsonDocument CheckReadable(const QByteArray& text, const QString& fileName);

private:
    JsonDocument(const JsonValue::Object& object, const std::string& name);

    JsonValue::Object m_object;
    std::string m_name;
    std::shared_ptr<const ContentFolder> m_contents;
};

} // namespace LumetraHost
