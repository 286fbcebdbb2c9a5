// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetSession.h"
#include "drawer/Drawer.h"
#include "drawer/render/PreviewRenderer.h"
#include "engine/run/Renderer.h"
#include "output/OutputFile.h"
#include "photo/PhotoReader.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoHead.h"
#include "photo/file/PhotoLimits.h"
#include "photos/ContactSheet.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetRows.h"
#include "storage/CheckedFileWriter.h"
#include "storage/ErrorText.h"
#include "storage/FileIdentity.h"
#include "workspace/WorkspaceController.h"

#include <QBuffer>
#include <QFontDatabase>

#include <algorithm>
#include <cmath>

namespace LumetraCli {
namespace {

using LumetraHost::Image;
using LumetraHost::Photo;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Sections = std::vector<ContactSheet::Section>;

constexpr int MinimumTile = 32;
constexpr int MaximumTile = 2000;
constexpr int MaximumColumns = 50;
constexpr double FlattestTile =
    0.5; // height by width; in flatter tiles, and equally narrow ones, the previews are cropped
constexpr double TallestTile = 1.5;

const QString ColumnsOption = QStringLiteral("columns");
const QString TileOption = QStringLiteral("tile");

QString ReadPhotoName(const QCommandLineParser& parser)
{
    const QStringList photos = parser.positionalArguments().mid(1);
    if (photos.size() != 1)
        throw UsageError(Text::tr("expected one photo, found %1").arg(photos.size()));
    return photos.first();
}

QString ReadOutput(const QCommandLineParser& parser, const QString& photo)
{
    const QString output = OutputFile::GetName(parser);
    if (LumetraHost::FileIdentity::Of(output) == LumetraHost::FileIdentity::Of(photo))
        throw UsageError(Text::tr("--output: \"%1\" is the photo itself").arg(output));
    return OutputFile::Read(parser, QStringLiteral("png"), QStringLiteral("PNG"));
}

/// The longer side at which the photo is decoded. No preview may be enlarged, and with twice the
/// pixels they are as sharp as from the whole photo. Previews are cropped where the photo is long,
/// which takes more pixels.
int GetSmallestSide(const QString& path, int tile)
{
    LumetraHost::PhotoFile file(path);
    const auto head = LumetraHost::PhotoHead::Read(file);
    const auto [shorter, longer] = std::minmax(head.width, head.height);
    constexpr auto all = static_cast<double>(LumetraHost::PhotoLimits::LargestSide);
    if (shorter == 0)
        return static_cast<int>(all);
    const double ratio = static_cast<double>(longer) / static_cast<double>(shorter);
    return static_cast<int>(std::min(all, std::ceil(2 * tile * std::max(TallestTile, ratio))));
}

QSize TileSize(int width, const Image& photo)
{
    const double aspect = static_cast<double>(photo.GetHeight()) / photo.GetWidth();
    return {width,
            static_cast<int>(std::lround(width * std::clamp(aspect, FlattestTile, TallestTile)))};
}

/// Draws previews of the photo that is open. Of portraits that are cut it shows the part around
/// their upper third, as the editor does.
class SheetPreviews
{
public:
    /// `drawer` is kept by reference.
    explicit SheetPreviews(const LumetraHost::Drawer& drawer) : m_drawer(drawer) {}

    Zorvik::Proc::Frame Render(const Zorvik::Proc::FrameTarget& target,
                               const Zorvik::Quindle::EffectsSettings& effects,
                               LumetraHost::PreviewPolicies policies)
    {
        policies.portraitMiddle = LumetraHost::PreviewPolicies::PortraitUpperThird;
        return m_previews.Render(m_drawer.GetCommittedRecipe(), target, effects, policies);
    }

private:
    const LumetraHost::Drawer& m_drawer;
    LumetraHost::Renderer m_renderer;
    LumetraHost::PreviewRenderer m_previews{m_renderer};
};

/// One section per group that has presets, the pictures yet to be drawn.
Sections MakeSections(const std::vector<PresetRow>& rows)
{
    Sections sections;
    QModelIndex group;
    for (const PresetRow& row : rows) {
        if (row.index.parent() != group)
            sections.push_back({row.group, {}});
        group = row.index.parent();
        sections.back().tiles.push_back({row.shown, QImage()});
    }
    return sections;
}

/// Renders the picture; returns why there is none, nothing when there is one.
QString RenderPreview(const PresetRow& row, QImage& picture)
{
    try {
        const QString problem = PresetRows::FindProblem(row);
        if (!problem.isEmpty())
            return problem;
        picture = row.index.data(EffectPresetModel::PreviewImageRole).value<QImage>();
        return picture.isNull() ? Text::tr("expected a picture, found none") : QString();
    } catch (const std::exception& error) {
        return LumetraHost::ErrorText::Show(error);
    }
}

/// Renders the pictures. Presets that cannot be drawn keep their places without one, and are
/// reported.
ExitCode RenderPreviews(const std::vector<PresetRow>& rows, Sections& sections, Console& console)
{
    ExitCode code = ExitCode::Done;
    std::size_t done = 0;
    for (ContactSheet::Section& section : sections)
        for (ContactSheet::Tile& tile : section.tiles) {
            const QString problem = RenderPreview(rows[done], tile.picture);
            if (!problem.isEmpty()) {
                console.Report(QStringLiteral("\"%1\": %2").arg(tile.label, problem));
                code = ExitCode::SomeFailed;
            }
            console.ShowProgress(static_cast<int>(++done), static_cast<int>(rows.size()),
                                 tile.label);
        }
    return code;
}

QByteArray EncodePng(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        throw std::runtime_error("the sheet cannot be encoded");
    return bytes;
}

void RefuseTooLarge(const QSize& size)
{
    if (size.width() > ContactSheet::MaxSide || size.height() > ContactSheet::MaxSide)
        throw UsageError(Text::tr("--columns and --tile: expected a sheet of at most %1 "
                                  "pixels a side, found %2 x %3")
                             .arg(ContactSheet::MaxSide)
                             .arg(size.width())
                             .arg(size.height()));
}

/// Shows all presets on one photo in one picture.
class SheetCommand : public Command
{
public:
    SheetCommand()
        : Command(QStringLiteral("sheet"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Shows all presets on one photo in one picture."))
    {
    }
    bool DrawsText() const override { return true; }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void SheetCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PHOTO"),
                        Text::tr("A JPEG, PNG, TIFF, WebP, HEIC or raw file."));
    OutputFile::AddOptions(options, Text::tr("The PNG file to write."));
    options.AddOptions({
        {ColumnsOption, Text::tr("Previews side by side. Default: 5"), QStringLiteral("number"),
         QStringLiteral("5")},
        {TileOption, Text::tr("Width of a preview in pixels. Default: 240"),
         QStringLiteral("number"), QStringLiteral("240")},
    });
    CatalogueOptions::Add(options);
}

ExitCode SheetCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QString photoName = ReadPhotoName(parser);
    const QString output = ReadOutput(parser, photoName);
    const int columns = ReadNumber(parser, ColumnsOption, 1, MaximumColumns);
    const int tile = ReadNumber(parser, TileOption, MinimumTile, MaximumTile);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    if (QFontDatabase().families().isEmpty())
        console.Report(Text::tr("no font found: the sheet has no names"));

    const Photo photo =
        LumetraHost::PhotoReader::ReadReduced(photoName, GetSmallestSide(photoName, tile));
    const QSize tileSize = TileSize(tile, photo.image);
    SheetPreviews previews(session->GetWorkspace().GetDrawer());
    session->GetFactory().SetPreviewOptions(
        {tileSize, false,
         [&previews](const std::string&, const auto& target, const auto& effects,
                     const auto& policies) { return previews.Render(target, effects, policies); }});
    session->OpenPhoto(photo.image);
    const auto rows = PresetRows::Read(session->GetModel());
    Sections sections = MakeSections(rows);
    const ContactSheet sheet(tileSize, columns);
    RefuseTooLarge(sheet.GetSize(sections));
    const ExitCode code = RenderPreviews(rows, sections, console);
    LumetraHost::CheckedFileWriter::Write(output, EncodePng(sheet.Draw(sections)));
    console.PrintLine(output);
    return code;
}

} // namespace

std::unique_ptr<Command> MakeSheetCommand()
{
    return std::make_unique<SheetCommand>();
}

} // namespace LumetraCli
