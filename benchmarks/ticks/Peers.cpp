// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "common/OpenCvImage.h"

#include <QImage>
#include <QPainter>

#include <opencv2/core.hpp>

namespace LumetraBench {
namespace {

using LumetraHost::Image;

/// Wraps in the quickest of Qt's formats; the order of channels does not matter to a blend.
QImage WrapForQt(const Image& image)
{
    return QImage(image.Row(0), image.GetWidth(), image.GetHeight(),
                  static_cast<int>(image.GetStride()), QImage::Format_ARGB32_Premultiplied);
}

} // namespace

void BlendWithQt(const Image& source, const Image& effect, double effectWeight, Image& target)
{
    QImage canvas(target.Row(0), target.GetWidth(), target.GetHeight(),
                  static_cast<int>(target.GetStride()), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, WrapForQt(source));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(effectWeight);
    painter.drawImage(0, 0, WrapForQt(effect));
}

void BlendWithOpenCv(const Image& source, const Image& effect, double effectWeight, Image& target)
{
    cv::Mat blended = Wrap(target);
    cv::addWeighted(Wrap(source), 1 - effectWeight, Wrap(effect), effectWeight, 0, blended);
}

} // namespace LumetraBench
