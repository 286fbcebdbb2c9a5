// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/IEffectPresetController.h"
#include "Zorvik/Proc/Color.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "Zorvik/RefCountImpl.h"

#include <map>

class QSize;

namespace Zorvik::Lumetra::LumetraPresets {

/// All of a preset that does not touch the photo: its data, stored form and statistics.
/// ApplyInternal() and ResetInternal() are left to the derived class, GetPreviewImage() to the
/// host's. Exceptions are those that IEffectPresetController names; nothing is caught here. The
/// order of operations and fields is what plug-ins were built with: append only.
class LUMETRAPRESETSUTIL_EXPORT EffectPresetControllerAbstract
    : public virtual IEffectPresetController
{
public:
    EffectPresetControllerAbstract();
    /// A new preset from an existing one: a fresh ID, the effects (cloned) and the *current*
    /// slider values, which are also its defaults. Not applied, favourite or popular; without
    /// group, image and workspace.
    EffectPresetControllerAbstract(const EffectPresetControllerAbstract& other);
    EffectPresetControllerAbstract& operator=(const EffectPresetControllerAbstract&) = delete;
    ~EffectPresetControllerAbstract() override;

    /// Starts unapplied on the new workspace, with the default slider values.
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

    unsigned int AddRef() const override;
    unsigned int Release() const override;
    unsigned int GetRefCount() const override;

protected:
    virtual void ApplyInternal() = 0;
    virtual void ResetInternal() = 0;
    // An empty event name sends nothing.
    virtual std::string GetStatisticEventNameClick() const;
    virtual std::string GetStatisticEventNameApply() const;
    virtual std::string GetStatisticEventNameReset() const;
    virtual std::string GetStatisticEventNameFavoriteAdd() const;
    virtual std::string GetStatisticEventNameFavoriteRemove() const;
    virtual std::map<std::string, std::string> GetStatisticParamList() const;
    virtual void TrackEvent(const std::string& eventName) const;

    void Serialize(const Brassel::SerializerPtr& node) const override;
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

    Quindle::EffectList GetEffectInfoInternal(bool useDefaults) const;
    void ResetSettings();
    /// The preview effects on the workspace's photo, `size` in pixels; null without a workspace.
    QImage GetImagePreviewInternal(const QSize& size, unsigned int flags) const;

    /// The intensity setting, or one without effect before InitIntensity().
    IIntensitySetting& Intensity() const;

    RefCountImpl m_refCount;
    bool m_applied = false;
    bool m_committed = false; ///< the applied look was kept: switching it off is no reset
    bool m_favourite = false;
    bool m_popular = false;
    bool m_groupEditable = false;
    Quindle::EffectsSettings m_effectSettings;
    Quindle::EffectsSettings m_previewEffectSettings;
    std::string m_name;
    std::string m_image;
    std::string m_group;
    std::string m_id;
    int m_previewCropPolicy = 1;
    int m_previewFitPolicy = 0;
    Proc::Color m_color;
    bool m_colorFlag = false;
    std::unique_ptr<IIntensitySetting> m_intensitySetting;
    std::vector<SliderSetting> m_settings;
    std::vector<SliderSetting> m_defaultSettings;
    unsigned int m_resetIndex = 0xFFFFFFFF;
};

} // namespace Zorvik::Lumetra::LumetraPresets
