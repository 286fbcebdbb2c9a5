// SPDX-License-Identifier: GPL-2.0-or-later
// Exported files are read by programs that share no code with those that wrote them.
#include "ExportSamples.h"

#include "host/photo/PhotoSamples.h"
#include "host/photo/metadata/MetadataSamples.h"

#include "photo/colour/ColorConversion.h"
#include "photo/file/WrittenFormat.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class IndependentReadersTest : public testing::Test
{
protected:
    QString Export(const WrittenFormat& format, KeptMetadata kept, Image::Depth depth) const
    {
        Photo photo;
        photo.image = MakePattern(60, 40, depth);
        photo.metadata = MakeBlocks();
        photo.metadata.iccProfile = ColorConversion::GetDisplayP3Profile();
        ExportRecipe recipe;
        recipe.format = format.format;
        recipe.metadata = kept;
        recipe.depth = depth;
        const QString path =
            m_folder.filePath(QStringLiteral("out.") + QLatin1String(format.suffix));
        WriteFile(path, LumetraHost::Export().MakeFromPhoto(photo, recipe, "out").file);
        return path;
    }

    static bool Has(const char* program)
    {
        return !QStandardPaths::findExecutable(QLatin1String(program)).isEmpty();
    }

    static std::string Run(const char* program, const QStringList& arguments)
    {
        QProcess process;
        process.start(QLatin1String(program), arguments);
        EXPECT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput().toStdString();
    }

    QTemporaryDir m_folder;
};

std::string ReadByExiftool(const QString& path)
{
    QProcess process;
    process.start(QStringLiteral("exiftool"), {QStringLiteral("-G1"), QStringLiteral("-s"), path});
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 0);
    return process.readAllStandardOutput().toStdString();
}

TEST_F(IndependentReadersTest, exiftoolFindsWhatIsKeptAndNothingElse)
{
    if (!Has("exiftool"))
        GTEST_SKIP() << "exiftool is not there";
    for (const WrittenFormat& format : WrittenFormats) {
        const auto read = [&](KeptMetadata kept) {
            return ReadByExiftool(Export(format, kept, Image::Depth::Bits8));
        };
        EXPECT_THAT(read(KeptMetadata::All),
                    AllOf(HasSubstr("GPSLatitude"), HasSubstr("A. Photographer"),
                          HasSubstr("Lumetra Works"), Not(HasSubstr("Warning"))))
            << format.word;
        EXPECT_THAT(read(KeptMetadata::NoGps),
                    AllOf(Not(HasSubstr("GPS")), Not(HasSubstr("Gps")), HasSubstr("Lumetra Works"),
                          HasSubstr("Munich"), Not(HasSubstr("Warning"))))
            << format.word;
        EXPECT_THAT(read(KeptMetadata::Copyright),
                    AllOf(HasSubstr("A. Photographer"), HasSubstr("https://example.org/licence"),
                          Not(HasSubstr("Lumetra Works")), Not(HasSubstr("GPS")),
                          Not(HasSubstr("Munich")), HasSubstr("ICC_Profile")))
            << format.word;
        EXPECT_THAT(read(KeptMetadata::None),
                    AllOf(Not(HasSubstr("A. Photographer")), Not(HasSubstr("[XMP")),
                          Not(HasSubstr("GPS")), HasSubstr("ICC_Profile")))
            << format.word;
    }
}

TEST_F(IndependentReadersTest, exiv2FindsWhatIsKept)
{
    if (!Has("exiv2"))
        GTEST_SKIP() << "exiv2 is not there";
    for (const WrittenFormat& format : WrittenFormats) {
        const QStringList all{QStringLiteral("-pa"),
                              Export(format, KeptMetadata::All, Image::Depth::Bits8)};
        EXPECT_THAT(Run("exiv2", all),
                    AllOf(HasSubstr("Exif.GPSInfo.GPSLatitude"), HasSubstr("Xmp.photoshop.Credit")))
            << format.word;
        const QStringList noGps{QStringLiteral("-pa"),
                                Export(format, KeptMetadata::NoGps, Image::Depth::Bits8)};
        EXPECT_THAT(Run("exiv2", noGps),
                    AllOf(Not(HasSubstr("GPS")), HasSubstr("Xmp.photoshop.Credit")))
            << format.word;
    }
}

TEST_F(IndependentReadersTest, imageMagickFindsSizeDepthAndProfile)
{
    if (!Has("identify"))
        GTEST_SKIP() << "ImageMagick is not there";
    const QString form = QStringLiteral("%m %wx%h %z %[profile:icc]");
    for (const WrittenFormat& format : WrittenFormats)
        for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
            if (depth == Image::Depth::Bits16 && !format.holds16Bits)
                continue;
            const std::string bits = depth == Image::Depth::Bits16 ? "16" : "8";
            const QString path = Export(format, KeptMetadata::All, depth);

            EXPECT_THAT(Run("identify", {QStringLiteral("-format"), form, path}),
                        AllOf(StartsWith(QString::fromLatin1(format.name).toUpper().toStdString() +
                                         " 60x40 " + bits + " "),
                              HasSubstr("P3")));
        }
}

} // namespace
