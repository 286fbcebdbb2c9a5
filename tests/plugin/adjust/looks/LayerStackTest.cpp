// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/LayerStack.h"

#include "FakeEditor.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraEditor::EditorLayer;
using LumetraTest::FakeEditor;
using testing::HasSubstr;
using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;

namespace {

class LayerStackTest : public testing::Test
{
protected:
    static EditorLayer Layer(const char* name, double stops, int blend = 1)
    {
        EditorLayer layer;
        layer.name = QString::fromUtf8(name);
        layer.isOpen = true;
        layer.settings.Package().SetPackageName(name);
        layer.settings.Package().SetPresetName(std::string("id.") + name);
        layer.settings.Effects().push_back(EffectSettingsImpl::Create("exposure"));
        layer.settings.Effects()[0]->SetParameter("stops", stops);
        layer.settings.SetBlendAmount(blend);
        return layer;
    }
    static std::vector<double> StopsOf(const EffectsSettings& settings)
    {
        std::vector<double> stops;
        for (const auto& effect : settings.Effects())
            stops.push_back(effect->GetParameter("stops"));
        return stops;
    }
    static LayerStack::Update Find(const LayerStack::Layers& layers)
    {
        return LayerStack::FindUpdate(layers, "own", [](const QString& id) {
            return id == QLatin1String("id.mine") ? QStringLiteral("Mine") : QString();
        });
    }

    FakeEditor editor; // registers the effects
};

} // namespace

TEST_F(LayerStackTest, putsTheLayersThatAreOnTogetherBottomUp)
{
    LayerStack::Layers layers{Layer("a", 1), Layer("b", 2), Layer("c", 3)};
    layers[1].isOn = false;
    layers[0].isOpen = false;

    const LayerStack::Flat flat = LayerStack::Flatten(layers);

    EXPECT_EQ(flat.problem, QString());
    EXPECT_EQ(StopsOf(flat.settings), (std::vector<double>{1, 3}));
    EXPECT_EQ(flat.settings.GetBlendAmount(), EffectsSettings::FullEffect);
}

TEST_F(LayerStackTest, refusesALayerThatIsMixedWithOthers)
{
    const LayerStack::Flat flat = LayerStack::Flatten({Layer("a", 1), Layer("Warm", 2, 52)});

    EXPECT_THAT(flat.problem.toStdString(), HasSubstr("“Warm” has an intensity of 80 %"));
    EXPECT_TRUE(flat.settings.Effects().empty());
}

TEST_F(LayerStackTest, keepsTheIntensityOfTheOnlyLayer)
{
    LayerStack::Layers layers{Layer("a", 1, 52), Layer("b", 2)};
    layers[1].isOn = false;

    const LayerStack::Flat flat = LayerStack::Flatten(layers);

    EXPECT_EQ(flat.problem, QString());
    EXPECT_EQ(flat.settings.GetBlendAmount(), 52);
}

TEST_F(LayerStackTest, saysThatThereIsNothing)
{
    EXPECT_THAT(LayerStack::Flatten({}).problem.toStdString(), HasSubstr("nothing on the photo"));
}

TEST_F(LayerStackTest, updatesTheUsersLookNextToTheAdjustments)
{
    const auto below = Find({Layer("mine", 1), Layer("own", 2)});
    EXPECT_EQ(below.name, QStringLiteral("Mine"));
    EXPECT_EQ(below.id, QStringLiteral("id.mine"));
    EXPECT_EQ(StopsOf(below.settings), (std::vector<double>{1, 2}));

    EXPECT_EQ(StopsOf(Find({Layer("own", 2), Layer("mine", 1)}).settings),
              (std::vector<double>{2, 1}));
}

TEST_F(LayerStackTest, updatesNoLookOfTheCatalogueAndNoneFurtherAway)
{
    EXPECT_EQ(Find({Layer("shipped", 1), Layer("own", 2)}).id, QString());
    EXPECT_EQ(Find({Layer("mine", 1), Layer("shipped", 1), Layer("own", 2)}).id, QString());
    EXPECT_EQ(Find({Layer("mine", 1)}).id, QString());
}

TEST_F(LayerStackTest, updatesNoLookThatIsMixed)
{
    const auto update = Find({Layer("mine", 1, 128), Layer("own", 2)});

    EXPECT_EQ(update.name, QStringLiteral("Mine"));
    EXPECT_THAT(update.problem.toStdString(), HasSubstr("“Mine” has an intensity of 50 %"));
}
