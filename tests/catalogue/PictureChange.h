// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {
class Image;
}

namespace LumetraTests {

/// The difference between an 8-bit picture and another of the same size.
struct PictureChange
{
    PictureChange(const LumetraHost::Image& before, const LumetraHost::Image& after);

    double mean = 0;         ///< mean absolute difference of all colour channels, in steps
    double newlyClipped = 0; ///< share of pixels with two channels at 254 or more, beyond before's
    double newlyDrowned = 0; ///< share of pixels with all channels at 3 or less, beyond before's
};

} // namespace LumetraTests
