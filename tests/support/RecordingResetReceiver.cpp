// SPDX-License-Identifier: MIT
#include "support/RecordingResetReceiver.h"

#include "support/CallLog.h"
#include "support/PackageStack.h"

#include "Zorvik/Quindle/ResetSettings.h"

namespace LumetraTest {

RecordingResetReceiver::RecordingResetReceiver(CallLog& log, PackageStack& stack)
    : m_log(log), m_stack(stack)
{
}

void RecordingResetReceiver::ResetPackage(const Zorvik::Quindle::ResetSettings& request)
{
    m_log.Call("reset.ResetPackage", request);
    const CallLog::Pause pause(m_log);
    m_stack.Remove(request.GetIndex());
}

} // namespace LumetraTest
