// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "storage/JsonReader.h"
#include "storage/JsonSerializer.h"
#include "storage/JsonWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

#include <boost/current_function.hpp>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const QString& fileName, const std::string& reason, int line)
{
    throw Zorvik::Exception(fileName.toStdString() + ": " + reason, BOOST_CURRENT_FUNCTION,
                            "storage/JsonDocument", line);
}

QByteArray ReadAll(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile())
        Fail(fileName, info.isDir() ? "expected a file, found a folder" : "expected a plain file",
             __LINE__);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        Fail(fileName, "cannot be read: " + file.errorString().toStdString(), __LINE__);
    QByteArray text = file.read(JsonDocument::MAX_FILE_SIZE + 1);
    if (file.error() != QFileDevice::NoError)
        Fail(fileName, "cannot be read: " + file.errorString().toStdString(), __LINE__);
    if (text.size() > JsonDocument::MAX_FILE_SIZE)
        Fail(fileName,
             "expected at most " + std::to_string(JsonDocument::MAX_FILE_SIZE / 1024 / 1024) +
                 " MB, found " + std::to_string(info.size()) + " bytes",
             __LINE__);
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

JsonDocument JsonDocument::Read(const QString& fileName)
{
    return Parse(ReadAll(fileName), fileName.toStdString());
}

JsonDocument JsonDocument::Parse(const QByteArray& text, const std::string& name)
{
    const std::string_view bytes(text.constData(), static_cast<std::size_t>(text.size()));
    return JsonDocument(JsonReader::Read(bytes, name), name);
}

const std::string& JsonDocument::GetName() const
{
    return m_name;
}

const JsonValue::Object& JsonDocument::GetObject() const
{
    return m_object;
}

Zorvik::Brassel::SerializerPtr JsonDocument::GetRoot() const
{
    return JsonSerializer::Create(m_object, m_name);
}

QByteArray JsonDocument::ToText() const
{
    return QByteArray::fromStdString(JsonWriter::Write(*m_object));
}

} // namespace LumetraHost
