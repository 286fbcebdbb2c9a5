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

/// One preset has an identity, effects, an intensity, extra sliders and a state, and puts itself on
/// the photo. It is held as `boost::intrusive_ptr` and made by IEffectPresetControllerFactory. The
/// model fills it by Deserialize(), SetGroupInfo(), InitDefaultSettings() and InitIntensity(), in
/// this order, and later attaches it by SetWorkspaceController(), which starts it unapplied, with
/// the default slider values and without a reset index. Texts are UTF-8. The order of the
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

    /// Keeps copies of those of the catalogue's sliders whose effect the preset has, positioned by
    /// that effect. They are appended, so call it once.
    virtual void InitDefaultSettings(const std::vector<SliderSetting>& sliders) = 0;
    /// Makes the intensity setting from its stored form; null gives a preset without intensity. A
    /// slider then takes its value from the effects, while a blending intensity writes its own into
    /// them. Throws std::invalid_argument for a slider that drives a parameter or an effect that is
    /// not there, and the serializer's Exception for a value of the wrong kind.
    virtual void InitIntensity(const Brassel::ConstSerializerPtr& node) = 0;
    /// Marks the preset as applied and positions its extra sliders by those of `effects` that they
    /// drive. It draws nothing, sends no event and leaves other presets alone. The model calls it
    /// when an earlier edit is opened again.
    virtual void Load(const Quindle::ConstEffectList& effects) = 0;
    /// Returns the preset's effects with the extra sliders' default or current values written into
    /// them; the intensity is not. The effects are the preset's own and later operations change
    /// them, so whoever keeps them copies them.
    virtual Quindle::ConstEffectList GetEffectInfo(bool useDefaults) const = 0;

    /// Sets the index of the drawer's package that the preset takes when it is applied next.
    /// 0xFFFFFFFF means none in particular.
    virtual void SetResetIndex(unsigned int index) = 0;
    /// The name is what the user sees. It may be empty and need not be unique; setting it notifies
    /// nobody.
    virtual const std::string& GetName() const = 0;
    virtual void SetName(const std::string& name) = 0;
    /// Tells the preset the name of its group, which its usage events carry, and whether the user
    /// may change that group.
    virtual void SetGroupInfo(const std::string& group, bool editable) = 0;
    /// Returns the ID by which edits and favourites refer to the preset. It comes from the stored
    /// form, where a missing one is the name; a copy has a new UUID in braces. Two presets may
    /// share an ID.
    virtual const std::string& GetID() const = 0;

    /// True while the preset is meant to be on the photo. It is set even where a locked drawer does
    /// not show the preset.
    virtual bool IsApplied() const = 0;
    /// Sets the flag and, with `notify`, changes the photo and sends a usage event. Switching on
    /// applies the preset, unless the drawer is locked. Switching off takes it off if it was on,
    /// and sends no event after SaveChanges(). A change of the photo may throw Exception or
    /// std::invalid_argument; the flag is set before. Other presets are left to the model.
    virtual void SetApplied(bool applied, bool notify) = 0;
    /// Makes what is shown part of the photo, whichever preset shows it, and sends a usage event.
    /// The preset stays marked as applied. Throws Exception without a workspace.
    virtual void SaveChanges() = 0;

    /// The favourite mark is the user's. Setting it sends a usage event even if it was set before.
    virtual bool IsFavourite() const = 0;
    virtual void SetFavourite(bool favourite) = 0;
    /// True when the catalogue recommends the preset.
    virtual bool IsPopular() const = 0;

    /// These operations give the ends of the intensity slider and its value. All are 0 for a preset
    /// without intensity; a fresh blending intensity starts above its maximum.
    virtual int IntensityMin() const = 0;
    virtual int IntensityMax() const = 0;
    virtual int GetIntensity() const = 0;
    /// Sets the intensity, unclamped. With `live` a changed value is drawn at once, which may throw
    /// Exception or std::invalid_argument; the value is taken before. Without `live` it shows when
    /// the preset is applied next.
    virtual void SetIntensity(int value, bool live) = 0;
    /// Takes the intensity from `effects`: from their blend amount, or from the effect that its
    /// slider drives first. Draws nothing. Throws std::invalid_argument if that effect is missing.
    virtual void SetIntensityFromEffectSettings(const Quindle::EffectsSettings& effects) = 0;
    /// Ends an interactive change of the intensity; call it when the slider is released. Does
    /// nothing when no change is being drawn live. Otherwise it may throw Exception, and the change
    /// then stays open.
    virtual void IntensityChangeEnd() = 0;
    /// Returns the kind of intensity; None before InitIntensity() too.
    virtual IntensitySettingType GetIntensitySettingType() const = 0;

    /// True when changed extra sliders shall apply the preset at once. The model asks after a
    /// change.
    virtual bool ApplySettingsOnProgress() const = 0;
    /// True while the preset's resource is yet to be downloaded.
    virtual bool IsDownloadable() const = 0;
    /// Hands over the path of a downloaded resource. The host's class decides what it does with it
    /// and what it throws.
    virtual void SetDownloadedResource(const std::string& resource) = 0;
    /// Returns the preset's thumbnail, null while there is none. The host's class supplies it; the
    /// model calls it whenever a view asks for PreviewImageRole, so it should be quick.
    virtual QImage GetPreviewImage() = 0;

    /// Returns copies of the extra sliders with their current values.
    virtual std::vector<SliderSetting> GetSettings() const = 0;
    /// Takes the values of `values` by position, unclamped, and returns whether one differed. The
    /// shorter of the two lists counts. Draws nothing.
    virtual bool SetSettingsValues(const std::vector<SliderSetting>& values) = 0;
    /// Puts the extra sliders back to their defaults and reads the intensity from the preset's own
    /// effects; returns whether a slider differed. Draws nothing. A dragged slider intensity that
    /// was drawn or applied stays, since its value is in the effects. Throws std::invalid_argument
    /// if the preset lacks the effect of its intensity slider.
    virtual bool ResetSettingsValues() = 0;
    /// Returns copies of the extra sliders with their default values, in the order of
    /// GetSettings().
    virtual std::vector<SliderSetting> GetSettingsDefault() const = 0;
};

} // namespace Zorvik::Lumetra::LumetraPresets
