// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QByteArray>
#include <QString>

namespace LumetraPlugin {

/// Draws the small picture that a file with looks brings along. It shows the picture that is
/// installed with the program, or a photo that the user chooses: nobody's photo goes out by itself.
class LookPreview
{
public:
    static constexpr int LongestSide = 256; ///< pixels

    /// The path of the installed picture; empty when it is not there.
    static QString FindSample();

    /// A JPEG file with `look` on the photo at `path`. Empty for an empty path. Exception naming
    /// the photo when it cannot be read.
    static QByteArray Draw(const Zorvik::Quindle::EffectsSettings& look, const QString& path);
};

} // namespace LumetraPlugin
