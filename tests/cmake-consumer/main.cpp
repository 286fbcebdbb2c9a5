// SPDX-License-Identifier: MIT
// The smallest program that uses the installed library: a preset of its own, a model filled from a
// tree in memory, one preset read back. Prints the presets; fails when the model is not as filled.
#include <EffectPresets/EffectPresetControllerBase.h>
#include <EffectPresets/EffectPresetModel.h>
#include <EffectPresets/IEffectPresetControllerFactory.h>
#include <Zorvik/Brassel/ISerializer.h>
#include <Zorvik/Brassel/ISerializerCollection.h>
#include <Zorvik/Brassel/SerializerProperty.h>
#include <Zorvik/Brassel/SettingsKeys.h>
#include <Zorvik/Quindle/EffectRegistry.h>

#include <QCoreApplication>
#include <QImage>
#include <QTextStream>

#include <memory>

using namespace Zorvik;
using namespace Zorvik::Lumetra::LumetraPresets;
using Brassel::Settings::ConfigData;
using Brassel::Settings::EffectInfo;

namespace {

class Preset : public EffectPresetControllerBase
{
public:
    Preset() : EffectPresetControllerBase("consumer") {}

    QImage GetPreviewImage() override { return {}; }
};

class PresetFactory : public IEffectPresetControllerFactory
{
public:
    boost::intrusive_ptr<IEffectPresetController> CreateController(const std::string&) override
    {
        return new Preset;
    }
    boost::intrusive_ptr<IEffectPresetController>
    CopyController(const boost::intrusive_ptr<IEffectPresetController>& source) override
    {
        return new Preset(dynamic_cast<const Preset&>(*source));
    }
};

// One preset with one effect, as a catalogue would describe it.
void AddPreset(const Brassel::CollectionPtr& items, const std::string& name, double stops)
{
    const auto item = items->AddElement();
    item->Set(EffectInfo::KEY_NAME, name);
    const auto effects = item->CreateNode(EffectInfo::TAG_SETTINGS)
                             ->CreateCollection(Quindle::IEffectSettings::EFFECTS);
    const auto effect = effects->AddElement()->CreateNode(Quindle::IEffectSettings::EFFECT);
    effect->Set(Quindle::IEffectSettings::KEY_EFFECT_ID, "exposure");
    effect->Set("stops", stops);

    const auto intensity = item->CreateNode(ConfigData::INTENSITY);
    intensity->Set("type", 1);
    intensity->CreateNode("blendSetting")->Set("value", 80);
}

void FillModel(EffectPresetModel& model)
{
    const auto catalogue =
        Brassel::SerializerProperty::Create(std::make_shared<Core::Property>("catalogue"));
    const auto items = catalogue->CreateCollection(ConfigData::ITEMS);
    AddPreset(items, "Brighter", 0.5);
    AddPreset(items, "Darker", -0.5);
    const auto settings = catalogue->CreateNode(EffectInfo::TAG_SETTINGS);
    model.ParseGroup("Looks", items, settings);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    Quindle::EffectRegistry::Register({"exposure", {{"stops", -5.0, 5.0, 0.0, "stops"}}, {}});

    EffectPresetModel model(std::make_shared<PresetFactory>());
    FillModel(model);

    QTextStream out(stdout);
    const QModelIndex group = model.index(0, 0);
    out << group.data(EffectPresetModel::PresetNameRole).toString() << '\n';
    for (int row = 0; row < model.rowCount(group); ++row) {
        const QModelIndex preset = model.index(row, 0, group);
        out << "    " << preset.data(EffectPresetModel::PresetNameRole).toString() << ", intensity "
            << preset.data(EffectPresetModel::IntensityRole).toInt() << '\n';
    }
    const QModelIndex second = model.index(1, 0, group);
    const bool isFilled = second.data(EffectPresetModel::PresetIdRole).toString() == "Darker" &&
                          second.data(EffectPresetModel::IntensityRole).toInt() == 80;
    return isFilled ? 0 : 1;
}
