// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/PhotoText.h"

#include "catalogue/VisibleText.h"
#include "image/RgbSpace.h"
#include "photo/Photo.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace LumetraEditor {
namespace {

QString NameColours(const LumetraHost::KeptImage& image)
{
    if (!image.GetSpace())
        return QStringLiteral("sRGB");
    const QString name = LumetraHost::VisibleText::WithoutControls(
        QString::fromStdString(image.GetSpace()->GetName()));
    return name.isEmpty() ? QCoreApplication::translate("LumetraEditor::PhotoText", "own profile")
                          : name;
}

} // namespace

QString DescribePhoto(const QString& path, const LumetraHost::KeptPhoto& photo)
{
    const auto& image = photo.image;
    const int bits = image.GetDepth() == LumetraHost::Image::Depth::Bits16 ? 16 : 8;
    // All at once: names may hold what looks like the number of another argument.
    return QCoreApplication::translate("LumetraEditor::PhotoText", "%1   %2 × %3   %4 bits   %5")
        .arg(QFileInfo(path).fileName(), QString::number(image.GetWidth()),
             QString::number(image.GetHeight()), QString::number(bits), NameColours(image));
}

} // namespace LumetraEditor
