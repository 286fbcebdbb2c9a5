// SPDX-License-Identifier: MIT
#include "support/PresetBench.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/ISerializerCollection.h"

namespace LumetraTest {

using namespace Zorvik;

StoredNode PresetBench::Tone(double gain, double bias)
{
    return {{"effect", StoredNode{{"id", "tone"}, {"gain", gain}, {"bias", bias}}}};
}

StoredNode PresetBench::Grain(double amount)
{
    return {{"effect", StoredNode{{"id", "grain"}, {"amount", amount}}}};
}

StoredNode PresetBench::Preset(const std::string& name, const StoredList& effects)
{
    return {{"name", name}, {"settings", StoredNode{{"effects", effects}}}};
}

StoredNode PresetBench::Preset(const std::string& name, const StoredList& effects,
                               const StoredNode& intensity)
{
    return Preset(name, effects).Set("intensity", intensity);
}

StoredNode PresetBench::Blending(int value)
{
    return {{"type", 1},
            {"blendSetting", StoredNode{{"value", value}, {"begin", 1}, {"end", 255}}}};
}

StoredNode PresetBench::GainSlider()
{
    const StoredNode variable{
        {"effectID", "tone"}, {"setting", "gain"}, {"begin", 0.0}, {"end", 2.0}};
    return {{"type", 2},
            {"sliderSetting",
             StoredNode{{"begin", 0.0}, {"end", 100.0}, {"variables", StoredList{variable}}}}};
}

StoredNode PresetBench::Slider(const std::string& effectID, const std::string& parameter)
{
    const StoredNode variable{{"setting", parameter}, {"begin", 0.0}, {"end", 1.0}};
    return StoredNode(effectID, {{"title", parameter},
                                 {"begin", 0.0},
                                 {"end", 100.0},
                                 {"variables", StoredList{variable}}});
}

void PresetBench::ParseSliders(const StoredList& sliders)
{
    model.ParseAdditionalInfo(Brassel::ConstCollectionPtr(sliders.ToCollection()));
}

void PresetBench::ParseGroup(const std::string& name, const StoredList& presets,
                             const StoredNode& settings)
{
    model.ParseGroup(name, presets.ToCollection(), settings.ToSerializer("group"));
}

void PresetBench::ParseUserData(const StoredNode& userData)
{
    model.ParseAdditionalInfo(Brassel::ConstSerializerPtr(userData.ToSerializer("user")));
}

void PresetBench::Attach()
{
    model.SetWorkspaceController(workspace);
}

void PresetBench::FillAndAttach()
{
    ParseSliders({Slider("tone", "bias"), Slider("grain", "amount")});
    ParseGroup("Film", {Preset("Warm", {Tone(1.5, 0.25)}, Blending(80)),
                        Preset("Soft", {Tone(1), Grain(0.5)}, GainSlider())});
    ParseGroup("Plain", {Preset("Bare", {Tone(3)})});
    ParseUserData();
    Attach();
    log.Clear();
}

QModelIndex PresetBench::Group(int group) const
{
    return model.index(group, 0, QModelIndex());
}

QModelIndex PresetBench::At(int group, int row) const
{
    return model.index(row, 0, Group(group));
}

bool PresetBench::Set(const QModelIndex& index, int role, const QVariant& value)
{
    return model.setData(index, value, role);
}

std::string PresetBench::StoredUserData() const
{
    return StoredText(static_cast<const Brassel::ISerializable&>(model));
}

} // namespace LumetraTest
