// SPDX-License-Identifier: MIT
#include "support/RecordingWorkspace.h"

namespace LumetraTest {

using namespace Zorvik;

RecordingWorkspace::RecordingWorkspace(CallLog& log)
    : m_drawer(log), m_statistics(log), m_converter(log), m_resetReceiver(log, m_drawer.GetStack()),
      m_registry(log)
{
}

RecordingDrawer& RecordingWorkspace::GetDrawer()
{
    return m_drawer;
}

RecordingRegistry& RecordingWorkspace::GetRegistry()
{
    return m_registry;
}

RecordingStatistics& RecordingWorkspace::GetStatistics()
{
    return m_statistics;
}

Quindle::IQuindleDrawer& RecordingWorkspace::GetCoreDrawer()
{
    return m_drawer;
}

Quindle::IStatisticsEventHandler& RecordingWorkspace::GetStatisticsEventHandler()
{
    return m_statistics;
}

const Util::IImageConverter& RecordingWorkspace::GetImageConverter()
{
    return m_converter;
}

Lumetra::IResetReceiver& RecordingWorkspace::GetResetReceiver()
{
    return m_resetReceiver;
}

Lumetra::IPresetRegistry& RecordingWorkspace::GetPresetRegistry()
{
    return m_registry;
}

} // namespace LumetraTest
