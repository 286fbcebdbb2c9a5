// SPDX-License-Identifier: GPL-2.0-or-later
// The window where there is little room, with the panels that it has as it is installed.
#include "editor/EditorFixture.h"

#include "session/Editor.h"
#include "settings/EditorSettings.h"
#include "window/EditorWindow.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QScreen>
#include <QSlider>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>

using namespace LumetraTest;

namespace {

constexpr QSize CommonLaptop(1366, 768);
constexpr QSize Smallest(600, 480);
const QString SixSliders = QStringLiteral("Old Plate");

class SmallScreenTest : public EditorTest
{
protected:
    SmallScreenTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 300, 200));
    }

    /// Lets layouts follow each other: each answers the one inside it.
    static void Settle()
    {
        constexpr int rounds = 6;
        for (int i = 0; i < rounds; ++i)
            QApplication::processEvents();
    }

    void Resize(const QSize& size)
    {
        window->resize(size);
        Settle();
    }

    /// Puts the look with six sliders on, which is in the third group.
    void PutOn()
    {
        QTest::keyClick(window.get(), Qt::Key_3, Qt::AltModifier);
        Settle();
        ClickLook(SixSliders);
        Settle();
    }

    int CountSliders() const
    {
        int count = 0;
        for (const auto* const slider : window->findChildren<QSlider*>())
            if (slider->objectName().startsWith(QStringLiteral("extraSlider")))
                count += slider->isVisible() ? 1 : 0;
        return count;
    }

    /// The part of a widget that no scroll area around it hides, in the window's coordinates.
    QRect GetSeen(const QWidget& widget) const
    {
        QRect seen(widget.mapTo(window.get(), QPoint()), widget.size());
        for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
            if (above != window.get())
                seen &= QRect(above->mapTo(window.get(), QPoint()), above->size());
        return seen & window->rect();
    }

    /// The looks that are seen with picture and name, from top to bottom.
    int CountSeenLooks() const
    {
        int count = 0;
        for (const auto* const list : Find<QWidget>("presetsPanel")->findChildren<QListView*>())
            for (int row = 0; list->isVisible() && row < list->model()->rowCount(); ++row) {
                const QRect cell = list->visualRect(list->model()->index(row, 0));
                const QRect inWindow(list->viewport()->mapTo(window.get(), cell.topLeft()),
                                     cell.size());
                count += GetSeen(*list->viewport()).contains(inWindow) ? 1 : 0;
            }
        return count;
    }

    bool IsSeen(const QString& look) const
    {
        const auto [list, index] = FindLook(look);
        const QRect cell = list->visualRect(index);
        return GetSeen(*list->viewport())
            .contains({list->viewport()->mapTo(window.get(), cell.topLeft()), cell.size()});
    }

    static bool IsScrolled(const QWidget& widget)
    {
        for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
            if (qobject_cast<const QAbstractScrollArea*>(above))
                return true;
        return false;
    }

    /// Expects all that is seen to be there as a whole, with all of its text.
    void ExpectNothingCutOff()
    {
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->isWindow() || IsScrolled(*widget))
                continue;
            const QRect place(widget->mapTo(window.get(), QPoint()), widget->size());
            EXPECT_EQ(GetSeen(*widget), place)
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        }
        for (const auto* const button : window->findChildren<QAbstractButton*>())
            if (button->isVisible() && !button->text().isEmpty() &&
                !qobject_cast<QToolBar*>(button->parentWidget())) { // these have icons alone
                EXPECT_GE(button->width(), button->minimumSizeHint().width())
                    << button->objectName().toStdString() << ' ' << button->text().toStdString();
            }
        for (const auto* const bar : window->findChildren<QToolBar*>())
            for (QAction* const action : bar->actions())
                EXPECT_TRUE(!bar->widgetForAction(action) ||
                            bar->widgetForAction(action)->isVisible())
                    << action->objectName().toStdString();
    }
};

} // namespace

TEST_F(SmallScreenTest, halfADozenLooksAreSeenBesideSixSlidersOnACommonLaptop)
{
    for (const char* const language : {"en", "de"}) {
        SCOPED_TRACE(language);
        window->UseLanguage(QStringLiteral("en"));
        Resize(CommonLaptop);
        PutOn();
        window->UseLanguage(QLatin1String(language));
        Settle();

        EXPECT_EQ(CountSliders(), 6);
        EXPECT_GE(CountSeenLooks(), 6);
        EXPECT_EQ(window->size(), CommonLaptop);
        QTest::keyClick(window.get(), Qt::Key_3, Qt::AltModifier);
    }
    window->UseLanguage(QStringLiteral("en"));
}

TEST_F(SmallScreenTest, theSmallestWindowShowsEverythingAsAWhole)
{
    for (const char* const language : {"en", "de"}) {
        SCOPED_TRACE(language);
        window->UseLanguage(QLatin1String(language));
        Resize(Smallest);
        EXPECT_EQ(window->size(), Smallest);
        ExpectNothingCutOff();
        EXPECT_GE(CountSeenLooks(), 3);
        for (const int panel : {1, 0}) {
            Find<QTabWidget>("panels")->setCurrentIndex(panel);
            Settle();
            ExpectNothingCutOff();
        }
    }
    window->UseLanguage(QStringLiteral("en"));
}

TEST_F(SmallScreenTest, theSmallestWindowHasRoomForALookWithSixSliders)
{
    PutOn();
    Resize(Smallest);

    EXPECT_EQ(window->size(), Smallest);
    ExpectNothingCutOff();
    EXPECT_TRUE(IsSeen(SixSliders));
    EXPECT_FALSE(GetSeen(*Find<QSlider>("extraSlider0")).isEmpty());
}

TEST_F(SmallScreenTest, aLongFileNameDoesNotWidenTheWindow)
{
    const QByteArray name = QByteArray(180, 'w') + ".png";
    Open(WritePhoto(name.constData(), 30, 20));
    Resize(Smallest);
    EXPECT_EQ(window->size(), Smallest);
    ExpectNothingCutOff();

    FindAction("closePhoto")->trigger(); // the start page offers it
    Resize(Smallest);

    EXPECT_EQ(window->size(), Smallest);
    ExpectNothingCutOff();
}

TEST_F(SmallScreenTest, theHistogramFoldsAndStaysFolded)
{
    auto* const header = Find<QWidget>("histogramSection")->findChild<QAbstractButton*>();
    ASSERT_TRUE(Find<QWidget>("histogram")->isVisible());
    const int before = Find<QWidget>("panels")->height();

    header->click();
    Settle();

    EXPECT_FALSE(Find<QWidget>("histogram")->isVisible());
    EXPECT_GT(Find<QWidget>("panels")->height(), before + 60)
        << "section " << Find<QWidget>("histogramSection")->height() << ", side "
        << Find<QWidget>("sidePanel")->height() << ", header " << header->height();
    EXPECT_FALSE(header->isChecked());
    ASSERT_TRUE(window->close());
    Restart();
    EXPECT_FALSE(Find<QWidget>("histogram")->isVisible());
}

TEST_F(SmallScreenTest, aLowWindowTakesTheRoomOfTheHistogramUntilItIsHigherAgain)
{
    Resize(Smallest);
    EXPECT_FALSE(Find<QWidget>("histogram")->isVisible());
    Find<QWidget>("histogramSection")->findChild<QAbstractButton*>()->click();
    EXPECT_TRUE(Find<QWidget>("histogram")->isVisible()) << "the user may have it all the same";
    Find<QWidget>("histogramSection")->findChild<QAbstractButton*>()->click();
    Find<QWidget>("histogramSection")->findChild<QAbstractButton*>()->click();

    Resize(CommonLaptop);
    EXPECT_TRUE(Find<QWidget>("histogram")->isVisible());
}

TEST_F(SmallScreenTest, theLookInUseIsSeenWhenItsPhotoIsOpenedAgain)
{
    Resize(CommonLaptop);
    PutOn();
    QTest::keyClick(window.get(), Qt::Key_3, Qt::AltModifier); // shuts its group
    FindAction("closePhoto")->trigger();
    Settle();

    Open(Path("lake.png"));
    Settle();

    ASSERT_EQ(GetAppliedName(), SixSliders);
    EXPECT_TRUE(IsSeen(SixSliders));
}

TEST_F(SmallScreenTest, theLookInUseStaysSeenWhenTheWindowIsMadeLower)
{
    Resize({1366, 1400});
    PutOn();
    ASSERT_TRUE(IsSeen(SixSliders));

    for (const int height : {900, 768, 600, 480}) {
        Resize({1366, height});
        EXPECT_TRUE(IsSeen(SixSliders)) << height;
    }
}
