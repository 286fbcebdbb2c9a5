// SPDX-License-Identifier: MIT
#include "widgets/NewPresetDialog.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include "RealInput.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <functional>

namespace LumetraTest {
namespace {

using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;
using Zorvik::Util::AlertBox;

/// Notes every alert, its styling included, in one ordered log.
class ScriptedAlerts : public Zorvik::Util::IAlertBackend, public Zorvik::Lumetra::IStyleBackend
{
public:
    QMessageBox::StandardButton Exec(AlertBox& box) override
    {
        log += QStringLiteral("alert level ") + QString::number(static_cast<int>(box.level)) +
               QStringLiteral(" title '") + box.title + QStringLiteral("' text '") + box.text +
               QStringLiteral("' buttons ") + QString::number(static_cast<int>(box.buttons)) +
               QStringLiteral(" flags ") + QString::number(static_cast<int>(box.flags));
        parent = box.parent;
        if (duringAlert)
            duringAlert();
        return QMessageBox::Ok;
    }

    QVariant Option(Zorvik::Lumetra::StyleProvider::OptionKey) const override { return {}; }

    void StyleAlert(AlertBox& box, const Zorvik::Lumetra::ButtonList& buttons,
                    QMessageBox::StandardButton defaultButton) override
    {
        log += QStringLiteral("style '") + box.text + QStringLiteral("' buttons ") +
               QString::number(buttons.size()) + QStringLiteral(" default ") +
               QString::number(static_cast<int>(defaultButton));
    }

    QStringList log;
    QWidget* parent = nullptr;
    std::function<void()> duringAlert;
};

class NewPresetDialogTest : public testing::Test
{
protected:
    NewPresetDialogTest()
    {
        AlertBox::SetBackend(m_alerts);
        Zorvik::Lumetra::StyleProvider::SetBackend(m_alerts);
    }

    ~NewPresetDialogTest() override
    {
        AlertBox::SetBackend(nullptr);
        Zorvik::Lumetra::StyleProvider::SetBackend(nullptr);
    }

    void Make(const QStringList& taken, NewPresetDialog::Mode mode = NewPresetDialog::Create)
    {
        m_dialog = std::make_unique<NewPresetDialog>(taken, mode, nullptr);
    }

    void MakeShown(const QStringList& taken)
    {
        Make(taken);
        Show(*m_dialog);
    }

    template <class Widget>
    Widget& Child(const char* name) const
    {
        auto* child = m_dialog->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(child, nullptr) << name;
        return *child;
    }

    QLineEdit& Edit() const { return Child<QLineEdit>("lineEdit"); }
    QToolButton& Save() const { return Child<QToolButton>("saveButton"); }
    QToolButton& Cancel() const { return Child<QToolButton>("cancelButton"); }

    void Type(const char* text) const
    {
        Edit().clear();
        QTest::keyClicks(&Edit(), QString::fromUtf8(text));
    }

    std::string Alerts() const { return m_alerts->log.join(QLatin1Char('\n')).toStdString(); }

    std::shared_ptr<ScriptedAlerts> m_alerts = std::make_shared<ScriptedAlerts>();
    std::unique_ptr<NewPresetDialog> m_dialog;
};

constexpr char FooAlert[] =
    "style 'Name \"Foo\" already exists, choose another one.' buttons 0 default 0\n"
    "alert level 1 title '' text 'Name \"Foo\" already exists, choose another one.' "
    "buttons 1024 flags 259";

TEST_F(NewPresetDialogTest, formIsBuiltAsStyleSheetsExpectIt)
{
    Make({});

    EXPECT_EQ(m_dialog->objectName(), QStringLiteral("NewPresetDialog"));
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("NewPresetDialog"));
    EXPECT_EQ(Child<QLabel>("label").text(), QStringLiteral("Name"));
    EXPECT_EQ(Save().text(), QStringLiteral("Save"));
    EXPECT_EQ(Cancel().text(), QStringLiteral("Cancel"));
    EXPECT_EQ(Edit().maxLength(), 50);
    EXPECT_TRUE(m_dialog->findChildren<QPushButton*>().isEmpty()) << "no default button";

    QStringList widgets;
    for (const QObject* child : m_dialog->children()) {
        if (child->isWidgetType())
            widgets += child->objectName();
    }
    EXPECT_EQ(widgets.join(QLatin1Char(' ')),
              QStringLiteral("label lineEdit captionLabel saveButton cancelButton"));
}

std::string CellsOf(const QGridLayout& grid)
{
    QStringList cells;
    for (int i = 0; i < grid.count(); ++i) {
        int row = 0, column = 0, rows = 0, columns = 0;
        grid.getItemPosition(i, &row, &column, &rows, &columns);
        QLayoutItem* item = grid.itemAt(i);
        QString what = QStringLiteral("spacer %1x%2 policy %3 %4")
                           .arg(item->sizeHint().width())
                           .arg(item->sizeHint().height());
        if (item->widget())
            what = item->widget()->objectName();
        else if (item->layout())
            what = item->layout()->objectName();
        else
            what = what.arg(item->spacerItem()->sizePolicy().horizontalPolicy())
                       .arg(item->spacerItem()->sizePolicy().verticalPolicy());
        cells +=
            QStringLiteral("%1,%2 %3x%4 %5").arg(row).arg(column).arg(rows).arg(columns).arg(what);
    }
    cells.sort();
    return cells.join(QStringLiteral("; ")).toStdString();
}

TEST_F(NewPresetDialogTest, gridPlacesItsItems)
{
    Make({});
    const auto& grid = Child<QGridLayout>("gridLayout");
    const auto& column = Child<QVBoxLayout>("verticalLayout");

    EXPECT_EQ(m_dialog->layout(), &grid);
    EXPECT_EQ(CellsOf(grid), "0,0 1x3 captionLabel; 1,0 1x3 spacer 20x22 policy 1 0; "
                             "2,0 1x3 verticalLayout; 3,0 1x3 spacer 20x20 policy 1 0; "
                             "4,1 1x1 cancelButton; 4,2 1x1 saveButton");
    EXPECT_EQ(grid.horizontalSpacing(), 12);
    EXPECT_EQ(grid.verticalSpacing(), 0);
    EXPECT_EQ(grid.contentsMargins(), QMargins(12, 15, 12, 12));
    EXPECT_EQ(column.spacing(), 4);
    EXPECT_EQ(column.itemAt(0)->widget(), &Child<QLabel>("label"));
    EXPECT_EQ(column.itemAt(1)->widget(), &Edit());
}

TEST_F(NewPresetDialogTest, windowIsFramelessAndOfFixedSize)
{
    MakeShown({});

    EXPECT_EQ(m_dialog->windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
    EXPECT_TRUE(m_dialog->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(m_dialog->size(), QSize(262, 130));
    EXPECT_EQ(m_dialog->minimumSize(), QSize(262, 130));
    EXPECT_EQ(m_dialog->maximumSize(), QSize(262, 130));
}

TEST_F(NewPresetDialogTest, fieldIsAnnouncedByItsLabel)
{
    Make({});

    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&Edit());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(QAccessible::Name), QStringLiteral("Name"));
}

TEST_F(NewPresetDialogTest, captionFollowsTheMode)
{
    Make({}, NewPresetDialog::Create);
    EXPECT_EQ(Child<QLabel>("captionLabel").text(), QStringLiteral("Create new preset"));

    Make({}, NewPresetDialog::Rename);
    EXPECT_EQ(Child<QLabel>("captionLabel").text(), QStringLiteral("Rename preset"));

    Make({}, static_cast<NewPresetDialog::Mode>(7));
    EXPECT_EQ(Child<QLabel>("captionLabel").text(), QStringLiteral("Rename preset"));
}

TEST_F(NewPresetDialogTest, emptyNameIsAcceptedBeforeTheTextEverChanged)
{
    MakeShown({});
    EXPECT_TRUE(Save().isEnabled());

    Mouse::Click(Save());

    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(m_dialog->GetName(), QString());
}

TEST_F(NewPresetDialogTest, blanksAloneKeepSaveDisabled)
{
    MakeShown({});

    Type("   ");
    EXPECT_FALSE(Save().isEnabled());
    Type(" x");
    EXPECT_TRUE(Save().isEnabled());
    QTest::keyClick(&Edit(), Qt::Key_Backspace);
    EXPECT_FALSE(Save().isEnabled());
}

TEST_F(NewPresetDialogTest, nameIsTrimmed)
{
    MakeShown({});

    Type("  Foo  ");

    EXPECT_EQ(m_dialog->GetName(), QStringLiteral("Foo"));
    EXPECT_TRUE(Save().isEnabled());
}

TEST_F(NewPresetDialogTest, nameEndsAtFiftyCharacters)
{
    MakeShown({});

    Type(std::string(60, 'a').c_str());

    EXPECT_EQ(m_dialog->GetName(), QString(50, QLatin1Char('a')));
}

TEST_F(NewPresetDialogTest, takenNameIsRefusedWithAnAlert)
{
    MakeShown({QStringLiteral("Bar"), QStringLiteral("Foo")});
    Type("Foo");

    Mouse::Click(Save());

    EXPECT_EQ(Alerts(), FooAlert);
    EXPECT_EQ(m_alerts->parent, m_dialog.get());
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_EQ(Edit().text(), QStringLiteral("Foo"));
    EXPECT_TRUE(Save().isEnabled());
}

TEST_F(NewPresetDialogTest, nameTakenOnlyAfterTrimmingIsRefusedToo)
{
    MakeShown({QStringLiteral("Foo")});
    Type(" Foo");

    Mouse::Click(Save());

    EXPECT_EQ(Alerts(), FooAlert);
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_EQ(Edit().text(), QStringLiteral(" Foo"));
}

TEST_F(NewPresetDialogTest, comparisonIsCaseSensitive)
{
    MakeShown({QStringLiteral("Foo")});
    Type("foo");

    Mouse::Click(Save());

    EXPECT_EQ(Alerts(), "");
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(NewPresetDialogTest, percentSignsInANameReachTheAlertAsTheyAre)
{
    MakeShown({QStringLiteral("50%1")});
    Type("50%1");

    Mouse::Click(Save());

    EXPECT_TRUE(m_alerts->log.last().contains(
        QLatin1String("'Name \"50%1\" already exists, choose another one.'")));
}

// Save does not lead here, but a host may accept the dialog itself.
TEST_F(NewPresetDialogTest, anEmptyTakenNameReachesTheAlertUnpadded)
{
    MakeShown({QString()});

    m_dialog->accept();

    ASSERT_FALSE(m_alerts->log.isEmpty());
    EXPECT_TRUE(m_alerts->log.last().contains(
        QLatin1String("'Name \"\" already exists, choose another one.'")));
}

TEST_F(NewPresetDialogTest, renamingStartsWithSaveDisabled)
{
    Make({QStringLiteral("Foo")}, NewPresetDialog::Rename);
    Show(*m_dialog);
    m_dialog->SetName(QStringLiteral("Foo"));
    EXPECT_EQ(Edit().text(), QStringLiteral("Foo"));
    EXPECT_FALSE(Save().isEnabled());

    QTest::keyClicks(&Edit(), QStringLiteral(" "));
    EXPECT_FALSE(Save().isEnabled()) << "unchanged after trimming";
    QTest::keyClicks(&Edit(), QStringLiteral("2"));
    EXPECT_TRUE(Save().isEnabled());
    Type("foo");
    EXPECT_TRUE(Save().isEnabled()) << "case counts";
    Type("Foo");
    EXPECT_FALSE(Save().isEnabled());
}

TEST_F(NewPresetDialogTest, untrimmedOldNameNeverMatches)
{
    Make({});

    m_dialog->SetName(QStringLiteral("Foo "));

    EXPECT_TRUE(Save().isEnabled());
    EXPECT_EQ(m_dialog->GetName(), QStringLiteral("Foo"));
}

TEST_F(NewPresetDialogTest, emptyOldNameChangesNothing)
{
    Make({});

    m_dialog->SetName(QString());

    EXPECT_TRUE(Save().isEnabled());
}

TEST_F(NewPresetDialogTest, enterSaves)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        MakeShown({});
        Type("Foo");

        QTest::keyClick(&Edit(), static_cast<Qt::Key>(key));

        EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
        EXPECT_FALSE(m_dialog->isVisible());
    }
}

TEST_F(NewPresetDialogTest, enterOnATakenNameAlertsOnceAndStays)
{
    MakeShown({QStringLiteral("Foo")});
    Type("Foo");

    QTest::keyClick(&Edit(), Qt::Key_Return);

    EXPECT_EQ(Alerts(), FooAlert);
    EXPECT_TRUE(m_dialog->isVisible());
}

TEST_F(NewPresetDialogTest, enterWithSaveDisabledDoesNothing)
{
    MakeShown({});
    Type(" ");

    QTest::keyClick(&Edit(), Qt::Key_Return);
    QTest::keyClick(m_dialog.get(), Qt::Key_Enter);

    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_EQ(Alerts(), "");
}

TEST_F(NewPresetDialogTest, escapeAndCancelReject)
{
    MakeShown({});
    Type("Foo");
    m_dialog->setResult(QDialog::Accepted);
    QTest::keyClick(&Edit(), Qt::Key_Escape);
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(m_dialog->isVisible());

    MakeShown({});
    m_dialog->setResult(QDialog::Accepted);
    Mouse::Click(Cancel());
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(NewPresetDialogTest, tabVisitsNameSaveAndCancel)
{
    MakeShown({});
    Edit().setFocus();

    QTest::keyClick(m_dialog.get(), Qt::Key_Tab);
    EXPECT_TRUE(Save().hasFocus());
    QTest::keyClick(m_dialog.get(), Qt::Key_Tab);
    EXPECT_TRUE(Cancel().hasFocus());
    QTest::keyClick(m_dialog.get(), Qt::Key_Tab);
    EXPECT_TRUE(Edit().hasFocus());
}

TEST_F(NewPresetDialogTest, runsModallyUntilItIsAnswered)
{
    Make({QStringLiteral("Foo")});
    QTimer::singleShot(0, m_dialog.get(), [this] {
        Type("Foo");
        QTest::keyClick(&Edit(), Qt::Key_Return);
        Type("Bar");
        QTest::keyClick(&Edit(), Qt::Key_Return);
    });

    EXPECT_EQ(m_dialog->exec(), QDialog::Accepted);

    EXPECT_EQ(Alerts(), FooAlert);
    EXPECT_EQ(m_dialog->GetName(), QStringLiteral("Bar"));
}

TEST_F(NewPresetDialogTest, callersSlotMayScheduleTheDialogsDeletion)
{
    QPointer<NewPresetDialog> dialog = new NewPresetDialog({}, NewPresetDialog::Create, nullptr);
    QObject::connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
    Show(*dialog);
    auto* edit = dialog->findChild<QLineEdit*>();
    QTest::keyClicks(edit, QStringLiteral("Foo"));

    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_TRUE(dialog.isNull());
}

TEST_F(NewPresetDialogTest, alertMayOutliveTheUsersPatience)
{
    MakeShown({QStringLiteral("Foo")});
    Type("Foo");
    m_alerts->duringAlert = [this] { m_dialog->reject(); };

    Mouse::Click(Save());

    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(m_dialog->isVisible());
}

} // namespace
} // namespace LumetraTest
