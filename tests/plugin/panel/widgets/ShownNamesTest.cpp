// SPDX-License-Identifier: GPL-2.0-or-later
// The panel with a catalogue that has names in German, for a user who reads German.
#include "PanelFixture.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "panel/grid/PresetGrid.h"
#include "widgets/CustomToolBoxButton.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

using LumetraEditor::IEditorPanel;
using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

namespace {

constexpr char Catalogue[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
    {"name": "Seasons", "names": {"de": "Jahreszeiten"},
     "settings": {"intensity": {"type": 1, "blendSetting": {"value": 80}}}, "items": [
        {"name": "Autumn", "names": {"de": "Herbst"}, "id": "autumn",
         "effects": [{"effect": {"id": "exposure", "stops": 0.5}}]},
        {"name": "Summer", "names": {"de": "Sommer"}, "id": "summer",
         "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]})";

class PanelShownNamesTest : public PanelFixture
{
protected:
    PanelShownNamesTest()
    {
        QFile file(files.catalogues.front());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(Catalogue);
        file.close();
        StartIn(QLocale(QLocale::German));
    }
    ~PanelShownNamesTest() override { QLocale::setDefault(QLocale::c()); }

    void StartIn(const QLocale& locale)
    {
        QLocale::setDefault(locale);
        Restart();
        editor.OpenPhoto(photo);
    }

    QStringList Headers()
    {
        QStringList names;
        for (auto* const header : panel->GetWidget()->findChildren<CustomToolBoxButton*>())
            names.append(header->accessibleName());
        return names;
    }

    void Search(const char* text)
    {
        panel->GetWidget()->findChild<QLineEdit*>()->setText(QString::fromUtf8(text));
        QApplication::processEvents();
    }

    std::string SavedName()
    {
        return SerializerProperty::Create(panel->SaveEdit())->Get(IEditorPanel::EditName, "");
    }
};

} // namespace

TEST_F(PanelShownNamesTest, areInTheLanguageOfTheUser)
{
    EXPECT_EQ(Shown(0), (QStringList{QStringLiteral("Herbst"), QStringLiteral("Sommer")}));
    EXPECT_TRUE(Headers().contains(QStringLiteral("Jahreszeiten")));
    Click("Autumn");
    const auto labels = panel->GetWidget()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == QStringLiteral("Herbst");
    }));
    ASSERT_EQ(editor.steps.size(), 1);
    EXPECT_TRUE(editor.steps.front().contains(QStringLiteral("Herbst")));
}

TEST_F(PanelShownNamesTest, followAChangeOfTheLanguage)
{
    Click("Autumn");
    Search("autu");
    QLocale::setDefault(QLocale(QLocale::English));
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(panel->GetWidget(), &event);
    EXPECT_EQ(Shown(0), QStringList{QStringLiteral("Autumn")});
    EXPECT_TRUE(Headers().contains(QStringLiteral("Seasons")));
    const auto labels = panel->GetWidget()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == QStringLiteral("Autumn");
    }));
}

TEST_F(PanelShownNamesTest, areThoseOfTheLooksThatMayBeShared)
{
    PresetGrid& grid = Grid(0);
    grid.SetCurrentPreset(Named("Autumn"));
    grid.setFocus();
    QStringList names;
    QTimer::singleShot(0, [&names] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        const auto* const list = dialog->findChild<QTreeWidget*>(QStringLiteral("looksToShare"));
        const QTreeWidgetItem* const group = list->topLevelItem(0);
        names = QStringList{group->text(0), group->child(0)->text(0), group->child(1)->text(0)};
        dialog->reject();
    });
    Trigger("sharePreset");
    EXPECT_EQ(names, (QStringList{QStringLiteral("Jahreszeiten"), QStringLiteral("Herbst"),
                                  QStringLiteral("Sommer")}));
}

TEST_F(PanelShownNamesTest, areFoundInBothLanguages)
{
    const QStringList autumn{QStringLiteral("Herbst")};
    for (const char* text : {"herb", "autu"}) {
        Search(text);
        EXPECT_EQ(Shown(0), autumn) << text;
    }
    for (const char* text : {"jahres", "seasons", "jahres somm", "seasons somm"}) {
        Search(text);
        EXPECT_TRUE(Shown(0).contains(QStringLiteral("Sommer"))) << text;
    }
    Search("winter");
    EXPECT_EQ(Shown(0), QStringList());
}

/// Whoever opens the photo in another language finds the look, its mark and the record.
TEST_F(PanelShownNamesTest, areNotWhatTheEditAndTheStoreKeep)
{
    Click("Autumn");
    ClickStar("Autumn");
    EXPECT_EQ(SavedName(), "Autumn");
    const auto edit = panel->SaveEdit();
    EXPECT_FALSE(StoreText().contains(QStringLiteral("Herbst")));
    EXPECT_TRUE(StoreText().contains(QStringLiteral("Seasons")));

    StartIn(QLocale(QLocale::English));
    EXPECT_EQ(Shown(0).front(), QStringLiteral("Autumn"));
    EXPECT_TRUE(Named("Autumn").data(PresetModel::FavouriteRole).toBool());
    panel->RestoreEdit(edit);
    EXPECT_TRUE(IsApplied("Autumn"));
    EXPECT_EQ(SavedName(), "Autumn");
}

TEST_F(PanelShownNamesTest, areOfferedForASavedCopyWhichKeepsIt)
{
    Click("Autumn");
    QTimer::singleShot(0, [] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QStringLiteral("Herbst 2"));
        dialog->accept();
        if (dialog->isVisible())
            dialog->reject();
    });
    Trigger("savePreset");
    const QModelIndex group = Model().GetUserGroup();
    ASSERT_EQ(Model().rowCount(group), 1);
    EXPECT_EQ(Shown(group.row()), QStringList{QStringLiteral("Herbst 2")});
    StartIn(QLocale(QLocale::English));
    EXPECT_EQ(Shown(group.row()), QStringList{QStringLiteral("Herbst 2")});
}
