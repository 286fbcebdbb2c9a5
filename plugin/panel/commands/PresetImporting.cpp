// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands brings looks from files.
#include "core/PresetCollection.h"
#include "core/PresetImport.h"
#include "panel/commands/PresetCommands.h"
#include "panel/importing/ImportReading.h"
#include "panel/importing/ImportSummary.h"

namespace LumetraPlugin {

void PresetCommands::ImportByDialog()
{
    Import(m_dialogs.AskImports());
}

void PresetCommands::ImportFolderByDialog()
{
    const QString folder = m_dialogs.AskImportFolder();
    if (!folder.isEmpty())
        Import({folder});
}

void PresetCommands::Import(const QStringList& paths)
{
    if (paths.isEmpty() || m_isImporting)
        return;
    m_isImporting = true; // reading lets events through
    Try([&] { ImportFiles(paths); });
    m_isImporting = false;
}

void PresetCommands::ImportFiles(const QStringList& paths)
{
    const auto files =
        ImportReading(m_dialogs.GetWindow()).Run([&paths](const PresetImport::Progress& progress) {
            return PresetImport::ReadAll(paths, {}, progress);
        });
    if (!files)
        return TellBriefly(tr("Nothing was imported."));
    ImportNaming naming;
    naming.askNumbered = [this](const QStringList& names) { return m_dialogs.AskNumbered(names); };
    naming.askShortened = [this](const QStringList& names) {
        return m_dialogs.AskShortened(names);
    };
    const ImportReport report = PresetImport::AddTo(m_presets, *files, naming);
    if (!report.presets.empty()) {
        const QPersistentModelIndex first = report.presets.front().index;
        Save();
        emit presetsChanged();
        emit presetAdded(first);
    } else if (!report.known.empty()) {
        emit presetAdded(FindUsers(report.known.front().knownAs));
    }
    TellOf(report);
}

/// The preset of the user with that name.
QModelIndex PresetCommands::FindUsers(const QString& name)
{
    const int row = GetModel().GetUserPresetNames().indexOf(name);
    return GetModel().index(row, 0, GetModel().GetUserGroup());
}

/// Tells it in messages, or in a window of its own where there is more to say.
void PresetCommands::TellOf(const ImportReport& report)
{
    if (ImportSummary::IsNeeded(report)) {
        (new ImportSummary(report, m_dialogs.GetWindow()))->show();
        return;
    }
    if (report.known.size() == 1)
        Tell(tr("“%1” is here already, as “%2”.")
                 .arg(report.known.front().name, report.known.front().knownAs));
    else if (!report.known.empty())
        Tell(tr("%1 looks are here already.").arg(report.known.size()));
    for (const QString& problem : report.problems)
        Tell(problem);
    if (!report.presets.empty())
        TellBriefly(ImportSummary::MakeSentence({report.presets, {}, {}}));
}

} // namespace LumetraPlugin
