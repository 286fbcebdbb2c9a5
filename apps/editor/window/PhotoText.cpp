// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/PhotoText.h"

#include "photo/Photo.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace LumetraEditor {

QString DescribePhoto(const QString& path, const LumetraHost::Photo& photo)
{
    const auto& image = photo.image;
    const int bits = image.GetDepth() == LumetraHost::Image::Depth::Bits16 ? 16 : 8;
    // Photos are converted to sRGB as they are read.
    return QCoreApplication::translate("LumetraEditor::PhotoText", "%1   %2 × %3   %4 bits   sRGB")
        .arg(QFileInfo(path).fileName())
        .arg(image.GetWidth())
        .arg(image.GetHeight())
        .arg(bits);
}

} // namespace LumetraEditor
