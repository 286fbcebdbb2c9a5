// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zorvik::Quindle {

class EffectsSettings;
class SettingsPainterEffectsPackage;

/// Shows a package while its settings are being dragged: one start, many updates, one finish. The
/// host implements it as a part of its drawer; presets call it for every changed value of a drag.
/// At most one painting is open.
class ZORVIKPLATFORM_EXPORT IQuindleDrawerPainter
{
public:
    /// This value as x and y stands for the whole picture.
    static constexpr int MAX_POS = 0x7FFFFFFF;

    /// Finishes a painting that is still open, then opens one for the open package that has the
    /// name of `package`, which is kept. Nothing is shown before the first update. A null package
    /// is an Exception.
    virtual void
    StartPainting(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package) = 0;
    /// Tells where on the photo to paint, in pixels; the library always passes MAX_POS twice. It is
    /// called after StartPainting(), before the first update.
    virtual void SetPositions(int x, int y) = 0;
    /// Shows the painting's package with the blend amount of `effects` (BlendSource), or with
    /// `effects` in place of its effects of the same ids (OneInput). The other settings of the
    /// package stay. Does nothing without an open painting or without an open package of its name.
    /// `flags` is reserved and 0.
    virtual void UpdatePainting(const EffectsSettings& effects, int flags) = 0;
    /// Makes the last update the package's settings, or drops it with `cancel`, and closes the
    /// painting. Does nothing without an open painting. The library passes MAX_POS twice.
    virtual void FinishPainting(int x, int y, bool cancel) = 0;

    virtual ~IQuindleDrawerPainter();
};

} // namespace Zorvik::Quindle
