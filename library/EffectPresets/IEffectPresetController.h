// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"
#include "Settings/SliderSetting.h"
#include "Zorvik/Lumetra/IWorkspaceUser.h"

#include <QImage>

#include <memory>
#include <string>
#include <vector>

namespace Zorvik::Lumetra::LumetraPresets {

/// One preset: its identity, effects, intensity, extra sliders and state, and how it is put on the
/// photo. Held as `boost::intrusive_ptr`; made by IEffectPresetControllerFactory. The order of the
/// operations is the order of the virtual table, which plug-ins rely on.
///
/// An operation throws only what its comment names, beside what the host's own drawer, statistics
/// and overrides throw. "Exception" is the platform's; it is thrown without a workspace and when
/// the workspace is gone. std::invalid_argument is thrown for an intensity slider that drives an
/// effect which is not there. What was changed before stays changed.
class LUMETRAPRESETSUTIL_EXPORT IEffectPresetController : public virtual IWorkspaceUser,
                                                          public virtual IRefCountable,
                                                          public virtual Brassel::ISerializable
{
public:
    IEffectPresetController();
    IEffectPresetController(const IEffectPresetController& other);
    IEffectPresetController& operator=(const IEffectPresetController& other);
    ~IEffectPresetController() override;

    /// Keeps those of the catalogue's sliders whose effect the preset has, positioned by it.
    /// Appends: call once.
    virtual void InitDefaultSettings(const std::vector<SliderSetting>& sliders) = 0;
    /// Makes the intensity setting from its stored form; null: a preset without intensity.
    /// std::invalid_argument for a slider that drives a parameter or an effect that is not there;
    /// the serializer's Exception for a value of the wrong kind.
    virtual void InitIntensity(const Brassel::ConstSerializerPtr& node) = 0;
    /// Marks the preset as applied, with its sliders where `effects` has them. Draws nothing.
    virtual void Load(const Quindle::ConstEffectList& effects) = 0;
    /// The preset's effects with the sliders' default or current values written into them. The
    /// effects are shared with the preset.
    virtual Quindle::ConstEffectList GetEffectInfo(bool useDefaults) const = 0;

    /// The drawer's package that the preset takes next; 0xFFFFFFFF: none in particular.
    virtual void SetResetIndex(unsigned int index) = 0;
    virtual const std::string& GetName() const = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual void SetGroupInfo(const std::string& group, bool editable) = 0;
    virtual const std::string& GetID() const = 0;

    virtual bool IsApplied() const = 0;
    /// With `notify` the photo is changed too, unless the drawer is locked or the preset was off
    /// and stays off; without, only the flag. A change of the photo may throw Exception or
    /// std::invalid_argument; the flag is set before.
    virtual void SetApplied(bool applied, bool notify) = 0;
    /// Makes what is shown part of the photo. Exception without a workspace.
    virtual void SaveChanges() = 0;

    virtual bool IsFavourite() const = 0;
    virtual void SetFavourite(bool favourite) = 0;
    virtual bool IsPopular() const = 0;

    virtual int IntensityMin() const = 0;
    virtual int IntensityMax() const = 0;
    virtual int GetIntensity() const = 0;
    /// `live`: draw a changed value at once, which may throw Exception or std::invalid_argument;
    /// the value is taken before.
    virtual void SetIntensity(int value, bool live) = 0;
    /// std::invalid_argument if `effects` lacks the effect of an intensity slider.
    virtual void SetIntensityFromEffectSettings(const Quindle::EffectsSettings& effects) = 0;
    /// Ends an interactive change of the intensity. Exception if one is open that was drawn live;
    /// it stays open.
    virtual void IntensityChangeEnd() = 0;
    virtual IntensitySettingType GetIntensitySettingType() const = 0;

    /// True: changed extra sliders apply the preset at once.
    virtual bool ApplySettingsOnProgress() const = 0;
    /// True: the preset's resource is yet to be downloaded.
    virtual bool IsDownloadable() const = 0;
    /// Hands over the path of a downloaded resource.
    virtual void SetDownloadedResource(const std::string& resource) = 0;
    /// The preset's thumbnail, null while there is none.
    virtual QImage GetPreviewImage() = 0;

    virtual std::vector<SliderSetting> GetSettings() const = 0;
    /// Takes the values by position; returns whether one differed.
    virtual bool SetSettingsValues(const std::vector<SliderSetting>& values) = 0;
    /// Puts the extra sliders back to their defaults and reads the intensity from the effects;
    /// returns whether a slider differed. std::invalid_argument if the preset lacks the effect of
    /// its intensity slider.
    virtual bool ResetSettingsValues() = 0;
    virtual std::vector<SliderSetting> GetSettingsDefault() const = 0;
};

} // namespace Zorvik::Lumetra::LumetraPresets
