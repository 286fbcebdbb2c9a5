// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands gives presets to other people.
#include "Zorvik/Exception.h"
#include "core/PresetNames.h"
#include "core/looks/LookFormat.h"
#include "core/looks/LookPreview.h"
#include "core/looks/LookWriter.h"
#include "panel/commands/PresetCommands.h"
#include "panel/commands/ShareCredits.h"
#include "panel/commands/ShareDialog.h"
#include "panel/importing/BackgroundWork.h"

#include <QMimeData>
#include <QUrl>

namespace LumetraPlugin {
namespace {

QString NameOf(const QModelIndex& preset)
{
    return preset.data(PresetModel::PresetNameRole).toString();
}

QString FileNameOf(const QModelIndex& preset)
{
    return PresetNames::MakeFileName(NameOf(preset), QLatin1String(LookFormat::Suffix));
}

} // namespace

void PresetCommands::Share(const QModelIndex& preset)
{
    Try([&] {
        ShareDialog dialog(GetModel(), preset, ShareCredits::Load(m_settingsFile),
                           &m_dialogs.GetWindow());
        if (dialog.exec() != QDialog::Accepted)
            return;
        const std::vector<QModelIndex> presets = dialog.GetPresets();
        const QString path =
            presets.empty() ? QString() : m_dialogs.AskShareFile(FileNameOf(presets.front()));
        if (path.isEmpty() || !WriteLooks(CopyLooks(presets, dialog), path))
            return;
        dialog.MakeLast().Save(m_settingsFile);
        TellBriefly(tr("Wrote “%1”.").arg(path));
    });
}

/// The looks as the panel shows them, with the values that they have now. Empty, after telling the
/// user why, when one of them cannot be used.
std::vector<PresetModel::PresetPtr>
PresetCommands::CopyLooks(const std::vector<QModelIndex>& presets, const ShareDialog& dialog)
{
    std::vector<PresetModel::PresetPtr> looks;
    for (const QModelIndex& preset : presets) {
        if (!Fetch(preset))
            return {};
        const auto original = GetModel().GetPreset(preset);
        looks.push_back(original->Copy());
        looks.back()->SetCredits(dialog.MakeCredits(original->MakeCredits()));
    }
    return looks;
}

/// False, after telling the user why, when the file is not written. The small pictures are drawn on
/// another thread: each takes as long as a photo.
bool PresetCommands::WriteLooks(const std::vector<PresetModel::PresetPtr>& looks,
                                const QString& path)
{
    if (looks.empty())
        return false;
    try {
        const auto pictures = DrawPictures(looks);
        if (!pictures) {
            TellBriefly(tr("Nothing was written."));
            return false;
        }
        LookWriter writer;
        for (std::size_t i = 0; i < looks.size(); ++i)
            writer.Add(*looks[i], (*pictures)[i]);
        writer.Write(path);
        return true;
    } catch (const Zorvik::Exception& error) {
        Tell(QString::fromUtf8(error.what()));
        return false;
    }
}

/// Nothing when the user has ended it.
std::optional<std::vector<QByteArray>>
PresetCommands::DrawPictures(const std::vector<PresetModel::PresetPtr>& looks)
{
    std::vector<std::pair<QString, Zorvik::Quindle::EffectsSettings>> drawn;
    for (const auto& look : looks)
        drawn.emplace_back(look->GetShownName(), look->MakeSettings());
    std::vector<QByteArray> pictures;
    BackgroundWork work({tr("Share looks"), tr("Pictures that are drawn")}, m_dialogs.GetWindow());
    const bool isDone = work.Run([&](const BackgroundWork::Progress& progress) {
        const QString sample = LookPreview::FindSample();
        for (const auto& [name, settings] : drawn)
            if (progress(static_cast<int>(pictures.size()), static_cast<int>(drawn.size()), name))
                pictures.push_back(LookPreview::Draw(settings, sample));
            else
                return;
    });
    return isDone ? std::optional(pictures) : std::nullopt;
}

/// False, after telling the user why, when the file is not written. The picture is drawn at once,
/// for a drag that has begun cannot wait for a dialog.
bool PresetCommands::WriteDragged(const PresetController& preset, const QString& path)
{
    try {
        const auto look = preset.Copy();
        look->SetCredits(preset.MakeCredits());
        LookWriter writer;
        writer.Add(*look, LookPreview::Draw(look->MakeSettings(), LookPreview::FindSample()));
        writer.Write(path);
        return true;
    } catch (const Zorvik::Exception& error) {
        Tell(QString::fromUtf8(error.what()));
        return false;
    }
}

std::unique_ptr<QMimeData> PresetCommands::MakeDragData(const QModelIndex& preset)
{
    std::unique_ptr<QMimeData> data;
    Try([&] {
        const auto look = GetModel().GetPreset(preset);
        if (!look)
            return;
        if (!m_dragged)
            m_dragged = std::make_unique<QTemporaryDir>();
        const QString path = m_dragged->filePath(FileNameOf(preset));
        if (!m_dragged->isValid() || !Fetch(preset) || !WriteDragged(*look, path))
            return;
        data = std::make_unique<QMimeData>();
        data->setUrls({QUrl::fromLocalFile(path)});
    });
    return data;
}

} // namespace LumetraPlugin
