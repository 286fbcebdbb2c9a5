// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/LookRecord.h"

#include "catalogue/CatalogueKeys.h"
#include "engine/run/Blend.h"
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Lumetra/IntToIntMapping.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <QList>

namespace LumetraHost {
namespace {

using Keys = CatalogueKeys;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Brassel::Settings::EffectInfo;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr int LowestIntensity = 1;
constexpr int HighestIntensity = 100;

/// An intensity whose slider runs over the whole range, if one of its positions is `blend`; else
/// one whose highest position is that.
void WriteIntensity(const SerializerPtr& node, int blend)
{
    const Zorvik::Lumetra::IntToIntMapping mapping(
        LowestIntensity, HighestIntensity, EffectsSettings::NoEffect, EffectsSettings::FullEffect);
    const int position = mapping.GetBackward(blend);
    const bool isOnSlider = mapping.GetForward(position) == blend;
    node->Set(Keys::Type, static_cast<int>(CatalogueIntensity::Blending));
    const SerializerPtr blending = node->CreateNode(Keys::Blending);
    blending->Set(Keys::Value, isOnSlider ? position : HighestIntensity);
    blending->Set(Keys::Begin, isOnSlider ? EffectsSettings::FullEffect : blend);
    blending->Set(Keys::End, EffectsSettings::NoEffect);
}

void WriteLook(const SerializerPtr& look, const std::string& name, const EffectsSettings& layer)
{
    look->Set(EffectInfo::KEY_NAME, name);
    const auto effects = look->CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : layer.Effects())
        if (effect)
            effects->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    WriteIntensity(look->CreateNode(ConfigData::INTENSITY),
                   ClampBlendAmount(layer.GetBlendAmount()));
    // Sliders of a catalogue would move values that lie between their steps.
    look->CreateCollection(Keys::Sliders);
}

/// The text without the line ends and blanks that make it readable. No JSON string has line ends.
std::string Compact(const QByteArray& text)
{
    std::string compact;
    for (const QByteArray& line : text.split('\n'))
        compact += line.trimmed().toStdString();
    return compact;
}

std::string MakeText(const std::string& name, const EffectsSettings& layer)
{
    const JsonDocument document(name);
    const SerializerPtr root = document.GetRoot();
    root->Set("format", "lumetra-look");
    root->Set("version", 1);
    WriteLook(root->CreateCollection("looks")->AddElement(), name, layer);
    return Compact(document.ToText());
}

} // namespace

void LookRecord::AddLook(EditRecord& record, const EffectsSettings& layer)
{
    try {
        const std::string text = MakeText(record.preset, layer);
        if (text.size() <= LargestText)
            record.look = text;
        else
            record.lookLeftOut = "expected at most " + std::to_string(LargestText) +
                                 " bytes, found " + std::to_string(text.size());
    } catch (const std::exception&) {
        // Its text names files of the user, which are nobody's business in a picture.
        record.lookLeftOut = "it cannot be written";
    }
}

} // namespace LumetraHost
