// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/ContentCollector.h"

#include "Zorvik/Exception.h"
#include "userdata/BackupRotation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstring>

namespace LumetraHost {
namespace {

constexpr int NameLength = 64;

void Subtract(const std::set<std::string>& names, std::set<std::string>& from)
{
    for (const std::string& name : names)
        from.erase(name);
}

/// Takes the names in a file off `unused`. False when the file cannot be read.
bool SubtractNamesIn(const QString& path, std::set<std::string>& unused)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    Subtract(ContentCollector::FindNames(file.readAll()), unused);
    return file.error() == QFileDevice::NoError;
}

/// Files whose names begin like the one at `path`, in its folder.
QStringList FindRelatives(const QString& path)
{
    const QFileInfo self(path);
    QStringList relatives;
    const QFileInfoList files = self.dir().entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files)
        if (file.fileName().startsWith(self.fileName()) && file.fileName() != self.fileName() &&
            !BackupRotation::IsOldForm(file.fileName()))
            relatives.append(file.filePath());
    return relatives;
}

void AddNames(const JsonObject& object, std::set<std::string>& names);

void AddNames(const JsonValue& value, std::set<std::string>& names)
{
    if (const auto* text = value.As<std::string>(); text && ContentFolder::IsName(*text))
        names.insert(*text);
    if (const auto* list = value.As<JsonValue::Array>())
        for (const JsonValue& element : (*list)->elements)
            AddNames(element, names);
    if (const auto* object = value.As<JsonValue::Object>())
        AddNames(**object, names);
}

void AddNames(const JsonObject& object, std::set<std::string>& names)
{
    for (const auto& member : object.GetMembers())
        AddNames(member.second, names);
}

bool AreGood(const QStringList& files, const ContentCollector::Read& read)
{
    try {
        for (const QString& file : files)
            read(file);
        return true;
    } catch (const Zorvik::Exception&) {
        return false;
    }
}

} // namespace

std::set<std::string> ContentCollector::FindNames(const QByteArray& text)
{
    std::set<std::string> names;
    const char* at = text.constData();
    const char* const end = at + text.size();
    while ((at = static_cast<const char*>(
                std::memchr(at, '"', static_cast<std::size_t>(end - at)))) != nullptr) {
        ++at;
        if (end - at <= NameLength)
            break;
        if (at[NameLength] != '"')
            continue;
        const std::string name(at, NameLength);
        if (ContentFolder::IsName(name))
            names.insert(name);
    }
    return names;
}

std::set<std::string> ContentCollector::FindNames(const JsonObject& values)
{
    std::set<std::string> names;
    AddNames(values, names);
    return names;
}

void ContentCollector::Collect(const ContentFolder& contents, const std::set<std::string>& kept,
                               const QString& path, const QStringList& backups, const Read& read)
{
    std::set<std::string> unused = contents.FindAll();
    Subtract(kept, unused);
    if (unused.empty())
        return;
    for (const QString& relative : FindRelatives(path))
        if (!SubtractNamesIn(relative, unused))
            return;
    if (unused.empty() || !AreGood(backups, read))
        return;
    for (const std::string& name : unused)
        contents.Remove(name);
}

} // namespace LumetraHost
