// SPDX-License-Identifier: GPL-2.0-or-later
// The window's own commands and dialogs.
#include "Places.h"
#include "editor/EditorFixture.h"

#include "actions/EditorActions.h"
#include "canvas/PhotoCanvas.h"
#include "settings/EditorSettings.h"
#include "window/MessageBar.h"
#include "window/StartPage.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::Contains;
using testing::HasSubstr;

namespace {

class WindowTest : public EditorTest
{
protected:
    /// Works on the dialog that the next step opens, and closes it.
    void InDialog(const std::function<void(QDialog&)>& work)
    {
        QTimer::singleShot(0, window.get(), [work] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            work(*dialog);
            dialog->reject();
        });
    }

    void ChooseInDialog(const QString& path)
    {
        QTimer::singleShot(0, window.get(), [path] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }

    std::vector<std::string> ListedKeys()
    {
        std::vector<std::string> keys;
        InDialog([&keys](QDialog& dialog) {
            auto* const list = dialog.findChild<QTreeWidget*>(QStringLiteral("shortcutsList"));
            ASSERT_NE(list, nullptr);
            for (int i = 0; i < list->topLevelItemCount(); ++i)
                keys.push_back(list->topLevelItem(i)->text(1).toStdString());
        });
        FindAction("shortcuts")->trigger();
        return keys;
    }
};

} // namespace

TEST_F(WindowTest, quits)
{
    FindAction("quit")->trigger();

    EXPECT_FALSE(window->isVisible());
}

TEST_F(WindowTest, fillsTheScreenAndShrinksAgain)
{
    FindAction("fullScreen")->trigger();
    EXPECT_TRUE(window->isFullScreen());

    FindAction("fullScreen")->trigger();
    EXPECT_FALSE(window->isFullScreen());
}

TEST_F(WindowTest, opensPhotosByTheirDialog)
{
    const QString path = WritePhoto("lake.png", 40, 30);
    ChooseInDialog(path);

    FindAction("open")->trigger();
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), path);
}

TEST_F(WindowTest, theStartPageAsksForAPhotoToo)
{
    const QString path = WritePhoto("lake.png", 40, 30);
    ChooseInDialog(path);

    Find<QPushButton>("startOpen")->click();
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), path);
}

TEST_F(WindowTest, theStartPageOffersRecentPhotos)
{
    const QString path = WritePhoto("lake.png", 40, 30);
    Open(path);
    FindAction("closePhoto")->trigger();
    ASSERT_FALSE(editor->HasPhoto());

    auto* const recent = Find<QPushButton>("recentPhoto0");
    EXPECT_EQ(recent->text(), QStringLiteral("lake.png"));
    recent->click();
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), path);
}

TEST_F(WindowTest, escClosesTheMessageThatHasTheFocus)
{
    Open(WriteFile("notes.jpg", "no photo"));
    auto* const button = Find<QToolButton>("messageClose");
    button->setFocus();

    QTest::keyClick(button, Qt::Key_Escape);

    EXPECT_FALSE(GetPart<LumetraEditor::MessageBar>().isVisible());
}

TEST_F(WindowTest, refusesInTheUsersLanguageFirst)
{
    window->UseLanguage(QStringLiteral("de"));
    Open(WriteFile("notes.jpg", "no photo"));

    EXPECT_EQ(GetMessage().section(QLatin1Char('\n'), 0, 0),
              QStringLiteral("„notes.jpg“ lässt sich nicht öffnen."));
    EXPECT_THAT(GetMessage().section(QLatin1Char('\n'), 1).toStdString(), HasSubstr("expected"));
    window->UseLanguage(QStringLiteral("en"));
}

TEST_F(WindowTest, theMessageShowsAllOfItsText)
{
    Open(WriteFile("notes.jpg", "no photo"));
    auto* const label = Find<QLabel>("messageText");

    const QRect needed =
        label->fontMetrics().boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text());
    EXPECT_LE(needed.height(), label->contentsRect().height());
    EXPECT_TRUE(
        label->parentWidget()->parentWidget()->rect().contains(label->parentWidget()->geometry()));
}

TEST_F(WindowTest, listsAllKeys)
{
    LoadPresetsPanel();
    const auto keys = ListedKeys();

    for (const QAction* const action : GetPart<LumetraEditor::EditorActions>().GetKeyed())
        EXPECT_THAT(keys, Contains(HasSubstr(action->shortcut().toString().toStdString())));
    EXPECT_THAT(keys, Contains("Alt+Up, Alt+Down")); // the list of layers
    EXPECT_THAT(keys, Contains("Ctrl+D"));           // the panel's
    EXPECT_THAT(keys, Contains("Alt+1 to Alt+9"));
}

TEST_F(WindowTest, theListOfKeysNamesTheCommandAndNotTheNextStep)
{
    LoadPresetsPanel();
    Open(WritePhoto("lake.png", 60, 40));
    ClickLook(QStringLiteral("Soft Light"));
    ASSERT_NE(FindAction("undo")->text(), QStringLiteral("&Undo"));
    QStringList commands;
    InDialog([&commands](QDialog& dialog) {
        auto* const list = dialog.findChild<QTreeWidget*>(QStringLiteral("shortcutsList"));
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            commands.append(list->topLevelItem(i)->text(0));
    });

    FindAction("shortcuts")->trigger();

    EXPECT_TRUE(commands.contains(QStringLiteral("Undo")));
    EXPECT_TRUE(commands.contains(QStringLiteral("Redo")));
    EXPECT_FALSE(commands.join(QLatin1Char('\n')).contains(QStringLiteral("Soft Light")));
}

TEST_F(WindowTest, aToolTipHasOneBlankBeforeItsKey)
{
    for (const QString& language : {QStringLiteral("de"), QStringLiteral("en")}) {
        window->UseLanguage(language);
        for (const QAction* const action : GetPart<LumetraEditor::EditorActions>().GetKeyed())
            EXPECT_FALSE(action->toolTip().contains(QStringLiteral("  ")))
                << action->toolTip().toStdString();
    }
}

TEST_F(WindowTest, theButtonsOfDialogsHaveNoIcons)
{
    Open(WritePhoto("lake.png", 60, 40));
    for (const char* const command : {"about", "shortcuts", "exportPhoto"}) {
        int count = 0;
        InDialog([&count](QDialog& dialog) {
            for (const auto* const box : dialog.findChildren<QDialogButtonBox*>())
                for (const auto* const button : box->buttons()) {
                    EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
                    ++count;
                }
        });
        FindAction(command)->trigger();
        EXPECT_GT(count, 0) << command;
    }
}

TEST_F(WindowTest, listsNoKeysOfAPanelThatIsNotThere)
{
    EXPECT_THAT(ListedKeys(), testing::Not(Contains("Ctrl+D")));
}

TEST_F(WindowTest, tellsItsVersionAndLicence)
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    QString version, text;
    InDialog([&](QDialog& dialog) {
        version = dialog.findChild<QLabel*>(QStringLiteral("aboutVersion"))->text();
        text = dialog.findChild<QLabel*>(QStringLiteral("aboutText"))->text();
    });

    FindAction("about")->trigger();

    EXPECT_EQ(version, QStringLiteral("Version 1.2.3"));
    EXPECT_THAT(text.toStdString(), HasSubstr("GNU General Public License"));
}

TEST_F(WindowTest, theManualNamesTheFileOfTheSettings)
{
    FindAction("light")->trigger();
    window.reset(); // written
    QDirIterator files(Path("settings"), {QStringLiteral("*.ini")}, QDir::Files,
                       QDirIterator::Subdirectories);
    const QString file = files.next();
    ASSERT_TRUE(QFile::exists(file)) << file.toStdString();
    QFile manual(QStringLiteral(LUMETRA_DOCS "/editor.md"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));

    const QByteArray text = manual.readAll();

    const QByteArray name = (file.section(QLatin1Char('/'), -2)).toUtf8(); // with its folder
    EXPECT_TRUE(text.contains('`' + name + '`')) << name.toStdString();
    EXPECT_FALSE(text.contains("lumetra-editor.conf"));
}

TEST_F(WindowTest, everyKeyReachesItsCommand)
{
    LoadPresetsPanel();
    const QString path = WritePhoto("lake.png", 40, 30);
    window->OpenPhotos({path, path});
    WaitUntil([this] { return !editor->IsOpening(); });
    GetPart<LumetraEditor::PhotoCanvas>().setFocus();
    for (QAction* const action : GetPart<LumetraEditor::EditorActions>().GetKeyed()) {
        action->disconnect(); // counted, not done
        action->setEnabled(true);
        for (const QKeySequence& key : action->shortcuts()) {
            int count = 0;
            const auto counting = QObject::connect(action, &QAction::triggered, [&] { ++count; });
            QTest::keyClick(&GetPart<LumetraEditor::PhotoCanvas>(),
                            static_cast<Qt::Key>(key[0] & ~Qt::KeyboardModifierMask),
                            static_cast<Qt::KeyboardModifiers>(key[0] & Qt::KeyboardModifierMask));
            QObject::disconnect(counting);
            EXPECT_EQ(count, 1) << key.toString().toStdString();
        }
    }
}

TEST_F(WindowTest, theSidePanelGrowsByItsEdgeAndKeepsItsWidth)
{
    LoadPresetsPanel();
    auto* const splitter = Find<QSplitter>("splitter");
    auto* const side = Find<QWidget>("sidePanel");
    const int before = side->width();
    QWidget& handle = *splitter->handle(1);

    QTest::mousePress(&handle, Qt::LeftButton, {}, {0, 100});
    QMouseEvent move(QEvent::MouseMove, {-80, 100}, handle.mapToGlobal({-80, 100}), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&handle, &move);
    QTest::mouseRelease(&handle, Qt::LeftButton, {}, {0, 100});
    const int wide = side->width();
    EXPECT_NEAR(wide, before + 80, 2);
    ASSERT_TRUE(window->close());
    Restart();

    EXPECT_EQ(Find<QWidget>("sidePanel")->width(), wide);
}

/// The drivers take more memory than the editor itself.
TEST_F(WindowTest, isDrawnWithoutDriversForOpenGl)
{
    Open(WritePhoto("lake.png", 40, 30));
    QFile maps(QStringLiteral("/proc/self/maps"));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));

    const QByteArray loaded = maps.readAll();

    EXPECT_FALSE(loaded.contains("_dri.so")) << "a driver of Mesa";
    EXPECT_FALSE(loaded.contains("libGLX_")) << "a vendor's library for X11";
}
