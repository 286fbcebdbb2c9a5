// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands gives presets to other people.
#include "Zorvik/Exception.h"
#include "catalogue/VisibleText.h"
#include "core/looks/LookFormat.h"
#include "core/looks/LookPreview.h"
#include "core/looks/LookWriter.h"
#include "panel/commands/PresetCommands.h"
#include "panel/commands/ShareDialog.h"

#include <QMimeData>
#include <QUrl>

namespace LumetraPlugin {
namespace {

QString NameOf(const QModelIndex& preset)
{
    return preset.data(PresetModel::PresetNameRole).toString();
}

/// A file name that every file system takes.
QString MakeFileName(const QModelIndex& preset)
{
    QString name = LumetraHost::VisibleText::WithoutControls(NameOf(preset)).trimmed();
    for (QChar& letter : name)
        if (QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = QLatin1Char('-');
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return (name.isEmpty() ? QStringLiteral("look") : name) + QLatin1Char('.') +
           QLatin1String(LookFormat::Suffix);
}

/// Adds the look as the panel shows it, with the values that it has now.
void Add(LookWriter& writer, const PresetController& preset, const LookCredits& said)
{
    const auto look = preset.Copy();
    LookCredits credits = preset.MakeCredits();
    if (!said.author.empty())
        credits.author = said.author;
    if (!said.licence.empty())
        credits.licence = said.licence;
    look->SetCredits(credits);
    writer.Add(*look, LookPreview::Draw(look->MakeSettings(), LookPreview::FindSample()));
}

} // namespace

void PresetCommands::Share(const QModelIndex& preset)
{
    Try([&] {
        ShareDialog dialog(GetModel(), preset, &m_dialogs.GetWindow());
        if (dialog.exec() != QDialog::Accepted)
            return;
        LookCredits credits;
        credits.author = dialog.GetAuthor().toStdString();
        credits.licence = dialog.GetLicence().toStdString();
        const std::vector<QModelIndex> presets = dialog.GetPresets();
        const QString path =
            presets.empty() ? QString() : m_dialogs.AskShareFile(MakeFileName(presets.front()));
        if (!path.isEmpty() && WriteLooks(presets, credits, path))
            Tell(tr("Wrote “%1”.").arg(path));
    });
}

/// False, after telling the user why, when the file is not written.
bool PresetCommands::WriteLooks(const std::vector<QModelIndex>& presets, const LookCredits& credits,
                                const QString& path)
{
    try {
        LookWriter writer;
        for (const QModelIndex& preset : presets)
            if (Fetch(preset))
                Add(writer, *GetModel().GetPreset(preset), credits);
            else
                return false;
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
        if (!GetModel().GetPreset(preset))
            return;
        if (!m_dragged)
            m_dragged = std::make_unique<QTemporaryDir>();
        const QString path = m_dragged->filePath(MakeFileName(preset));
        if (!m_dragged->isValid() || !WriteLooks({preset}, {}, path))
            return;
        data = std::make_unique<QMimeData>();
        data->setUrls({QUrl::fromLocalFile(path)});
    });
    return data;
}

} // namespace LumetraPlugin
