// SPDX-License-Identifier: MIT
#include "support/RecordingPainter.h"

#include "support/CallLog.h"
#include "support/PackageStack.h"

namespace LumetraTest {

using namespace Zorvik::Quindle;

RecordingPainter::RecordingPainter(CallLog& log, PackageStack& stack) : m_log(log), m_stack(stack)
{
}

void RecordingPainter::StartPainting(
    const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package)
{
    m_log.Call("painter.StartPainting", *package);
    const CallLog::Pause pause(m_log);
    m_stack.StartPainting(package);
}

void RecordingPainter::SetPositions(int x, int y)
{
    m_log.Call("painter.SetPositions", x, y);
}

void RecordingPainter::UpdatePainting(const EffectsSettings& effects, int flags)
{
    m_log.Call("painter.UpdatePainting", effects, flags);
    const CallLog::Pause pause(m_log);
    m_stack.UpdatePainting(effects);
}

void RecordingPainter::FinishPainting(int x, int y, bool cancel)
{
    m_log.Call("painter.FinishPainting", x, y, cancel);
    const CallLog::Pause pause(m_log);
    m_stack.FinishPainting(cancel);
}

} // namespace LumetraTest
