// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/PresetJson.h"

namespace LumetraCli {
namespace {

using Zorvik::Brassel::ISerializer;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

void WriteIntensity(ISerializer& node, const PresetRow& row)
{
    node.Set("kind", row.GetIntensityKind().toStdString());
    if (!row.HasIntensity())
        return;
    node.Set("value", row.intensity);
    node.Set("minimum", row.intensityMinimum);
    node.Set("maximum", row.intensityMaximum);
}

} // namespace

void PresetJson::Write(ISerializer& node, const PresetRow& row)
{
    WriteWithoutSliders(node, row);
    const auto sliders = node.CreateCollection("sliders");
    for (const SliderSetting& slider : row.sliders)
        WriteSlider(*sliders->AddElement(), slider);
}

void PresetJson::WriteWithoutSliders(ISerializer& node, const PresetRow& row)
{
    node.Set("name", row.name.toStdString());
    WriteNames(node, row.names);
    node.Set("id", row.id.toStdString());
    node.Set("popular", row.isPopular);
    node.Set("favourite", row.isFavourite);
    node.Set("usable", row.problem.isEmpty());
    if (!row.problem.isEmpty())
        node.Set("problem", row.problem.toStdString());
    WriteIntensity(*node.CreateNode("intensity"), row);
}

void PresetJson::WriteSlider(ISerializer& node, const SliderSetting& slider)
{
    node.Set("id", slider.EffectID());
    node.Set("title", slider.Title());
    node.Set("value", slider.Value());
    node.Set("minimum", slider.Min());
    node.Set("maximum", slider.Max());
}

void PresetJson::WriteNames(ISerializer& node, const LumetraHost::LocalNames& names)
{
    if (names.GetAll().empty())
        return;
    const auto list = node.CreateNode("names");
    for (const auto& [language, name] : names.GetAll())
        list->Set(language.toStdString(), name.toStdString());
}

} // namespace LumetraCli
