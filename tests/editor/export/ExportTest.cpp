// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportFixture.h"
#include "editor/Medium.h"
#include "editor/ScriptedAlerts.h"
#include "host/drawer/DrawnPicture.h"

#include "photo/metadata/EditRecord.h"
#include "workspace/WorkspaceController.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::ExportDialog;
using LumetraEditor::ExportJob;
using LumetraEditor::ExportOptions;
using LumetraHost::Image;
using LumetraHost::PhotoFormat;
using LumetraHost::PhotoReader;
using testing::HasSubstr;

TEST_F(ExportTest, writesWhatIsShown)
{
    const auto photo = Export();

    EXPECT_TRUE(HaveSamePixels(photo.image, LumetraHost::DrawWhole(editor->GetHost().GetDrawer())));
}

TEST_F(ExportTest, keepsTheFinerStepsOfSixteenBits)
{
    options.recipe.depth = LumetraHost::Image::Depth::Bits16;
    const auto photo = Export();

    ASSERT_EQ(photo.image.GetDepth(), Image::Depth::Bits16);
    const Image shown = LumetraHost::DrawWhole(editor->GetHost().GetDrawer());
    bool isFiner = false;
    for (int x = 0; x < 80; ++x) {
        const int fine = photo.image.Row16(30)[4 * x];
        EXPECT_NEAR(fine / 257.0, shown.Row(30)[4 * x], 0.51 + 0.02);
        isFiner = isFiner || fine % 257 != 0;
    }
    EXPECT_TRUE(isFiner);
}

TEST_F(ExportTest, limitsTheLongestSide)
{
    options.recipe.longestSide = 40;
    const auto photo = Export();

    EXPECT_EQ(photo.image.GetWidth(), 40);
    EXPECT_EQ(photo.image.GetHeight(), 30);
}

TEST_F(ExportTest, saysTheSizeThatTheFileGets)
{
    Open(WritePhoto("odd.png", 61, 97));
    ExportByHand([](ExportDialog& dialog) {
        Part<QComboBox>(dialog, "exportFormat")->setCurrentIndex(1);
        Part<QComboBox>(dialog, "exportSize")->setCurrentIndex(1);
        for (const int longest : {1, 10, 43, 60, 96, 97, 4000}) {
            Part<QSpinBox>(dialog, "exportLongestSide")->setValue(longest);
            const auto size = dialog.GetOptions().recipe.GetSize(61, 97);
            EXPECT_EQ(Part<QLabel>(dialog, "exportResultSize")->text(),
                      QStringLiteral("%1 × %2 pixels").arg(size.width).arg(size.height));
        }
        Part<QSpinBox>(dialog, "exportLongestSide")->setValue(60);
        EXPECT_EQ(Part<QLabel>(dialog, "exportResultSize")->text(),
                  QStringLiteral("38 × 60 pixels"));
        Part<QPushButton>(dialog, "exportButton")->click();
    });

    const Image written = PhotoReader::Read(Path("odd_edited.png")).image;
    EXPECT_EQ(written.GetWidth(), 38);
    EXPECT_EQ(written.GetHeight(), 60);
}

TEST_F(ExportTest, neverEnlarges)
{
    options.recipe.longestSide = 4000;

    EXPECT_EQ(Export().image.GetWidth(), 80);
}

TEST_F(ExportTest, writesSmallerFilesAtLowerQuality)
{
    options.recipe.format = PhotoFormat::Jpeg;
    options.path = Path("high.jpg");
    options.recipe.encoding.quality = 95;
    Export();
    options.path = Path("low.jpg");
    options.recipe.encoding.quality = 20;
    Export();

    EXPECT_LT(ReadFile("low.jpg").size(), ReadFile("high.jpg").size());
}

TEST_F(ExportTest, writesTiffOfSixteenBits)
{
    options.recipe.format = PhotoFormat::Tiff;
    options.path = Path("out.tif");
    options.recipe.depth = LumetraHost::Image::Depth::Bits16;

    EXPECT_EQ(Export().image.GetDepth(), Image::Depth::Bits16);
}

TEST_F(ExportTest, recordsThePresetsInXmp)
{
    ExportJob job(editor->GetPhoto(), editor->GetPackages(), {{"Golden <Hour>", 50}}, options);
    ASSERT_TRUE(job.Run([](int) {}));

    const auto xmp = PhotoReader::Read(options.path).metadata.xmp;

    const auto records = LumetraHost::EditRecords::Read(xmp);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].preset, "Golden <Hour>");
    EXPECT_EQ(records[0].intensity, 50);
}

TEST_F(ExportTest, keepsAnXmpPacketThatTakesNoRecord)
{
    const QByteArray packet = "<x:xmpmeta";
    auto source = editor->GetPhoto();
    source.metadata.xmp = packet;
    source.reductions = {"it has 3 pages; only the first is read"};
    ExportJob job(source, editor->GetPackages(), {{"Look", 50}}, options);
    ASSERT_TRUE(job.Run([](int) {}));

    EXPECT_EQ(PhotoReader::Read(options.path).metadata.xmp, packet);
    EXPECT_THAT(job.GetWarnings(),
                testing::ElementsAre(
                    "it has 3 pages; only the first is read",
                    "the looks are not recorded in the metadata: XMP packet: it is damaged",
                    "the XMP packet cannot be decoded and is carried over as it is"));
}

TEST_F(ExportTest, leavesMetadataAndProfileOutWhenToldTo)
{
    options.recipe.metadata = LumetraHost::KeptMetadata::None;
    options.recipe.embedsProfile = false;

    EXPECT_TRUE(Export().metadata.IsEmpty());
}

TEST_F(ExportTest, embedsTheProfile)
{
    EXPECT_FALSE(Export().metadata.iccProfile.isEmpty());
}

TEST_F(ExportTest, leavesNothingWhenCancelled)
{
    ExportJob job(editor->GetPhoto(), editor->GetPackages(), {}, options);

    job.Cancel();

    EXPECT_FALSE(job.Run([](int) {}));
    EXPECT_FALSE(QFile::exists(options.path));
}

TEST_F(ExportTest, exportsThroughTheDialog)
{
    StartByHand([this](ExportDialog& dialog) {
        EXPECT_EQ(Part<QLineEdit>(dialog, "exportPath")->text(), Path("lake_edited.jpg"));
        Part<QComboBox>(dialog, "exportFormat")->setCurrentIndex(1);
        EXPECT_EQ(Part<QLineEdit>(dialog, "exportPath")->text(), Path("lake_edited.png"));
        Part<QPushButton>(dialog, "exportButton")->click();
    });
    EXPECT_TRUE(Find<QProgressBar>("progress")->isVisible());
    EXPECT_FALSE(FindAction("exportPhoto")->isEnabled());
    WaitForExport();

    EXPECT_TRUE(QFile::exists(Path("lake_edited.png")));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("lake_edited.png"));
    EXPECT_FALSE(Find<QProgressBar>("progress")->isVisible());
    EXPECT_TRUE(FindAction("exportPhoto")->isEnabled());
}

TEST_F(ExportTest, cancelsByItsButton)
{
    StartByHand([](ExportDialog& dialog) { Part<QPushButton>(dialog, "exportButton")->click(); });
    Find<QToolButton>("cancelExport")->click();
    WaitForExport();

    // A small photo may be written before the button is pressed; then it is there as a whole.
    const bool isWritten = QFile::exists(Path("lake_edited.jpg"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(isWritten ? "Exported" : "cancelled"));
    EXPECT_FALSE(Find<QToolButton>("cancelExport")->isVisible());
}

TEST_F(ExportTest, aFolderThatIsNotThereIsNoticedInTheDialog)
{
    const ScriptedAlerts alerts({QMessageBox::Ok});

    StartByHand([this](ExportDialog& dialog) {
        Part<QLineEdit>(dialog, "exportPath")->setText(Path("missing/out.jpg"));
        Part<QPushButton>(dialog, "exportButton")->click();
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });

    EXPECT_THAT(alerts.GetTexts().first().toStdString(), HasSubstr(Path("missing").toStdString()));
    EXPECT_FALSE(IsExporting());
}

TEST_F(ExportTest, aFolderThatCannotBeWrittenIsNoticedInTheDialog)
{
    const Medium medium(Path("card"));
    if (!medium.Protect())
        GTEST_SKIP() << "nothing can be mounted here";
    const ScriptedAlerts alerts({QMessageBox::Ok});

    StartByHand([this](ExportDialog& dialog) {
        Part<QLineEdit>(dialog, "exportPath")->setText(Path("card/out.jpg"));
        Part<QPushButton>(dialog, "exportButton")->click();
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });

    EXPECT_THAT(alerts.GetTexts().first().toStdString(), HasSubstr(Path("card").toStdString()));
}

TEST_F(ExportTest, aBareNameIsMeantBesideThePhoto)
{
    ExportByHand([this](ExportDialog& dialog) {
        auto* const path = Part<QLineEdit>(dialog, "exportPath");
        path->setText(QStringLiteral("bare.jpg"));
        emit path->editingFinished();
        EXPECT_EQ(path->text(), Path("bare.jpg"));
        path->setText(QStringLiteral("bare"));
        Part<QPushButton>(dialog, "exportButton")->click();
    });

    EXPECT_TRUE(QFile::exists(Path("bare.jpg")));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(Path("bare.jpg").toStdString()));
}

TEST_F(ExportTest, asksBeforeAFileIsReplaced)
{
    WriteFile("lake_edited.jpg", "precious");
    const ScriptedAlerts alerts({QMessageBox::Cancel, QMessageBox::Yes});

    ExportByHand([this](ExportDialog& dialog) {
        Part<QPushButton>(dialog, "exportButton")->click();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(ReadFile("lake_edited.jpg"), "precious");
        Part<QPushButton>(dialog, "exportButton")->click();
    });

    EXPECT_NE(ReadFile("lake_edited.jpg"), "precious");
    EXPECT_EQ(alerts.GetTitles().first(), QStringLiteral("Replace")); // the button has that name
}

TEST_F(ExportTest, remembersTheOptions)
{
    ExportByHand([](ExportDialog& dialog) {
        Part<QComboBox>(dialog, "exportFormat")->setCurrentIndex(2);
        Part<QComboBox>(dialog, "exportBits")->setCurrentIndex(1);
        Part<QComboBox>(dialog, "exportSize")->setCurrentIndex(1);
        Part<QSpinBox>(dialog, "exportLongestSide")->setValue(44);
        EXPECT_EQ(Part<QLabel>(dialog, "exportResultSize")->text(),
                  QStringLiteral("44 × 33 pixels"));
        Part<QComboBox>(dialog, "exportMetadata")->setCurrentIndex(3);
        Part<QCheckBox>(dialog, "exportProfile")->setChecked(false);
        Part<QPushButton>(dialog, "exportButton")->click();
    });
    EXPECT_TRUE(QFile::exists(Path("lake_edited.tif")));

    ExportByHand([](ExportDialog& dialog) {
        const ExportOptions again = dialog.GetOptions();
        EXPECT_EQ(again.recipe.format, PhotoFormat::Tiff);
        EXPECT_EQ(again.recipe.depth, Image::Depth::Bits16);
        EXPECT_EQ(again.recipe.longestSide, 44);
        EXPECT_EQ(again.recipe.metadata, LumetraHost::KeptMetadata::None);
        EXPECT_FALSE(again.recipe.embedsProfile);
        dialog.reject();
    });
}

TEST_F(ExportTest, offersQualityForJpegAndDepthForTheOthers)
{
    ExportByHand([](ExportDialog& dialog) {
        EXPECT_TRUE(Part<QSlider>(dialog, "exportQuality")->isEnabled());
        EXPECT_FALSE(Part<QComboBox>(dialog, "exportBits")->isEnabled());
        Part<QSlider>(dialog, "exportQuality")->setValue(33);
        EXPECT_EQ(Part<QSpinBox>(dialog, "exportQualityNumber")->value(), 33);
        EXPECT_EQ(dialog.GetOptions().recipe.encoding.quality, 33);
        Part<QComboBox>(dialog, "exportFormat")->setCurrentIndex(1);
        EXPECT_FALSE(Part<QSlider>(dialog, "exportQuality")->isEnabled());
        EXPECT_TRUE(Part<QComboBox>(dialog, "exportBits")->isEnabled());
        dialog.reject();
    });
}

TEST_F(ExportTest, theQualitysNumberMovesItsSlider)
{
    ExportByHand([](ExportDialog& dialog) {
        Part<QSpinBox>(dialog, "exportQualityNumber")->setValue(61);
        EXPECT_EQ(Part<QSlider>(dialog, "exportQuality")->value(), 61);
        EXPECT_EQ(dialog.GetOptions().recipe.encoding.quality, 61);
        dialog.reject();
    });
}

TEST_F(ExportTest, writesNothingWhenTheDialogIsLeft)
{
    StartByHand([](ExportDialog& dialog) {
        Part<QDialogButtonBox>(dialog, "exportButtons")->button(QDialogButtonBox::Cancel)->click();
        EXPECT_FALSE(dialog.isVisible());
    });

    EXPECT_FALSE(IsExporting());
    EXPECT_FALSE(QFile::exists(Path("lake_edited.jpg")));
}

TEST_F(ExportTest, takesTheNameThatIsChosenInTheFileDialog)
{
    ExportByHand([this](ExportDialog& dialog) {
        QTimer::singleShot(0, &dialog, [this] {
            auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(files, nullptr);
            files->selectFile(Path("chosen.jpg"));
            QMetaObject::invokeMethod(files, "accept");
        });
        Part<QPushButton>(dialog, "exportBrowse")->click();
        EXPECT_EQ(Part<QLineEdit>(dialog, "exportPath")->text(), Path("chosen.jpg"));
        dialog.reject();
    });
}

TEST_F(ExportTest, givesANameItsEnding)
{
    ExportByHand([this](ExportDialog& dialog) {
        Part<QLineEdit>(dialog, "exportPath")->setText(Path("picture"));
        Part<QPushButton>(dialog, "exportButton")->click();
    });

    EXPECT_TRUE(QFile::exists(Path("picture.jpg")));
}

TEST_F(ExportTest, asksBeforeItStopsAnExport)
{
    StartByHand([](ExportDialog& dialog) { Part<QPushButton>(dialog, "exportButton")->click(); });
    const ScriptedAlerts alerts({QMessageBox::Cancel});

    EXPECT_FALSE(window->close());
    EXPECT_EQ(alerts.GetTitles().first(), QStringLiteral("Quit")); // the button has that name
    WaitForExport();

    EXPECT_TRUE(QFile::exists(Path("lake_edited.jpg")));
}
