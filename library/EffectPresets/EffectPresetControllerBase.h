// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetControllerAbstract.h"

#include <QObject>

namespace Zorvik::Lumetra::LumetraPresets {

/// This preset changes the photo: it applies itself through the workspace's core drawer, draws
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
    /// panel share it, so that they replace each other. The preset listens to the message bus for
    /// CORE_DRAWER_LOCK from now on.
    explicit EffectPresetControllerBase(const std::string& packageName);
    /// Makes a new preset as EffectPresetControllerAbstract does. Package name and wait-apply are
    /// copied. An open painting and a locked drawer are not: the copy hears of the lock with the
    /// next message.
    EffectPresetControllerBase(const EffectPresetControllerBase& other);
    ~EffectPresetControllerBase() override;

    /// Stores the value and, when it has changed and `live` is true, draws it at once: the first
    /// changed value starts a painting, which IntensityChangeEnd() finishes. The value stays stored
    /// when drawing throws. A locked drawer and a preset that is not applied are drawn on too; a
    /// preset without intensity draws nothing.
    void SetIntensity(int value, bool live) override;
    /// Finishes the painting of a live change; does nothing when none is open.
    void IntensityChangeEnd() override;
    /// Returns false: moved sliders are not drawn before somebody applies the preset.
    bool ApplySettingsOnProgress() const override;

    /// These are the counting operations of IRefCountable. They use a counter of this class, and
    /// Release() deletes the preset at 0.
    unsigned int AddRef() const override;
    unsigned int Release() const override;
    unsigned int GetRefCount() const override;

protected:
    /// Draws the effects with the current slider and intensity values. Does nothing while the
    /// drawer is locked. The package's index is the reset index; without one it is that of the
    /// package applied last, if this has our name, or the drawer's next free one. The index is kept
    /// as the reset index. An open painting is forgotten without being finished, which the drawer
    /// does by itself.
    void ApplyInternal() override;
    /// Asks the workspace to take the open package of our name off, also when another preset put it
    /// there. Does nothing when there is none.
    void ResetInternal() override;
    /// Writes the intensity's type and stored form beside the rest of the preset.
    void Serialize(const Brassel::SerializerPtr& node) const override;

private slots:
    void OnCoreDrawerLock(bool locked);

private:
    bool FillLiveUpdate(Quindle::EffectsSettings& update) const;
    void DrawLive(const Quindle::EffectsSettings& update);

protected:
    RefCountImpl m_ownRefCount;
    bool m_painting = false;     ///< A live change has been started and not been finished.
    bool m_waitApply = false;    ///< Only derived classes set it; see EffectsSettings.
    bool m_drawerLocked = false; ///< The last message on CORE_DRAWER_LOCK.
    std::string m_packageName;
};

} // namespace Zorvik::Lumetra::LumetraPresets
