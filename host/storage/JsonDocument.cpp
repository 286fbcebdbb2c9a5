// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/FailWith.h"
#include "storage/JsonException.h"
#include "storage/JsonReader.h"
#include "storage/JsonSerializer.h"
#include "storage/JsonWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const QString& fileName, const std::string& reason)
{
    FailWith(fileName.toStdString() + ": " + reason);
}

std::string TooLarge(qint64 largest, qint64 size)
{
    return "expected at most " + std::to_string(largest / 1024 / 1024) + " MB, found " +
           std::to_string(size) + " bytes";
}

QByteArray ReadAll(const QString& fileName, qint64 largest)
{
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile())
        Fail(fileName, info.isDir() ? "expected a file, found a folder" : "expected a plain file");
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        Fail(fileName, "cannot be read: " + file.errorString().toStdString());
    QByteArray text = file.read(largest + 1);
    if (file.error() != QFileDevice::NoError)
        Fail(fileName, "cannot be read: " + file.errorString().toStdString());
    if (text.size() > largest)
        Fail(fileName, TooLarge(largest, info.size()));
    return text;
}

} // namespace

JsonDocument::JsonDocument(const std::string& name)
    : JsonDocument(std::make_shared<JsonObject>(), name)
{
}

JsonDocument::JsonDocument(const JsonValue::Object& object, const std::string& name)
    : m_object(object), m_name(name)
{
}

JsonDocument JsonDocument::Read(const QString& fileName, qint64 largest)
{
    return Parse(ReadAll(fileName, largest), fileName.toStdString());
}

JsonDocument JsonDocument::Read(const QString& fileName, QByteArray& text)
{
    text = ReadAll(fileName, MaxFileSize);
    return Parse(text, fileName.toStdString());
}

JsonDocument JsonDocument::Parse(const QByteArray& text, const std::string& name)
{
    const std::string_view bytes(text.constData(), static_cast<std::size_t>(text.size()));
    return JsonDocument(JsonReader::Read(bytes, name), name);
}

Zorvik::Brassel::SerializerPtr JsonDocument::GetRoot() const
{
    return JsonSerializer::Create(m_object, m_name, m_contents);
}

void JsonDocument::SetContents(const std::shared_ptr<const ContentFolder>& contents)
{
    m_contents = contents;
}

QByteArray JsonDocument::ToText() const
{
    return QByteArray::fromStdString(JsonWriter::Write(*m_object));
}

JsonDocument JsonDocument::CheckReadable(const QByteArray& text, const QString& fileName)
{
    const std::string unwritten = "; it could not be read again, so nothing was written";
    if (text.size() > MaxFileSize)
        Fail(fileName, TooLarge(MaxFileSize, text.size()) + unwritten);
    try {
        return Parse(text, fileName.toStdString());
    } catch (const JsonException& error) {
        Fail(fileName, error.GetMessage() + unwritten);
    }
}

} // namespace LumetraHost
