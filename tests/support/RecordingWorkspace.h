// SPDX-License-Identifier: MIT
#pragma once

#include "support/RecordingConverter.h"
#include "support/RecordingDrawer.h"
#include "support/RecordingRegistry.h"
#include "support/RecordingResetReceiver.h"
#include "support/RecordingStatistics.h"

#include "Zorvik/Lumetra/IWorkspaceController.h"

namespace LumetraTest {

/// A workspace whose five parts record their calls in one log.
class RecordingWorkspace : public Zorvik::Lumetra::IWorkspaceController
{
public:
    explicit RecordingWorkspace(CallLog& log);

    RecordingDrawer& GetDrawer();
    RecordingRegistry& GetRegistry();
    RecordingStatistics& GetStatistics();

    Zorvik::Quindle::IQuindleDrawer& GetCoreDrawer() override;
    Zorvik::Quindle::IStatisticsEventHandler& GetStatisticsEventHandler() override;
    const Zorvik::Util::IImageConverter& GetImageConverter() override;
    Zorvik::Lumetra::IResetReceiver& GetResetReceiver() override;
    Zorvik::Lumetra::IPresetRegistry& GetPresetRegistry() override;

private:
    RecordingDrawer m_drawer;
    RecordingStatistics m_statistics;
    RecordingConverter m_converter;
    RecordingResetReceiver m_resetReceiver;
    RecordingRegistry m_registry;
};

} // namespace LumetraTest
