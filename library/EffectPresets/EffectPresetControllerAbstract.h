// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/IEffectPresetController.h"
#include "Zorvik/Proc/Color.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/RefCountImpl.h"

#include <map>

class QSize;

namespace Zorvik::Lumetra::LumetraPresets {

/// Implements whatever of a preset does not touch the photo: its data, stored form and statistics.
/// ApplyInternal() and ResetInternal() are left to the derived class, GetPreviewImage() to the
/// host's. Exceptions are those that IEffectPresetController names; nothing is caught here.
/// Plug-ins were built with the order of operations and fields, so new ones may only be appended.
class LUMETRAPRESETSUTIL_EXPORT EffectPresetControllerAbstract
    : public virtual IEffectPresetController
{
public:
    /// Starts without name, ID, effects and intensity; Deserialize() and the Init operations fill
    /// it.
    EffectPresetControllerAbstract();
    /// Makes a new preset from an existing one. It has the name, a fresh ID, clones of the effects
    /// and of the intensity, and the *current* slider values, which are also its defaults. It is
    /// not applied, favourite or popular, and has no group, image and workspace.
    EffectPresetControllerAbstract(const EffectPresetControllerAbstract& other);
    EffectPresetControllerAbstract& operator=(const EffectPresetControllerAbstract&) = delete;
    ~EffectPresetControllerAbstract() override;

    /// These operations do what IEffectPresetController says. Some of it is decided here:
    /// SetIntensity() ignores `live`, IntensityChangeEnd() and SetDownloadedResource() do nothing,
    /// ApplySettingsOnProgress() is true and IsDownloadable() is false.
    void SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller) override;
    void InitDefaultSettings(const std::vector<SliderSetting>& sliders) override;
    void InitIntensity(const Brassel::ConstSerializerPtr& node) override;
    void Load(const Quindle::ConstEffectList& effects) override;
    Quindle::ConstEffectList GetEffectInfo(bool useDefaults) const override;
    void SetResetIndex(unsigned int index) override;
    const std::string& GetName() const override;
    void SetName(const std::string& name) override;
    void SetGroupInfo(const std::string& group, bool editable) override;
    const std::string& GetID() const override;
    bool IsApplied() const override;
    void SetApplied(bool applied, bool notify) override;
    void SaveChanges() override;
    bool IsFavourite() const override;
    void SetFavourite(bool favourite) override;
    bool IsPopular() const override;
    int IntensityMin() const override;
    int IntensityMax() const override;
    int GetIntensity() const override;
    void SetIntensity(int value, bool live) override;
    void SetIntensityFromEffectSettings(const Quindle::EffectsSettings& effects) override;
    void IntensityChangeEnd() override;
    IntensitySettingType GetIntensitySettingType() const override;
    bool ApplySettingsOnProgress() const override;
    bool IsDownloadable() const override;
    void SetDownloadedResource(const std::string& resource) override;
    std::vector<SliderSetting> GetSettings() const override;
    bool SetSettingsValues(const std::vector<SliderSetting>& values) override;
    bool ResetSettingsValues() override;
    std::vector<SliderSetting> GetSettingsDefault() const override;

    /// These are the counting operations of IRefCountable; Release() deletes the preset at 0.
    unsigned int AddRef() const override;
    unsigned int Release() const override;
    unsigned int GetRefCount() const override;

protected:
    /// Puts the preset's effects on the photo. SetApplied(true, true) calls it after setting the
    /// flag; what it throws reaches that caller.
    virtual void ApplyInternal() = 0;
    /// Takes the preset's effects off the photo. SetApplied(false, true) calls it for a preset that
    /// was applied, after clearing the flag; what it throws reaches that caller.
    virtual void ResetInternal() = 0;
    /// These operations name the usage events of applying, saving, switching off and marking a
    /// preset. A derived class overrides them; an empty name, as here, sends nothing.
    virtual std::string GetStatisticEventNameClick() const;
    virtual std::string GetStatisticEventNameApply() const;
    virtual std::string GetStatisticEventNameReset() const;
    virtual std::string GetStatisticEventNameFavoriteAdd() const;
    virtual std::string GetStatisticEventNameFavoriteRemove() const;
    /// Returns the parameters of every event: here group and name, under the keys of
    /// IStatisticsEventHandler.
    virtual std::map<std::string, std::string> GetStatisticParamList() const;
    /// Sends an event to the workspace's statistics. Does nothing for an empty name or without a
    /// workspace.
    virtual void TrackEvent(const std::string& eventName) const;

    /// Writes name, ID, the popular mark and the effects with the default slider values in them,
    /// which stay in the effects. The form has no image, preview policies and preview effects.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Reads a preset of the catalogue or of the user's data; null counts as an empty node. A
    /// missing ID is the name, missing settings are looked for in the node itself, and without
    /// preview settings the preview shares the preset's effects. A value of the wrong kind is the
    /// serializer's Exception, and the preset is then half read.
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

    /// Returns the effects with the sliders' default or current values written into them, like
    /// GetEffectInfo(), but as objects that the caller may change. They are the preset's own.
    Quindle::EffectList GetEffectInfoInternal(bool useDefaults) const;
    /// Puts the sliders, but not the intensity, back to their defaults. Draws nothing.
    void ResetSettings();
    /// Renders the preview effects on the workspace's photo, at most `size` pixels large, with the
    /// preset's own policies; `flags` are those of IQuindleDrawer::RenderPreview(). The image is
    /// null without a workspace or a photo. What the drawer and the converter throw passes.
    QImage GetImagePreviewInternal(const QSize& size, unsigned int flags) const;

    /// Returns the intensity setting, or one without effect before InitIntensity().
    IIntensitySetting& Intensity() const;

    RefCountImpl m_refCount;
    bool m_applied = false;
    bool m_committed = false; ///< SaveChanges() kept the look, so switching it off is no reset.
    bool m_favourite = false;
    bool m_popular = false;
    bool m_groupEditable = false; ///< SetGroupInfo() sets it, for derived classes alone.
    Quindle::EffectsSettings m_effectSettings;        ///< These effects are drawn and stored.
    Quindle::EffectsSettings m_previewEffectSettings; ///< The thumbnail shows these effects.
    std::string m_name;
    std::string m_image; ///< Deserialize() sets it, for derived classes alone.
    std::string m_group;
    std::string m_id;
    int m_previewCropPolicy = Quindle::IQuindleDrawer::CropToCentre;
    int m_previewFitPolicy = Quindle::IQuindleDrawer::FitByScaling;
    Proc::Color m_color;      ///< Deserialize() sets it, for derived classes alone.
    bool m_colorFlag = false; ///< Nothing here sets or reads it.
    std::unique_ptr<IIntensitySetting> m_intensitySetting; ///< It is null before InitIntensity().
    std::vector<SliderSetting> m_settings;
    std::vector<SliderSetting> m_defaultSettings; ///< These are m_settings at their start values.
    unsigned int m_resetIndex =
        Quindle::EffectsSettingsPackage::NoIndex; ///< The package to take next.
};

} // namespace Zorvik::Lumetra::LumetraPresets
