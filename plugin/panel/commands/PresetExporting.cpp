// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands gives looks to other programs.
#include "core/LutExport.h"
#include "lut/LookExport.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/commands/PresetCommands.h"
#include "panel/importing/BackgroundWork.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::LookExport;
using Zorvik::Quindle::EffectsSettings;

QString ListEffects(const std::vector<std::string>& effectIDs)
{
    QStringList names;
    for (const std::string& effectID : effectIDs)
        names.append(EffectTexts::GetEffectName(effectID));
    return names.join(QStringLiteral(", "));
}

} // namespace

void PresetCommands::Export(const QModelIndex& preset)
{
    Try([&] { ExportLook(preset); });
}

void PresetCommands::ExportLook(const QModelIndex& preset)
{
    const auto look = GetModel().GetPreset(preset);
    if (!look || !Fetch(preset))
        return;
    const QString name = look->GetShownName();
    const EffectsSettings settings = look->MakeSettings();
    const QString unfit = ListEffects(LookExport::FindUnfitEffects(settings));
    if (!unfit.isEmpty() && LookExport::ChangesNothing(LookExport::TakeColours(settings)))
        return Tell(tr("“%1” cannot become a table, for nothing of it is colours alone: %2")
                        .arg(name, unfit));
    if (!unfit.isEmpty() && !m_dialogs.AskColoursOnly(name, unfit))
        return;
    const QString path = m_dialogs.AskTableFile(name);
    if (!path.isEmpty())
        WriteTable(settings, QString::fromStdString(look->GetName()), path);
}

/// The user knows already what is left out, and the message says it once more.
void PresetCommands::WriteTable(const EffectsSettings& look, const QString& title,
                                const QString& path)
{
    const auto format = LutExport::FindFormat(path);
    if (!format)
        return Tell(tr("“%1” was not written: expected a name that ends in .cube, .clf, .png, .tif "
                       "or .tiff.")
                        .arg(path));
    std::vector<std::string> leftOut;
    BackgroundWork({tr("Export as a table"), tr("Tables")}, m_dialogs.GetWindow())
        .Run([&](const BackgroundWork::Progress&) {
            leftOut = LutExport::Write(
                {look, *format, LutExport::GetDefaultSize(*format), title, path, true});
        });
    const QString written = tr("Wrote “%1”.").arg(path);
    if (leftOut.empty())
        TellBriefly(written);
    else
        Tell(written + QLatin1Char(' ') + tr("Left out: %1").arg(ListEffects(leftOut)));
}

} // namespace LumetraPlugin
