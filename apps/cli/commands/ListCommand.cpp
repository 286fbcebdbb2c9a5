// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "console/Console.h"
#include "core/PresetSession.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetRows.h"
#include "storage/JsonDocument.h"

#include <algorithm>

namespace LumetraCli {
namespace {

using Zorvik::Brassel::ISerializer;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

const QString JsonOption = QStringLiteral("json");
const QString UserOption = QStringLiteral("user");
const QString FavouritesOption = QStringLiteral("favourites");

QString Range(int value, int minimum, int maximum)
{
    return QStringLiteral("%1 (%2 to %3)").arg(value).arg(minimum).arg(maximum);
}

QString SliderName(const SliderSetting& slider)
{
    return QString::fromStdString(slider.EffectID().empty() ? slider.Title() : slider.EffectID());
}

QString Line(const PresetRow& row)
{
    QString line = QStringLiteral("  %1  [%2]").arg(row.shown, row.id);
    if (row.HasIntensity())
        line += QStringLiteral("  intensity %1, %2")
                    .arg(Range(row.intensity, row.intensityMinimum, row.intensityMaximum),
                         row.GetIntensityKind());
    if (row.isPopular)
        line += QStringLiteral("  popular");
    if (row.isFavourite)
        line += QStringLiteral("  favourite");
    if (!row.problem.isEmpty())
        line += QStringLiteral("  not usable: ") + row.problem;
    return line;
}

QString SliderLine(const PresetRow& row)
{
    QStringList sliders;
    for (const SliderSetting& slider : row.sliders)
        sliders.append(SliderName(slider) + QLatin1Char(' ') +
                       Range(slider.Value(), slider.Min(), slider.Max()));
    return QStringLiteral("      ") + sliders.join(QStringLiteral(", "));
}

void PrintText(const std::vector<PresetRow>& rows, Console& console)
{
    QModelIndex group;
    for (const PresetRow& row : rows) {
        if (row.index.parent() != group)
            console.PrintLine(row.group);
        group = row.index.parent();
        console.PrintLine(Line(row));
        if (!row.sliders.empty())
            console.PrintLine(SliderLine(row));
    }
}

void WriteSlider(ISerializer& node, const SliderSetting& slider)
{
    node.Set("id", slider.EffectID());
    node.Set("title", slider.Title());
    node.Set("value", slider.Value());
    node.Set("minimum", slider.Min());
    node.Set("maximum", slider.Max());
}

/// Writes the translations as the catalogue has them, so that the output is the same in every
/// language.
void WriteNames(ISerializer& node, const LumetraHost::LocalNames& names)
{
    if (names.GetAll().empty())
        return;
    const auto list = node.CreateNode("names");
    for (const auto& [language, name] : names.GetAll())
        list->Set(language.toStdString(), name.toStdString());
}

void WritePreset(ISerializer& node, const PresetRow& row)
{
    node.Set("name", row.name.toStdString());
    WriteNames(node, row.names);
    node.Set("id", row.id.toStdString());
    node.Set("popular", row.isPopular);
    node.Set("favourite", row.isFavourite);
    node.Set("usable", row.problem.isEmpty());
    if (!row.problem.isEmpty())
        node.Set("problem", row.problem.toStdString());
    const auto intensity = node.CreateNode("intensity");
    intensity->Set("kind", row.GetIntensityKind().toStdString());
    if (row.HasIntensity()) {
        intensity->Set("value", row.intensity);
        intensity->Set("minimum", row.intensityMinimum);
        intensity->Set("maximum", row.intensityMaximum);
    }
    const auto sliders = node.CreateCollection("sliders");
    for (const SliderSetting& slider : row.sliders)
        WriteSlider(*sliders->AddElement(), slider);
}

void PrintJson(const LumetraPlugin::PresetModel& model, const std::vector<PresetRow>& rows,
               Console& console)
{
    const LumetraHost::JsonDocument document("presets");
    const auto groups = document.GetRoot()->CreateCollection("groups");
    auto row = rows.begin(); // rows stand in the order of the groups
    for (int g = 0; g < model.rowCount(); ++g) {
        const QModelIndex index = model.index(g, 0);
        const auto group = groups->AddElement();
        group->Set("name", index.data(EffectPresetModel::PresetNameRole).toString().toStdString());
        WriteNames(*group, model.GetGroupNames(index));
        group->Set("editable", index.data(EffectPresetModel::PresetIdRole).toBool());
        const auto presets = group->CreateCollection("presets");
        for (; row != rows.end() && row->index.parent() == index; ++row)
            WritePreset(*presets->AddElement(), *row);
    }
    console.PrintJson(document.ToText());
}

/// Lists groups and presets with their ids, intensities and sliders.
class ListCommand : public Command
{
public:
    ListCommand()
        : Command(QStringLiteral("list"),
                  QStringLiteral("Lists the presets with their ids, intensities and sliders."))
    {
    }

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ListCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addOption({JsonOption, QStringLiteral("Writes JSON.")});
    parser.addOption({UserOption, QStringLiteral("Only your own presets.")});
    parser.addOption({FavouritesOption, QStringLiteral("Only favourites.")});
    CatalogueOptions::Add(parser);
}

ExitCode ListCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    Arguments(parser, 0, 0);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    auto rows = PresetRows::Read(session->GetModel());
    const auto isLeftOut = [&parser](const PresetRow& row) {
        return (parser.isSet(UserOption) && !row.isUsers) ||
               (parser.isSet(FavouritesOption) && !row.isFavourite);
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isLeftOut), rows.end());
    if (parser.isSet(JsonOption))
        PrintJson(session->GetModel(), rows, console);
    else
        PrintText(rows, console);
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeListCommand()
{
    return std::make_unique<ListCommand>();
}

} // namespace LumetraCli
