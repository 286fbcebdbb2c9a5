// SPDX-License-Identifier: GPL-2.0-or-later
// One set of keys for the whole window, wherever the focus is.
#include "Places.h"
#include "editor/EditorFixture.h"
#include "editor/canvas/SplitLine.h"

#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "canvas/PhotoCanvas.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <set>

using namespace LumetraTest;
using LumetraEditor::PhotoCanvas;
using testing::HasSubstr;

namespace {

/// A line of the list of keys, and one of its keys.
struct ListedKey
{
    QString section, command, key;
};

class KeysTest : public EditorTest
{
protected:
    KeysTest() { LoadPresetsPanel(); }

    void OpenWithALook()
    {
        Open(WritePhoto("lake.png", 600, 400));
        ClickLook(QStringLiteral("Candlelight")); // with something to tune
        FindAction("split")->trigger();
    }

    PhotoCanvas& Canvas() const { return GetPart<LumetraEditor::PhotoCanvas>(); }
    QLineEdit* Search() const { return Find<QLineEdit>("searchField"); }

    /// The entries of the list of keys (F1).
    std::vector<ListedKey> ReadList()
    {
        std::vector<ListedKey> keys;
        QTimer::singleShot(0, window.get(), [&keys] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            auto* const list = dialog->findChild<QTreeWidget*>(QStringLiteral("shortcutsList"));
            QString section;
            for (int i = 0; i < list->topLevelItemCount(); ++i) {
                const QTreeWidgetItem& row = *list->topLevelItem(i);
                if (row.text(1).isEmpty())
                    section = row.text(0);
                for (const QString& key : SplitKeys(row.text(1)))
                    keys.push_back({section, row.text(0), key});
            }
            dialog->reject();
        });
        FindAction("shortcuts")->trigger();
        return keys;
    }

    static QStringList SplitKeys(QString text)
    {
        text.remove(QStringLiteral(" held"));
        if (!text.contains(QStringLiteral(" to ")))
            return text.split(QStringLiteral(", "), Qt::SkipEmptyParts);
        QStringList keys; // "Alt+1 to Alt+9"
        for (char digit = text[4].toLatin1(); digit <= text.back().toLatin1(); ++digit)
            keys.append(QStringLiteral("Alt+") + QLatin1Char(digit));
        return keys;
    }

    void Press(const QString& key)
    {
        const int code = QKeySequence(key)[0];
        ASSERT_NE(code, Qt::Key_unknown) << key.toStdString();
        const auto press = static_cast<Qt::Key>(code & ~Qt::KeyboardModifierMask);
        const auto modifiers = static_cast<Qt::KeyboardModifiers>(code & Qt::KeyboardModifierMask);
        QTest::keyPress(QApplication::focusWidget(), press, modifiers);
        if (Canvas().IsComparing())
            done.append(QStringLiteral("See the original"));
        QTest::keyRelease(QApplication::focusWidget(), press, modifiers);
    }

    /// Notes commands from now on instead of running them.
    void NoteKeys()
    {
        for (QAction* const action : window->findChildren<QAction*>()) {
            if (action->shortcut().isEmpty())
                continue;
            action->disconnect();
            action->setEnabled(true);
            QObject::connect(action, &QAction::triggered, window.get(), [this, action] {
                done.append(action->iconText().remove(QStringLiteral("…")));
            });
        }
        for (QShortcut* const shortcut : window->findChildren<QShortcut*>()) {
            shortcut->disconnect();
            const auto note = [this, shortcut] { done.append(shortcut->whatsThis()); };
            QObject::connect(shortcut, &QShortcut::activated, window.get(), note);
            QObject::connect(shortcut, &QShortcut::activatedAmbiguously, window.get(), [note] {
                ADD_FAILURE() << "two commands for one key";
                note();
            });
        }
        QObject::connect(&Canvas(), &PhotoCanvas::zoomChanged, window.get(), [this] {
            done.append(QStringLiteral("Zoom in, out, fit, 100 %, 200 %, 400 %"));
        });
    }

    /// The effects of the key, commands or not.
    QStringList Do(const QString& key)
    {
        done.clear();
        const double line = FindSplitLine(Canvas());
        Press(key);
        if (FindSplitLine(Canvas()) != line)
            done.append(QStringLiteral("Move the line of the split view"));
        return done;
    }

    QStringList done;
};

/// True for keys that a text field keeps for itself: they type or edit.
bool BelongsToText(const QString& key)
{
    static const std::set<QString> own{QStringLiteral("\\"),
                                       QStringLiteral("+"),
                                       QStringLiteral("-"),
                                       QStringLiteral("0"),
                                       QStringLiteral("1"),
                                       QStringLiteral("2"),
                                       QStringLiteral("4"),
                                       QStringLiteral("Del"),
                                       QStringLiteral("Ctrl+A"),
                                       QStringLiteral("Ctrl+Z"),
                                       QStringLiteral("Ctrl+Shift+Z"),
                                       QStringLiteral("Ctrl+Y"),
                                       QStringLiteral("Ctrl+E"),
                                       QStringLiteral("Ctrl+Backspace")};
    return own.count(key) > 0;
}

} // namespace

TEST_F(KeysTest, everyListedKeyWorksFromEveryPlace)
{
    OpenWithALook();
    const auto list = ReadList();
    QApplication::setActiveWindow(window.get()); // the dialog was active
    ASSERT_GT(list.size(), 35U);
    NoteKeys();
    auto* const number = Find<QSlider>("intensitySlider")->parentWidget()->findChild<QSpinBox*>();
    QWidget* const places[] = {&Canvas(),
                               FindLook(QStringLiteral("Candlelight")).first,
                               Search(),
                               Find<QSlider>("intensitySlider"),
                               number,
                               Find<QSlider>("extraSlider0"),
                               Find<QToolButton>("compare"),
                               Find<QToolButton>("filterButton1"),
                               Find<QToolButton>("favouriteButton"),
                               Find<QPushButton>("applyButton")};
    int walked = 0;
    for (QWidget* const place : places) {
        place->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), place) << place->objectName().toStdString();
        const bool isText = place == Search() || place == number;
        for (const ListedKey& one : list) {
            if (one.section.contains(QStringLiteral("while it has the focus")) ||
                one.key == QStringLiteral("Esc") || (isText && BelongsToText(one.key)))
                continue;
            ++walked;
            EXPECT_EQ(Do(one.key), QStringList{one.command})
                << one.key.toStdString() << " on " << place->metaObject()->className() << ' '
                << place->objectName().toStdString();
            EXPECT_EQ(QApplication::focusWidget(), place);
        }
    }
    EXPECT_GT(walked, 300);
}

TEST_F(KeysTest, theKeysOfThePhotoAloneWorkOnThePhoto)
{
    OpenWithALook();
    Canvas().setFocus();

    QTest::keyPress(&Canvas(), Qt::Key_Space);
    EXPECT_TRUE(Canvas().IsComparing());
    QTest::keyRelease(&Canvas(), Qt::Key_Space);
    EXPECT_FALSE(Canvas().IsComparing());
    Canvas().SetZoom(4);
    const QRect before = Canvas().GetView().GetVisiblePart();
    QTest::keyClick(&Canvas(), Qt::Key_Right);
    EXPECT_NE(Canvas().GetView().GetVisiblePart(), before);
}

TEST_F(KeysTest, aTextFieldTypesWhatElsewhereIsACommand)
{
    OpenWithALook();
    const double zoom = Canvas().GetView().GetZoom();
    Search()->setFocus();

    QTest::keyClicks(Search(), QStringLiteral("\\+-01"));

    EXPECT_EQ(Search()->text(), QStringLiteral("\\+-01"));
    EXPECT_EQ(Canvas().GetView().GetZoom(), zoom);
    EXPECT_FALSE(Canvas().IsComparing());
}

TEST_F(KeysTest, undoInATextFieldUndoesItsText)
{
    OpenWithALook();
    Search()->setFocus();
    QTest::keyClicks(Search(), QStringLiteral("fresh"));

    QTest::keyClick(Search(), Qt::Key_Z, Qt::ControlModifier);

    EXPECT_EQ(Search()->text(), QString());
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Candlelight"));
    Canvas().setFocus();
    QTest::keyClick(&Canvas(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(GetAppliedName(), QStringLiteral("Candlelight"));
}

TEST_F(KeysTest, deleteInATextFieldDeletesNoPreset)
{
    OpenWithALook();
    Search()->setText(QStringLiteral("abc"));
    Search()->setFocus();
    Search()->home(false);

    QTest::keyClick(Search(), Qt::Key_Delete); // an unexpected question would fail the test

    EXPECT_EQ(Search()->text(), QStringLiteral("bc"));
}

TEST_F(KeysTest, theOriginalGoesWhereverTheKeyIsLetGo)
{
    OpenWithALook();
    auto* const button = Find<QPushButton>("applyButton");
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Backslash);
    EXPECT_TRUE(Canvas().IsComparing());

    Search()->setFocus();
    QTest::keyRelease(Search(), Qt::Key_Backslash);
    EXPECT_FALSE(Canvas().IsComparing());

    button->setFocus();
    QTest::keyPress(button, Qt::Key_Backslash);
    QEvent leave(QEvent::WindowDeactivate);
    QApplication::sendEvent(window.get(), &leave);
    EXPECT_FALSE(Canvas().IsComparing());
}

TEST_F(KeysTest, aKeyBringsItsHiddenPanelIntoSight)
{
    OpenWithALook();
    FindAction("sidePanel")->trigger();
    Canvas().setFocus();
    ASSERT_FALSE(Search()->isVisible());

    QTest::keyClick(&Canvas(), Qt::Key_F, Qt::ControlModifier);

    EXPECT_TRUE(Search()->isVisible());
    EXPECT_TRUE(FindAction("sidePanel")->isChecked());
    EXPECT_EQ(QApplication::focusWidget(), Search());
}

TEST_F(KeysTest, aKeyBringsThePanelBehindAnotherTabToTheFront)
{
    LoadExamplePanel();
    OpenWithALook();
    auto* const panels = Find<QTabWidget>("panels");
    panels->setCurrentIndex(1);
    Canvas().setFocus();

    QTest::keyClick(&Canvas(), Qt::Key_F, Qt::ControlModifier);

    EXPECT_EQ(panels->currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), Search());
}

TEST_F(KeysTest, thePanelsKeysRestWhileItIsLocked)
{
    using Zorvik::Lumetra::LumetraInt::IObjectsConnectorID;
    OpenWithALook();
    const auto lock = [](bool isLocked) {
        Zorvik::Util::ObjectsConnector::sendMessage(IObjectsConnectorID::CORE_DRAWER_LOCK,
                                                    {isLocked});
    };
    lock(true);
    Canvas().setFocus();
    QTest::keyClick(&Canvas(), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Candlelight"));

    lock(false);
    QTest::keyClick(&Canvas(), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_NE(GetAppliedName(), QStringLiteral("Candlelight"));
}

TEST_F(KeysTest, aKeyThatIsTakenStaysWithWhoHadItFirst)
{
    qApp->setProperty("keyedModule", 0);
    window->LoadPanels({QStringLiteral(LUMETRA_TEST_MODULES "/keyed-module")});
    OpenWithALook();

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("Keyed"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("Ctrl+E"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("Alt+2"));
    NoteKeys();
    Canvas().setFocus();
    EXPECT_EQ(Do(QStringLiteral("Ctrl+E")), QStringList{QStringLiteral("Export")});
    EXPECT_EQ(Do(QStringLiteral("Alt+2")),
              QStringList{QStringLiteral("Open or shut the group in that place")});
    EXPECT_EQ(Do(QStringLiteral("Ctrl+Shift+K")), QStringList{QStringLiteral("Count")});
}
