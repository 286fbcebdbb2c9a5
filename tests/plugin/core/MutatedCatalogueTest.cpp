// SPDX-License-Identifier: GPL-2.0-or-later
#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "engine/effects/EffectKinds.h"
#include "storage/JsonException.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace LumetraPlugin;
using LumetraHost::CatalogueParser;
using LumetraHost::JsonDocument;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

namespace {

// Pieces of a catalogue; mutations exchange and drop some.
const std::vector<std::string> pieces = {
    R"({"format": "lumetra-catalogue", "version": 1, "defaultSettings": )",
    R"({"exposure": {"title": "Exposure", "begin": )",
    "-100",
    R"(, "end": )",
    "100",
    R"(, "variables": )",
    R"([{"setting": )",
    R"("stops")",
    R"(, "begin": -2, "end": 2}])",
    "}}",
    R"(, "groups": [{"name": )",
    R"("Looks")",
    R"(, "settings": )",
    R"({"editable": )",
    "false",
    R"(, "intensity": {"type": )",
    "1",
    R"(, "blendSetting": )",
    R"({"value": 80})",
    "}}",
    R"(, "items": )",
    R"([{"name": "A", "effects": )",
    R"([{"effect": {"id": "exposure", "stops": )",
    "1",
    R"(}}])",
    R"(}, {"name": "B", "intensity": {"type": )",
    "2",
    R"(, "sliderSetting": {"begin": 0, "end": )",
    "50",
    R"(, "variables": [{"effectID": )",
    R"("saturation")",
    R"(, "setting": "amount", "end": -90}]}})",
    R"(, "settings": )",
    R"({"effects": [{"effect": {"id": )",
    R"("saturation")",
    R"(}}]})",
    R"(, "popular": )",
    "true",
    "}]",
    "}]}"};

const std::vector<std::string> values = {
    "null", "true",           "-1", "0",  "2",   "1e300", "-0.5",
    "\"\"", "\"saturation\"", "[]", "{}", "[7]", "[{}]",  R"({"effects": [{"effect": 1}]})",
    "[[]]"};

std::string Mutate(std::mt19937& random)
{
    std::vector<std::string> mutated = pieces;
    const auto pick = [&random](std::size_t count) {
        return static_cast<std::size_t>(random()) % count;
    };
    for (std::size_t count = 1 + pick(3); count > 0; --count)
        mutated[pick(mutated.size())] = values[pick(values.size())];
    std::string text;
    for (const std::string& piece : mutated)
        text += piece;
    if (pick(4) == 0)
        text[pick(text.size())] = static_cast<char>(pick(256));
    return text;
}

/// False when the text is not even JSON.
bool Load(const std::string& text)
{
    EffectPresetModel model(std::make_shared<PresetControllerFactory>("Looks"));
    CatalogueParser parser(PresetControllerFactory::GetKinds());
    try {
        parser.AddDocument(JsonDocument::Parse(QByteArray::fromStdString(text), "mutated.json"));
    } catch (const LumetraHost::JsonException&) {
        return false;
    }
    parser.Parse(model, nullptr);
    const QModelIndex last = model.index(model.rowCount() - 1, 0);
    EXPECT_TRUE(last.data(EffectPresetModel::PresetIdRole).toBool()) << text; // the user's group
    return true;
}

} // namespace

TEST(MutatedCatalogue, neverStopsTheProgram)
{
    LumetraHost::RegisterEffects();
    std::mt19937 random(4711);
    int readCount = 0;
    for (int i = 0; i < 4000; ++i) {
        const std::string text = Mutate(random);
        EXPECT_NO_THROW(readCount += Load(text)) << text;
    }
    EXPECT_GT(readCount, 400);
}
