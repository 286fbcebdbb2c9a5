// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestController.h"

#include "Settings/IIntensitySetting.h"

#include <QSize>

namespace LumetraTest {

/// A host's controller with its protected side open to a test, and events that may be unnamed.
class OpenController : public TestController
{
public:
    using Ptr = boost::intrusive_ptr<OpenController>;

    explicit OpenController(const std::string& packageName = "Looks") : TestController(packageName)
    {
    }

    static Ptr Create() { return new OpenController; }

    void NameNoEvents() { m_namesEvents = false; }

    using EffectPresetControllerAbstract::Deserialize;
    using EffectPresetControllerAbstract::GetEffectInfoInternal;
    using EffectPresetControllerAbstract::GetImagePreviewInternal;
    using EffectPresetControllerAbstract::GetStatisticParamList;
    using EffectPresetControllerAbstract::ResetSettings;
    using EffectPresetControllerAbstract::TrackEvent;
    using EffectPresetControllerBase::ApplyInternal;
    using EffectPresetControllerBase::ResetInternal;
    using EffectPresetControllerBase::Serialize;

    using EffectPresetControllerAbstract::m_applied;
    using EffectPresetControllerAbstract::m_color;
    using EffectPresetControllerAbstract::m_colorFlag;
    using EffectPresetControllerAbstract::m_committed;
    using EffectPresetControllerAbstract::m_effectSettings;
    using EffectPresetControllerAbstract::m_group;
    using EffectPresetControllerAbstract::m_groupEditable;
    using EffectPresetControllerAbstract::m_image;
    using EffectPresetControllerAbstract::m_intensitySetting;
    using EffectPresetControllerAbstract::m_previewCropPolicy;
    using EffectPresetControllerAbstract::m_previewEffectSettings;
    using EffectPresetControllerAbstract::m_previewFitPolicy;
    using EffectPresetControllerAbstract::m_resetIndex;
    using EffectPresetControllerBase::m_drawerLocked;
    using EffectPresetControllerBase::m_packageName;
    using EffectPresetControllerBase::m_painting;
    using EffectPresetControllerBase::m_waitApply;

protected:
    std::string GetStatisticEventNameClick() const override
    {
        return m_namesEvents ? "click" : EffectPresetControllerBase::GetStatisticEventNameClick();
    }
    std::string GetStatisticEventNameApply() const override
    {
        return m_namesEvents ? "apply" : EffectPresetControllerBase::GetStatisticEventNameApply();
    }
    std::string GetStatisticEventNameReset() const override
    {
        return m_namesEvents ? "reset" : EffectPresetControllerBase::GetStatisticEventNameReset();
    }
    std::string GetStatisticEventNameFavoriteAdd() const override
    {
        return m_namesEvents ? "favourite add"
                             : EffectPresetControllerBase::GetStatisticEventNameFavoriteAdd();
    }
    std::string GetStatisticEventNameFavoriteRemove() const override
    {
        return m_namesEvents ? "favourite remove"
                             : EffectPresetControllerBase::GetStatisticEventNameFavoriteRemove();
    }

private:
    bool m_namesEvents = true;
};

} // namespace LumetraTest
