// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/Drawer.h"
#include "workspace/DisplayConverter.h"
#include "workspace/PresetRegistry.h"
#include "workspace/StatisticsLog.h"

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/ResetSettings.h"

namespace LumetraHost {

/// Takes packages off the drawer, which is kept by reference.
class ResetReceiver : public Zorvik::Lumetra::IResetReceiver
{
public:
    explicit ResetReceiver(Drawer& drawer) : m_drawer(drawer) {}

    void ResetPackage(const Zorvik::Quindle::ResetSettings& request) override
    {
        m_drawer.ResetPackage(request.GetIndex());
    }

private:
    Drawer& m_drawer;
};

/// The reference host's workspace: one photo with its drawer, statistics, display colours and
/// registry. Hold it as std::shared_ptr; its parts live as long as it does.
class WorkspaceController : public Zorvik::Lumetra::IWorkspaceController
{
public:
    WorkspaceController() : m_resets(m_drawer) {}

    Drawer& GetDrawer() { return m_drawer; }
    StatisticsLog& GetStatisticsLog() { return m_statistics; }
    const PresetRegistry& GetPresets() const { return m_presets; }
    /// Sets the colours that GetImageConverter() converts to; null: sRGB.
    void SetDisplay(const std::shared_ptr<const DisplayTransform>& display)
    {
        m_converter.SetDisplay(display);
    }

    Zorvik::Quindle::IQuindleDrawer& GetCoreDrawer() override { return m_drawer; }
    Zorvik::Quindle::IStatisticsEventHandler& GetStatisticsEventHandler() override
    {
        return m_statistics;
    }
    const Zorvik::Util::IImageConverter& GetImageConverter() override { return m_converter; }
    Zorvik::Lumetra::IResetReceiver& GetResetReceiver() override { return m_resets; }
    Zorvik::Lumetra::IPresetRegistry& GetPresetRegistry() override { return m_presets; }

private:
    Drawer m_drawer;
    StatisticsLog m_statistics;
    DisplayConverter m_converter;
    ResetReceiver m_resets;
    PresetRegistry m_presets;
};

} // namespace LumetraHost
