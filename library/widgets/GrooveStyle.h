// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

class QSlider;
class QString;

namespace Zorvik::Lumetra::LumetraPresets {

/// Paints the groove of a horizontal slider as a fill from its centre: to the right for a positive
/// value, to the left for a negative one, and not at all for 0. It sets the slider's own style
/// sheet and so replaces an earlier one. While the host's style has StyleProvider::FillSlider off,
/// nothing happens.
///
/// Call it again whenever value, range or colours change. The slider must not be null. It needs an
/// object name, which the rules select, and a maximum above 0, at which the fill is full; neither
/// is checked. Colours are any text that a style sheet accepts; there is a rule for the hovered
/// slider only if both its colours are given. A placeholder such as "%2" inside a name or colour is
/// replaced again.
LUMETRAPRESETSUTIL_EXPORT void
ApplyGrooveStyle(QSlider* slider, const QString& fillColor, const QString& disabledFillColor,
                 const QString& hoverFillColor, const QString& backgroundColor,
                 const QString& disabledBackgroundColor, const QString& hoverBackgroundColor);

} // namespace Zorvik::Lumetra::LumetraPresets
