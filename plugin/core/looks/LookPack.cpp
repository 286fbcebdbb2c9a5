// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookPack.h"

#include "Zorvik/Exception.h"
#include "archive/ZipReader.h"
#include "core/LutImport.h"
#include "core/PresetImport.h"
#include "core/looks/LookFormat.h"
#include "core/looks/LookReader.h"
#include "storage/ErrorText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonDocument;
using LumetraHost::ZipEntry;
using LumetraHost::ZipReader;

[[noreturn]] void Fail(const QString& place, const std::string& text)
{
    throw Zorvik::Exception(place.toStdString() + ": " + text, BOOST_CURRENT_FUNCTION,
                            "looks/LookPack", __LINE__);
}

/// Reads the entries of one archive.
class PackReader
{
public:
    explicit PackReader(ImportedFile& file) : m_archive(file.path), m_file(file) {}

    void Read();

private:
    static bool IsRead(const ZipEntry& entry);
    void ReadEntry(const ZipEntry& entry);
    void ReadLooks(const ZipEntry& entry);
    void ReadTable(const ZipEntry& entry);

    ZipReader m_archive;
    ImportedFile& m_file;
    QStringList m_pictures; ///< sentences about pictures that are no tables
};

bool PackReader::IsRead(const ZipEntry& entry)
{
    return !entry.IsFinderNote() &&
           (entry.name == QLatin1String(LookFormat::EntryName) ||
            LookReader::IsLookName(entry.name) || LutImport::IsLutName(entry.name, true));
}

void PackReader::Read()
{
    bool hasAny = false;
    for (const ZipEntry& entry : m_archive.GetEntries()) {
        if (!IsRead(entry))
            continue;
        hasAny = true;
        try {
            ReadEntry(entry);
        } catch (const std::exception& error) {
            const bool isTable =
                !LutImport::IsLutName(entry.name, true) || LutImport::IsLutName(entry.name, false);
            (isTable ? m_file.problems : m_pictures).append(LumetraHost::ErrorText::Show(error));
        }
    }
    // Packs show their looks in pictures, which are no faults beside tables.
    if (m_file.looks.empty() && m_file.documents.empty())
        m_file.problems += m_pictures;
    if (!hasAny)
        Fail(m_file.path,
             "expected files with looks or LUT files (.lumetra, .cube, .3dl, .clf, .cc, "
             ".ccc, .cdl, .png, .tif) in the archive, found none");
}

void PackReader::ReadEntry(const ZipEntry& entry)
{
    if (LutImport::IsLutName(entry.name, true))
        ReadTable(entry);
    else
        ReadLooks(entry);
}

/// Archives inside of archives are refused: the limits of one would have to count for all.
void PackReader::ReadLooks(const ZipEntry& entry)
{
    const QByteArray content = m_archive.Read(entry);
    const QString name = m_archive.NameOf(entry);
    if (content.startsWith("PK"))
        Fail(name, "expected a plain look file, found an archive inside of the archive");
    m_file.documents.push_back(JsonDocument::Parse(content, name.toStdString()));
}

/// The readers of tables want a file. Its errors are told with the entry's name in place of the
/// file's.
void PackReader::ReadTable(const ZipEntry& entry)
{
    const QByteArray content = m_archive.Read(entry);
    const QTemporaryDir folder;
    const QString path = folder.filePath(entry.GetFileName());
    QFile file(path);
    if (!folder.isValid() || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size() || !file.flush())
        Fail(m_archive.NameOf(entry),
             "cannot be unpacked to a temporary file: " + file.errorString().toStdString());
    file.close();
    try {
        for (const ImportedLook& look : LutImport::Read(path, {}))
            m_file.looks.push_back(look);
    } catch (const std::exception& error) {
        QString text = LumetraHost::ErrorText::Show(error);
        throw Zorvik::Exception(text.replace(path, m_archive.NameOf(entry)).toStdString(),
                                BOOST_CURRENT_FUNCTION, "looks/LookPack", __LINE__);
    }
}

} // namespace

bool LookPack::IsPackName(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("zip"), Qt::CaseInsensitive) == 0;
}

void LookPack::Read(ImportedFile& file)
{
    PackReader(file).Read();
}

} // namespace LumetraPlugin
