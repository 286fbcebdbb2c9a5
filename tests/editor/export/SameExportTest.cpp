// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportFixture.h"
#include "Places.h"

#include "export/ExportGuard.h"
#include "export/selection/SelectionExporter.h"
#include "exporting/JobFingerprint.h"
#include "image/DepthConversion.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/file/WrittenFormat.h"
#include "photo/metadata/EditRecord.h"
#include "strip/PhotoStrip.h"
#include "strip/PhotoStripModel.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QProcess>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <gmock/gmock.h>

#include <optional>
#include <vector>

using namespace LumetraTest;
using LumetraEditor::ExportJob;
using LumetraEditor::ExportOptions;
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
    static constexpr int Intensity = 60;

    SameExportTest() { LoadPresetsPanel(); }

    void SetUp() override
    {
        QCoreApplication::setApplicationVersion(QStringLiteral(LUMETRA_VERSION));
    }
    void TearDown() override { QCoreApplication::setApplicationVersion({}); }

    QString WriteLarge(const char* name, Image::Depth depth = Image::Depth::Bits8) const
    {
        const Photo base = PhotoReader::Read(WritePhoto("base.png", Width, Height));
        Photo converted = base;
        converted.image = Image::Allocate(Width, Height, depth);
        CopyRows(base.image, 0, converted.image, 0, Height);
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

    /// Opens the photo and puts the look on it.
    void Edit(const QString& file, const QString& preset = Look)
    {
        photo = file;
        look = preset;
        Open(photo);
        Find<QLineEdit>("searchField")->setText(look);
        ClickLook(look);
        hasIntensity = look == Look;
        if (hasIntensity)
            TypeIntensity();
    }

    void TypeIntensity()
    {
        auto* const number =
            Find<QSlider>("intensitySlider")->parentWidget()->findChild<QSpinBox*>();
        ASSERT_NE(number, nullptr);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, QString::number(Intensity));
        QTest::keyClick(number, Qt::Key_Return);
    }

    QByteArray ExportByEditor(ExportOptions options, const char* name) const
    {
        options.path = Path(name);
        ExportJob job(editor->GetPhoto(), editor->GetPackages(), editor->GetRecords(), options);
        EXPECT_TRUE(job.Run([](int) {}));
        return ReadFile(name);
    }

    QByteArray ExportByTool(const QStringList& options, const char* name) const
    {
        QStringList words{QStringLiteral("apply"),    photo,     QStringLiteral("--preset"), look,
                          QStringLiteral("--output"), Path(name)};
        if (hasIntensity)
            words << QStringLiteral("--intensity") << QString::number(Intensity);
        QProcess tool;
        tool.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), words + options);
        EXPECT_TRUE(tool.waitForFinished(-1));
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
        return ReadFile(name);
    }

    /// The file that the export of a selection makes of the photo's saved edit.
    QByteArray ExportByBatch(const LumetraHost::NamedRecipe& named) const
    {
        EXPECT_TRUE(editor->SaveEdit());
        const LumetraEditor::SelectionOrder order{{photo}, {named}, {}, {}, true, {}};
        LumetraEditor::SelectionExporter exporter(std::make_shared<LumetraEditor::ExportGuard>());
        exporter.Start(LumetraEditor::SelectionPlan::Make(order, LumetraEditor::ExportGuard()));
        WaitUntil([&exporter] { return !exporter.IsRunning(); });
        const auto& jobs = exporter.GetOutcome().jobs;
        if (jobs.size() != 1 || jobs.front().state != LumetraHost::PhotoJob::State::Written) {
            ADD_FAILURE()
                << exporter.GetOutcome().GetMessages().join(QLatin1Char(' ')).toStdString();
            return {};
        }
        QFile file(jobs.front().output);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// The file that the export of the open photo makes by the recipe.
    QByteArray ExportAlone(const LumetraHost::NamedRecipe& named) const
    {
        ExportOptions options;
        options.recipe = named.recipe;
        return ExportByEditor(options, "single.jpg");
    }

    /// The file that the tool makes of the photo's saved edit.
    QByteArray ExportEditByTool(const LumetraHost::NamedRecipe& named) const
    {
        QStringList words{QStringLiteral("apply"),    photo,
                          QStringLiteral("--edits"),  QStringLiteral("--overwrite"),
                          QStringLiteral("--output"), Path("tool.jpg")};
        if (named.recipe.longestSide > 0)
            words << QStringLiteral("--size") << QString::number(named.recipe.longestSide);
        QProcess tool;
        tool.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), words);
        EXPECT_TRUE(tool.waitForFinished(-1));
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
        return ReadFile("tool.jpg");
    }

    /// Compares exports at the photo's size, at a smaller one and at a larger one, which is not
    /// enlarged.
    void ExpectSame(PhotoFormat format, std::optional<Image::Depth> depth = {}) const
    {
        for (const int longestSide : {0, 700, 5000}) {
            ExportOptions options;
            options.recipe.format = format;
            options.recipe.depth = depth;
            options.recipe.longestSide = longestSide;
            QStringList words{QStringLiteral("--overwrite")};
            if (depth)
                words << QStringLiteral("--depth")
                      << QString::number(depth == Image::Depth::Bits16 ? 16 : 8);
            if (longestSide > 0)
                words << QStringLiteral("--size") << QString::number(longestSide);
            const std::string suffix = LumetraHost::GetWrittenFormat(format).suffix;
            const QByteArray made = ExportByEditor(options, ("editor." + suffix).c_str());
            EXPECT_FALSE(made.isEmpty());
            EXPECT_TRUE(made == ExportByTool(words, ("tool." + suffix).c_str()))
                << photo.toStdString() << ", " << longestSide << " pixels";
        }
    }

    void ExpectRecord(const char* name, int intensity) const
    {
        const auto xmp = PhotoReader::Read(Path(name)).metadata.xmp;
        const auto records = LumetraHost::EditRecords::Read(xmp);
        ASSERT_EQ(records.size(), 1u);
        EXPECT_EQ(records[0].preset, look.toStdString());
        EXPECT_EQ(records[0].intensity, intensity);
    }

    QString photo;
    QString look;
    bool hasIntensity = false;
};

} // namespace

TEST_F(SameExportTest, isMadeOfTheSavedEditByTheEditorsBatchAndByTheTool)
{
    Edit(WriteLarge("photo.jpg"));
    for (const auto& named : LumetraHost::NamedRecipe::GetShipped()) {
        const QByteArray single = ExportAlone(named);
        EXPECT_FALSE(single.isEmpty());
        EXPECT_THAT(LumetraHost::JobFingerprint::ReadFrom(Path("single.jpg")),
                    testing::MatchesRegex("[0-9a-f]{64}"));
        EXPECT_TRUE(ExportByBatch(named) == single) << named.name.toStdString();
        EXPECT_TRUE(ExportEditByTool(named) == single) << named.name.toStdString();
    }
}

TEST_F(SameExportTest, isMadeOfAPastedEditByTheEditorsBatchAndByTheTool)
{
    const QString target = WriteLarge("target.jpg");
    Edit(WriteLarge("photo.jpg"));
    window->OpenPhotos({photo, target});
    WaitUntil([this] { return !editor->IsOpening(); });
    FindAction("copyEdit")->trigger();
    const auto& row = GetPart<LumetraEditor::PhotoStripModel>();
    WaitUntil([&] { return row.FindRow(target) >= 0; });
    const QModelIndex other = row.index(row.FindRow(target));
    GetPart<LumetraEditor::PhotoStrip>().selectionModel()->select(other,
                                                                  QItemSelectionModel::Select);
    FindAction("pasteEdit")->trigger();
    editor->GetManySteps().GetEdits().WaitForAll();
    ASSERT_EQ(editor->GetPhotoPath(), photo) << "the other photo gets its edit unseen";
    photo = target;

    const auto shipped = LumetraHost::NamedRecipe::GetShipped();
    std::vector<QByteArray> batches, tools;
    for (const auto& named : shipped) {
        batches.push_back(ExportByBatch(named));
        tools.push_back(ExportEditByTool(named));
    }

    Open(target);
    for (std::size_t i = 0; i < shipped.size(); ++i) {
        const QByteArray single = ExportAlone(shipped[i]);
        EXPECT_FALSE(single.isEmpty());
        EXPECT_TRUE(batches[i] == single) << shipped[i].name.toStdString();
        EXPECT_TRUE(tools[i] == single) << shipped[i].name.toStdString();
    }
    ExpectRecord("single.jpg", Intensity);
}

TEST_F(SameExportTest, isMadeOfAJpegPhotoThatIsStreamed)
{
    Edit(WriteLarge("photo.jpg"));

    ExpectSame(PhotoFormat::Jpeg);
    ExpectSame(PhotoFormat::Tiff, Image::Depth::Bits16);
    ExpectRecord("editor.jpg", Intensity);
}

TEST_F(SameExportTest, isMadeOfAJpegPhotoThatIsTurned)
{
    Edit(WriteTurned("photo.jpg"));
    ASSERT_EQ(editor->GetPhoto().image.GetHeight(), Width);

    ExpectSame(PhotoFormat::Jpeg);
}

TEST_F(SameExportTest, isMadeOfAPngPhoto)
{
    Edit(WriteLarge("photo.png"));

    ExpectSame(PhotoFormat::Png);
}

TEST_F(SameExportTest, isMadeOfATiffPhotoOf16Bits)
{
    Edit(WriteLarge("photo.tif", Image::Depth::Bits16));
    ASSERT_EQ(editor->GetPhoto().image.GetDepth(), Image::Depth::Bits16);

    ExpectSame(PhotoFormat::Tiff);
    ExpectSame(PhotoFormat::Tiff, Image::Depth::Bits8);
    ExpectSame(PhotoFormat::Jpeg);
}

TEST_F(SameExportTest, isMadeOfAPhotoInDisplayP3)
{
    const auto p3 = LumetraHost::ColorConversion::GetDisplayP3Profile();
    Photo wide = PhotoReader::Read(WriteLarge("base.png"));
    wide.metadata.iccProfile = p3;
    for (const char* const name : {"photo.jpg", "photo.png"}) {
        PhotoWriter::Write(Path(name), wide);
        Edit(Path(name));
        ASSERT_TRUE(editor->GetPhoto().image.GetSpace());

        ExpectSame(PhotoFormat::Jpeg);
        EXPECT_EQ(PhotoReader::Read(Path("editor.jpg")).metadata.iccProfile, p3);
        ExpectSame(PhotoFormat::Tiff, Image::Depth::Bits16);
    }
}

TEST_F(SameExportTest, isMadeOfALookWithoutIntensity)
{
    Edit(WriteLarge("photo.jpg"), QStringLiteral("Plain Grey"));

    ExpectSame(PhotoFormat::Jpeg);
    ExpectRecord("editor.jpg", 100);
}

TEST_F(SameExportTest, isMadeWithoutMetadata)
{
    Edit(WriteLarge("photo.jpg"));
    ExportOptions options;
    options.recipe.metadata = LumetraHost::KeptMetadata::None;

    const QByteArray made = ExportByEditor(options, "editor.jpg");

    EXPECT_TRUE(made ==
                ExportByTool({QStringLiteral("--metadata"), QStringLiteral("none")}, "tool.jpg"));
    EXPECT_TRUE(PhotoReader::Read(Path("tool.jpg")).metadata.xmp.isEmpty());
}
