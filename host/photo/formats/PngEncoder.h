// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/RowEncoder.h"
#include "photo/file/Warnings.h"

#include <QByteArray>

#include <memory>
#include <string>

namespace LumetraHost {

/// Encodes PNG with the picture's own depth, with alpha where the picture is not opaque. Takes no
/// metadata but the colour profile.
class PngEncoder
{
public:
    /// True when the format takes this profile.
    static bool HoldsProfile(const QByteArray& iccProfile);

    /// `name` begins the text of every Zorvik::Exception. A profile that the format does not take
    /// is left out with a warning.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form, const QByteArray& iccProfile,
                                             const std::string& name, Warnings& warnings);
};

} // namespace LumetraHost
