// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetControllerAbstract.h"

#include <QObject>

namespace Zorvik::Lumetra::LumetraPresets {

/// A preset that changes the photo: it applies itself through the workspace's core drawer, draws
/// intensity drags live through the drawer's painter, and refuses to apply while the drawer is
/// locked. Host classes derive from it, supply GetPreviewImage() and name their statistics events.
/// Operations that draw (SetApplied() with notification, SaveChanges(), SetIntensity() when live,
/// and IntensityChangeEnd() of a live change) throw the platform's Exception without a workspace or
/// when it is gone, std::invalid_argument for an intensity slider whose effect the preset lacks,
/// and what the host's drawer throws. Nothing is caught here.
class LUMETRAPRESETSUTIL_EXPORT EffectPresetControllerBase : public QObject,
                                                             public EffectPresetControllerAbstract
{
    Q_OBJECT

public:
    /// `packageName` names the drawer's package that the preset's effects go into; presets of one
    /// panel share it, so that they replace each other.
    explicit EffectPresetControllerBase(const std::string& packageName);
    EffectPresetControllerBase(const EffectPresetControllerBase& other);
    ~EffectPresetControllerBase() override;

    /// A changed value is drawn at once when `live`: the first starts a painting, which
    /// IntensityChangeEnd() finishes. The value is stored also when drawing throws.
    void SetIntensity(int value, bool live) override;
    void IntensityChangeEnd() override;
    bool ApplySettingsOnProgress() const override;

    unsigned int AddRef() const override;
    unsigned int Release() const override;
    unsigned int GetRefCount() const override;

protected:
    void ApplyInternal() override;
    void ResetInternal() override;
    void Serialize(const Brassel::SerializerPtr& node) const override;

private slots:
    void OnCoreDrawerLock(bool locked);

private:
    bool FillLiveUpdate(Quindle::EffectsSettings& update) const;
    void DrawLive(const Quindle::EffectsSettings& update);

protected:
    RefCountImpl m_ownRefCount;
    bool m_painting = false;
    bool m_waitApply = false; ///< for derived classes: applying returns after rendering
    bool m_drawerLocked = false;
    std::string m_packageName;
};

} // namespace Zorvik::Lumetra::LumetraPresets
