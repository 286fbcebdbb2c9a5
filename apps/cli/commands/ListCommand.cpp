// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "catalogue/VisibleText.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetSession.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetJson.h"
#include "storage/JsonDocument.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace LumetraCli {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

const QString JsonOption = QStringLiteral("json");
const QString NamesOption = QStringLiteral("names");
const QString UserOption = QStringLiteral("user");
const QString FavouritesOption = QStringLiteral("favourites");

QString Range(int value, int minimum, int maximum)
{
    return Text::tr("%1 (%2 to %3)").arg(value).arg(minimum).arg(maximum);
}

QString SliderName(const SliderSetting& slider)
{
    return QString::fromStdString(slider.EffectID().empty() ? slider.Title() : slider.EffectID());
}

QString Line(const PresetRow& row)
{
    QString line = QStringLiteral("  %1  [%2]").arg(row.shown, row.id);
    if (row.HasIntensity())
        line += Text::tr("  intensity %1").arg(row.DescribeIntensity());
    if (row.isPopular)
        line += QStringLiteral("  ") + Text::tr("popular");
    if (row.isFavourite)
        line += QStringLiteral("  ") + Text::tr("favourite");
    if (!row.problem.isEmpty())
        line += Text::tr("  not usable: ") + row.problem;
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
        PresetJson::WriteNames(*group, model.GetGroupNames(index));
        group->Set("editable", index.data(EffectPresetModel::PresetIdRole).toBool());
        const auto presets = group->CreateCollection("presets");
        for (; row != rows.end() && row->index.parent() == index; ++row)
            PresetJson::Write(*presets->AddElement(), *row);
    }
    console.PrintJson(document.ToText());
}

/// Prints what other commands take for each preset: the name that the user reads, or the id where
/// that name leads to several or to another one. A name with control characters cannot be printed.
void PrintNames(const std::vector<PresetRow>& rows, Console& console)
{
    QHash<QString, int> uses;
    for (const PresetRow& row : rows) {
        QSet<QString> names{row.name, row.shown};
        for (const auto& [language, name] : row.names.GetAll())
            names.insert(name);
        for (const QString& name : names)
            ++uses[name];
    }
    for (const PresetRow& row : rows) {
        const QString& name = uses.value(row.shown) == 1 ? row.shown : row.id;
        if (!name.isEmpty() && !LumetraHost::VisibleText::HasControls(name))
            console.PrintLine(name);
    }
}

/// Lists groups and presets with their ids, intensities and sliders.
class ListCommand : public Command
{
public:
    ListCommand()
        : Command(QStringLiteral("list"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Lists the presets with their ids, intensities and sliders."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ListCommand::AddOptions(OptionTable& options) const
{
    options.AddOption({JsonOption, Text::tr("Writes JSON.")});
    options.AddOption(
        {NamesOption, Text::tr("Writes nothing but the names, a line each; the id of a preset that "
                               "shares its name with another.")});
    options.AddOption({UserOption, Text::tr("Only your own presets.")});
    options.AddOption({FavouritesOption, Text::tr("Only favourites.")});
    CatalogueOptions::Add(options);
}

ExitCode ListCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    Arguments(parser, 0, 0);
    if (parser.isSet(JsonOption) && parser.isSet(NamesOption))
        throw UsageError(Text::tr("expected --json or --names, found both"));
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
    else if (parser.isSet(NamesOption))
        PrintNames(rows, console);
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
