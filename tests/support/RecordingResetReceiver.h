// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"

namespace LumetraTest {

class CallLog;
class PackageStack;

/// Records the requests and takes the packages off a package stack.
class RecordingResetReceiver : public Zorvik::Lumetra::IResetReceiver
{
public:
    RecordingResetReceiver(CallLog& log, PackageStack& stack);

    void ResetPackage(const Zorvik::Quindle::ResetSettings& request) override;

private:
    CallLog& m_log;
    PackageStack& m_stack;
};

} // namespace LumetraTest
