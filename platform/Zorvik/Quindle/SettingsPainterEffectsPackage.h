// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/IRefCountable.h"
#include "Zorvik/RefCounted.h"

#include <string>

namespace Zorvik::Quindle {

/// Tells a painter how a live painting treats its updates, and which package of the drawer it
/// shows. Made by Create() of the two classes below, one for each painting.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackage : public virtual IRefCountable
{
public:
    /// The kind says what the painter takes from an update.
    enum class Kind
    {
        BlendSource, ///< An update carries a blend amount.
        OneInput     ///< An update carries changed effects.
    };

    /// Starts with empty names. Only the derived classes below call it.
    explicit SettingsPainterEffectsPackage(Kind kind);

    /// Returns the kind, which never changes.
    Kind GetKind() const;

    /// The package name says which open package of the drawer is painted.
    const std::string& GetPackageName() const;
    void SetPackageName(const std::string& name);

    /// The preset name is the ID of the preset that is being dragged.
    const std::string& GetPresetName() const;
    void SetPresetName(const std::string& name);

    /// True asks the painting to keep the source's alpha. It starts as false; the library sets it.
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

/// The updates of such a painting change the blend with the source.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackageBlendSource
    : public RefCounted<SettingsPainterEffectsPackage>
{
public:
    /// Makes a new package of kind BlendSource, for the drag of a blending intensity.
    static boost::intrusive_ptr<SettingsPainterEffectsPackage> Create();

private:
    SettingsPainterEffectsPackageBlendSource();
};

/// The updates of such a painting change effects of the package.
class ZORVIKPLATFORM_EXPORT SettingsPainterEffectsPackageOneInput
    : public RefCounted<SettingsPainterEffectsPackage>
{
public:
    /// Makes a new package of kind OneInput, for the drag of an intensity that drives effects.
    static boost::intrusive_ptr<SettingsPainterEffectsPackage> Create();

private:
    SettingsPainterEffectsPackageOneInput();
};

} // namespace Zorvik::Quindle
