// SPDX-License-Identifier: MIT
#include "Settings/IntensitySettingType.h"
#include "Settings/SliderSetting.h"
#include "Settings/TuneSettingType.h"

#include <QVariant>

#include <gtest/gtest.h>

using namespace Zorvik::Lumetra::LumetraPresets;

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
constexpr auto MovableType = QMetaType::RelocatableType;

int FindId(const char* name)
{
    return QMetaType::fromName(name).id();
}
#else
constexpr auto MovableType = QMetaType::MovableType;

int FindId(const char* name)
{
    return QMetaType::type(name);
}
#endif

template <class Type>
void ExpectName(const char* name)
{
    const int id = qMetaTypeId<Type>();
    EXPECT_STREQ(QMetaType(id).name(), name);
    EXPECT_EQ(FindId(name), id);
}

} // namespace

TEST(MetaTypes, areRegisteredUnderTheirFullNames)
{
    ExpectName<IntensitySettingType>("Zorvik::Lumetra::LumetraPresets::IntensitySettingType");
    ExpectName<TuneSettingType>("Zorvik::Lumetra::LumetraPresets::TuneSettingType");
    const char* const list = "Zorvik::Lumetra::LumetraPresets::SliderSetting::List";
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 names a type by what it is; the name that it is registered by leads to it all the same.
    EXPECT_EQ(QMetaType::fromName(list).id(), qMetaTypeId<SliderSetting::List>());
#else
    ExpectName<SliderSetting::List>(list);
#endif
}

TEST(MetaTypes, enumerationsAreKnownAsSuch)
{
    for (const int id : {qMetaTypeId<IntensitySettingType>(), qMetaTypeId<TuneSettingType>()}) {
        const QMetaType type(id);
        EXPECT_TRUE(type.flags() & QMetaType::IsEnumeration);
        EXPECT_TRUE(type.flags() & MovableType);
        EXPECT_EQ(type.sizeOf(), 4);
    }
}

TEST(MetaTypes, aListNeedsConstructionAndDestruction)
{
    const auto flags = QMetaType(qMetaTypeId<SliderSetting::List>()).flags();
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
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    EXPECT_EQ(QVariant(1).value<TuneSettingType>(), TuneSettingType::Apply);
#endif
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
