// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Util/ImageUtils.h"

namespace LumetraTest {

class CallLog;

/// Records its calls. The display of the recording host shows 8-bit frames as they are, and float
/// frames clamped and rounded.
class RecordingConverter : public Zorvik::Util::IImageConverter
{
public:
    explicit RecordingConverter(CallLog& log);

    Zorvik::Proc::Frame ToDisplay(const Zorvik::Proc::Frame& frame) const override;

private:
    CallLog& m_log;
};

} // namespace LumetraTest
