// SPDX-License-Identifier: GPL-2.0-or-later
#include "StoreFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectRegistry.h"
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

} // namespace

void RegisterTone()
{
    Zorvik::Quindle::EffectRegistry::Register({"tone", {{"gain", 0, 2, 1, ""}}, nullptr});
}

StoreProgram::StoreProgram(const QString& path)
    : m_factory(std::make_shared<LumetraPlugin::PresetControllerFactory>("looks")),
      m_store(path, m_factory)
{
    RegisterTone();
    m_model = std::make_unique<EffectPresetModel>(m_factory);
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

} // namespace LumetraTest
