// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportFixture.h"

#include "editor/ScriptedAlerts.h"

#include "export/ExportCommand.h"
#include "export/ExportGuard.h"
#include "export/selection/RecipeDialog.h"
#include "export/selection/RecipeList.h"
#include "export/selection/SelectionDialog.h"
#include "export/selection/SelectionProgress.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSemaphore>
#include <QSpinBox>
#include <QUrl>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::ExportCommand;
using LumetraEditor::RecipeDialog;
using LumetraEditor::SelectionDialog;
using LumetraEditor::SelectionExporter;
using LumetraEditor::SelectionOrder;
using LumetraEditor::SelectionPlan;
using LumetraEditor::SelectionProgress;
using LumetraHost::HaveSamePixels;
using LumetraHost::NamedRecipe;
using LumetraHost::PhotoReader;
using testing::HasSubstr;
using testing::Not;
using State = LumetraHost::PhotoJob::State;

namespace {

/// Two photos with edits of their own, the second of which is open.
class SelectionTest : public EditorTest
{
protected:
    SelectionTest()
    {
        LoadExamplePanel();
        hill = AddPhoto("hill.png", 20);
        lake = AddPhoto("lake.png", -10);
    }

    QString AddPhoto(const char* name, int exposure)
    {
        const QString path = WritePhoto(name, 80, 60);
        Open(path);
        Find<QSlider>("exposureSlider")->setValue(exposure);
        return path;
    }

    void WriteInFolder(const char* folder, const char* name, const QByteArray& content) const
    {
        QDir().mkpath(Path(folder));
        WriteFile(name, content);
    }

    template <class Widget>
    static Widget* PartOf(const QWidget& parent, const char* name)
    {
        auto* const part = parent.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(part, nullptr) << name;
        return part;
    }

    static std::string GetSummary(const SelectionDialog& dialog)
    {
        return PartOf<QLabel>(dialog, "selectionSummary")->text().toStdString();
    }

    /// Ticks the recipes with these rows alone.
    static void Tick(const SelectionDialog& dialog, const QList<int>& rows)
    {
        auto* const list = PartOf<QListWidget>(dialog, "recipeList");
        for (int row = 0; row < list->count(); ++row)
            list->item(row)->setCheckState(rows.contains(row) ? Qt::Checked : Qt::Unchecked);
    }

    static void WaitForPlan(const SelectionDialog& dialog)
    {
        WaitUntil([&dialog] { return !dialog.GetPlan().jobs.empty(); });
    }

    static void Accept(const SelectionDialog& dialog)
    {
        WaitForPlan(dialog);
        PartOf<QPushButton>(dialog, "selectionExport")->click();
    }

    ExportCommand& GetCommand() const { return GetPart<ExportCommand>(); }
    SelectionProgress& GetProgress() const { return GetPart<SelectionProgress>(); }

    /// `fill` works on the dialog, which has to be closed by it. Returns when the export has ended.
    void Export(const QStringList& photos, const std::function<void(SelectionDialog&)>& fill)
    {
        QTimer::singleShot(0, window.get(), [this, fill] {
            auto* const dialog = window->findChild<SelectionDialog*>();
            ASSERT_NE(dialog, nullptr);
            fill(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        GetCommand().ExportSelection(photos);
        WaitUntil([this] { return !GetCommand().IsRunning(); });
    }

    std::string GetOutcome() const
    {
        return PartOf<QLabel>(GetProgress(), "selectionText")->text().toStdString();
    }

    /// The file that the export of the open photo makes by this recipe.
    QByteArray ExportAlone(const NamedRecipe& named, const char* name) const
    {
        LumetraEditor::ExportOptions options;
        options.recipe = named.recipe;
        options.path = Path(name);
        LumetraEditor::ExportJob job(editor->GetPhoto(), editor->GetPackages(),
                                     editor->GetRecords(), options);
        EXPECT_TRUE(job.Run([](int) {}));
        return ReadFile(name);
    }

    SelectionPlan MakePlan(const QStringList& photos) const
    {
        SelectionOrder order;
        order.photos = photos;
        order.recipes = {NamedRecipe::GetShipped().front()};
        return SelectionPlan::Make(order, LumetraEditor::ExportGuard());
    }

    QString hill;
    QString lake;
};

} // namespace

TEST_F(SelectionTest, writesEveryPhotoWithItsOwnEditByEveryTickedRecipe)
{
    Export({hill, lake}, [](SelectionDialog& dialog) {
        Tick(dialog, {0, 1});
        Accept(dialog);
    });

    EXPECT_EQ(GetOutcome(), "Written: 4");
    const auto shipped = NamedRecipe::GetShipped();
    EXPECT_EQ(ReadFile("export/lake.jpg"), ExportAlone(shipped[0], "alone.jpg"));
    EXPECT_EQ(ReadFile("export/lake_2048.jpg"), ExportAlone(shipped[1], "alone_2048.jpg"));
    Open(hill);
    EXPECT_EQ(ReadFile("export/hill.jpg"), ExportAlone(shipped[0], "alone.jpg"));
    EXPECT_NE(ReadFile("export/hill.jpg"), ReadFile("export/lake.jpg"));
}

TEST_F(SelectionTest, savesTheEditOfTheShownPhotoFirst)
{
    Find<QSlider>("exposureSlider")->setValue(25);

    Export({lake}, [](SelectionDialog& dialog) { Accept(dialog); });

    EXPECT_EQ(ReadFile("export/lake.jpg"),
              ExportAlone(NamedRecipe::GetShipped().front(), "alone.jpg"));
}

TEST_F(SelectionTest, exportsAPhotoWithTheChangesThatStillWaitForIt)
{
    QSemaphore begun, mayGoOn;
    const QString bare = WritePhoto("bare.png", 50, 40);
    const auto change = [&, edit = editor->GetEdit()](const LumetraHost::EditState& before) {
        if (before.layers.empty()) {
            begun.release();
            mayGoOn.acquire();
        }
        return edit;
    };
    editor->GetManySteps().Change(QStringLiteral("Test"), {bare, hill}, change);
    begun.acquire(); // the bare photo is being changed, the other one waits

    Export({hill}, [](SelectionDialog& dialog) {
        Tick(dialog, {0, 1}); // two files of one photo are made at the same time
        Accept(dialog);
    });
    mayGoOn.release();
    editor->GetManySteps().GetEdits().WaitForAll();

    EXPECT_EQ(GetOutcome(), "Written: 2");
    Open(hill);
    ASSERT_EQ(Find<QSlider>("exposureSlider")->value(), -10);
    const auto shipped = NamedRecipe::GetShipped();
    EXPECT_EQ(ReadFile("export/hill.jpg"), ExportAlone(shipped[0], "alone.jpg"));
    EXPECT_EQ(ReadFile("export/hill_2048.jpg"), ExportAlone(shipped[1], "alone_2048.jpg"));
}

TEST_F(SelectionTest, refusesNamesThatStandForOneLook)
{
    Export({hill, lake}, [](SelectionDialog& dialog) {
        Tick(dialog, {0});
        for (const char* const name : {"{preset}", "{group}", "{intensity}"}) {
            PartOf<QLineEdit>(dialog, "selectionFile")->setText(QLatin1String(name));
            WaitUntil([&] { return GetSummary(dialog).find(name) != std::string::npos; });
            EXPECT_FALSE(PartOf<QPushButton>(dialog, "selectionExport")->isEnabled());
            EXPECT_EQ(PartOf<QLabel>(dialog, "selectionFirst")->text(), QString());
        }
    });
    EXPECT_FALSE(QFileInfo::exists(Path("export")));
}

TEST_F(SelectionTest, showsTheFirstFileAndHowManyThereWillBe)
{
    Export({hill, lake}, [this](SelectionDialog& dialog) {
        Tick(dialog, {0, 1});
        WaitForPlan(dialog);
        EXPECT_EQ(PartOf<QLabel>(dialog, "selectionFirst")->text(), Path("export/hill.jpg"));
        EXPECT_EQ(GetSummary(dialog), "Files to write: 4");
        PartOf<QLineEdit>(dialog, "selectionFolder")->setText(Path("elsewhere"));
        PartOf<QLineEdit>(dialog, "selectionFile")->setText(QStringLiteral("{n}_{name}"));
        EXPECT_EQ(PartOf<QLabel>(dialog, "selectionFirst")->text(), Path("elsewhere/1_hill.jpg"));
    });
}

TEST_F(SelectionTest, tellsBeforeAnythingIsWrittenWhatIsThereAndWhatWouldShareAFile)
{
    WriteInFolder("there", "there/hill.jpg", "mine");
    Export({hill, lake}, [this](SelectionDialog& dialog) {
        Tick(dialog, {0});
        PartOf<QLineEdit>(dialog, "selectionFolder")->setText(Path("there"));
        WaitForPlan(dialog);
        EXPECT_EQ(GetSummary(dialog),
                  "Files to write: 1\nFiles that exist and stay as they are: 1");

        PartOf<QLineEdit>(dialog, "selectionFile")->setText(QStringLiteral("same"));
        WaitForPlan(dialog);
        EXPECT_THAT(GetSummary(dialog), HasSubstr("Files that cannot be written: 2"));
        EXPECT_THAT(GetSummary(dialog), HasSubstr("same.jpg"));
        EXPECT_FALSE(PartOf<QPushButton>(dialog, "selectionExport")->isEnabled());

        PartOf<QLineEdit>(dialog, "selectionFile")->setText(QStringLiteral("{nothing}"));
        WaitUntil([&] { return GetSummary(dialog).find("{nothing}") != std::string::npos; });
        EXPECT_FALSE(PartOf<QPushButton>(dialog, "selectionExport")->isEnabled());
    });
    EXPECT_EQ(ReadFile("there/hill.jpg"), "mine");
}

TEST_F(SelectionTest, leavesFilesThatExistUntilToldToReplaceThem)
{
    WriteInFolder("export", "export/hill.jpg", "mine");

    Export({hill, lake}, [](SelectionDialog& dialog) { Accept(dialog); });
    EXPECT_EQ(GetOutcome(), "Written: 1 · Skipped: 1");
    EXPECT_EQ(ReadFile("export/hill.jpg"), "mine");

    Export({hill}, [](SelectionDialog& dialog) {
        PartOf<QComboBox>(dialog, "selectionExisting")->setCurrentIndex(1);
        Accept(dialog);
    });
    EXPECT_EQ(PhotoReader::Read(Path("export/hill.jpg")).image.GetWidth(), 80);
}

TEST_F(SelectionTest, neverReplacesAPhotoOrAnEdit)
{
    const QByteArray photo = ReadFile("lake.png");
    NamedRecipe named;
    named.recipe.format = LumetraHost::PhotoFormat::Png;
    SelectionOrder order{{lake}, {named}, {}, {}, true, {}};

    const SelectionPlan plan = SelectionPlan::Make(order, LumetraEditor::ExportGuard());

    EXPECT_EQ(plan.Count(State::Failed), 1);
    EXPECT_THAT(plan.GetMessages().join(QLatin1Char('\n')).toStdString(), HasSubstr("lake.png"));
}

TEST_F(SelectionTest, listsWhatFailedAndTriesJustThatAgain)
{
    const QString bad = WriteTruncatedPhoto("bad.jpg");
    Export({hill, bad}, [](SelectionDialog& dialog) { Accept(dialog); });

    EXPECT_EQ(GetOutcome(), "Written: 1 · Failed: 1");
    auto* const problems = PartOf<QListWidget>(GetProgress(), "selectionProblems");
    ASSERT_EQ(problems->count(), 1);
    EXPECT_THAT(problems->item(0)->text().toStdString(), HasSubstr("bad.jpg"));

    QFile::remove(bad);
    QFile::copy(Path("export/hill.jpg"), bad);
    PartOf<QPushButton>(GetProgress(), "selectionAgain")->click();
    WaitUntil([this] { return !GetCommand().IsRunning(); });

    EXPECT_EQ(GetOutcome(), "Written: 1");
    EXPECT_TRUE(QFileInfo::exists(Path("export/bad.jpg")));
    EXPECT_FALSE(PartOf<QPushButton>(GetProgress(), "selectionAgain")->isVisible());
}

TEST_F(SelectionTest, leavesWholeFilesAloneWhenItIsCancelledAndGoesOnLater)
{
    QStringList photos;
    for (const char* const name : {"a.png", "b.png", "c.png", "d.png", "e.png", "f.png"})
        photos.append(WritePhoto(name, 400, 300));
    SelectionExporter exporter(std::make_shared<LumetraEditor::ExportGuard>());

    exporter.Start(MakePlan(photos));
    exporter.Cancel();
    WaitUntil([&exporter] { return !exporter.IsRunning(); });

    const SelectionPlan& outcome = exporter.GetOutcome();
    EXPECT_EQ(outcome.Count(State::Written) + outcome.Count(State::Planned), photos.size());
    for (const auto& job : outcome.jobs) {
        EXPECT_EQ(QFileInfo::exists(job.output), job.state == State::Written);
        if (job.state == State::Written) {
            EXPECT_EQ(PhotoReader::Read(job.output).image.GetWidth(), 400);
        }
    }
    EXPECT_EQ(exporter.HasRest(), outcome.Count(State::Planned) > 0);
    if (exporter.HasRest())
        exporter.TryAgain();
    WaitUntil([&exporter] { return !exporter.IsRunning(); });
    for (const QString& photo : photos)
        EXPECT_TRUE(QFileInfo::exists(Path("export") + QLatin1Char('/') +
                                      QFileInfo(photo).completeBaseName() +
                                      QStringLiteral(".jpg")));
}

TEST_F(SelectionTest, leavesAFileAloneThatHasAppearedSinceThePlan)
{
    const SelectionPlan plan = MakePlan({hill});
    WriteInFolder("export", "export/hill.jpg", "mine");
    SelectionExporter exporter(std::make_shared<LumetraEditor::ExportGuard>());

    exporter.Start(plan);
    WaitUntil([&exporter] { return !exporter.IsRunning(); });

    EXPECT_EQ(ReadFile("export/hill.jpg"), "mine");
    EXPECT_THAT(exporter.GetOutcome().GetMessages().join(QLatin1Char(' ')).toStdString(),
                HasSubstr("has appeared meanwhile"));
}

TEST_F(SelectionTest, closingTheWindowAsksWhileItRuns)
{
    QTimer::singleShot(0, window.get(), [this] { Accept(*window->findChild<SelectionDialog*>()); });
    GetCommand().ExportSelection({hill, lake});
    ASSERT_TRUE(GetCommand().IsRunning());
    {
        const ScriptedAlerts alerts({QMessageBox::Cancel});
        EXPECT_FALSE(window->close());
        EXPECT_THAT(alerts.GetTexts().first().toStdString(), HasSubstr("has not finished"));
    }
    WaitUntil([this] { return !GetCommand().IsRunning(); });
    EXPECT_EQ(GetOutcome(), "Written: 2");
}

/// Takes the addresses that the program asks the desktop to open.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    OpenedUrls() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~OpenedUrls() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> urls;

public slots:
    void Open(const QUrl& url) { urls.append(url); }
};

TEST_F(SelectionTest, showsTheFolderOfItsFiles)
{
    OpenedUrls opened;
    Export({hill}, [](SelectionDialog& dialog) { Accept(dialog); });

    PartOf<QPushButton>(GetProgress(), "selectionShow")->click();

    EXPECT_EQ(opened.urls, QList<QUrl>{QUrl::fromLocalFile(Path("export"))});
}

TEST_F(SelectionTest, makesARecipeAndRemembersThatItWasTicked)
{
    Export({hill}, [](SelectionDialog& dialog) {
        QTimer::singleShot(0, &dialog, [&dialog] {
            auto* const recipe = dialog.findChild<RecipeDialog*>();
            ASSERT_NE(recipe, nullptr);
            PartOf<QLineEdit>(*recipe, "recipeName")->setText(QStringLiteral("Web"));
            PartOf<QComboBox>(*recipe, "exportFormat")->setCurrentIndex(3);
            PartOf<QComboBox>(*recipe, "exportSize")->setCurrentIndex(1);
            PartOf<QSpinBox>(*recipe, "exportLongestSide")->setValue(40);
            PartOf<QLineEdit>(*recipe, "recipeFolder")->setText(QStringLiteral("web"));
            PartOf<QPushButton>(*recipe, "recipeSave")->click();
        });
        PartOf<QPushButton>(dialog, "recipeAdd")->click();
        Tick(dialog, {2});
        Accept(dialog);
    });
    EXPECT_EQ(PhotoReader::Read(Path("web/hill.webp")).image.GetWidth(), 40);

    Export({lake}, [](SelectionDialog& dialog) { Accept(dialog); });
    EXPECT_EQ(PhotoReader::Read(Path("web/lake.webp")).image.GetWidth(), 40);
    EXPECT_FALSE(QFileInfo::exists(Path("export")));
}

TEST_F(SelectionTest, aShippedRecipeIsEditedUnderTheNameThatTheListShows)
{
    window->UseLanguage(QStringLiteral("de"));
    Export({hill}, [](SelectionDialog& dialog) {
        auto* const list = PartOf<QListWidget>(dialog, "recipeList");
        EXPECT_THAT(list->item(0)->text().toStdString(), HasSubstr("Volle Größe"));
        QTimer::singleShot(0, &dialog, [&dialog] {
            auto* const recipe = dialog.findChild<RecipeDialog*>();
            EXPECT_EQ(PartOf<QLineEdit>(*recipe, "recipeName")->text(),
                      QStringLiteral("Volle Größe"));
            PartOf<QPushButton>(*recipe, "recipeSave")->click();
        });
        PartOf<QPushButton>(dialog, "recipeEdit")->click();
        EXPECT_THAT(list->item(0)->text().toStdString(), HasSubstr("Volle Größe"));
    });
    window->UseLanguage(QStringLiteral("en"));
    Export({hill}, [](SelectionDialog& dialog) {
        EXPECT_THAT(PartOf<QListWidget>(dialog, "recipeList")->item(0)->text().toStdString(),
                    HasSubstr("Full size"));
    });
}

TEST_F(SelectionTest, refusesANameThatARecipeHasAndKeepsTheDialogOpen)
{
    const ScriptedAlerts alerts({QMessageBox::Ok});
    Export({hill}, [](SelectionDialog& dialog) {
        QTimer::singleShot(0, &dialog, [&dialog] {
            auto* const recipe = dialog.findChild<RecipeDialog*>();
            PartOf<QLineEdit>(*recipe, "recipeName")->setText(QStringLiteral("Full size"));
            QTimer::singleShot(0, recipe, [recipe] { recipe->reject(); });
            PartOf<QPushButton>(*recipe, "recipeSave")->click();
        });
        PartOf<QPushButton>(dialog, "recipeAdd")->click();
        EXPECT_EQ(PartOf<QListWidget>(dialog, "recipeList")->count(), 2);
    });
    EXPECT_THAT(alerts.GetTexts().first().toStdString(), HasSubstr("which another recipe has"));
}

TEST_F(SelectionTest, theMenuExportsTheOpenPhoto)
{
    QTimer::singleShot(0, window.get(), [this] { Accept(*window->findChild<SelectionDialog*>()); });
    FindAction("exportSeveral")->trigger();
    WaitUntil([this] { return !GetCommand().IsRunning(); });

    EXPECT_TRUE(QFileInfo::exists(Path("export/lake.jpg")));
}

#include "SelectionTest.moc"
