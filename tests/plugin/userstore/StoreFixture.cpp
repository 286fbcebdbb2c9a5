// SPDX-License-Identifier: GPL-2.0-or-later
#include "StoreFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "storage/JsonDocument.h"

namespace LumetraTest {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

constexpr char Catalogue[] = R"({
  "sliders": {"tone": {"title": "Tone", "begin": 0, "end": 100,
                       "variables": [{"setting": "gain", "begin": 0, "end": 2}]}},
  "settings": {},
  "items": [
    {"name": "Soft", "id": "looks.soft",
     "settings": {"effects": [{"effect": {"id": "tone", "gain": 0.5}}]},
     "intensity": {"type": 1, "blendSetting": {"value": 80, "begin": 1, "end": 255}}},
    {"name": "Hard", "id": "looks.hard",
     "settings": {"effects": [{"effect": {"id": "tone", "gain": 1.5}}]},
     "intensity": {"type": 2, "sliderSetting": {"title": "Gain", "begin": 0, "end": 100,
        "variables": [{"effectID": "tone", "setting": "gain", "begin": 0, "end": 2}]}}},
    {"name": "Plain", "id": "looks.plain"}]})";

LumetraHost::LookUpTable MakeCube(int size, int seed)
{
    using LumetraHost::LookUpTable;
    LookUpTable cube =
        LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, size, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < cube.values.size(); ++i)
        if (i % LookUpTable::Stride != 3)
            cube.values[i] =
                static_cast<float>((i * 31 + static_cast<std::size_t>(seed)) % 65536) / 65535;
    return cube;
}

} // namespace

void RegisterTone()
{
    LumetraHost::RegisterEffects();
    Zorvik::Quindle::EffectRegistry::Register({"tone", {{"gain", 0, 2, 1, ""}}, nullptr});
}

StoreProgram::StoreProgram(const QString& path)
    : m_factory(std::make_shared<LumetraPlugin::PresetControllerFactory>("looks")),
      m_store(path, m_factory)
{
    RegisterTone();
    m_model = std::make_unique<LumetraPlugin::PresetModel>(m_factory);
    const auto catalogue = LumetraHost::JsonDocument::Parse(Catalogue, "catalogue.json");
    const Zorvik::Brassel::ConstSerializerPtr root = catalogue.GetRoot();
    m_model->ParseAdditionalInfo(root->GetCollection("sliders"));
    m_model->ParseGroup("Looks", root->GetCollection("items"), root->GetNode("settings"));
    m_model->ParseAdditionalInfo(m_store.Load());
    m_store.Remember(*m_model);
}

StoreProgram::~StoreProgram() = default;

QModelIndex StoreProgram::Preset(int group, int row) const
{
    return m_model->index(row, 0, m_model->index(group, 0));
}

void StoreProgram::SaveAs(const QString& name)
{
    m_model->setData(Preset(0, 0), name, EffectPresetModel::SaveAsUserPresetRole);
    Save();
}

void StoreProgram::AddTable(const QString& name, int size, int seed)
{
    using Zorvik::Quindle::IEffectSettings;
    const auto node = Zorvik::Brassel::SerializerProperty::Create(
        std::make_shared<Zorvik::Core::Property>("preset"));
    node->Set("name", name.toStdString());
    node->Set("id", name.toStdString());
    const auto cube = MakeCube(size, seed);
    const auto effect = LumetraHost::Lut3dSettings::Create(nullptr, &cube);
    node->CreateCollection(IEffectSettings::EFFECTS)
        ->AddElement()
        ->WriteObject(IEffectSettings::EFFECT, *effect);
    const LumetraPlugin::PresetModel::PresetPtr preset(
        dynamic_cast<LumetraPlugin::PresetController*>(m_factory->CreateController({}).get()));
    static_cast<Zorvik::Brassel::ISerializable&>(*preset).Deserialize(node);
    preset->InitIntensity(nullptr);
    m_model->AddUserPreset(preset);
}

void StoreProgram::SaveTable(const QString& name, int size, int seed)
{
    AddTable(name, size, seed);
    Save();
}

LumetraPlugin::PresetModel::PresetPtr StoreProgram::Find(const QString& name) const
{
    const QModelIndex group = m_model->GetUserGroup();
    for (int i = 0; i < m_model->rowCount(group); ++i) {
        const auto preset = m_model->GetPreset(m_model->index(i, 0, group));
        if (preset->GetName() == name.toStdString())
            return preset;
    }
    return nullptr;
}

QByteArray StoreProgram::WholeText() const
{
    const LumetraHost::JsonDocument document("whole");
    m_model->Serialize(document.GetRoot());
    return document.ToText();
}

} // namespace LumetraTest
