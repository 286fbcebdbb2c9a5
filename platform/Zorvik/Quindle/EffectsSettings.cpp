// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectsSettings.h"

#include <utility>

namespace Zorvik::Quindle {
namespace {

EffectList CloneAll(const EffectList& effects)
{
    EffectList clones;
    clones.reserve(effects.size());
    for (const EffectPtr& effect : effects)
        clones.push_back(effect ? effect->Clone() : nullptr);
    return clones;
}

} // namespace

const std::string& EffectsSettingsPackage::GetPackageName() const
{
    return m_packageName;
}

void EffectsSettingsPackage::SetPackageName(const std::string& name)
{
    m_packageName = name;
}

const std::string& EffectsSettingsPackage::GetPresetName() const
{
    return m_presetName;
}

void EffectsSettingsPackage::SetPresetName(const std::string& name)
{
    m_presetName = name;
}

unsigned EffectsSettingsPackage::GetIndex() const
{
    return m_index;
}

void EffectsSettingsPackage::SetIndex(unsigned index)
{
    m_index = index;
}

EffectsSettings::EffectsSettings(unsigned inputCount) : m_inputCount(inputCount) {}

EffectsSettings::EffectsSettings(const EffectsSettings& other)
    : m_inputCount(other.m_inputCount), m_effects(CloneAll(other.m_effects)),
      m_package(other.m_package), m_blendAmount(other.m_blendAmount), m_waitApply(other.m_waitApply)
{
}

EffectsSettings::EffectsSettings(EffectsSettings&& other) noexcept = default;

EffectsSettings& EffectsSettings::operator=(const EffectsSettings& other)
{
    if (this != &other)
        *this = EffectsSettings(other);
    return *this;
}

EffectsSettings& EffectsSettings::operator=(EffectsSettings&& other) noexcept = default;

EffectsSettings::~EffectsSettings() = default;

EffectList& EffectsSettings::Effects()
{
    return m_effects;
}

const EffectList& EffectsSettings::Effects() const
{
    return m_effects;
}

ConstEffectList EffectsSettings::EffectsConst() const
{
    return ConstEffectList(m_effects.begin(), m_effects.end());
}

void EffectsSettings::SetEffectsConst(const ConstEffectList& effects)
{
    EffectList shared;
    shared.reserve(effects.size());
    for (const ConstEffectPtr& effect : effects)
        if (effect)
            shared.emplace_back(const_cast<IEffectSettings*>(effect.get()));
    m_effects = std::move(shared);
}

EffectsSettingsPackage& EffectsSettings::Package()
{
    return m_package;
}

const EffectsSettingsPackage& EffectsSettings::Package() const
{
    return m_package;
}

int EffectsSettings::GetBlendAmount() const
{
    return m_blendAmount;
}

void EffectsSettings::SetBlendAmount(int amount)
{
    m_blendAmount = amount;
}

bool EffectsSettings::GetWaitApply() const
{
    return m_waitApply;
}

void EffectsSettings::SetWaitApply(bool wait)
{
    m_waitApply = wait;
}

unsigned EffectsSettings::GetInputCount() const
{
    return m_inputCount;
}

} // namespace Zorvik::Quindle
