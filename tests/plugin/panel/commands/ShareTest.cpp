// SPDX-License-Identifier: GPL-2.0-or-later
#include "PanelFixture.h"
#include "core/PresetCollection.h"
#include "core/PresetControllerFactory.h"
#include "core/looks/LookReader.h"
#include "editor/ScriptedAlerts.h"
#include "panel/grid/PresetGrid.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>

#include <functional>

using LumetraHost::JsonDocument;
using LumetraPlugin::LookReader;
using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;
using LumetraTest::ScriptedAlerts;

namespace {

constexpr char Grey[] = R"({ "format": "lumetra-look", "version": 1, "looks": [ { "name": "Sent",
  "effects": [ { "effect": { "id": "saturation", "amount": -70 } } ] } ] })";
constexpr char OtherGrey[] = R"({ "format": "lumetra-look", "version": 1, "looks": [ {
  "name": "Sent", "effects": [ { "effect": { "id": "saturation", "amount": -71 } } ] } ] })";

constexpr char OfGrace[] = R"({ "format": "lumetra-look", "version": 1, "looks": [ {
  "name": "Hers", "author": "Grace", "licence": "CC0-1.0",
  "effects": [ { "effect": { "id": "saturation", "amount": 33 } } ] } ] })";

class ShareTest : public PanelFixture
{
protected:
    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QString Write(const char* name, const char* text) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    void Drop(const QString& path)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(panel->GetWidget(), &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel->GetWidget(), &drop);
    }

    /// Opens the dialog for the look, works on it and accepts it, and then the one for the file.
    void Share(const char* look, const QString& path, const std::function<void(QDialog&)>& work)
    {
        PresetGrid& grid = Grid(Named(look).parent().row());
        grid.SetCurrentPreset(Named(look));
        grid.setFocus();
        QTimer::singleShot(0, [path, work] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            ASSERT_EQ(dialog->objectName(), QStringLiteral("shareLooks"));
            work(*dialog);
            QTimer::singleShot(0, [path] {
                auto* const chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                ASSERT_TRUE(chooser);
                EXPECT_TRUE(chooser->selectedFiles().value(0).endsWith(QStringLiteral(".lumetra")));
                chooser->selectFile(path);
                QMetaObject::invokeMethod(chooser, "accept");
            });
            dialog->findChild<QPushButton*>(QStringLiteral("shareButton"))->click();
        });
        Trigger("sharePreset");
    }

    /// Ticks or unticks a look.
    static void Tick(QDialog& dialog, const char* look, Qt::CheckState state)
    {
        auto* const list = dialog.findChild<QTreeWidget*>(QStringLiteral("looksToShare"));
        const auto items =
            list->findItems(QLatin1String(look), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(items.size(), 1);
        items.front()->setCheckState(0, state);
    }

    static QLineEdit& Author(const QDialog& dialog)
    {
        return *dialog.findChild<QLineEdit*>(QStringLiteral("author"));
    }
    static QComboBox& Licence(const QDialog& dialog)
    {
        return *dialog.findChild<QComboBox*>(QStringLiteral("licence"));
    }
    static QByteArray TextOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList NamesIn(const QString& path)
    {
        QStringList names;
        QStringList problems;
        for (const auto& preset : LookReader::Read(LookReader::ReadFile(path),
                                                   panel->GetPresets().GetFactory(), problems))
            names.append(QString::fromStdString(preset->GetName()));
        EXPECT_TRUE(problems.isEmpty());
        return names;
    }
};

} // namespace

TEST_F(ShareTest, theLookOfTheMenuIsWrittenWithWhoHasMadeIt)
{
    const QString path = Path("bright.lumetra");
    Share("Bright", path, [](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("author"))->setText(QStringLiteral("Ada"));
        dialog.findChild<QComboBox*>(QStringLiteral("licence"))
            ->setCurrentText(QStringLiteral("CC-BY-4.0"));
    });
    EXPECT_EQ(NamesIn(path), QStringList(QStringLiteral("Bright")));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("\"author\": \"Ada\""));
    EXPECT_TRUE(text.contains("\"licence\": \"CC-BY-4.0\""));
    EXPECT_TRUE(text.contains("\"mediaType\": \"image/jpeg\""));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages[0].contains(path));
}

TEST_F(ShareTest, whoHasMadeTheLastOneIsProposedAgain)
{
    Share("Bright", Path("bright.lumetra"), [](QDialog& dialog) {
        Author(dialog).setText(QStringLiteral("Ada, \"the\" Great\u202e"));
        Licence(dialog).setCurrentText(QStringLiteral("CC-BY-4.0"));
    });
    Restart();
    Share("Grey", Path("grey.lumetra"), [](QDialog& dialog) {
        EXPECT_EQ(Author(dialog).text(), QStringLiteral("Ada, \"the\" Great"));
        EXPECT_EQ(Licence(dialog).currentText(), QStringLiteral("CC-BY-4.0"));
        Author(dialog).clear();
    });
    EXPECT_EQ(NamesIn(Path("bright.lumetra")), QStringList(QStringLiteral("Bright")));
    EXPECT_FALSE(TextOf(Path("grey.lumetra")).contains("author"));
    EXPECT_TRUE(TextOf(Path("grey.lumetra")).contains("\"licence\": \"CC-BY-4.0\""));
    Share("Grey", Path("again.lumetra"),
          [](QDialog& dialog) { EXPECT_EQ(Author(dialog).text(), QString()); });
}

TEST_F(ShareTest, aLookOfSomebodyElseStaysTheirs)
{
    Drop(Write("sent.lumetra", OfGrace));
    Share("Bright", Path("bright.lumetra"),
          [](QDialog& dialog) { Author(dialog).setText(QStringLiteral("Ada")); });
    Share("Bright", Path("pack.lumetra"), [](QDialog& dialog) {
        EXPECT_EQ(Author(dialog).text(), QStringLiteral("Ada"));
        Tick(dialog, "Hers", Qt::Checked);
    });
    const QByteArray pack = TextOf(Path("pack.lumetra"));
    EXPECT_EQ(pack.count("\"author\": \"Ada\""), 1);
    EXPECT_EQ(pack.count("\"author\": \"Grace\""), 1);

    Share("Hers", Path("hers.lumetra"),
          [](QDialog& dialog) { EXPECT_EQ(Author(dialog).text(), QStringLiteral("Grace")); });
    EXPECT_TRUE(TextOf(Path("hers.lumetra")).contains("\"author\": \"Grace\""));
    Share("Bright", Path("again.lumetra"), [](QDialog& dialog) {
        EXPECT_EQ(Author(dialog).text(), QStringLiteral("Ada")) << "the user is not Grace";
    });
}

TEST_F(ShareTest, theWindowLivesWhileThePicturesAreDrawn)
{
    int ticks = 0;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&] {
        if (!QApplication::activeModalWidget())
            ++ticks;
    });
    Share("Bright", Path("bright.lumetra"), [&clock](QDialog&) { clock.start(0); });
    EXPECT_GT(ticks, 0);
    EXPECT_TRUE(TextOf(Path("bright.lumetra")).contains("\"mediaType\": \"image/jpeg\""));
}

TEST_F(ShareTest, theIntensityThatIsShownIsWrittenAlsoAfterAnUndo)
{
    Click("Warm");
    const auto before = panel->SaveEdit();
    Drag("intensitySlider", {20});
    Share("Warm", Path("weaker.lumetra"), [](QDialog&) {});
    EXPECT_TRUE(TextOf(Path("weaker.lumetra")).contains("\"temperature\": 7100"));

    panel->RestoreEdit(before);
    Share("Warm", Path("warm.lumetra"), [](QDialog&) {});

    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 50);
    EXPECT_TRUE(TextOf(Path("warm.lumetra")).contains("\"temperature\": 8000"));
}

TEST_F(ShareTest, severalLooksMakeOneFile)
{
    const QString path = Path("pack.lumetra");
    const QString other =
        Named("Bright").sibling(1, 0).data(PresetModel::PresetNameRole).toString();
    Share("Bright", path,
          [&other](QDialog& dialog) { Tick(dialog, qPrintable(other), Qt::Checked); });
    EXPECT_EQ(NamesIn(path), (QStringList{QStringLiteral("Bright"), other}));
}

TEST_F(ShareTest, withoutALookNothingCanBeShared)
{
    bool isEnabled = true;
    QTimer::singleShot(0, [&isEnabled] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        Tick(*dialog, "Bright", Qt::Unchecked);
        isEnabled = dialog->findChild<QPushButton*>(QStringLiteral("shareButton"))->isEnabled();
        dialog->reject();
    });
    Grid(Named("Bright").parent().row()).SetCurrentPreset(Named("Bright"));
    Grid(Named("Bright").parent().row()).setFocus();
    Trigger("sharePreset");
    EXPECT_FALSE(isEnabled);
    EXPECT_TRUE(editor.messages.isEmpty());
}

TEST_F(ShareTest, aDroppedLookBecomesAPresetOnce)
{
    const QString path = Write("sent.lumetra", Grey);
    Drop(path);
    EXPECT_EQ(Shown(UserPage), QStringList(QStringLiteral("Sent")));
    EXPECT_TRUE(StoreText().contains(QStringLiteral("Sent")));
    Drop(path);
    EXPECT_EQ(Shown(UserPage), QStringList(QStringLiteral("Sent")));
    ASSERT_EQ(editor.messages.size(), 2);
    EXPECT_TRUE(editor.messages[1].contains(QStringLiteral("is here already")));
}

TEST_F(ShareTest, aTakenNameIsAskedFor)
{
    Drop(Write("sent.lumetra", Grey));
    const QString other = Write("other.lumetra", OtherGrey);
    {
        ScriptedAlerts alerts({QMessageBox::Cancel});
        Drop(other);
    }
    EXPECT_EQ(Shown(UserPage), QStringList(QStringLiteral("Sent")));
    {
        ScriptedAlerts alerts({QMessageBox::Yes});
        Drop(other);
    }
    EXPECT_EQ(Shown(UserPage), (QStringList{QStringLiteral("Sent"), QStringLiteral("Sent 2")}));
}

TEST_F(ShareTest, aPictureWithoutALookSaysSo)
{
    Drop(Write("photo.jpg", "no picture"));
    EXPECT_TRUE(Shown(UserPage).isEmpty());
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages[0].contains(QStringLiteral("photo.jpg")));
}

TEST_F(ShareTest, movingThePressedMouseAwayDragsTheLookAndIsNoClick)
{
    PresetGrid& grid = Grid(Named("Bright").parent().row());
    const QPoint place = grid.visualRect(grid.GetPresets().FromPreset(Named("Bright"))).center();
    QString dragged;
    QObject::disconnect(&grid, &PresetGrid::dragged, nullptr,
                        nullptr); // a drag would wait for its end
    QObject::connect(&grid, &PresetGrid::dragged, [&dragged](const QModelIndex& preset) {
        dragged = preset.data(PresetModel::PresetNameRole).toString();
    });
    const auto send = [&grid](QEvent::Type type, const QPoint& position, Qt::MouseButton button) {
        QMouseEvent event(type, position, button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(grid.viewport(), &event);
    };
    send(QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(QEvent::MouseMove, place + QPoint(2 * QApplication::startDragDistance(), 0), Qt::NoButton);
    send(QEvent::MouseButtonRelease, place, Qt::LeftButton);
    EXPECT_EQ(dragged, QStringLiteral("Bright"));
    EXPECT_FALSE(IsApplied("Bright"));
}
