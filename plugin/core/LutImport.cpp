// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LutImport.h"

#include "catalogue/VisibleText.h"
#include "core/PresetCollection.h"
#include "core/PresetMaker.h"
#include "core/PresetNames.h"
#include "lut/LutFormat.h"
#include "lut/LutReader.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::LutFormat;
using LumetraHost::LutLook;

/// The look's name; "LUT" for a look without one.
QString NameOf(const LutLook& look)
{
    const QString name =
        LumetraHost::VisibleText::WithoutControls(QString::fromStdString(look.name)).trimmed();
    return name.isEmpty() ? QStringLiteral("LUT") : name;
}

} // namespace

bool LutImport::IsLutName(const QString& path, bool withPictures)
{
    const auto format = LumetraHost::GetLutFormatOfName(path);
    return format && (withPictures || format != LutFormat::Hald);
}

ImportedLooks LutImport::Read(const QString& path, const ImportOptions&)
{
    ImportedLooks looks;
    for (const LutLook& look : LumetraHost::LutReader::Read(path))
        looks.push_back({NameOf(look), {}, {look.effect}, {}});
    return looks;
}

std::vector<QModelIndex> LutImport::AddTo(PresetCollection& collection, const QString& path)
{
    return AddTo(collection, path, collection.GetModel().GetUserPresetNames());
}

std::vector<QModelIndex> LutImport::AddTo(PresetCollection& collection, const QString& path,
                                          QStringList taken)
{
    PresetModel& model = collection.GetModel();
    std::vector<PresetModel::PresetPtr> presets;
    for (const LutLook& look : LumetraHost::LutReader::Read(path)) {
        taken.append(PresetNames::MakeFree(NameOf(look), taken));
        presets.push_back(
            PresetMaker::Make(taken.last(), {look.effect}, 100, collection.GetFactory()));
    }
    for (const auto& preset : presets)
        model.AddUserPreset(preset);
    // Persistent indexes are needed: an index is good until the next insertion only.
    std::vector<QModelIndex> added;
    for (const auto& preset : presets)
        added.push_back(model.FindPreset(*preset));
    return added;
}

} // namespace LumetraPlugin
