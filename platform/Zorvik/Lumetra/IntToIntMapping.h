// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

namespace Zorvik::Lumetra {

/// Maps one range of integers linearly onto another, either of which may run downwards. Begin goes
/// to begin and end to end; results are rounded to the nearest integer, halves away from zero, and
/// nothing overflows. Each direction first clamps its input to the range that it comes from. Where
/// that range is a single value, the result is the other range's begin.
class ZORVIKPLATFORM_EXPORT IntToIntMapping
{
public:
    /// Each range includes both of its ends, and every combination is valid.
    IntToIntMapping(int firstBegin, int firstEnd, int secondBegin, int secondEnd);

    /// Maps a value of the first range to the second.
    int GetForward(int first) const;
    /// Maps a value of the second range to the first. It undoes GetForward() only where the second
    /// range has at least as many values as the first.
    int GetBackward(int second) const;

private:
    int m_firstBegin;
    int m_firstEnd;
    int m_secondBegin;
    int m_secondEnd;
};

} // namespace Zorvik::Lumetra
