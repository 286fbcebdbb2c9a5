// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoLimits.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

namespace LumetraHost {

void PhotoLimits::Check(const std::string& name, std::uint64_t width, std::uint64_t height)
{
    const bool fits = width >= 1 && height >= 1 && width <= LargestSide && height <= LargestSide &&
                      width * height <= LargestArea;
    if (fits)
        return;
    throw Zorvik::Exception(name + ": the picture is said to be " + std::to_string(width) + " x " +
                                std::to_string(height) + " pixels: expected 1 to " +
                                std::to_string(LargestSide) + " on each side and at most " +
                                std::to_string(LargestArea / 1'000'000) + " megapixels",
                            BOOST_CURRENT_FUNCTION, "photo/PhotoLimits", __LINE__);
}

} // namespace LumetraHost
