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
    const ImportReport report =
        PresetImport::AddTo(m_presets, *files, [this](const QStringList& names) {
            return m_dialogs.AskNumbered(names);
        });
    if (!report.presets.empty()) {
        const QPersistentModelIndex last = report.presets.back().index;
        Save();
        emit presetsChanged();
        emit presetAdded(last);
    }
    TellOf(report);
}

/// Tells it in messages, or in a window of its own where there is more to say.
void PresetCommands::TellOf(const ImportReport& report)
{
    if (ImportSummary::IsNeeded(report)) {
        (new ImportSummary(report, m_dialogs.GetWindow()))->show();
        return TellBriefly(ImportSummary::MakeSentence(report)); // the window says it too
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
