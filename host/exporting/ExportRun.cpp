// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportRun.h"

#include "exporting/ExportStream.h"
#include "exporting/PictureRows.h"
#include "image/DepthConversion.h"
#include "image/Resize.h"
#include "image/RgbSpace.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/ExtendedXmp.h"

#include <QCoreApplication>

#include <algorithm>

namespace LumetraHost {
namespace {

/// Percent that the encoding ends at; the rest is for metadata and for writing the file.
constexpr int EncodedPercent = 95;
/// Percent at which a picture is whole, where that is needed before it is encoded.
constexpr int CollectedPercent = 60;

Image::Depth GetLarger(Image::Depth first, Image::Depth second)
{
    return first == Image::Depth::Bits16 ? first : second;
}

bool HaveSameSize(const PictureForm& first, const PictureForm& second)
{
    return first.width == second.width && first.height == second.height;
}

/// True when the alpha of the result is known before its rows are: pixels that let little through
/// may become opaque when they are rounded or averaged.
bool IsAlphaKnown(const PictureForm& source, const PictureForm& result)
{
    const bool isRounded =
        source.depth == Image::Depth::Bits16 && result.depth == Image::Depth::Bits8;
    return source.isOpaque || (!isRounded && HaveSameSize(source, result));
}

/// The programs share a name and a version, so that nothing depends on which one exports.
std::string GetCreatorTool()
{
    return (QStringLiteral("Lumetra ") + QCoreApplication::applicationVersion())
        .trimmed()
        .toStdString();
}

/// The photo's packet. Earlier records that stand in its extension are joined with it: a packet and
/// its extension cannot both hold a part of one list.
PhotoMetadata WithRecordsInPacket(const PhotoMetadata& photo)
{
    PhotoMetadata metadata = photo;
    if (!photo.xmpExtension.contains(EditRecords::Namespace))
        return metadata;
    if (const auto merged = ExtendedXmp{photo.xmp, photo.xmpExtension}.Merge()) {
        metadata.xmp = *merged;
        metadata.xmpExtension.clear();
    }
    return metadata;
}

/// The metadata of an exported file from those of its photo: what the recipe keeps, with the
/// presets and the program recorded in the XMP packet and with its profile, or an sRGB one. A
/// packet that cannot be decoded takes no record and goes on as it is, which `warnings` tells.
PhotoMetadata MakeExportMetadata(const PhotoMetadata& photo, const ExportRecipe& recipe,
                                 Warnings& warnings)
{
    PhotoMetadata metadata = MetadataFilter::Apply(photo, recipe.metadata, warnings);
    if (recipe.HasRecords()) {
        metadata = WithRecordsInPacket(metadata);
        TryOrWarn(warnings, "the looks are not recorded in the metadata", [&] {
            metadata.xmp =
                EditRecords::Add(metadata.xmp, recipe.records, GetCreatorTool(), recipe.job);
        });
    }
    if (metadata.iccProfile.isEmpty())
        metadata.iccProfile = ColorConversion::GetSrgbProfile();
    if (!recipe.embedsProfile)
        metadata.iccProfile.clear();
    return metadata;
}

} // namespace

ExportRun::ExportRun(const ExportRecipe& recipe, const std::string& targetName,
                     const ExportControl& control, ThreadPool& pool, Warnings& losses)
    : m_recipe(recipe), m_targetName(targetName), m_control(control), m_pool(pool),
      m_losses(losses),
      m_threads(control.threads < 1 ? pool.GetThreadCount()
                                    : std::min(control.threads, pool.GetThreadCount()))
{
}

void ExportRun::Report(int percent)
{
    if (m_control.progress && percent > m_reported)
        m_control.progress(percent);
    m_reported = std::max(m_reported, percent);
}

Bytes ExportRun::Run(RowSource& source, const PhotoMetadata& metadata)
{
    m_recipe.Check(m_targetName);
    Report(0);
    const PictureForm form = source.GetForm();
    m_metadata = MakeExportMetadata(SettleSpace(form.space, metadata), m_recipe, m_losses);
    const auto size = m_recipe.GetSize(form.width, form.height);
    const PictureForm result{size.width, size.height, m_recipe.GetDepth(form.depth), form.isOpaque,
                             m_isConverted ? nullptr : form.space};
    if (IsAlphaKnown(form, result))
        return Encode(source, result, false);
    const Image picture = Collect(source, result);
    if (picture.IsNull())
        return {};
    PictureRows rows(picture);
    return Encode(rows, rows.GetForm(), true);
}

/// A picture in a space of its own is nothing without its profile: it becomes sRGB where the file
/// will not have that. Returns the metadata with the profile of the file's pixels.
PhotoMetadata ExportRun::SettleSpace(const std::shared_ptr<const RgbSpace>& space,
                                     PhotoMetadata metadata)
{
    m_isConverted = space && !(m_recipe.embedsProfile &&
                               PhotoWriter::HoldsProfile(m_recipe.format, metadata.iccProfile));
    if (m_isConverted) {
        metadata.iccProfile = ColorConversion::GetSrgbProfile();
        ColorConversion::WarnOfConversion(m_losses, space->GetName());
    }
    return metadata;
}

/// Collects the whole picture as the file will hold it; null when it was cancelled.
Image ExportRun::Collect(RowSource& source, const PictureForm& form)
{
    PictureForm drawn = source.GetForm();
    drawn.depth = form.depth;
    Image picture =
        Image::AllocateUninitialised(drawn.width, drawn.height, drawn.depth, form.space);
    int y = 0;
    const auto keep = [&picture, &y](const Image& rows, int first, int count) {
        CopyRows(rows, first, picture, y, count);
        y += count;
    };
    if (!Stream(source, drawn, false, {0, CollectedPercent}, keep))
        return {};
    if (HaveSameSize(drawn, form))
        return picture;
    return Resize(picture, {0, 0, drawn.width, drawn.height}, form.width, form.height,
                  ResizeQuality::Fine);
}

Bytes ExportRun::Encode(RowSource& source, const PictureForm& form, bool isDrawn)
{
    // WebP is encoded when all rows are there, which takes most of the time.
    const int rowsPercent =
        m_recipe.format == PhotoFormat::Webp ? CollectedPercent : EncodedPercent;
    const auto goesOn = [this](int percent) {
        Report(CollectedPercent + (EncodedPercent - CollectedPercent) * percent / 100);
        return !IsCancelled();
    };
    const auto encoder = PhotoWriter::Start(form, m_metadata, m_recipe.format, m_recipe.encoding,
                                            m_targetName, &m_losses, goesOn);
    const auto encode = [&encoder](const Image& rows, int first, int count) {
        encoder->Write(rows, first, count);
    };
    if (!Stream(source, form, isDrawn, {isDrawn ? CollectedPercent : 0, rowsPercent}, encode))
        return {};
    Bytes file = encoder->Finish();
    return IsCancelled() ? Bytes() : file;
}

void ExportRun::AddDrawing(ExportStream& stream, const PictureForm& source, Image::Depth depth)
{
    if (m_recipe.look)
        for (const auto& layer : m_recipe.look->GetLayers(source, depth == Image::Depth::Bits8,
                                                          m_pool, m_control.cancel))
            stream.AddLayer(layer, m_pool, m_control.cancel);
    if (m_isConverted)
        stream.ConvertToSrgb();
}

/// False when it was cancelled. `isDrawn`: the source has the effects already.
bool ExportRun::Stream(RowSource& source, const PictureForm& form, bool isDrawn, Percent percent,
                       const std::function<void(const Image&, int, int)>& write)
{
    const PictureForm from = source.GetForm();
    const Image::Depth depth = GetLarger(from.depth, form.depth);
    ExportStream stream(source, depth, m_threads);
    if (!isDrawn)
        AddDrawing(stream, from, depth);
    stream.RoundTo(form.depth);
    stream.ShrinkTo(form.width, form.height);
    int written = 0;
    const auto writeAndReport = [&](const Image& rows, int first, int count) {
        write(rows, first, count);
        written += count;
        Report(percent.from + (percent.to - percent.from) * written / form.height);
    };
    return stream.Run(writeAndReport, m_pool, m_control.cancel);
}

} // namespace LumetraHost
