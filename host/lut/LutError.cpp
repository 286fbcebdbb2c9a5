// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LutError.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

namespace LumetraHost {

void FailInLut(const QString& path, qint64 line, const std::string& message)
{
    const std::string place =
        path.toStdString() + (line > 0 ? ":" + std::to_string(line) : std::string());
    throw Zorvik::Exception(place + ": " + message, BOOST_CURRENT_FUNCTION, "lut/LutError",
                            __LINE__);
}

} // namespace LumetraHost
