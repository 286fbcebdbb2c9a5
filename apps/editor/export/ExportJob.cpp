// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportJob.h"

#include "Zorvik/Exception.h"
#include "engine/run/Renderer.h"
#include "export/ExportGuard.h"
#include "image/Resize.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/EditRecord.h"
#include "storage/CheckedFileWriter.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraEditor {
namespace {

using LumetraHost::Image;
using LumetraHost::PhotoFormat;
using Zorvik::Quindle::EffectsSettings;

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::ExportJob)
};

constexpr int RenderedPercent = 50, EncodedPercent = 95;

/// Every 8-bit value v as v / 255 of the 16-bit range.
Image WithSixteenBits(const Image& image)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        return image;
    Image result =
        Image::AllocateUninitialised(image.GetWidth(), image.GetHeight(), Image::Depth::Bits16);
    const int values = image.GetWidth() * Image::Channels;
    for (int y = 0; y < image.GetHeight(); ++y)
        std::transform(image.Row(y), image.Row(y) + values, result.Row16(y),
                       [](std::uint8_t value) { return static_cast<std::uint16_t>(value * 257); });
    return result;
}

/// To the nearest 8-bit value.
Image WithEightBits(const Image& image)
{
    if (image.GetDepth() == Image::Depth::Bits8)
        return image;
    Image result =
        Image::AllocateUninitialised(image.GetWidth(), image.GetHeight(), Image::Depth::Bits8);
    const int values = image.GetWidth() * Image::Channels;
    for (int y = 0; y < image.GetHeight(); ++y)
        std::transform(image.Row16(y), image.Row16(y) + values, result.Row(y),
                       [](std::uint16_t value) {
                           return static_cast<std::uint8_t>((value * 255U + 32767U) / 65535U);
                       });
    return result;
}

} // namespace

QString GetSuffix(PhotoFormat format)
{
    if (format == PhotoFormat::Jpeg)
        return QStringLiteral("jpg");
    return format == PhotoFormat::Png ? QStringLiteral("png") : QStringLiteral("tif");
}

ExportJob::ExportJob(const LumetraHost::Photo& photo, const std::vector<EffectsSettings>& packages,
                     const std::vector<LumetraHost::EditRecord>& records,
                     const ExportOptions& options, std::shared_ptr<const ExportGuard> guard)
    : m_photo(photo), m_packages(packages), m_records(records), m_options(options),
      m_guard(std::move(guard))
{
}

bool ExportJob::Run(const Progress& progress)
{
    progress(0);
    m_warnings = m_photo.reductions; // what damage there is was told when it was opened
    if (!RenderPackages(progress))
        return false;
    Resize();
    PrepareMetadata();
    progress(RenderedPercent);
    LumetraHost::Bytes encoded;
    if (m_cancel.IsCancelled() || !Encode(encoded))
        return false;
    progress(EncodedPercent);
    CheckOutput();
    LumetraHost::CheckedFileWriter::Write(m_options.path, encoded.data(), encoded.size());
    progress(100);
    return true;
}

bool ExportJob::RenderPackages(const Progress& progress)
{
    // Before the effects, so that they round to what the file holds.
    if (m_options.bits == 16 && m_options.format != PhotoFormat::Jpeg)
        m_photo.image = WithSixteenBits(m_photo.image);
    const LumetraHost::Renderer renderer;
    LumetraHost::RenderOptions options;
    options.cancel = &m_cancel;
    int done = 0;
    for (const EffectsSettings& package : m_packages) {
        m_photo.image = renderer.Render(m_photo.image, package, options);
        if (m_photo.image.IsNull())
            return false;
        progress(RenderedPercent * ++done / static_cast<int>(m_packages.size() + 1));
    }
    if (m_options.bits == 8 || m_options.format == PhotoFormat::Jpeg)
        m_photo.image = WithEightBits(m_photo.image);
    return !m_cancel.IsCancelled();
}

void ExportJob::Resize()
{
    const Image& image = m_photo.image;
    const int longest = std::max(image.GetWidth(), image.GetHeight());
    if (m_options.longestSide <= 0 || m_options.longestSide >= longest)
        return;
    const double scale = static_cast<double>(m_options.longestSide) / longest;
    const auto length = [scale](int pixels) {
        return std::max(1, static_cast<int>(std::lround(pixels * scale)));
    };
    const LumetraHost::PixelRect whole{0, 0, image.GetWidth(), image.GetHeight()};
    m_photo.image =
        LumetraHost::Resize(image, whole, length(image.GetWidth()), length(image.GetHeight()),
                            LumetraHost::ResizeQuality::Fine);
}

void ExportJob::PrepareMetadata()
{
    auto& metadata = m_photo.metadata;
    if (!m_options.keepMetadata)
        metadata = {};
    metadata.iccProfile = !m_options.embedProfile ? QByteArray()
                          : metadata.iccProfile.isEmpty()
                              ? LumetraHost::ColorConversion::GetSrgbProfile()
                              : metadata.iccProfile;
    if (m_options.keepMetadata)
        RecordPresets();
}

/// A packet that cannot be decoded takes no record; it goes on as it is.
void ExportJob::RecordPresets()
{
    auto& packet = m_photo.metadata.xmp;
    LumetraHost::TryOrWarn(m_warnings, "the looks are not recorded in the metadata", [&] {
        packet = LumetraHost::EditRecords::Add(
            packet, m_records,
            (QStringLiteral("Lumetra ") + QCoreApplication::applicationVersion())
                .trimmed()
                .toStdString());
    });
}

bool ExportJob::Encode(LumetraHost::Bytes& encoded)
{
    LumetraHost::PhotoWriter::Options options;
    options.quality = m_options.quality;
    encoded = LumetraHost::PhotoWriter::Encode(m_photo, m_options.format, options,
                                               m_options.path.toStdString(), &m_warnings);
    return !m_cancel.IsCancelled();
}

void ExportJob::CheckOutput() const
{
    const QFileInfo file(m_options.path);
    QString obstacle = m_guard ? m_guard->FindObstacle(m_options.path) : QString();
    if (obstacle.isEmpty() && !m_options.mayReplace && file.exists())
        obstacle =
            Messages::tr("“%1” has appeared meanwhile and is not replaced.").arg(file.fileName());
    if (!obstacle.isEmpty())
        throw Zorvik::Exception(obstacle.toStdString(), BOOST_CURRENT_FUNCTION, "editor/ExportJob",
                                __LINE__);
}

} // namespace LumetraEditor
