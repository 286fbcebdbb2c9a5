// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/RgbSpace.h"

#include <QByteArray>

#include <memory>

namespace LumetraHost {

/// The RGB spaces that profiles of photos describe. Usable from any thread.
class ProfileSpaces
{
public:
    /// The space of an RGB profile that goes by three curves and a matrix, for pictures of that
    /// depth. Null for other profiles, and where values would not survive the way to linear light
    /// and back: the colours have to be converted then. The same profile gives the same space as
    /// long as it is among the last few.
    static std::shared_ptr<const RgbSpace> Find(const QByteArray& profile, Image::Depth depth);
};

} // namespace LumetraHost
