// SPDX-License-Identifier: GPL-2.0-or-later
// The time that a program waits for a large catalogue, 20,000 presets in 200 groups, from the file
// to the filled model, and its parts; reading JSON beside nlohmann::json and QJsonDocument.
#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetSession.h"
#include "storage/JsonReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <stdexcept>

using LumetraHost::CatalogueParser;
using LumetraHost::JsonDocument;
using LumetraPlugin::PresetControllerFactory;
using LumetraPlugin::PresetSession;
using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

constexpr int PresetsPerGroup = 100;

/// Takes the parser's nodes and looks at none of them.
class NoTarget : public Zorvik::Brassel::Config::IParserConfigGroup
{
public:
    void ParseGroup(const std::string&, const ConstCollectionPtr&,
                    const ConstSerializerPtr&) override
    {
    }
    void ParseAdditionalInfo(const ConstCollectionPtr&) override {}
    void ParseAdditionalInfo(const ConstSerializerPtr&) override {}
};

void WriteSliders(std::ostream& out)
{
    out << R"("defaultSettings": {
    "exposure": { "title": "Exposure", "begin": -100, "end": 100,
      "variables": [{ "setting": "stops", "begin": -2, "end": 2 }] },
    "whiteBalance": { "title": "Temperature", "begin": -100, "end": 100,
      "variables": [{ "setting": "temperature", "begin": 3500, "end": 9500 }] },
    "contrast": { "title": "Contrast", "begin": -100, "end": 100,
      "variables": [{ "setting": "amount", "begin": -100, "end": 100 }] },
    "saturation": { "title": "Saturation", "begin": -100, "end": 100,
      "variables": [{ "setting": "amount", "begin": -100, "end": 100 }] },
    "vignette": { "title": "Vignette", "begin": -100, "end": 100,
      "variables": [{ "setting": "amount", "begin": -2.5, "end": 2.5 }] }
  },)";
}

/// Writes a usual preset: a few effects, every fifth with an intensity of its own.
void WritePreset(std::ostream& out, int group, int number)
{
    out << "        {\n          \"name\": \"Preset " << number << "\", \"id\": \"group-" << group
        << ".preset-" << number << "\", \"popular\": " << (number % 10 == 0 ? "true" : "false");
    if (number % 5 == 0)
        out << R"(,
          "intensity": { "type": 2, "sliderSetting": {
            "title": "Size", "begin": 0, "end": 100,
            "variables": [
              { "effectID": "vignette", "setting": "size", "begin": 100, "end": 10 }] } })";
    out << R"(,
          "settings": { "effects": [
            { "effect": { "id": "exposure", "stops": 0.)"
        << number % 10 << R"( } },
            { "effect": { "id": "whiteBalance", "temperature": 6950, "tint": 2.5 } },
            { "effect": { "id": "contrast", "amount": -26 } },
            { "effect": { "id": "vignette", "amount": -0.8, "size": 37, "feather": 100 } }
          ] }
        })";
}

/// A catalogue of that many presets, written once for all runs.
class CatalogueFile
{
public:
    explicit CatalogueFile(int presets) : m_path(m_folder.filePath(QStringLiteral("many.json")))
    {
        std::ofstream out(m_path.toStdString());
        out << "{ \"format\": \"lumetra-catalogue\", \"version\": 1,\n  ";
        WriteSliders(out);
        out << "\n  \"groups\": [";
        for (int group = 0; group * PresetsPerGroup < presets; ++group) {
            out << (group == 0 ? "" : ",") << "\n    { \"name\": \"Group " << group
                << R"(", "settings": { "controller": "photo", "intensity": { "type": 1,
        "blendSetting": { "value": 80, "begin": 1, "end": 255 } } }, "items": [)";
            for (int i = 0; i < PresetsPerGroup; ++i) {
                out << (i == 0 ? "\n" : ",\n");
                WritePreset(out, group, i);
            }
            out << "] }";
        }
        out << "\n  ]\n}\n";
    }

    const QString& GetPath() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

const QString& FileOf(int presets)
{
    static const CatalogueFile one(1000);
    static const CatalogueFile twenty(20000);
    static const CatalogueFile sixty(60000);
    return (presets == 1000 ? one : presets == 20000 ? twenty : sixty).GetPath();
}

QByteArray TextOf(int presets)
{
    QFile file(FileOf(presets));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read the catalogue");
    return file.readAll();
}

/// Parses a text in memory; the end of the values is not measured.
template <class Parse>
void ParseText(benchmark::State& state, const Parse& parse)
{
    const QByteArray text = TextOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto values = parse(text);
        benchmark::DoNotOptimize(values);
        state.PauseTiming();
        values = {};
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * text.size());
}

void ParseOurs(benchmark::State& state)
{
    ParseText(state, [](const QByteArray& text) {
        return LumetraHost::JsonReader::Read({text.constData(), std::size_t(text.size())}, "text");
    });
}

void ParseNlohmann(benchmark::State& state)
{
    ParseText(state, [](const QByteArray& text) {
        return nlohmann::json::parse(text.constData(), text.constData() + text.size());
    });
}

void ParseQt(benchmark::State& state)
{
    ParseText(state, [](const QByteArray& text) {
        QJsonParseError error;
        auto document = QJsonDocument::fromJson(text, &error);
        if (document.isNull())
            throw std::runtime_error(error.errorString().toStdString());
        return document;
    });
}

void ReadJson(benchmark::State& state)
{
    const QString& file = FileOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(JsonDocument::Read(file));
}

void Check(benchmark::State& state)
{
    const auto document = JsonDocument::Read(FileOf(static_cast<int>(state.range(0))));
    const PresetSession registersTheEffects("lumetra.benchmark");
    for (auto _ : state) {
        CatalogueParser parser(PresetControllerFactory::GetKinds());
        NoTarget target;
        parser.AddDocument(document);
        parser.Parse(target, nullptr);
        if (!parser.GetReports().empty())
            throw std::runtime_error(parser.GetReports().front().ToText());
    }
}

/// Measures all steps: file, values, checks, model.
void Load(benchmark::State& state)
{
    const QString& file = FileOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto session = std::make_unique<PresetSession>("lumetra.benchmark");
        session->Load({file}, nullptr);
        benchmark::DoNotOptimize(session->GetModel().rowCount());
        if (session->GetModel().rowCount() != state.range(0) / PresetsPerGroup + 1)
            throw std::runtime_error("the model has not all groups");
        state.PauseTiming();
        session.reset();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(ParseOurs)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseNlohmann)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseQt)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadJson)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);
BENCHMARK(Check)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
