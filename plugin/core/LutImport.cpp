// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LutImport.h"

#include "catalogue/VisibleText.h"
#include "core/PresetCollection.h"
#include "core/PresetMaker.h"
#include "core/PresetNames.h"
#include "lut/LutFormat.h"
#include "lut/LutReader.h"

#include <QFileInfo>

namespace LumetraPlugin {
namespace {

using LumetraHost::LutFormat;
using LumetraHost::LutLook;

/// The name without control characters; "LUT" for none.
QString Visible(const std::string& name)
{
    const QString visible =
        LumetraHost::VisibleText::WithoutControls(QString::fromStdString(name)).trimmed();
    return visible.isEmpty() ? QStringLiteral("LUT") : visible;
}

/// The look under the name that it gives itself. The file's name is its group, which tells looks of
/// one name apart.
ImportedLook MakeLook(const LutLook& look, const QString& file)
{
    const QString name = Visible(look.title.empty() ? look.name : look.title);
    return {name, name == file ? QString() : file, {look.effect}, {}};
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
    const QString file = Visible(QFileInfo(path).completeBaseName().toStdString());
    for (const LutLook& look : LumetraHost::LutReader::Read(path))
        looks.push_back(MakeLook(look, file));
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
        taken.append(PresetNames::MakeFree(Visible(look.name), taken));
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
