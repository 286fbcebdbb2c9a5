// SPDX-License-Identifier: GPL-2.0-or-later
// The Adjust panel beside the looks, as a user has them: every step goes through widgets.
#include "Places.h"
#include "editor/EditorFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "widgets/CustomToolBoxButton.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

using namespace LumetraTest;
using LumetraHost::DrawWhole;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using testing::HasSubstr;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

namespace {

const QString Look = QStringLiteral("Candlelight"); // blended, in the catalogue
const QString OwnLook = QStringLiteral("Dusk");

class AdjustTest : public EditorTest
{
protected:
    AdjustTest() { Start(); }

    void Start()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 120, 80));
        Show(QStringLiteral("Adjust"));
    }
    void Reopen()
    {
        Restart();
        LoadPresetsPanel();
        Open(Path("lake.png"));
    }
    void Show(const QString& title) const
    {
        auto* const tabs = Find<QTabWidget>("panels");
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i) == title)
                tabs->setCurrentIndex(i);
        QApplication::processEvents();
    }
    /// The height of the part of the panel that a widget is scrolled in.
    static int HeightInSight(const QWidget& widget)
    {
        for (const QWidget* parent = &widget; parent; parent = parent->parentWidget())
            if (const auto* const area = qobject_cast<const QScrollArea*>(parent))
                return area->viewport()->height();
        return widget.height();
    }
    QSlider& Slider(const char* name) const { return *Find<QSlider>(name); }
    /// Opens all sections and headings; returns the panel.
    QWidget* OpenEverything() const
    {
        auto* const panel = Find<QWidget>("adjustPanel");
        for (auto* const header : panel->findChildren<CustomToolBoxButton*>())
            if (!header->isSelected())
                header->click();
        for (auto* const heading : panel->findChildren<QToolButton*>())
            if (heading->property("fold").toBool())
                heading->setChecked(true);
        return panel;
    }
    void DragSlider(const char* name, double share) const
    {
        QSlider& slider = Slider(name);
        const int middle = slider.height() / 2;
        Drag(slider, {slider.width() / 2, middle},
             {static_cast<int>(slider.width() * share), middle});
    }
    Image Draw() const { return DrawWhole(editor->GetHost().GetDrawer()); }
    /// The largest difference in any channel, in steps of 255. Layers are rounded one by one, and
    /// effects of one layer are not.
    static int Difference(const Image& first, const Image& second)
    {
        int largest = 0;
        for (int y = 0; y < first.GetHeight(); ++y)
            for (int i = 0; i < first.GetWidth() * Image::Channels; ++i)
                largest = std::max(largest, std::abs(first.Row(y)[i] - second.Row(y)[i]));
        return largest;
    }

    /// Saves what the panel shows as a look, after `change` in the dialog.
    bool SaveLook(const std::function<void(QDialog& dialog)>& change = {}) const
    {
        bool isAccepted = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("lookName"))->setText(OwnLook);
            if (change)
                change(*dialog);
            dialog->findChild<QPushButton*>(QStringLiteral("lookSave"))->click();
            isAccepted = dialog->result() == QDialog::Accepted;
            if (!isAccepted)
                dialog->reject();
        });
        Find<QPushButton>("saveLook")->click();
        return isAccepted;
    }
    /// The photo with the saved look alone.
    Image DrawLook() const
    {
        Find<QPushButton>("resetAdjustments")->click();
        Show(QStringLiteral("Looks"));
        ClickLook(OwnLook);
        return Draw();
    }
    /// Runs the command-line tool and expects that it does all that it is asked for.
    static void RunTool(const QStringList& arguments)
    {
        QProcess tool;
        tool.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), arguments);
        ASSERT_TRUE(tool.waitForFinished(-1));
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardOutput().toStdString()
                                      << tool.readAllStandardError().toStdString();
    }
    void TriggerInMenu(const char* action) const
    {
        emit Find<QToolButton>("adjustMore")->menu()->aboutToShow();
        FindAction(action)->trigger();
    }
};

} // namespace

TEST_F(AdjustTest, standsBehindTheLooks)
{
    auto* const tabs = Find<QTabWidget>("panels");
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Looks"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("Adjust"));
}

TEST_F(AdjustTest, everyControlOfEverySectionHasAName)
{
    auto* const panel = OpenEverything();
    QApplication::processEvents();

    int looked = 0;
    for (QWidget* const widget : panel->findChildren<QWidget*>()) {
        const bool isReached = (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() &&
                               !widget->focusProxy() &&
                               !qobject_cast<QAbstractSpinBox*>(widget->parentWidget());
        if (!isReached)
            continue;
        ++looked;
        auto* const face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
    EXPECT_GT(looked, 150) << "two for most numbers";
}

TEST_F(AdjustTest, theTabKeyGoesFromAHeaderIntoItsSection)
{
    const auto headers = Find<QWidget>("adjustPanel")->findChildren<CustomToolBoxButton*>();
    headers[0]->setFocus();
    QTest::keyClick(headers[0], Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Slider("exposure.stops"));

    headers[1]->setFocus();
    QTest::keyClick(headers[1], Qt::Key_Backtab);
    EXPECT_NE(QApplication::focusWidget(), headers[0]) << "the last control of the first section";
}

TEST_F(AdjustTest, aControlThatTheTabKeyReachesIsInSight)
{
    window->resize(600, 480);
    QWidget* const panel = OpenEverything();
    QApplication::setActiveWindow(window.get());
    panel->findChild<CustomToolBoxButton*>()->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();

    QSet<const QWidget*> reached;
    for (QWidget* focus = window->focusWidget(); focus && panel->isAncestorOf(focus);
         focus = window->focusWidget()) {
        if (reached.contains(focus))
            break;
        reached.insert(focus);
        const QRect seen = focus->visibleRegion().boundingRect();
        const int most = std::min(focus->height(), HeightInSight(*focus));
        EXPECT_TRUE(seen.width() == focus->width() && seen.height() >= most)
            << focus->metaObject()->className() << " " << focus->objectName().toStdString() << ", "
            << focus->accessibleName().toStdString();
        QTest::keyClick(focus, Qt::Key_Tab);
        QApplication::processEvents();
    }
    EXPECT_GT(reached.size(), 100);
}

TEST_F(AdjustTest, everyEffectOfNumbersHasItsControls)
{
    auto* const panel = OpenEverything();

    for (const auto& effect : editor->DescribeEffects()) {
        if (!effect.isOnlyNumbers || effect.effectID == "toneCurve")
            continue;
        for (const auto& parameter : effect.parameters) {
            const std::string name = effect.effectID + '.' + parameter.name;
            EXPECT_NE(panel->findChild<QWidget*>(QString::fromStdString(name)), nullptr) << name;
        }
    }
}

TEST_F(AdjustTest, aDraggedSliderIsOneStepThatUndoTakesBack)
{
    const Image before = Draw();

    DragSlider("exposure.stops", 0.8);

    EXPECT_FALSE(HaveSamePixels(Draw(), before));
    EXPECT_EQ(editor->GetUndoStack().count(), 1);
    FindAction("undo")->trigger();
    EXPECT_TRUE(HaveSamePixels(Draw(), before));
    EXPECT_EQ(Slider("exposure.stops").value(), 0);
}

TEST_F(AdjustTest, liesOnTopOfALookAndComesBackInItsPlace)
{
    Show(QStringLiteral("Looks"));
    ClickLook(Look);
    Show(QStringLiteral("Adjust"));
    DragSlider("contrast.amount", 0.9);
    const Image picture = Draw();
    ASSERT_EQ(editor->GetPackages().size(), 2U);
    EXPECT_EQ(editor->GetPackages()[1].Package().GetPackageName(), "lumetra.adjust");
    editor->SaveEdit();

    Reopen();

    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    Show(QStringLiteral("Adjust"));
    EXPECT_NE(Slider("contrast.amount").value(), 0);
}

TEST_F(AdjustTest, aSavedLookIsAmongTheUsersAndStaysThereAfterARestart)
{
    DragSlider("exposure.stops", 0.63);
    DragSlider("contrast.amount", 0.9);
    const Image adjusted = Draw();

    ASSERT_TRUE(SaveLook());

    ASSERT_TRUE(HasLook(OwnLook));
    EXPECT_TRUE(HaveSamePixels(DrawLook(), adjusted));
    Find<QPushButton>("discardButton")->click();
    Reopen();
    ASSERT_TRUE(HasLook(OwnLook));
    EXPECT_TRUE(HaveSamePixels(DrawLook(), adjusted)) << "no slider rounds the values";
    EXPECT_EQ(window->findChild<QSlider*>(QStringLiteral("extraSlider0")), nullptr);
}

TEST_F(AdjustTest, exposedSlidersAreReadAgainByTheEditorAndTheTool)
{
    DragSlider("exposure.stops", 0.63);
    const int position = Slider("exposure.stops").value();
    const Image adjusted = Draw();
    ASSERT_TRUE(SaveLook([](QDialog& dialog) {
        dialog.findChild<QCheckBox*>(QStringLiteral("lookSlider.exposure.stops"))->setChecked(true);
    }));
    EXPECT_THAT(ReadFile("data/lumetra/presets.json").toStdString(), HasSubstr("\"sliders\""));
    Find<QPushButton>("resetAdjustments")->click();

    Reopen();

    EXPECT_TRUE(HaveSamePixels(DrawLook(), adjusted));
    EXPECT_EQ(Slider("extraSlider0").value(), position);
    EXPECT_EQ(Slider("extraSlider0").maximum(), 500);
    RunTool({QStringLiteral("check"), Path("data/lumetra/presets.json")});
    RunTool({QStringLiteral("apply"), Path("lake.png"), QStringLiteral("--preset"), OwnLook,
             QStringLiteral("--set"), QStringLiteral("Exposure=-200"), QStringLiteral("-o"),
             Path("dark.png"), QStringLiteral("--overwrite")});
    EXPECT_LT(qGray(QImage(Path("dark.png")).pixel(60, 40)),
              qGray(QImage(Path("lake.png")).pixel(60, 40)));
}

TEST_F(AdjustTest, anIntensityOfSlidersGivesThePhotoBackAtItsMinimum)
{
    const Image original = Draw();
    DragSlider("exposure.stops", 0.63);
    DragSlider("contrast.amount", 0.2);
    const Image adjusted = Draw();
    ASSERT_TRUE(SaveLook([](QDialog& dialog) {
        dialog.findChild<QComboBox*>(QStringLiteral("lookIntensity"))->setCurrentIndex(1);
    }));
    Find<QPushButton>("resetAdjustments")->click();
    Reopen();

    EXPECT_TRUE(HaveSamePixels(DrawLook(), adjusted));
    QSlider& intensity = Slider("intensitySlider");
    EXPECT_EQ(intensity.minimum(), 0);
    EXPECT_EQ(intensity.value(), 100);
    intensity.setValue(0);

    EXPECT_TRUE(HaveSamePixels(Draw(), original));
}

TEST_F(AdjustTest, aNameThatIsTakenIsRefusedInTheDialog)
{
    DragSlider("exposure.stops", 0.7);
    ASSERT_TRUE(SaveLook());

    QString problem;
    EXPECT_FALSE(SaveLook([&](QDialog& dialog) {
        dialog.findChild<QPushButton*>(QStringLiteral("lookSave"))->click();
        problem = dialog.findChild<QLabel*>(QStringLiteral("lookProblem"))->text();
    }));

    EXPECT_EQ(problem, QStringLiteral("There is a look “Dusk” already."));
}

TEST_F(AdjustTest, aStackOfLayersBecomesOneLook)
{
    DragSlider("exposure.stops", 0.47);
    Find<QPushButton>("applyAdjustments")->click();
    DragSlider("contrast.amount", 0.4);
    const Image stacked = Draw();
    EXPECT_EQ(editor->GetPackages().size(), 2U);

    QTimer::singleShot(0, window.get(), [this] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit")), OwnLook);
        dialog->accept();
    });
    TriggerInMenu("saveStack");

    ASSERT_TRUE(HasLook(OwnLook));
    FindAction("undo")->trigger();
    FindAction("undo")->trigger();
    FindAction("undo")->trigger();
    ASSERT_TRUE(editor->GetPackages().empty());
    EXPECT_LE(Difference(DrawLook(), stacked), 1);
}

TEST_F(AdjustTest, aStackIsNamedOnceMoreWhereItsNameIsTaken)
{
    DragSlider("exposure.stops", 0.47);
    ASSERT_TRUE(SaveLook());
    const QString other = QStringLiteral("Dusk two");
    const auto type = [](const QString& expected, const QString& name) {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* const edit = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
        EXPECT_EQ(edit->text(), expected);
        edit->selectAll();
        QTest::keyClicks(edit, name);
        dialog->accept();
    };
    QTimer::singleShot(0, window.get(), [&] {
        type(QStringLiteral("New look"), OwnLook);
        QTimer::singleShot(0, window.get(), [&] {
            EXPECT_THAT(GetMessage().toStdString(), HasSubstr("“Dusk” already"));
            type(OwnLook, other);
        });
    });

    TriggerInMenu("saveStack");

    EXPECT_TRUE(HasLook(other));
}

TEST_F(AdjustTest, aMixedLayerKeepsAStackFromBecomingOneLook)
{
    Show(QStringLiteral("Looks"));
    ClickLook(QStringLiteral("Fresh"));
    Slider("intensitySlider").setValue(50);
    Show(QStringLiteral("Adjust"));
    DragSlider("exposure.stops", 0.7);

    TriggerInMenu("saveStack");

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("“Fresh” has an intensity of"));
}

TEST_F(AdjustTest, theUsersLookTakesTheValuesOver)
{
    DragSlider("exposure.stops", 0.47);
    ASSERT_TRUE(SaveLook());
    DrawLook();
    Show(QStringLiteral("Adjust"));
    DragSlider("contrast.amount", 0.4);
    const Image both = Draw();
    const int steps = editor->GetUndoStack().count();

    TriggerInMenu("updateLook");

    EXPECT_LE(Difference(Draw(), both), 1);
    EXPECT_EQ(editor->GetPackages().size(), 1U);
    EXPECT_EQ(Slider("contrast.amount").value(), 0);
    EXPECT_EQ(editor->GetUndoStack().count(), steps + 1);
    FindAction("undo")->trigger();
    EXPECT_TRUE(HaveSamePixels(Draw(), both));
    EXPECT_EQ(editor->GetPackages().size(), 2U);
    FindAction("redo")->trigger();
    Find<QPushButton>("discardButton")->click();
    Reopen();
    Show(QStringLiteral("Looks"));
    ClickLook(OwnLook);
    EXPECT_LE(Difference(Draw(), both), 1);
}

TEST_F(AdjustTest, aLookThatCannotBeSavedStaysAsItWas)
{
    DragSlider("exposure.stops", 0.47);
    ASSERT_TRUE(SaveLook());
    const Image look = DrawLook();
    Show(QStringLiteral("Adjust"));
    DragSlider("contrast.amount", 0.4);
    const Image both = Draw();
    const int position = Slider("contrast.amount").value();
    const int steps = editor->GetUndoStack().count();
    const QByteArray store = ReadFile("data/lumetra/presets.json");
    // Permissions would not stop root.
    ASSERT_TRUE(QFile::remove(Path("data/lumetra/presets.json")));
    ASSERT_TRUE(QDir().mkpath(Path("data/lumetra/presets.json/taken")));

    TriggerInMenu("updateLook");

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("presets.json"));
    EXPECT_TRUE(HaveSamePixels(Draw(), both));
    EXPECT_EQ(editor->GetPackages().size(), 2U);
    EXPECT_EQ(Slider("contrast.amount").value(), position);
    EXPECT_EQ(editor->GetUndoStack().count(), steps);
    Find<QPushButton>("resetAdjustments")->click();
    EXPECT_TRUE(HaveSamePixels(Draw(), look)) << "the look in the program is the one of before";

    ASSERT_TRUE(QDir(Path("data/lumetra/presets.json")).removeRecursively());
    WriteFile("data/lumetra/presets.json", store);
    Show(QStringLiteral("Looks"));
    Find<QPushButton>("discardButton")->click();
    Reopen();
    EXPECT_TRUE(HaveSamePixels(DrawLook(), look)) << "and so is the one on the disk";
}
