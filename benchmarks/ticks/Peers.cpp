// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "engine/ThreadPool.h"
#include "engine/whitebalance/WhiteBalanceParameters.h"

#include <QImage>
#include <QPainter>

#include <OpenColorIO/OpenColorIO.h>
#include <opencv2/core.hpp>

#include <cmath>

namespace LumetraBench {
namespace {

namespace Ocio = OCIO_NAMESPACE;
using LumetraHost::Image;

constexpr int Bands = 32;

// The quickest of Qt's formats: how it names the channels does not matter to a blend.
QImage Wrap(const Image& image)
{
    return QImage(image.Row(0), image.GetWidth(), image.GetHeight(),
                  static_cast<int>(image.GetStride()), QImage::Format_ARGB32_Premultiplied);
}

cv::Mat WrapMat(const Image& image)
{
    return {image.GetHeight(), image.GetWidth(), CV_8UC4, const_cast<std::uint8_t*>(image.Row(0)),
            image.GetStride()};
}

Ocio::TransformRcPtr MakeCurve(Ocio::TransformDirection direction)
{
    const auto curve = Ocio::ExponentWithLinearTransform::Create();
    curve->setGamma({2.4, 2.4, 2.4, 1});
    curve->setOffset({0.055, 0.055, 0.055, 0});
    curve->setNegativeStyle(Ocio::NEGATIVE_MIRROR);
    curve->setDirection(direction);
    return curve;
}

Ocio::TransformRcPtr MakeWhiteBalance(const GradingChain& chain)
{
    LumetraHost::WhiteBalanceParameters parameters;
    parameters.temperature = chain.temperature;
    parameters.tint = chain.tint;
    const auto rows = parameters.GetMatrix().rows;
    double matrix[16] = {};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            matrix[4 * i + j] = rows[i][j];
    matrix[15] = 1;
    const auto transform = Ocio::MatrixTransform::Create();
    transform->setMatrix(matrix);
    return transform;
}

Ocio::TransformRcPtr MakeCdl(const GradingChain& chain)
{
    const auto cdl = Ocio::CDLTransform::Create();
    cdl->setStyle(Ocio::CDL_NO_CLAMP);
    cdl->setSlope(chain.slope);
    cdl->setOffset(chain.offset);
    cdl->setPower(chain.power);
    return cdl;
}

Ocio::TransformRcPtr MakeSaturation(const GradingChain& chain)
{
    const auto saturation = Ocio::CDLTransform::Create();
    saturation->setStyle(Ocio::CDL_NO_CLAMP);
    saturation->setSat(1 + chain.saturation / 100);
    return saturation;
}

double GetExponent(double amount)
{
    return std::exp2(amount / 100);
}

Ocio::GroupTransformRcPtr MakeGroup(const GradingChain& chain)
{
    const auto exposure = Ocio::ExposureContrastTransform::Create();
    exposure->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    exposure->setExposure(chain.stops);
    const auto contrast = Ocio::ExposureContrastTransform::Create();
    contrast->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    contrast->setPivot(0.18);
    contrast->setContrast(GetExponent(chain.contrast));
    contrast->makeContrastDynamic();
    const auto group = Ocio::GroupTransform::Create();
    group->appendTransform(MakeCurve(Ocio::TRANSFORM_DIR_FORWARD));
    group->appendTransform(exposure);
    group->appendTransform(MakeWhiteBalance(chain));
    group->appendTransform(contrast);
    group->appendTransform(MakeCurve(Ocio::TRANSFORM_DIR_INVERSE));
    group->appendTransform(MakeSaturation(chain));
    group->appendTransform(MakeCdl(chain));
    return group;
}

} // namespace

void BlendWithQt(const Image& source, const Image& effect, double effectWeight, Image& target)
{
    QImage canvas(target.Row(0), target.GetWidth(), target.GetHeight(),
                  static_cast<int>(target.GetStride()), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, Wrap(source));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(effectWeight);
    painter.drawImage(0, 0, Wrap(effect));
}

void BlendWithOpenCv(const Image& source, const Image& effect, double effectWeight, Image& target)
{
    cv::Mat blended = WrapMat(target);
    cv::addWeighted(WrapMat(source), 1 - effectWeight, WrapMat(effect), effectWeight, 0, blended);
}

struct OcioChain::Processor
{
    Ocio::ConstCPUProcessorRcPtr pixels;
    Ocio::DynamicPropertyDoubleRcPtr contrast;
};

OcioChain::OcioChain(const GradingChain& chain) : m_processor(std::make_unique<Processor>())
{
    const auto processor = Ocio::Config::CreateRaw()->getProcessor(MakeGroup(chain));
    m_processor->pixels = processor->getOptimizedCPUProcessor(
        Ocio::BIT_DEPTH_UINT8, Ocio::BIT_DEPTH_UINT8, Ocio::OPTIMIZATION_DEFAULT);
    auto property = m_processor->pixels->getDynamicProperty(Ocio::DYNAMIC_PROPERTY_CONTRAST);
    m_processor->contrast = Ocio::DynamicPropertyValue::AsDouble(property);
}

OcioChain::~OcioChain() = default;

void OcioChain::SetContrast(double amount)
{
    m_processor->contrast->setValue(GetExponent(amount));
}

void OcioChain::Run(const Image& source, Image& target) const
{
    const int rows = (source.GetHeight() + Bands - 1) / Bands;
    LumetraHost::ThreadPool::GetShared().ForEach(Bands, 2, [&](int band) {
        const int first = band * rows;
        const int height = std::min(rows, source.GetHeight() - first);
        if (height <= 0)
            return;
        const auto stride = static_cast<std::ptrdiff_t>(source.GetStride());
        const Ocio::PackedImageDesc from(const_cast<std::uint8_t*>(source.Row(first)),
                                         source.GetWidth(), height, Ocio::CHANNEL_ORDERING_RGBA,
                                         Ocio::BIT_DEPTH_UINT8, 1, 4, stride);
        Ocio::PackedImageDesc to(target.Row(first), source.GetWidth(), height,
                                 Ocio::CHANNEL_ORDERING_RGBA, Ocio::BIT_DEPTH_UINT8, 1, 4, stride);
        m_processor->pixels->apply(from, to);
    });
}

} // namespace LumetraBench
