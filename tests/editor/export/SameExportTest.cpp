// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportFixture.h"

#include "image/DepthConversion.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/EditRecord.h"

#include <QProcess>
#include <QSlider>

#include <gtest/gtest.h>

#include <optional>

using namespace LumetraTest;
using LumetraEditor::ExportJob;
using LumetraHost::Image;
using LumetraHost::Photo;
using LumetraHost::PhotoFormat;
using LumetraHost::PhotoReader;
using LumetraHost::PhotoWriter;

namespace {

const QString Look = QStringLiteral("Candlelight");

/// One edit, exported by the editor and by the tool. The look begins with colours enough for a
/// table, and the photos are large enough for one.
class SameExportTest : public EditorTest
{
protected:
    static constexpr int Width = 1250;
    static constexpr int Height = 900;

    SameExportTest() { LoadPresetsPanel(); }

    void SetUp() override { QCoreApplication::setApplicationVersion(LUMETRA_VERSION); }
    void TearDown() override { QCoreApplication::setApplicationVersion({}); }

    QString WriteLarge(const char* name, Image::Depth depth = Image::Depth::Bits8) const
    {
        const Photo photo = PhotoReader::Read(WritePhoto("base.png", Width, Height));
        Photo converted = photo;
        converted.image = Image::Allocate(Width, Height, depth);
        CopyRows(photo.image, 0, converted.image, 0, Height);
        const QString path = Path(name);
        PhotoWriter::Write(path, converted);
        return path;
    }

    /// A JPEG file that is to be turned clockwise.
    QString WriteTurned(const char* name) const
    {
        WriteLarge(name);
        const QByteArray exif(
            "\xFF\xE1\0\x22"
            "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
            36);
        return WriteFile(name, ReadFile(name).insert(2, exif));
    }

    QByteArray ExportByEditor(const QString& photo, ExportOptions options, const char* name)
    {
        Open(photo);
        ClickLook(Look);
        Find<QSlider>("intensitySlider")->setValue(60);
        options.path = Path(name);
        ExportJob job(editor->GetPhoto(), editor->GetPackages(), editor->GetRecords(), options);
        EXPECT_TRUE(job.Run([](int) {}));
        return ReadFile(name);
    }

    QByteArray ExportByTool(const QString& photo, const QStringList& options, const char* name)
    {
        QProcess tool;
        tool.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM),
                   QStringList{QStringLiteral("apply"), photo, QStringLiteral("--preset"), Look,
                               QStringLiteral("--intensity"), QStringLiteral("60"),
                               QStringLiteral("--output"), Path(name)} +
                       options);
        EXPECT_TRUE(tool.waitForFinished(-1));
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
        return ReadFile(name);
    }

    using ExportOptions = LumetraEditor::ExportOptions;

    /// Whatever the size.
    void ExpectSame(const QString& photo, PhotoFormat format,
                    std::optional<Image::Depth> depth = {})
    {
        const QString suffix = LumetraEditor::GetSuffix(format);
        for (const int longestSide : {0, 700, 5000}) {
            ExportOptions options;
            options.recipe.format = format;
            options.recipe.depth = depth;
            options.recipe.longestSide = longestSide;
            QStringList words;
            if (depth)
                words << QStringLiteral("--depth")
                      << (depth == Image::Depth::Bits16 ? QStringLiteral("16")
                                                        : QStringLiteral("8"));
            if (longestSide > 0)
                words << QStringLiteral("--size") << QString::number(longestSide);
            words << QStringLiteral("--overwrite");
            const std::string ofEditor = "editor." + suffix.toStdString();
            const std::string ofTool = "tool." + suffix.toStdString();
            const QByteArray first = ExportByEditor(photo, options, ofEditor.c_str());
            const QByteArray second = ExportByTool(photo, words, ofTool.c_str());
            EXPECT_FALSE(first.isEmpty());
            EXPECT_TRUE(first == second) << photo.toStdString() << ", " << longestSide << " pixels";
        }
        const Photo made = PhotoReader::Read(Path(("tool." + suffix.toStdString()).c_str()));
        const auto records = LumetraHost::EditRecords::Read(made.metadata.xmp);
        ASSERT_EQ(records.size(), 1u);
        EXPECT_EQ(records[0].preset, Look.toStdString());
        EXPECT_EQ(records[0].intensity, 60);
    }
};

} // namespace

TEST_F(SameExportTest, isMadeOfAJpegPhotoThatIsStreamed)
{
    ExpectSame(WriteLarge("photo.jpg"), PhotoFormat::Jpeg);
    ExpectSame(WriteLarge("photo.jpg"), PhotoFormat::Tiff, Image::Depth::Bits16);
}

TEST_F(SameExportTest, isMadeOfAJpegPhotoThatIsTurned)
{
    const QString photo = WriteTurned("photo.jpg");
    ASSERT_EQ(PhotoReader::Read(photo).image.GetHeight(), Width);
    ExpectSame(photo, PhotoFormat::Jpeg);
}

TEST_F(SameExportTest, isMadeOfAPngPhoto)
{
    ExpectSame(WriteLarge("photo.png"), PhotoFormat::Png);
}

TEST_F(SameExportTest, isMadeOfATiffPhotoOf16Bits)
{
    const QString photo = WriteLarge("photo.tif", Image::Depth::Bits16);
    ExpectSame(photo, PhotoFormat::Tiff);
    ExpectSame(photo, PhotoFormat::Tiff, Image::Depth::Bits8);
    ExpectSame(photo, PhotoFormat::Jpeg);
}

TEST_F(SameExportTest, isMadeWithoutMetadata)
{
    ExportOptions options;
    options.recipe.keepsMetadata = false;
    const QString photo = WriteLarge("photo.jpg");

    const QByteArray ofEditor = ExportByEditor(photo, options, "editor.jpg");
    const QByteArray ofTool =
        ExportByTool(photo, {QStringLiteral("--metadata"), QStringLiteral("none")}, "tool.jpg");

    EXPECT_TRUE(ofEditor == ofTool);
    EXPECT_TRUE(PhotoReader::Read(Path("tool.jpg")).metadata.xmp.isEmpty());
}
