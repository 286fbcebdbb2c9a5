// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "console/Console.h"
#include "console/Text.h"
#include "core/PresetModel.h"
#include "core/PresetSession.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetDetails.h"
#include "presets/PresetJson.h"
#include "storage/JsonDocument.h"

#include <QStringList>

#include <algorithm>

namespace LumetraCli {
namespace {

using LumetraHost::EffectReach;
using LumetraHost::LookUpTable;
using LumetraPlugin::PresetModel;
using Zorvik::Brassel::ISerializer;
using Effect = PresetDetails::Effect;
using Parameter = PresetDetails::Parameter;
using Table = PresetDetails::Table;

const QString JsonOption = QStringLiteral("json");

/// Significant digits of a parameter's value.
constexpr int Digits = 10;

QString Show(double number)
{
    return QString::number(number, 'g', Digits);
}

QString Show(const std::string& text)
{
    return QString::fromStdString(text);
}

QString DescribeReach(EffectReach reach)
{
    switch (reach) {
    case EffectReach::Positional:
        return Text::tr("the colour of a pixel and its place in the photo");
    case EffectReach::WholePicture:
        return Text::tr("the colour of a pixel, and facts of the whole photo");
    case EffectReach::Spatial:
        return Text::tr("the pixels around a pixel too (spatial)");
    default:
        return Text::tr("the colour of a pixel alone");
    }
}

QString DescribeNames(const PresetRow& row)
{
    QStringList names;
    for (const auto& [language, name] : row.names.GetAll())
        names.append(QStringLiteral("%1: %2").arg(language, name));
    return names.join(QStringLiteral(", "));
}

QString DescribeMarks(const PresetRow& row)
{
    QStringList marks;
    if (row.isUsers)
        marks.append(Text::tr("your own"));
    if (row.isPopular)
        marks.append(Text::tr("popular"));
    if (row.isFavourite)
        marks.append(Text::tr("favourite"));
    return marks.join(QStringLiteral(", "));
}

QString DescribeTable(const Table& table)
{
    return table.kind == LookUpTable::Kind::Cube
               ? Text::tr("cube of %1 x %1 x %1 colours").arg(table.size)
               : Text::tr("curve of %1 points").arg(table.size);
}

QString DescribeParameter(const Parameter& parameter)
{
    const QString unit = Show(parameter.kind.unit);
    return Text::tr("%1: %2 (%3 to %4, default %5)")
        .arg(Show(parameter.kind.name),
             Show(parameter.value) +
                 (unit.isEmpty() ? QString()
                                 : QLatin1Char(' ') +
                                       QCoreApplication::translate("Effects", qPrintable(unit))),
             Show(parameter.kind.minimum), Show(parameter.kind.maximum),
             Show(parameter.kind.defaultValue));
}

void PrintEffect(const Effect& effect, Console& console)
{
    console.PrintLine(QStringLiteral("  %1 (%2)").arg(effect.title, Show(effect.id)));
    for (const Parameter& parameter : effect.parameters)
        if (parameter.value != parameter.kind.defaultValue)
            console.PrintLine(QStringLiteral("    ") + DescribeParameter(parameter));
    for (const Table& table : effect.tables)
        console.PrintLine(QStringLiteral("    ") + DescribeTable(table));
    if (!effect.problem.isEmpty())
        console.PrintLine(QStringLiteral("    ") + effect.problem);
}

void PrintSlider(const PresetDetails::Slider& slider, Console& console)
{
    const auto& setting = slider.setting;
    console.PrintLine(QStringLiteral("  ") +
                      Text::tr("%1 \"%2\": %3 (%4 to %5)")
                          .arg(Show(setting.EffectID()), Show(setting.Title()),
                               QString::number(setting.Value()), QString::number(setting.Min()),
                               QString::number(setting.Max())));
    for (const auto& variable : slider.variables)
        console.PrintLine(QStringLiteral("    ") +
                          Text::tr("moves %1 of %2 from %3 to %4")
                              .arg(Show(variable.parameter), Show(variable.effect),
                                   Show(variable.begin), Show(variable.end)));
}

/// Lines "Name:  value", the values below each other; nothing for an empty value.
void PrintFields(const QList<QPair<QString, QString>>& fields, Console& console)
{
    int width = 0;
    for (const auto& [name, value] : fields)
        width = std::max(width, name.size());
    for (const auto& [name, value] : fields)
        if (!value.isEmpty())
            console.PrintLine(
                QStringLiteral("%1  %2").arg(name + QLatin1Char(':'), -(width + 1)).arg(value));
}

void PrintText(const PresetDetails& details, Console& console)
{
    const PresetRow& row = details.row;
    PrintFields({{Text::tr("Name"), row.shown},
                 {Text::tr("Id"), row.id},
                 {Text::tr("Other names"), DescribeNames(row)},
                 {Text::tr("Group"), row.group},
                 {Text::tr("Author"), Show(details.author)},
                 {Text::tr("Licence"), Show(details.licence)},
                 {Text::tr("Marks"), DescribeMarks(row)},
                 {Text::tr("Not usable"), row.problem},
                 {Text::tr("Intensity"), row.DescribeIntensity()},
                 {Text::tr("Depends on"),
                  row.problem.isEmpty() ? DescribeReach(details.reach) : QString()}},
                console);
    if (!details.effects.empty())
        console.PrintLine(Text::tr("Effects:"));
    for (const Effect& effect : details.effects)
        PrintEffect(effect, console);
    if (!details.sliders.empty())
        console.PrintLine(Text::tr("Sliders:"));
    for (const PresetDetails::Slider& slider : details.sliders)
        PrintSlider(slider, console);
}

void WriteParameter(ISerializer& node, const Parameter& parameter)
{
    node.Set("name", parameter.kind.name);
    node.Set("value", parameter.value);
    node.Set("default", parameter.kind.defaultValue);
    node.Set("minimum", parameter.kind.minimum);
    node.Set("maximum", parameter.kind.maximum);
    node.Set("unit", parameter.kind.unit);
}

void WriteEffect(ISerializer& node, const Effect& effect)
{
    node.Set("id", effect.id);
    node.Set("title", effect.plainTitle);
    node.Set("reach", PresetDetails::GetReachName(effect.reach));
    const auto parameters = node.CreateCollection("parameters");
    for (const Parameter& parameter : effect.parameters)
        WriteParameter(*parameters->AddElement(), parameter);
    const auto tables = node.CreateCollection("tables");
    for (const Table& table : effect.tables) {
        const auto element = tables->AddElement();
        element->Set("kind", table.kind == LookUpTable::Kind::Cube ? "cube" : "curve");
        element->Set("size", table.size);
    }
    if (!effect.problem.isEmpty())
        node.Set("problem", effect.problem.toStdString());
}

void WriteVariables(ISerializer& node, const std::vector<PresetDetails::Variable>& variables)
{
    const auto list = node.CreateCollection("variables");
    for (const auto& variable : variables) {
        const auto element = list->AddElement();
        element->Set("effect", variable.effect);
        element->Set("parameter", variable.parameter);
        element->Set("begin", variable.begin);
        element->Set("end", variable.end);
    }
}

void WriteGroup(ISerializer& node, const PresetModel& model, const QModelIndex& group)
{
    node.Set("name", group.data(PresetModel::PresetNameRole).toString().toStdString());
    PresetJson::WriteNames(node, model.GetGroupNames(group));
    node.Set("editable", group.data(PresetModel::PresetIdRole).toBool());
}

void PrintJson(const PresetModel& model, const PresetDetails& details, Console& console)
{
    const LumetraHost::JsonDocument document("preset");
    const auto root = document.GetRoot();
    PresetJson::WriteWithoutSliders(*root, details.row);
    const auto sliders = root->CreateCollection("sliders");
    for (const PresetDetails::Slider& slider : details.sliders) {
        const auto element = sliders->AddElement();
        PresetJson::WriteSlider(*element, slider.setting);
        WriteVariables(*element, slider.variables);
    }
    WriteGroup(*root->CreateNode("group"), model, details.row.index.parent());
    root->Set("author", details.author);
    root->Set("licence", details.licence);
    root->Set("reach", PresetDetails::GetReachName(details.reach));
    root->Set("spatial", details.reach == EffectReach::Spatial);
    const auto effects = root->CreateCollection("effects");
    for (const Effect& effect : details.effects)
        WriteEffect(*effects->AddElement(), effect);
    console.PrintJson(document.ToText());
}

/// Shows everything about one preset.
class ShowCommand : public Command
{
public:
    ShowCommand()
        : Command(QStringLiteral("show"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text", "Shows everything about one preset."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ShowCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"), Text::tr("Name or id of a preset."));
    options.AddOption({JsonOption, Text::tr("Writes JSON, with all parameters of the effects; "
                                            "without it, those that are not at their default.")});
    CatalogueOptions::Add(options);
}

ExitCode ShowCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList arguments = Arguments(parser, 1, 1);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const auto rows = PresetRows::Read(session->GetModel());
    const auto details =
        PresetDetails::Read(PresetRows::Find(rows, arguments.first(), QStringLiteral("PRESET")));
    if (parser.isSet(JsonOption))
        PrintJson(session->GetModel(), details, console);
    else
        PrintText(details, console);
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeShowCommand()
{
    return std::make_unique<ShowCommand>();
}

} // namespace LumetraCli
