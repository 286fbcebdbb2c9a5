// SPDX-License-Identifier: GPL-2.0-or-later
// The stored form of an edit, in all its versions.
#include "support/StoredForm.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "edits/EditStateFormat.h"
#include "storage/JsonDocument.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>

using namespace LumetraTest;
using LumetraHost::EditLayer;
using LumetraHost::EditState;
using LumetraHost::EditStateFormat;
using LumetraHost::JsonDocument;
using LumetraHost::PanelEdit;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

/// A file as version 1 has written it.
constexpr char FirstVersion[] = R"({
    "format": "lumetra-sidecar",
    "version": 1,
    "committed": [
        { "package": "lumetra.presets", "preset": "warm", "blend": 52,
          "effects": [ { "effect": { "id": "exposure", "stops": 0.3 } } ],
          "name": "Warm", "intensity": 80 },
        { "package": "lumetra.presets", "preset": "cool", "blend": 1, "effects": [] }
    ],
    "panels": { "exposure-panel": { "tenthsOfStops": 5 } }
})";

/// A file as version 2 has written it: an open layer and its module's part have the same effects.
constexpr char SecondVersion[] = R"({
    "format": "lumetra-sidecar",
    "version": 2,
    "layers": [
        { "module": "looks", "on": true, "open": false, "package": "l", "preset": "cool", "blend": 1,
          "effects": [], "name": "Cool", "intensity": 100 },
        { "module": "looks", "on": true, "open": true, "package": "l", "preset": "warm", "blend": 52,
          "effects": [ { "effect": { "id": "exposure", "stops": 0.3 } } ],
          "name": "Warm", "intensity": 80 }
    ],
    "panels": {
        "looks": { "preset": "warm", "effects": [ { "effect": { "id": "exposure", "stops": 0.3 } } ] }
    }
})";

EditState Read(const char* text)
{
    return EditStateFormat::FromDocument(JsonDocument::Parse(text, "test"));
}

EditLayer MakeLayer(const char* module, const Zorvik::Quindle::EffectsSettings& settings)
{
    EditLayer layer;
    layer.module = QString::fromLatin1(module);
    layer.settings = std::make_shared<const Zorvik::Quindle::EffectsSettings>(settings);
    return layer;
}

} // namespace

TEST(EditStateFormat, readsWhatItWrites)
{
    EditState state;
    Zorvik::Quindle::EffectsSettings package(1);
    package.Package().SetPackageName("looks");
    package.Package().SetPresetName("Soft \"Skin\"");
    package.SetBlendAmount(77);
    const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create("of-another-program");
    package.Effects().push_back(effect);
    state.layers.push_back(MakeLayer("looks", package));
    state.layers.back().record = {"Soft Skin", 70};
    state.layers.push_back(MakeLayer("adjust", Zorvik::Quindle::EffectsSettings(1)));
    state.layers.back().isOn = false;
    state.layers.back().isOpen = true;
    state.panels[QStringLiteral("looks")] = PanelEdit(StoredNode{{"preset", "ä"}}.ToProperty());

    const QByteArray text = EditStateFormat::ToDocument(state).ToText();
    const EditState read = EditStateFormat::FromDocument(JsonDocument::Parse(text, "test"));

    EXPECT_TRUE(read == state);
    ASSERT_EQ(read.layers.size(), 2U);
    EXPECT_EQ(read.layers[0].module, QStringLiteral("looks"));
    EXPECT_EQ(read.layers[0].settings->GetBlendAmount(), 77);
    EXPECT_EQ(read.layers[0].record.preset, "Soft Skin");
    EXPECT_EQ(read.layers[0].record.intensity, 70);
    EXPECT_EQ(read.layers[0].settings->Package().GetPresetName(), "Soft \"Skin\"");
    EXPECT_TRUE(read.layers[0].isOn);
    EXPECT_FALSE(read.layers[0].isOpen);
    EXPECT_FALSE(read.layers[1].isOn);
    EXPECT_TRUE(read.layers[1].isOpen);
    EXPECT_EQ(EditStateFormat::ToDocument(read).ToText(), text);
}

TEST(EditStateFormat, keepsAModulesValuesAsTheyWereGiven)
{
    const auto given = StoredNode{
        {"z", 1.0},
        {"größe", "Maß \xF0\x9F\x93\xB7"},
        {"a", StoredNode{{"third", 0.1 + 0.2}, {"none", StoredNode()}}},
        {"list",
         StoredList{StoredNode("named", {{"on", true}}), StoredNode(), StoredNode{{"on", false}}}},
        {"empty", StoredList()},
        {"text", ""}}.ToProperty();
    given->Set("large", std::int64_t(9007199254740993));
    given->Set("least", std::numeric_limits<std::int64_t>::min());
    EditState state;
    state.panels[QStringLiteral("m")] = PanelEdit(given);

    const QByteArray text = EditStateFormat::ToDocument(state).ToText();
    const EditState read = EditStateFormat::FromDocument(JsonDocument::Parse(text, "test"));
    const auto restored = read.panels.at(QStringLiteral("m")).MakeProperty();

    EXPECT_EQ(StoredText(*restored), StoredText(*given));
    EXPECT_TRUE(read == state);
}

TEST(EditStateFormat, aModuleCannotChangeWhatItHasGiven)
{
    const auto given = StoredNode{{"a", StoredNode{{"b", 1}}}}.ToProperty();
    const PanelEdit edit(given);

    std::get<Zorvik::Core::Property::Ptr>(*given->Find("a"))->Set("b", std::int64_t(2));
    edit.MakeProperty()->Set("a", false);

    EXPECT_EQ(StoredText(*edit.MakeProperty()), "{a: {b: 1}}");
}

TEST(EditStateFormat, twoEditsDifferByOrderAndKindOfTheirValues)
{
    const auto make = [](const StoredNode& node) { return PanelEdit(node.ToProperty()); };

    EXPECT_TRUE(make({{"a", 1}, {"b", 2}}) == make({{"a", 1}, {"b", 2}}));
    EXPECT_FALSE(make({{"a", 1}, {"b", 2}}) == make({{"b", 2}, {"a", 1}}));
    EXPECT_FALSE(make({{"a", 1}}) == make({{"a", 1.0}}));
    EXPECT_FALSE(make({{"a", StoredList()}}) == make({{"a", StoredNode()}}));
    EXPECT_FALSE(make({}) == make({{"a", false}}));
}

TEST(EditStateFormat, readsTheFirstVersion)
{
    const EditState read = Read(FirstVersion);

    ASSERT_EQ(read.layers.size(), 2U);
    EXPECT_EQ(read.layers[0].settings->Package().GetPackageName(), "lumetra.presets");
    EXPECT_EQ(read.layers[0].settings->Package().GetPresetName(), "warm");
    EXPECT_EQ(read.layers[0].settings->GetBlendAmount(), 52);
    ASSERT_EQ(read.layers[0].settings->Effects().size(), 1U);
    EXPECT_EQ(read.layers[0].settings->Effects()[0]->GetParameter("stops"), 0.3);
    EXPECT_EQ(read.layers[0].record.preset, "Warm");
    EXPECT_EQ(read.layers[0].record.intensity, 80);
    EXPECT_EQ(read.layers[1].record.preset, "cool") << "its own name, where there is no other";
    for (const EditLayer& layer : read.layers) {
        EXPECT_TRUE(layer.isOn);
        EXPECT_FALSE(layer.isOpen);
        EXPECT_EQ(layer.module, QString());
    }
    EXPECT_EQ(StoredText(*read.panels.at(QStringLiteral("exposure-panel")).MakeProperty()),
              "{tenthsOfStops: 5}");
}

TEST(EditStateFormat, writesTheFirstVersionAsTheNewestWithAllThatItSaid)
{
    const EditState read = Read(FirstVersion);

    const auto document = EditStateFormat::ToDocument(read);

    EXPECT_THAT(document.ToText().toStdString(), HasSubstr("\"version\": 3"));
    EXPECT_THAT(document.ToText().toStdString(), Not(HasSubstr("\"committed\"")));
    EXPECT_TRUE(EditStateFormat::FromDocument(document) == read);
}

TEST(EditStateFormat, writesTheEffectsOfAnOpenLayerOnceWhereItsModuleHasThemToo)
{
    const EditState read = Read(SecondVersion);
    ASSERT_EQ(read.layers.size(), 2U);

    const std::string text = EditStateFormat::ToDocument(read).ToText().toStdString();
    const EditState again = Read(text.c_str());

    EXPECT_EQ(text.find("stops"), text.rfind("stops"));
    EXPECT_TRUE(again == read);
    EXPECT_EQ(again.layers[1].settings->Effects().at(0)->GetParameter("stops"), 0.3);
    EXPECT_TRUE(again.layers[0].settings->Effects().empty());
}

TEST(EditStateFormat, writesTheEffectsOfALayerThatItsModuleDoesNotHaveToTheLetter)
{
    const auto writesOwn = [](const std::string& from, const char* to) {
        std::string text = SecondVersion;
        text.replace(text.rfind(from), from.size(), to);
        const EditState read = Read(text.c_str());
        const EditState again =
            Read(EditStateFormat::ToDocument(read).ToText().toStdString().c_str());
        EXPECT_TRUE(again == read);
        const auto document = EditStateFormat::ToDocument(read);
        const auto layers = document.GetRoot()->GetCollection("layers");
        return layers->GetElement(layers->GetCount() - 1)->Has("effects");
    };

    EXPECT_FALSE(writesOwn("0.3", "0.3")) << "nothing is changed";
    EXPECT_TRUE(writesOwn("0.3", "0.30"));
    EXPECT_TRUE(writesOwn("0.3", "0.4"));
    EXPECT_TRUE(writesOwn("\"effects\"", "\"drawn\""));
    EXPECT_TRUE(writesOwn("\"looks\"", "\"others\""));
    EXPECT_TRUE(writesOwn("\"open\": true", "\"open\": false"));
}

TEST(EditStateFormat, writesTheNewestVersionOnlyForLayersAboveOpenOnes)
{
    const auto versionOf = [](const EditState& state) {
        return EditStateFormat::ToDocument(state).GetRoot()->Get("version", 0);
    };
    EditState state = Read(SecondVersion);
    EXPECT_EQ(versionOf(state), 3) << "earlier versions read it";
    std::swap(state.layers[0], state.layers[1]);

    EXPECT_EQ(versionOf(state), 4);
    const EditState again = Read(EditStateFormat::ToDocument(state).ToText().toStdString().c_str());
    EXPECT_TRUE(again == state);
    EXPECT_EQ(again.CountAbove(), 1U);
}

TEST(EditStateFormat, keepsThePartOfAClosedLayerWithItsEffectsOnce)
{
    EditState state = Read(SecondVersion);
    EditLayer& closed = state.layers[1];
    closed.isOpen = false;
    closed.part = state.panels.extract(QStringLiteral("looks")).mapped();

    const std::string text = EditStateFormat::ToDocument(state).ToText().toStdString();
    const EditState again = Read(text.c_str());

    EXPECT_EQ(text.find("stops"), text.rfind("stops"));
    ASSERT_TRUE(again.layers[1].part);
    EXPECT_TRUE(*again.layers[1].part == *state.layers[1].part);
    EXPECT_FALSE(again.layers[0].part) << "a layer without one";
}

TEST(EditStateFormat, aWrongPartOfAClosedLayerCostsItselfAlone)
{
    const EditState read = Read(R"({"format": "lumetra-sidecar", "version": 3,
        "layers": [{"preset": "One", "effects": [], "part": 3}]})");

    ASSERT_EQ(read.layers.size(), 1U);
    EXPECT_FALSE(read.layers[0].part);
}

TEST(EditStateFormat, takesNoKeysOfLaterVersionsInAnEarlierOne)
{
    const EditState read = Read(R"({"format": "lumetra-sidecar", "version": 1, "layers": [{}],
        "committed": [{"preset": "One", "open": "yes", "on": false, "module": 3}]})");

    ASSERT_EQ(read.layers.size(), 1U);
    EXPECT_TRUE(read.layers[0].isOn);
    EXPECT_EQ(read.layers[0].settings->Package().GetPresetName(), "One");
}

TEST(EditStateFormat, twoEditsDifferByTheirLayers)
{
    const auto differs = [](const std::function<void(EditLayer&)>& change) {
        EditState state;
        state.layers.push_back(MakeLayer("looks", Zorvik::Quindle::EffectsSettings(1)));
        EditState changed = state;
        change(changed.layers[0]);
        return !(changed == state);
    };

    EXPECT_TRUE(differs([](EditLayer& layer) { layer.isOn = false; }));
    EXPECT_TRUE(differs([](EditLayer& layer) { layer.isOpen = true; }));
    EXPECT_TRUE(differs([](EditLayer& layer) { layer.module = QStringLiteral("adjust"); }));
    EXPECT_TRUE(differs([](EditLayer& layer) {
        Zorvik::Quindle::EffectsSettings settings(1);
        settings.Effects().push_back(Zorvik::Quindle::EffectSettingsImpl::Create("other"));
        layer = MakeLayer("looks", settings);
    }));
    EXPECT_FALSE(differs([](EditLayer& layer) {
        Zorvik::Quindle::EffectsSettings settings(1);
        settings.Package().SetIndex(7);
        layer = MakeLayer("looks", settings);
    }));
}

TEST(EditStateFormat, namesThePlaceOfWhatIsWrong)
{
    const auto read = [](const char* text) {
        try {
            EditStateFormat::FromDocument(JsonDocument::Parse(text, "lake.json"));
        } catch (const std::exception& error) {
            return std::string(error.what());
        }
        return std::string("nothing");
    };

    EXPECT_THAT(read(R"({"format": "other", "version": 1})"), HasSubstr("lake.json/format"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 1,
                         "committed": [{"blend": 0}]})"),
                HasSubstr("committed[0]/blend"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 2,
                         "layers": [{"open": true}, {"open": false}]})"),
                HasSubstr("layers[1]/open: expected true, since the layer lies on an open one"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 2, "layers": [
                         {"open": true, "package": "a"}, {"open": true, "package": "a"}]})"),
                HasSubstr("layers[1]/package: expected another package"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 2, "layers": [{"on": 1}]})"),
                HasSubstr("layers[0]/on: expected bool"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 2, "layers": 3})"),
                HasSubstr("layers: expected"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 5, "layers": []})"),
                HasSubstr("lake.json/version: expected a version up to 4, found 5"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 4, "layers": [
                         {"open": true, "effects": []}, {}, {"open": true, "effects": []}]})"),
                HasSubstr("layers[2]/open: expected false, since a closed layer lies between"));
    for (const char* const layers :
         {R"("version": 1, "committed": {})", R"("version": 2, "layers": {})",
          R"("version": 3, "layers": {"first": {"preset": "warm"}})"})
        EXPECT_THAT(read((R"({"format": "lumetra-sidecar", )" + std::string(layers) + "}").c_str()),
                    ContainsRegex("(committed|layers): expected collection, found node"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 2, "layers": [{"effects": {}}]})"),
                HasSubstr("layers[0]/effects: expected collection, found node"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 3,
                         "layers": [{"open": true, "module": "a"}], "panels": {"a": {}}})"),
                HasSubstr("layers[0]/effects: expected collection, here or in the part"));
    EXPECT_THAT(read(R"({"format": "lumetra-sidecar", "version": 1, "panels": {"a": 1}})"),
                HasSubstr("lake.json/panels/a: expected node"));
}
