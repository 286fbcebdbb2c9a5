// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LutFormat.h"

#include <QFileInfo>

namespace LumetraHost {

std::optional<LutFormat> GetLutFormatOfName(const QString& path)
{
    static const struct
    {
        QLatin1String extension;
        LutFormat format;
    } formats[] = {
        {QLatin1String("cube"), LutFormat::Cube}, {QLatin1String("3dl"), LutFormat::ThreeDl},
        {QLatin1String("clf"), LutFormat::Clf},   {QLatin1String("cc"), LutFormat::Cdl},
        {QLatin1String("ccc"), LutFormat::Cdl},   {QLatin1String("cdl"), LutFormat::Cdl},
        {QLatin1String("png"), LutFormat::Hald},  {QLatin1String("tif"), LutFormat::Hald},
        {QLatin1String("tiff"), LutFormat::Hald}};
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const auto& known : formats)
        if (extension == known.extension)
            return known.format;
    return std::nullopt;
}

} // namespace LumetraHost
