// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetControllerBase.h"

namespace LumetraTest {

/// The least that a host must add to a preset: statistics events by name ("click", "apply",
/// "reset", "favourite add", "favourite remove") and a thumbnail of 8 x 6 pixels.
class TestController : public Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase
{
public:
    explicit TestController(const std::string& packageName);
    TestController(const TestController& other);

    /// Sets the library's flag, as a host's controller would.
    void SetWaitApply(bool wait);
    void SetApplySettingsOnProgress(bool apply);
    void SetDownloadable(bool downloadable);

    bool ApplySettingsOnProgress() const override;
    bool IsDownloadable() const override;
    QImage GetPreviewImage() override;

protected:
    std::string GetStatisticEventNameClick() const override;
    std::string GetStatisticEventNameApply() const override;
    std::string GetStatisticEventNameReset() const override;
    std::string GetStatisticEventNameFavoriteAdd() const override;
    std::string GetStatisticEventNameFavoriteRemove() const override;

private:
    bool m_applySettingsOnProgress = false;
    bool m_isDownloadable = false;
};

} // namespace LumetraTest
