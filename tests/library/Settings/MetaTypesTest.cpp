// SPDX-License-Identifier: MIT
#include "Settings/IntensitySettingType.h"
#include "Settings/SliderSetting.h"
#include "Settings/TuneSettingType.h"

#include <QVariant>

#include <gtest/gtest.h>

using namespace Zorvik::Lumetra::LumetraPresets;

namespace {

template <class Type>
void ExpectName(const char* name)
{
    const int id = qMetaTypeId<Type>();
    EXPECT_STREQ(QMetaType::typeName(id), name);
    EXPECT_EQ(QMetaType::type(name), id);
}

} // namespace

TEST(MetaTypes, areRegisteredUnderTheirFullNames)
{
    ExpectName<IntensitySettingType>("Zorvik::Lumetra::LumetraPresets::IntensitySettingType");
    ExpectName<TuneSettingType>("Zorvik::Lumetra::LumetraPresets::TuneSettingType");
    ExpectName<SliderSetting::List>("Zorvik::Lumetra::LumetraPresets::SliderSetting::List");
}

TEST(MetaTypes, enumerationsAreKnownAsSuch)
{
    for (const int id : {qMetaTypeId<IntensitySettingType>(), qMetaTypeId<TuneSettingType>()}) {
        EXPECT_TRUE(QMetaType::typeFlags(id) & QMetaType::IsEnumeration);
        EXPECT_TRUE(QMetaType::typeFlags(id) & QMetaType::MovableType);
        EXPECT_EQ(QMetaType::sizeOf(id), 4);
    }
}

TEST(MetaTypes, aListNeedsConstructionAndDestruction)
{
    const auto flags = QMetaType::typeFlags(qMetaTypeId<SliderSetting::List>());
    EXPECT_TRUE(flags & QMetaType::NeedsConstruction);
    EXPECT_TRUE(flags & QMetaType::NeedsDestruction);
}

TEST(MetaTypes, valuesTravelInAVariant)
{
    SliderSetting slider(false);
    slider.SetValue(7);
    const auto variant = QVariant::fromValue(SliderSetting::List{slider});
    EXPECT_EQ(variant.value<SliderSetting::List>().at(0).Value(), 7);
    EXPECT_EQ(QVariant::fromValue(TuneSettingType::Apply).value<TuneSettingType>(),
              TuneSettingType::Apply);
    EXPECT_EQ(QVariant(1).value<TuneSettingType>(), TuneSettingType::Apply);
    EXPECT_EQ(QVariant().value<TuneSettingType>(), TuneSettingType::ChangeEnd);
}

TEST(MetaTypes, enumeratorsKeepTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(IntensitySettingType::None), 0);
    EXPECT_EQ(static_cast<int>(IntensitySettingType::Blending), 1);
    EXPECT_EQ(static_cast<int>(IntensitySettingType::Slider), 2);
    EXPECT_EQ(static_cast<int>(TuneSettingType::ChangeEnd), 0);
    EXPECT_EQ(static_cast<int>(TuneSettingType::Apply), 1);
}
