// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cmath>
#include <optional>

namespace LumetraPlugin {

/// Numbers as foreign files write them: "+12", "2.8", "-0.50".
class ForeignNumber
{
public:
    /// The number; nothing for any other text, and for infinity and NaN. Follows no locale.
    static std::optional<double> Read(const QString& text)
    {
        const QString trimmed = text.trimmed();
        bool isNumber = false;
        const double number = trimmed.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number))
            return std::nullopt;
        return number;
    }
};

} // namespace LumetraPlugin
