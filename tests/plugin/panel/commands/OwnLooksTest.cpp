// SPDX-License-Identifier: GPL-2.0-or-later
// Names of the user's looks, and what is selected when a look has come.
#include "LumetraEditor/NewLook.h"
#include "PanelFixture.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "editor/ScriptedAlerts.h"
#include "panel/commands/NameCounter.h"
#include "panel/commands/PresetCommands.h"
#include "panel/grid/PresetGrid.h"
#include "panel/importing/ImportSummary.h"
#include "panel/widgets/PresetPages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <functional>

using LumetraPlugin::ImportSummary;
using LumetraPlugin::NameCounter;
using LumetraPlugin::PresetPages;
using LumetraTest::PanelFixture;
using LumetraTest::ScriptedAlerts;

namespace {

const QString LongName = QStringLiteral("A name that says far more than any list of looks shows");

/// A table that is another one for each number.
QByteArray MakeCube(const QString& title, int number = 1)
{
    return "TITLE \"" + title.toUtf8() + "\"\nLUT_1D_SIZE 2\n" +
           QByteArray::number(number / 1000.0) + " 0 0\n1 1 1\n";
}

LumetraEditor::NewLook MakeLook(const QString& name)
{
    LumetraEditor::NewLook look;
    look.name = name;
    const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create("exposure");
    effect->SetParameter("stops", 0.3);
    look.settings.Effects().push_back(effect);
    return look;
}

class OwnLooksTest : public PanelFixture
{
protected:
    using Step = std::function<void(QDialog& dialog)>;

    /// Triggers the action and answers the dialogs that open one after another.
    void TriggerAndAnswer(const char* action, const std::vector<Step>& steps)
    {
        std::size_t next = 0;
        QObject context;
        // A dialog may open another one, so each answer has a timer of its own.
        std::function<void()> answer = [&] {
            QTimer::singleShot(0, &context, answer);
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            if (next < steps.size())
                return steps[next++](*dialog);
            ADD_FAILURE() << "unexpected dialog";
            dialog->reject();
        };
        QTimer::singleShot(0, &context, answer);
        Trigger(action);
        EXPECT_EQ(next, steps.size());
    }
    static Step Type(const QString& name)
    {
        return [name](QDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(name);
            dialog.accept();
        };
    }
    static void Reject(QDialog& dialog) { dialog.reject(); }

    void SaveBrightAs(const QString& name)
    {
        Click("Bright");
        TriggerAndType("savePreset", name);
    }
    void Drop(const QString& name, const QByteArray& content)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file.fileName())});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(panel->GetWidget(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel->GetWidget(), &drop);
    }
    QStringList UserNames() { return Model().GetUserPresetNames(); }
    PresetPages& Pages() { return *panel->GetWidget()->findChild<PresetPages*>(); }
    /// True when the look is the current one of its page, in sight.
    bool IsSelected(const char* name)
    {
        QApplication::processEvents();
        QApplication::processEvents();
        auto& grid = Grid(UserPage);
        const QRect cell = grid.visualRect(grid.currentIndex());
        const QRect there(grid.mapTo(Pages().viewport(), cell.topLeft()), cell.size());
        return grid.GetCurrentPreset() == Named(name) && grid.isVisible() && there.top() >= 0 &&
               there.bottom() < Pages().viewport()->height();
    }
};

} // namespace

TEST_F(OwnLooksTest, theNameDialogSaysHowManyCharactersANameHas)
{
    Click("Bright");
    TriggerAndAnswer("savePreset", {[](QDialog& dialog) {
                         auto& field = *dialog.findChild<QLineEdit*>();
                         auto& counter = *dialog.findChild<NameCounter*>();
                         field.setText(QStringLiteral("Dim"));
                         EXPECT_EQ(counter.text(), QStringLiteral("3 of 50"));
                         EXPECT_EQ(field.accessibleDescription(),
                                   QStringLiteral("3 of at most 50 characters"));
                         EXPECT_TRUE(counter.isVisibleTo(&dialog));
                         EXPECT_EQ(dialog.size(), QSize(262, 130));
                         dialog.reject();
                     }});
}

TEST_F(OwnLooksTest, theNameDialogSaysThatItLeftTheEndOfATextOut)
{
    Click("Bright");
    TriggerAndAnswer("savePreset", {[](QDialog& dialog) {
                         auto& field = *dialog.findChild<QLineEdit*>();
                         auto& counter = *dialog.findChild<NameCounter*>();
                         field.selectAll();
                         field.insert(QString(60, QLatin1Char('x')));
                         EXPECT_EQ(counter.text(), QStringLiteral("50, at most 50"));
                         EXPECT_TRUE(field.accessibleDescription().contains(
                             QStringLiteral("The rest of the text was left out.")));
                         field.backspace();
                         EXPECT_EQ(counter.text(), QStringLiteral("49 of 50"));
                         dialog.reject();
                     }});
}

TEST_F(OwnLooksTest, aNameOfTheCatalogueIsAskedAboutAndCancelGoesBackToTheName)
{
    ScriptedAlerts alerts({QMessageBox::Cancel});
    Click("Bright");
    QString proposed;
    TriggerAndAnswer("savePreset", {Type(QStringLiteral("grey")), [&proposed](QDialog& dialog) {
                                        proposed = dialog.findChild<QLineEdit*>()->text();
                                        dialog.reject();
                                    }});

    ASSERT_EQ(alerts.GetTexts().size(), 1);
    EXPECT_TRUE(alerts.GetTexts()[0].startsWith(
        QStringLiteral("There is a look “grey” already, in the group “Looks”.")));
    EXPECT_EQ(proposed, QStringLiteral("grey"));
    EXPECT_EQ(UserNames(), QStringList());
}

TEST_F(OwnLooksTest, aNameOfTheCatalogueIsTakenWhereTheUserWantsIt)
{
    ScriptedAlerts alerts({QMessageBox::Yes});
    SaveBrightAs(QStringLiteral("Grey"));

    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Grey")});
}

TEST_F(OwnLooksTest, theProposedNameIsFree)
{
    SaveBrightAs(QStringLiteral("Bright 2"));
    Click("Bright");
    Grid(0).setFocus();
    TriggerAndAnswer("savePreset", {[](QDialog& dialog) {
                         EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(),
                                   QStringLiteral("Bright 3"));
                         dialog.reject();
                     }});
}

TEST_F(OwnLooksTest, renamingToANameOfTheCatalogueIsAskedAbout)
{
    SaveBrightAs(QStringLiteral("Dim"));
    {
        ScriptedAlerts alerts({QMessageBox::Cancel});
        TriggerAndAnswer("renamePreset", {Type(QStringLiteral("Grey")), &Reject});
        EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Dim")});
    }
    const ScriptedAlerts none({});
    TriggerAndType("renamePreset", QStringLiteral("dim")); // its own name in other letters
    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("dim")});
}

TEST_F(OwnLooksTest, anotherOwnLookOfThatNameInOtherLettersIsAskedAbout)
{
    SaveBrightAs(QStringLiteral("Dim"));
    ScriptedAlerts alerts({QMessageBox::Cancel});
    Click("Bright");
    TriggerAndAnswer("savePreset", {Type(QStringLiteral("DIM")), &Reject});

    ASSERT_EQ(alerts.GetTexts().size(), 1);
    EXPECT_TRUE(alerts.GetTexts()[0].contains(QStringLiteral("“My looks”")));
}

TEST_F(OwnLooksTest, aHandedLookOfACatalogueNameIsAskedAbout)
{
    {
        ScriptedAlerts alerts({QMessageBox::Cancel});
        EXPECT_EQ(panel->KeepLook(MakeLook(QStringLiteral("Grey"))),
                  QStringLiteral("Another look is called “Grey”: choose another name."));
        EXPECT_EQ(UserNames(), QStringList());
    }
    ScriptedAlerts alerts({QMessageBox::Yes});
    EXPECT_EQ(panel->KeepLook(MakeLook(QStringLiteral("Grey"))), QString());
    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Grey")});
}

TEST_F(OwnLooksTest, aSavedLookIsSelectedAndHasTheKeyboard)
{
    SaveBrightAs(QStringLiteral("Dim"));

    EXPECT_TRUE(IsSelected("Dim"));
    EXPECT_EQ(panel->GetWidget()->focusWidget(), &Grid(UserPage));
}

TEST_F(OwnLooksTest, aSavedLookIsSelectedWhateverIsFilteredAndFolded)
{
    Click("Bright");
    ClickStar("Bright");
    Find<QAbstractButton>("filterButton1").click(); // favourites
    Find<QLineEdit>("searchField").setText(QStringLiteral("bri"));
    Find<QAbstractButton>("foldList").click();
    TriggerAndType("savePreset", QStringLiteral("Dim"));

    EXPECT_TRUE(IsSelected("Dim"));
    EXPECT_TRUE(Find<QAbstractButton>("filterButton0").isChecked());
}

TEST_F(OwnLooksTest, anImportedLookIsSelectedTheFirstOfSeveral)
{
    Drop(QStringLiteral("two.json"), R"({"format": "lumetra-catalogue", "version": 1, "groups": [
  {"name": "Others", "items": [
    {"name": "Dusk", "id": "d", "effects": [{"effect": {"id": "exposure", "stops": -1}}]},
    {"name": "Dawn", "id": "e", "effects": [{"effect": {"id": "exposure", "stops": -2}}]}]}]})");

    EXPECT_TRUE(IsSelected("Dusk"));
}

TEST_F(OwnLooksTest, anImportOfALookThatIsHereSelectsIt)
{
    Drop(QStringLiteral("a.cube"), MakeCube(QStringLiteral("Golden Hour")));
    SaveBrightAs(QStringLiteral("Dim"));
    Drop(QStringLiteral("b.cube"), MakeCube(QStringLiteral("Other")));

    EXPECT_TRUE(IsSelected("Golden Hour"));
}

TEST_F(OwnLooksTest, aHandedLookIsSelectedWhenThePanelIsSeenAgain)
{
    for (int i = 0; i < 24; ++i)
        SaveBrightAs(QStringLiteral("Own %1").arg(i));
    panel->GetWidget()->hide();
    ASSERT_EQ(panel->KeepLook(MakeLook(QStringLiteral("Handed"))), QString());

    panel->GetWidget()->resize(320, 560);
    panel->GetWidget()->show();

    EXPECT_TRUE(IsSelected("Handed"));
}

TEST_F(OwnLooksTest, anImportAsksAboutALongNameAndTellsHowItWasShortened)
{
    ScriptedAlerts alerts({QMessageBox::Yes});
    Drop(QStringLiteral("a.cube"), MakeCube(LongName));

    ASSERT_EQ(alerts.GetTexts().size(), 1);
    EXPECT_TRUE(alerts.GetTexts()[0].contains(LongName));
    EXPECT_TRUE(alerts.GetTexts()[0].contains(QStringLiteral("at most 50 characters")));
    EXPECT_EQ(UserNames(), QStringList{LongName.left(50).trimmed()});
    auto* const summary = panel->GetWidget()->findChild<ImportSummary*>();
    ASSERT_TRUE(summary);
    EXPECT_TRUE(summary->findChild<QTextBrowser*>()->toPlainText().contains(
        QStringLiteral("Shortened from: ") + LongName));
}

TEST_F(OwnLooksTest, aLongNameThatIsNotShortenedLeavesTheLookOutAndIsTold)
{
    ScriptedAlerts alerts({QMessageBox::Cancel});
    Drop(QStringLiteral("a.cube"), MakeCube(LongName));

    EXPECT_EQ(UserNames(), QStringList());
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages[0].contains(QStringLiteral("expected 1 to 50 characters")));
}

TEST_F(OwnLooksTest, anImportAsksAboutNamesOfTheCatalogue)
{
    ScriptedAlerts alerts({QMessageBox::Yes});
    Drop(QStringLiteral("a.cube"), MakeCube(QStringLiteral("Grey")));

    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Grey (a)")});
}
