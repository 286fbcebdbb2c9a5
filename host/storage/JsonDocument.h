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
/// what belongs to the user goes through CheckedFileWriter.
class JsonDocument
{
public:
    static constexpr qint64 MaxFileSize = 64 * 1024 * 1024;

    /// An empty object. `name` stands for the file in messages.
    explicit JsonDocument(const std::string& name);

    /// Reads a file of at most `largest` bytes. Exception when it cannot be read;
    /// JsonException "file:line:column: …" when it is not what JsonReader reads.
    static JsonDocument Read(const QString& fileName, qint64 largest = MaxFileSize);
    /// The same, at most MaxFileSize; `text` gets the whole file.
    static JsonDocument Read(const QString& fileName, QByteArray& text);
    /// The same from memory, of any size.
    static JsonDocument Parse(const QByteArray& text, const std::string& name);

    const std::string& GetName() const;
    /// The values themselves, with their places. Never null.
    const JsonValue::Object& GetObject() const;
    /// The folder with what the document names by its hash. Null, as at first: the document has to
    /// be whole by itself.
    void SetContents(const std::shared_ptr<const ContentFolder>& contents);
    /// A serializer over the values; it keeps them alive and changes them in place.
    Zorvik::Brassel::SerializerPtr GetRoot() const;

    /// The text to store: see JsonWriter. Exception for nesting over JsonReader's limit.
    QByteArray ToText() const;

    /// What Read() would make of a file with that text. To be called before a file of the user is
    /// replaced: what cannot be read again is lost. Exception that names the file, and says that
    /// nothing was written, when Read() would refuse it.
    static JsonDocument CheckReadable(const QByteArray& text, const QString& fileName);

private:
    JsonDocument(const JsonValue::Object& object, const std::string& name);

    JsonValue::Object m_object;
    std::string m_name;
    std::shared_ptr<const ContentFolder> m_contents;
};

} // namespace LumetraHost
