// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

namespace Zorvik::Quindle {

SettingsPainterEffectsPackage::SettingsPainterEffectsPackage(Kind kind) : m_kind(kind) {}

SettingsPainterEffectsPackage::~SettingsPainterEffectsPackage() = default;

SettingsPainterEffectsPackage::Kind SettingsPainterEffectsPackage::GetKind() const
{
    return m_kind;
}

const std::string& SettingsPainterEffectsPackage::GetPackageName() const
{
    return m_packageName;
}

void SettingsPainterEffectsPackage::SetPackageName(const std::string& name)
{
    m_packageName = name;
}

const std::string& SettingsPainterEffectsPackage::GetPresetName() const
{
    return m_presetName;
}

void SettingsPainterEffectsPackage::SetPresetName(const std::string& name)
{
    m_presetName = name;
}

bool SettingsPainterEffectsPackage::IsNeedRestoreAlpha() const
{
    return m_isNeedRestoreAlpha;
}

void SettingsPainterEffectsPackage::SetIsNeedRestoreAlpha(bool restore)
{
    m_isNeedRestoreAlpha = restore;
}

SettingsPainterEffectsPackageBlendSource::SettingsPainterEffectsPackageBlendSource()
    : RefCounted<SettingsPainterEffectsPackage>(Kind::BlendSource)
{
}

boost::intrusive_ptr<SettingsPainterEffectsPackage>
SettingsPainterEffectsPackageBlendSource::Create()
{
    return new SettingsPainterEffectsPackageBlendSource;
}

SettingsPainterEffectsPackageOneInput::SettingsPainterEffectsPackageOneInput()
    : RefCounted<SettingsPainterEffectsPackage>(Kind::OneInput)
{
}

boost::intrusive_ptr<SettingsPainterEffectsPackage> SettingsPainterEffectsPackageOneInput::Create()
{
    return new SettingsPainterEffectsPackageOneInput;
}

} // namespace Zorvik::Quindle
