// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookImport.h"

#include "Zorvik/Exception.h"
#include "core/LutImport.h"
#include "core/PresetImport.h"
#include "core/looks/LookPack.h"
#include "core/looks/LookReader.h"
#include "core/looks/PictureLooks.h"

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

/// False for a picture that tells of no look. The reader of tables says what is wrong with a
/// picture that may be a table.
bool ReadRecords(ImportedFile& file)
{
    try {
        return PictureLooks::Read(file.path, file.documents, file.problems);
    } catch (const Zorvik::Exception&) {
        if (!LutImport::IsLutName(file.path, true))
            throw;
        return false;
    }
}

void ReadPicture(ImportedFile& file)
{
    if (ReadRecords(file))
        return;
    if (!LutImport::IsLutName(file.path, true))
        throw Zorvik::Exception(
            PictureLooks::tr("%1: expected a picture that tells of its look, as "
                             "this program exports them, found nothing of it in "
                             "its metadata")
                .arg(file.path)
                .toStdString(),
            BOOST_CURRENT_FUNCTION, "looks/LookImport", __LINE__);
    file.looks = LutImport::Read(file.path, {});
}

} // namespace

bool LookImport::IsLookName(const QString& path)
{
    return LookReader::IsLookName(path) || LookPack::IsPackName(path) ||
           PictureLooks::IsPictureName(path);
}

void LookImport::Read(ImportedFile& file)
{
    if (LookPack::IsPackName(file.path))
        LookPack::Read(file);
    else if (PictureLooks::IsPictureName(file.path))
        ReadPicture(file);
    else
        file.documents.push_back(LookReader::ReadFile(file.path));
}

} // namespace LumetraPlugin
