// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace LumetraPlugin {

/// The panel's own icons, drawn in any colour and sharp at any scale.
class PanelIcons
{
public:
    /// The icon with that name in the resources, such as "star"; `size` in logical pixels. A null
    /// pixmap, and a warning, for an unknown name.
    static QPixmap GetPixmap(const QString& name, int size, const QColor& color,
                             double devicePixelRatio);
    /// An icon for buttons: in the palette's text colour, duller where disabled.
    static QIcon GetIcon(const QString& name, const QPalette& palette);
    /// The panel's own style sheet, which takes all its colours from the palette.
    static QString ReadStyleSheet();
};

} // namespace LumetraPlugin
