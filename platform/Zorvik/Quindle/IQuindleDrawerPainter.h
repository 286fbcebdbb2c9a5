// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zorvik::Quindle {

class EffectsSettings;
class SettingsPainterEffectsPackage;

/// Shows a package while its settings are being dragged.
///
/// An update shows the open package of the painting's name with the update's blend amount
/// (BlendSource) or with its effects in place of those of the same id (OneInput). Without an open
/// painting it does nothing. `flags` is reserved: 0.
class ZORVIKPLATFORM_EXPORT IQuindleDrawerPainter
{
public:
    /// As x and y: the whole picture.
    static constexpr int MAX_POS = 0x7FFFFFFF;

    /// Finishes a painting that is still open, then keeps `package`.
    virtual void
    StartPainting(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package) = 0;
    virtual void SetPositions(int x, int y) = 0;
    virtual void UpdatePainting(const EffectsSettings& effects, int flags) = 0;
    /// Makes the last update the package's settings, or drops it (`cancel`).
    virtual void FinishPainting(int x, int y, bool cancel) = 0;

    virtual ~IQuindleDrawerPainter();
};

} // namespace Zorvik::Quindle
