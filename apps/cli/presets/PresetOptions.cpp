// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/PresetOptions.h"

#include "console/Text.h"
#include "console/UsageError.h"

namespace LumetraCli {
namespace {

const QString PresetOption = QStringLiteral("preset");
const QString IntensityOption = QStringLiteral("intensity");
const QString SetOption = QStringLiteral("set");

} // namespace

void PresetOptions::Add(OptionTable& options, const QString& help, const QString& valueName)
{
    options.AddOption({{QStringLiteral("p"), PresetOption}, help, valueName});
    AddValues(options);
}

void PresetOptions::AddValues(OptionTable& options)
{
    options.AddOption({{QStringLiteral("i"), IntensityOption},
                       Text::tr("Intensity within the preset's range."),
                       QStringLiteral("number")});
    options.AddOption({SetOption, Text::tr("Moves an extra slider. May be given more than once."),
                       QStringLiteral("slider=value")});
}

QString PresetOptions::ReadPreset(const QCommandLineParser& parser)
{
    const QStringList presets = parser.values(PresetOption);
    if (presets.size() != 1)
        throw UsageError(Text::tr("expected one --preset, found %1").arg(presets.size()));
    return presets.first();
}

PresetUse PresetOptions::MakeUse(const QCommandLineParser& parser, const PresetRow& preset)
{
    const bool hasIntensity = parser.isSet(IntensityOption);
    return PresetUse(preset, hasIntensity ? parser.value(IntensityOption) : QString(),
                     parser.values(SetOption));
}

} // namespace LumetraCli
