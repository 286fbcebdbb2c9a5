// SPDX-License-Identifier: MIT
#include "support/TestController.h"

#include <QSize>

namespace LumetraTest {

TestController::TestController(const std::string& packageName)
    : EffectPresetControllerBase(packageName)
{
}

TestController::TestController(const TestController& other)
    : WorkspaceReference(), IWorkspaceUser(), IRefCountable(), ISerializable(),
      IEffectPresetController(), EffectPresetControllerBase(other),
      m_applySettingsOnProgress(other.m_applySettingsOnProgress),
      m_isDownloadable(other.m_isDownloadable)
{
}

void TestController::SetWaitApply(bool wait)
{
    m_waitApply = wait;
}

void TestController::SetApplySettingsOnProgress(bool apply)
{
    m_applySettingsOnProgress = apply;
}

void TestController::SetDownloadable(bool downloadable)
{
    m_isDownloadable = downloadable;
}

bool TestController::ApplySettingsOnProgress() const
{
    return m_applySettingsOnProgress;
}

bool TestController::IsDownloadable() const
{
    return m_isDownloadable;
}

QImage TestController::GetPreviewImage()
{
    return GetImagePreviewInternal(QSize(8, 6), 0);
}

std::string TestController::GetStatisticEventNameClick() const
{
    return "click";
}

std::string TestController::GetStatisticEventNameApply() const
{
    return "apply";
}

std::string TestController::GetStatisticEventNameReset() const
{
    return "reset";
}

std::string TestController::GetStatisticEventNameFavoriteAdd() const
{
    return "favourite add";
}

std::string TestController::GetStatisticEventNameFavoriteRemove() const
{
    return "favourite remove";
}

} // namespace LumetraTest
