// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IQuindleDrawerPainter.h"

namespace LumetraTest {

class CallLog;
class PackageStack;

/// A painter that records its calls and paints on a package stack.
class RecordingPainter : public Zorvik::Quindle::IQuindleDrawerPainter
{
public:
    RecordingPainter(CallLog& log, PackageStack& stack);

    void StartPainting(const boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage>&
                           package) override;
    void SetPositions(int x, int y) override;
    void UpdatePainting(const Zorvik::Quindle::EffectsSettings& effects, int flags) override;
    void FinishPainting(int x, int y, bool cancel) override;

private:
    CallLog& m_log;
    PackageStack& m_stack;
};

} // namespace LumetraTest
