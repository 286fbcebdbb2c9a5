// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditStateFormat.h"

#include "Zorvik/Exception.h"
#include "storage/JsonValue.h"

#include <boost/current_function.hpp>

namespace LumetraEditor {
namespace {

using LumetraHost::JsonDocument;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using Zorvik::Brassel::ISerializer;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr char FormatKey[] = "format", VersionKey[] = "version", CommittedKey[] = "committed",
               PanelsKey[] = "panels", PackageKey[] = "package", PresetKey[] = "preset",
               BlendKey[] = "blend", NameKey[] = "name", IntensityKey[] = "intensity";

[[noreturn]] void Refuse(const std::string& place, const std::string& expected)
{
    throw Zorvik::Exception(place + ": expected " + expected, BOOST_CURRENT_FUNCTION,
                            "editor/EditStateFormat", __LINE__);
}

void WritePackages(const std::vector<EffectsSettings>& packages, ISerializer& root)
{
    const auto list = root.CreateCollection(CommittedKey);
    for (const EffectsSettings& package : packages) {
        const auto node = list->AddElement();
        node->Set(PackageKey, package.Package().GetPackageName());
        node->Set(PresetKey, package.Package().GetPresetName());
        node->Set(BlendKey, package.GetBlendAmount());
        const auto effects = node->CreateCollection(IEffectSettings::EFFECTS);
        for (const auto& effect : package.Effects())
            effects->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    }
}

EffectsSettings ReadPackage(const ISerializer& node)
{
    EffectsSettings package(EffectsSettings::PhotoAlone);
    package.Package().SetPackageName(node.Get(PackageKey, ""));
    package.Package().SetPresetName(node.Get(PresetKey, ""));
    const int blend = node.Get(BlendKey, EffectsSettings::FullEffect);
    if (blend < EffectsSettings::FullEffect || blend > EffectsSettings::NoEffect)
        Refuse(node.GetPath() + "/" + BlendKey,
               "a number from " + std::to_string(EffectsSettings::FullEffect) + " to " +
                   std::to_string(EffectsSettings::NoEffect) + ", found " + std::to_string(blend));
    package.SetBlendAmount(blend);
    const auto effects = node.GetCollection(IEffectSettings::EFFECTS);
    for (std::size_t i = 0; effects && i < effects->GetCount(); ++i) {
        const auto item = effects->GetElement(i);
        const auto effect =
            IEffectSettings::CreateEffectSettings(item->GetNode(IEffectSettings::EFFECT));
        item->ReadObject(IEffectSettings::EFFECT, *effect);
        package.Effects().push_back(effect);
    }
    return package;
}

/// The packages' list is there already.
void WriteRecords(const std::vector<LumetraHost::EditRecord>& records, JsonObject& root)
{
    const auto* const list = root.Find(CommittedKey)->As<JsonValue::Array>();
    for (std::size_t i = 0; i < records.size() && i < (*list)->elements.size(); ++i) {
        const auto* const node = (*list)->elements[i].As<JsonValue::Object>();
        (*node)->Set(NameKey, JsonValue(records[i].preset));
        const int intensity = records[i].intensity;
        (*node)->Set(IntensityKey, JsonValue(LumetraHost::JsonNumber{static_cast<double>(intensity),
                                                                     std::to_string(intensity)}));
    }
}

void WritePanels(const std::map<QString, PanelEdit>& panels, JsonObject& root)
{
    const auto members = std::make_shared<JsonObject>();
    for (const auto& [id, edit] : panels)
        members->Set(id.toStdString(), JsonValue(edit.GetJson()));
    root.Set(PanelsKey, JsonValue(members));
}

void ReadPanels(const JsonDocument& document, EditState& state)
{
    const JsonValue* const panels = document.GetObject()->Find(PanelsKey);
    if (!panels)
        return;
    const auto* const members = panels->As<JsonValue::Object>();
    const std::string place = document.GetName() + "/" + PanelsKey;
    if (!members)
        Refuse(place, std::string("node, found ") + panels->GetKindName());
    for (const auto& [id, value] : (*members)->GetMembers()) {
        const auto* const edit = value.As<JsonValue::Object>();
        if (!edit)
            Refuse(place + "/" + id, std::string("node, found ") + value.GetKindName());
        state.panels[QString::fromStdString(id)] = PanelEdit(*edit);
    }
}

void CheckHeader(const ISerializer& root)
{
    const std::string format = root.Get(FormatKey, "");
    if (format != EditStateFormat::FormatName)
        Refuse(root.GetPath() + "/" + FormatKey,
               std::string("\"") + EditStateFormat::FormatName + "\", found \"" + format + "\"");
    const int version = root.Get(VersionKey, 0);
    if (version < 1 || version > EditStateFormat::Version)
        Refuse(root.GetPath() + "/" + VersionKey, "a version up to " +
                                                      std::to_string(EditStateFormat::Version) +
                                                      ", found " + std::to_string(version));
}

} // namespace

JsonDocument EditStateFormat::ToDocument(const EditState& state)
{
    const JsonDocument document("sidecar");
    const auto root = document.GetRoot();
    root->Set(FormatKey, FormatName);
    root->Set(VersionKey, Version);
    WritePackages(state.committed, *root);
    WriteRecords(state.records, *document.GetObject());
    WritePanels(state.panels, *document.GetObject());
    return document;
}

EditState EditStateFormat::FromDocument(const JsonDocument& document)
{
    const auto root = document.GetRoot();
    CheckHeader(*root);
    EditState state;
    const auto list = root->GetCollection(CommittedKey);
    for (std::size_t i = 0; list && i < list->GetCount(); ++i) {
        const auto node = list->GetElement(i);
        state.committed.push_back(ReadPackage(*node));
        const auto plain = state.MakeRecord(state.committed.back());
        state.records.push_back(
            {node->Get(NameKey, plain.preset), node->Get(IntensityKey, plain.intensity)});
    }
    ReadPanels(document, state);
    return state;
}

QByteArray EditStateFormat::PackagesText(const std::vector<EffectsSettings>& packages)
{
    const JsonDocument document("packages");
    WritePackages(packages, *document.GetRoot());
    return document.ToText();
}

} // namespace LumetraEditor
