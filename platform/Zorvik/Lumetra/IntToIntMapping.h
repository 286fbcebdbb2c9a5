// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

namespace Zorvik::Lumetra {

/// Maps one range of integers linearly onto another, either of which may run downwards: begin to
/// begin, end to end, to the nearest integer, halves away from zero, without overflow. Each
/// direction first clamps its input to the range that it comes from. Where that range is a single
/// value, the result is the other range's begin.
class ZORVIKPLATFORM_EXPORT IntToIntMapping
{
public:
    IntToIntMapping(int firstBegin, int firstEnd, int secondBegin, int secondEnd);

    /// From the first range to the second.
    int GetForward(int first) const;
    /// From the second range to the first.
    int GetBackward(int second) const;

private:
    int m_firstBegin;
    int m_firstEnd;
    int m_secondBegin;
    int m_secondEnd;
};

} // namespace Zorvik::Lumetra
