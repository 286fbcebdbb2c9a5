// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"
#include "photo/PhotoFormat.h"

#include <QByteArray>

#include <string>

namespace LumetraHost {

/// Encodes PNG with the picture's own depth, with alpha where the picture is not opaque. Metadata
/// other than the colour profile are not its matter.
class PngEncoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static Bytes Encode(const Image& image, const QByteArray& iccProfile, const std::string& name);
};

} // namespace LumetraHost
