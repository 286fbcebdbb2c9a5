// SPDX-License-Identifier: GPL-2.0-or-later
// The cost of the presets model for a view: reading roles and finding parents, from a hundred to a
// hundred thousand presets, beside QStandardItemModel on the same tree.
#include "EffectPresets/EffectPresetControllerBase.h"
#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"

#include <QCoreApplication>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

using namespace Zorvik;
using namespace Zorvik::Lumetra::LumetraPresets;

namespace {

constexpr int PresetsPerGroup = 100;

class Controller : public EffectPresetControllerBase
{
public:
    using EffectPresetControllerBase::EffectPresetControllerBase;
    QImage GetPreviewImage() override { return QImage(); }
};

class Factory : public IEffectPresetControllerFactory
{
public:
    boost::intrusive_ptr<IEffectPresetController> CreateController(const std::string&) override
    {
        return new Controller("presets");
    }

    boost::intrusive_ptr<IEffectPresetController>
    CopyController(const boost::intrusive_ptr<IEffectPresetController>& source) override
    {
        return new Controller(dynamic_cast<const Controller&>(*source));
    }
};

Brassel::ConstCollectionPtr Items(int count, const std::string& prefix)
{
    const auto root =
        Brassel::SerializerProperty::Create(std::make_shared<Core::Property>("benchmark"));
    const auto items = root->CreateCollection("items");
    for (int i = 0; i < count; ++i) {
        const auto item = items->AddElement();
        item->Set("name", "Preset " + std::to_string(i));
        item->Set("id", prefix + std::to_string(i));
    }
    return items;
}

std::unique_ptr<EffectPresetModel> PresetModel(int presets)
{
    auto model = std::make_unique<EffectPresetModel>(std::make_shared<Factory>());
    for (int g = 0; g * PresetsPerGroup < presets; ++g) {
        const std::string name = "Group " + std::to_string(g);
        model->ParseGroup(name, Items(PresetsPerGroup, name + "."), nullptr);
    }
    return model;
}

std::unique_ptr<QStandardItemModel> StandardModel(int presets)
{
    auto model = std::make_unique<QStandardItemModel>();
    for (int g = 0; g * PresetsPerGroup < presets; ++g) {
        auto* group = new QStandardItem(QStringLiteral("Group %1").arg(g));
        for (int i = 0; i < PresetsPerGroup; ++i) {
            auto* item = new QStandardItem;
            item->setData(QStringLiteral("Preset %1").arg(i), EffectPresetModel::PresetNameRole);
            item->setData(50, EffectPresetModel::IntensityRole);
            group->appendRow(item);
        }
        model->appendRow(group);
    }
    return model;
}

/// Reads a role of every preset; finding the indexes is not counted.
void ReadRole(benchmark::State& state, const QAbstractItemModel& model, int role)
{
    std::vector<QModelIndex> indexes;
    for (int g = 0; g < model.rowCount(); ++g)
        for (int i = 0; i < model.rowCount(model.index(g, 0)); ++i)
            indexes.push_back(model.index(i, 0, model.index(g, 0)));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(model.data(indexes[next], role));
        next = (next + 1) % indexes.size();
    }
}

/// Reads the first group alone, where the walk to the parent is short however large the model is:
/// the rest of data()'s cost.
void PresetDataOfFirstGroup(benchmark::State& state)
{
    const auto model = PresetModel(static_cast<int>(state.range(0)));
    const QModelIndex group = model->index(0, 0);
    int row = 0;
    for (auto _ : state) {
        const QModelIndex preset = model->index(row, 0, group);
        benchmark::DoNotOptimize(model->data(preset, static_cast<int>(state.range(1))));
        row = (row + 1) % PresetsPerGroup;
    }
}

/// Measures the model's prescribed walk to the parent alone, to be subtracted from ReadRole().
void FindParent(benchmark::State& state, const QAbstractItemModel& model)
{
    std::vector<QModelIndex> indexes;
    for (int g = 0; g < model.rowCount(); ++g)
        for (int i = 0; i < model.rowCount(model.index(g, 0)); ++i)
            indexes.push_back(model.index(i, 0, model.index(g, 0)));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(model.parent(indexes[next]));
        next = (next + 1) % indexes.size();
    }
}

void PresetData(benchmark::State& state)
{
    ReadRole(state, *PresetModel(static_cast<int>(state.range(0))),
             static_cast<int>(state.range(1)));
}

void StandardData(benchmark::State& state)
{
    ReadRole(state, *StandardModel(static_cast<int>(state.range(0))),
             static_cast<int>(state.range(1)));
}

void PresetParent(benchmark::State& state)
{
    FindParent(state, *PresetModel(static_cast<int>(state.range(0))));
}

void StandardParent(benchmark::State& state)
{
    FindParent(state, *StandardModel(static_cast<int>(state.range(0))));
}

void Fill(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PresetModel(static_cast<int>(state.range(0))));
}

} // namespace

BENCHMARK(PresetData)->ArgsProduct({{1000, 20000}, {256, 261}});
BENCHMARK(PresetDataOfFirstGroup)->ArgsProduct({{1000, 20000}, {256, 261}});
BENCHMARK(StandardData)->ArgsProduct({{1000, 20000}, {256, 261}});
BENCHMARK(PresetParent)->RangeMultiplier(10)->Range(100, 100000)->Arg(20000);
BENCHMARK(StandardParent)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(Fill)->Arg(20000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
