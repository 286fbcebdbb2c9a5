// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "TickPictures.h"

#include "photo/Image.h"

#include <memory>

namespace LumetraBench {

/// The blend of two opaque pictures with QPainter: the source, and the effect over it with an
/// opacity. `target` has their size.
void BlendWithQt(const LumetraHost::Image& source, const LumetraHost::Image& effect,
                 double effectWeight, LumetraHost::Image& target);

/// The same with cv::addWeighted.
void BlendWithOpenCv(const LumetraHost::Image& source, const LumetraHost::Image& effect,
                     double effectWeight, LumetraHost::Image& target);

/// The grading chain as one OpenColorIO processor for 8-bit pixels, with the exposure and the
/// contrast as dynamic properties, run on bands of rows on two threads.
class OcioChain
{
public:
    explicit OcioChain(const GradingChain& chain);
    ~OcioChain();

    /// Like GradingChain::contrast.
    void SetContrast(double amount);
    void Run(const LumetraHost::Image& source, LumetraHost::Image& target) const;

private:
    struct Processor;
    std::unique_ptr<Processor> m_processor;
};

} // namespace LumetraBench
