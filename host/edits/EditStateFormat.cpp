// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/EditStateFormat.h"

#include "storage/FailWith.h"
#include "storage/JsonValue.h"

#include <memory>
#include <set>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ISerializer;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr char FormatKey[] = "format", VersionKey[] = "version", LayersKey[] = "layers",
               CommittedKey[] = "committed", PanelsKey[] = "panels", ModuleKey[] = "module",
               OnKey[] = "on", OpenKey[] = "open", PackageKey[] = "package", PresetKey[] = "preset",
               BlendKey[] = "blend", NameKey[] = "name", IntensityKey[] = "intensity",
               PartKey[] = "part";
/// The first version with layers of any kind; earlier ones have committed packages alone.
constexpr int VersionOfLayers = 2;
/// The first version in which an open layer may leave its effects to its module's part.
constexpr int VersionOfSharedEffects = 3;
/// The first version in which closed layers may lie above open ones.
constexpr int VersionOfReopened = 4;
constexpr auto& EffectsKey = IEffectSettings::EFFECTS;

[[noreturn]] void Refuse(const std::string& place, const std::string& expected)
{
    LumetraHost::FailWith(place + ": expected " + expected);
}

/// Refuses an object, whose members a serializer would take for the elements of a collection.
void CheckIsArray(const JsonObject& object, const char* key, const std::string& place)
{
    const JsonValue* const value = object.Find(key);
    if (value && value->As<JsonValue::Object>())
        Refuse(place + "/" + key, std::string("collection, found ") + value->GetKindName());
}

void WriteEffects(const EffectsSettings& package, ISerializer& node)
{
    const auto effects = node.CreateCollection(EffectsKey);
    for (const auto& effect : package.EffectsConst())
        effects->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
}

/// True when the part has the layer's very effects.
bool AreEffectsInPart(const EditLayer& layer, const PanelEdit& part)
{
    const JsonValue* const effects = part.GetJson()->Find(EffectsKey);
    if (!effects || !effects->As<JsonValue::Array>())
        return false;
    const JsonDocument written("part");
    written.GetObject()->Set(EffectsKey, *effects);
    return written.ToText() == EditStateFormat::EffectsText(*layer.settings);
}

/// True when the open layer's module has these very effects in its part of the edit.
bool AreEffectsInPanel(const EditLayer& layer, const std::map<QString, PanelEdit>& panels)
{
    const auto panel = panels.find(layer.module);
    return layer.isOpen && panel != panels.end() && AreEffectsInPart(layer, panel->second);
}

/// Copies an object with another value under a key that it has.
std::shared_ptr<JsonObject> CopyWith(const JsonObject& object, const char* key,
                                     const JsonValue& value)
{
    const auto copy = std::make_shared<JsonObject>();
    for (const auto& member : object.GetMembers())
        copy->Set(member.first, member.first == key ? value : member.second);
    return copy;
}

/// Writes the part of a closed layer's module. The layer itself always has its effects; where the
/// part has the same ones, they are null there.
void WritePart(const EditLayer& layer, JsonObject& object)
{
    if (!layer.part || layer.isOpen)
        return;
    const auto& part = layer.part->GetJson();
    const bool isShared = AreEffectsInPart(layer, *layer.part);
    object.Set(PartKey, JsonValue(isShared ? CopyWith(*part, EffectsKey, JsonValue()) : part));
}

/// Reads the part that WritePart() has written. A part that is no object costs itself alone.
void ReadPart(const JsonObject& object, EditLayer& layer)
{
    const JsonValue* const value = object.Find(PartKey);
    const auto* const part = value ? value->As<JsonValue::Object>() : nullptr;
    if (!part || layer.isOpen)
        return;
    const JsonValue* const effects = (*part)->Find(EffectsKey);
    const JsonValue* const own = object.Find(EffectsKey);
    const bool isShared = effects && effects->As<std::monostate>() && own;
    layer.part = PanelEdit(isShared ? CopyWith(**part, EffectsKey, *own) : *part);
}

void WriteLayer(const EditLayer& layer, const EditState& state, ISerializer& node)
{
    const EffectsSettings& package = *layer.settings;
    node.Set(ModuleKey, layer.module.toStdString());
    node.Set(OnKey, layer.isOn);
    node.Set(OpenKey, layer.isOpen);
    node.Set(PackageKey, package.Package().GetPackageName());
    node.Set(PresetKey, package.Package().GetPresetName());
    node.Set(BlendKey, package.GetBlendAmount());
    if (!AreEffectsInPanel(layer, state.panels))
        WriteEffects(package, node);
    node.Set(NameKey, layer.record.preset);
    node.Set(IntensityKey, layer.record.intensity);
}

/// The effects of a layer: its own, or those of the part of its module.
ConstCollectionPtr FindEffects(const ISerializer& layer, const ISerializer& root)
{
    const auto own = layer.GetCollection(EffectsKey);
    if (own || root.Get(VersionKey, 0) < VersionOfSharedEffects || !layer.Get(OpenKey, false))
        return own;
    const auto panels = root.GetNode(PanelsKey);
    const auto panel = panels ? panels->GetNode(layer.Get(ModuleKey, "")) : nullptr;
    const auto effects = panel ? panel->GetCollection(EffectsKey) : nullptr;
    if (!effects)
        Refuse(layer.GetPath() + "/" + EffectsKey,
               "collection, here or in the part of the layer's module, found none");
    return effects;
}

EffectsSettings ReadPackage(const ISerializer& node, const ISerializer& root)
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
    const auto effects = FindEffects(node, root);
    for (std::size_t i = 0; effects && i < effects->GetCount(); ++i) {
        const auto item = effects->GetElement(i);
        const auto effect =
            IEffectSettings::CreateEffectSettings(item->GetNode(IEffectSettings::EFFECT));
        item->ReadObject(IEffectSettings::EFFECT, *effect);
        package.Effects().push_back(effect);
    }
    return package;
}

EditLayer ReadLayer(const ISerializer& node, const ISerializer& root)
{
    EditLayer layer;
    if (root.Get(VersionKey, 0) >= VersionOfLayers) {
        layer.module = QString::fromStdString(node.Get(ModuleKey, ""));
        layer.isOn = node.Get(OnKey, true);
        layer.isOpen = node.Get(OpenKey, false);
    }
    layer.settings = std::make_shared<const EffectsSettings>(ReadPackage(node, root));
    const auto plain = EditState().MakeRecord(layer.module, *layer.settings);
    layer.record = {node.Get(NameKey, plain.preset), node.Get(IntensityKey, plain.intensity)};
    return layer;
}

/// Refuses a layer that cannot lie on these. Open layers lie together, before version 4 with none
/// above them, and no two of them have the same package.
void CheckPlace(const EditLayer& layer, const std::vector<EditLayer>& below,
                const std::set<std::string>& openBelow, int version, const ISerializer& node)
{
    const std::string& name = layer.settings->Package().GetPackageName();
    if (version < VersionOfReopened && !layer.isOpen && !openBelow.empty())
        Refuse(node.GetPath() + "/" + OpenKey,
               "true, since the layer lies on an open one, found false");
    if (layer.isOpen && !openBelow.empty() && !below.back().isOpen)
        Refuse(node.GetPath() + "/" + OpenKey,
               "false, since a closed layer lies between this one and an open one, found true");
    if (layer.isOpen && openBelow.count(name) > 0)
        Refuse(node.GetPath() + "/" + PackageKey,
               "another package than those of the open layers below, found \"" + name + "\"");
}

void ReadLayers(const JsonDocument& document, std::vector<EditLayer>& layers)
{
    const auto root = document.GetRoot();
    const char* const key = EditStateFormat::GetLayersKey(root->Get(VersionKey, 0));
    CheckIsArray(*document.GetObject(), key, root->GetPath());
    const auto list = root->GetCollection(key);
    std::set<std::string> open;
    for (std::size_t i = 0; list && i < list->GetCount(); ++i) {
        const auto node = list->GetElement(i);
        const JsonArray& stored = **document.GetObject()->Find(key)->As<JsonValue::Array>();
        CheckIsArray(**stored.elements[i].As<JsonValue::Object>(), EffectsKey, node->GetPath());
        EditLayer layer = ReadLayer(*node, *root);
        CheckPlace(layer, layers, open, root->Get(VersionKey, 0), *node);
        if (layer.isOpen)
            open.insert(layer.settings->Package().GetPackageName());
        ReadPart(**stored.elements[i].As<JsonValue::Object>(), layer);
        layers.push_back(std::move(layer));
    }
}

void WriteLayers(const EditState& state, const JsonDocument& document)
{
    const auto list = document.GetRoot()->CreateCollection(LayersKey);
    const auto stored = *document.GetObject()->Find(LayersKey)->As<JsonValue::Array>();
    for (const EditLayer& layer : state.layers) {
        WriteLayer(layer, state, *list->AddElement());
        WritePart(layer, **stored->elements.back().As<JsonValue::Object>());
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
    root->Set(VersionKey, state.CountAbove() > 0 ? Version : VersionOfSharedEffects);
    WriteLayers(state, document);
    WritePanels(state.panels, *document.GetObject());
    return document;
}

EditState EditStateFormat::FromDocument(const JsonDocument& document)
{
    const auto root = document.GetRoot();
    CheckHeader(*root);
    EditState state;
    ReadLayers(document, state.layers);
    ReadPanels(document, state);
    return state;
}

const char* EditStateFormat::GetLayersKey(int version)
{
    return version < VersionOfLayers ? CommittedKey : LayersKey;
}

PanelEdit EditStateFormat::MakePart(const EditLayer& layer)
{
    const JsonDocument document("part");
    const auto root = document.GetRoot();
    root->Set(PresetKey, layer.settings->Package().GetPresetName());
    root->Set(NameKey, layer.record.preset);
    root->Set(IntensityKey, layer.record.intensity);
    root->Set(BlendKey, layer.settings->GetBlendAmount());
    WriteEffects(*layer.settings, *root);
    return PanelEdit(document.GetObject());
}

QByteArray EditStateFormat::EffectsText(const EffectsSettings& package)
{
    const JsonDocument document("package");
    WriteEffects(package, *document.GetRoot());
    return document.ToText();
}

} // namespace LumetraHost
