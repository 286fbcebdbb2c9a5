// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetControllerAbstract.h"
#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "Settings/TuneSettingType.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Brassel/SerializerProperty.h"

#include <QStringList>

namespace LumetraTest {

namespace Presets = Zorvik::Lumetra::LumetraPresets;

struct PresetIntensity
{
    int minimum;
    int maximum;
    int value;
};

/// A preset without effects that keeps any intensity.
class PlainPreset : public Presets::EffectPresetControllerAbstract
{
public:
    explicit PlainPreset(const PresetIntensity& intensity) : m_intensity(intensity) {}

    int IntensityMin() const override { return m_intensity.minimum; }
    int IntensityMax() const override { return m_intensity.maximum; }
    int GetIntensity() const override { return m_intensity.value; }
    void SetIntensity(int value, bool) override { m_intensity.value = value; }
    QImage GetPreviewImage() override { return {}; }

protected:
    void ApplyInternal() override {}
    void ResetInternal() override {}

private:
    PresetIntensity m_intensity;
};

/// Hands the intensities out in order.
class PlainPresetFactory : public Presets::IEffectPresetControllerFactory
{
public:
    explicit PlainPresetFactory(const std::vector<PresetIntensity>& intensities)
        : m_intensities(intensities)
    {
    }

    boost::intrusive_ptr<Presets::IEffectPresetController>
    CreateController(const std::string&) override
    {
        return new PlainPreset(m_intensities.at(m_next++));
    }
    boost::intrusive_ptr<Presets::IEffectPresetController>
    CopyController(const boost::intrusive_ptr<Presets::IEffectPresetController>&) override
    {
        return CreateController(std::string());
    }

private:
    std::vector<PresetIntensity> m_intensities;
    std::size_t m_next = 0;
};

/// The real model with one group of presets, which logs what is written into it.
class LoggedPresets : public Presets::EffectPresetModel
{
public:
    explicit LoggedPresets(const std::vector<PresetIntensity>& intensities)
        : EffectPresetModel(std::make_shared<PlainPresetFactory>(intensities))
    {
        namespace Core = Zorvik::Core;
        Core::Property::List items;
        for (std::size_t i = 0; i < intensities.size(); ++i)
            items.push_back(std::make_shared<Core::Property>(std::string()));
        const auto tree = std::make_shared<Core::Property>(std::string());
        tree->Set("items", items);
        const auto node = Zorvik::Brassel::SerializerProperty::Create(tree);
        ParseGroup("Presets", node->GetCollection("items"), node);
    }

    QModelIndex Row(int row) const { return index(row, 0, index(0, 0, QModelIndex())); }

    bool setData(const QModelIndex& changed, const QVariant& value, int role) override
    {
        const bool isTune = value.userType() == qMetaTypeId<Presets::TuneSettingType>();
        const int number =
            isTune ? static_cast<int>(value.value<Presets::TuneSettingType>()) : value.toInt();
        m_log += QStringLiteral("%1:%2=%3%4")
                     .arg(changed.row())
                     .arg(role)
                     .arg(isTune                               ? QStringLiteral("tune ")
                          : value.userType() == QMetaType::Int ? QString()
                                                               : QStringLiteral("? "))
                     .arg(number);
        return EffectPresetModel::setData(changed, value, role);
    }

    /// "row:role=value" of every write since the last call, in order.
    std::string TakeLog()
    {
        const std::string log = m_log.join(QStringLiteral(", ")).toStdString();
        m_log.clear();
        return log;
    }

private:
    QStringList m_log;
};

} // namespace LumetraTest
