// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/IRefCountable.h"
#include "Zorvik/RefCounted.h"

#include <string>

namespace Zorvik::Quindle {

/// How a live painting treats its updates, and which package of the drawer it shows.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackage : public virtual IRefCountable
{
public:
    /// BlendSource: an update carries a blend amount. OneInput: it carries changed effects.
    enum class Kind
    {
        BlendSource,
        OneInput
    };

    explicit SettingsPainterEffectsPackage(Kind kind);

    Kind GetKind() const;

    const std::string& GetPackageName() const;
    void SetPackageName(const std::string& name);

    const std::string& GetPresetName() const;
    void SetPresetName(const std::string& name);

    /// True: the painting keeps the source's alpha. Starts false.
    bool IsNeedRestoreAlpha() const;
    void SetIsNeedRestoreAlpha(bool restore);

protected:
    ~SettingsPainterEffectsPackage() override;

private:
    Kind m_kind;
    std::string m_packageName;
    std::string m_presetName;
    bool m_isNeedRestoreAlpha = false;
};

/// A painting whose updates change the blend with the source.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackageBlendSource
    : public RefCounted<SettingsPainterEffectsPackage>
{
public:
    static boost::intrusive_ptr<SettingsPainterEffectsPackage> Create();

private:
    SettingsPainterEffectsPackageBlendSource();
};

/// A painting whose updates change effects of the package.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackageOneInput
    : public RefCounted<SettingsPainterEffectsPackage>
{
public:
    static boost::intrusive_ptr<SettingsPainterEffectsPackage> Create();

private:
    SettingsPainterEffectsPackageOneInput();
};

} // namespace Zorvik::Quindle
