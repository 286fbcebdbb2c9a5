// SPDX-License-Identifier: MIT
// Signals of the tool box, action by action, in both modes.
#include "support/ExpectLog.h"

#include "RealInput.h"
#include "ToolBoxFixture.h"

namespace LumetraTest {
namespace {

class CustomToolBoxSignals : public ToolBoxFixture
{
protected:
    void Click(int index)
    {
        if (!m_box->isVisible()) {
            m_box->resize(240, 400);
            Show(*m_box);
        }
        Mouse::Click(*Header(index));
    }
};

TEST_F(CustomToolBoxSignals, firstPageAddedOpens)
{
    AddPages("A");

    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+*");
}

TEST_F(CustomToolBoxSignals, laterPagesStartShutAndTellNothing)
{
    AddPages("A");
    TakeLog();

    AddPages("BC");

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B- C-");
}

TEST_F(CustomToolBoxSignals, twoClicksOpenAndShutAPageAndTouchNoOther)
{
    AddPages("ABC");
    TakeLog();

    Click(1);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A+ B+* C-");

    Click(1);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 shut");
    EXPECT_EQ(Pages(), "A+ B-* C-");
}

TEST_F(CustomToolBoxSignals, clickOnTheOpenCurrentPageShutsIt)
{
    AddPages("AB");
    TakeLog();

    Click(0);

    EXPECT_EQ(TakeLog(), "current 0, expanded 0 shut");
    EXPECT_EQ(Pages(), "A-* B-");
}

TEST_F(CustomToolBoxSignals, pressReleasedOutsideTheHeaderDoesNothing)
{
    AddPages("AB");
    m_box->resize(240, 400);
    Show(*m_box);
    TakeLog();

    Mouse::Press(*Header(1), QPoint(5, 5));
    Mouse::Release(*Header(1), QPoint(5, -20));

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, unforcedSelectToggles)
{
    AddPages("AB");
    TakeLog();

    m_box->setCurrentIndex(1);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    m_box->setCurrentIndex(1, false);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 shut");
    m_box->setCurrentIndex(0);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 shut");
    EXPECT_EQ(Pages(), "A-* B-");
}

TEST_F(CustomToolBoxSignals, forcedSelectOpensAShutPage)
{
    AddPages("AB");
    TakeLog();

    m_box->setCurrentIndex(1, true);

    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A+ B+*");
}

TEST_F(CustomToolBoxSignals, forcedSelectOfAnOpenPageDoesNotEvenMakeItCurrent)
{
    AddPages("AB");
    m_box->setCurrentIndex(1, true);
    TakeLog();

    m_box->setCurrentIndex(0, true);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+ B+*");
}

TEST_F(CustomToolBoxSignals, selectOfAnIndexOutOfRangeDoesNothing)
{
    AddPages("AB");
    TakeLog();

    for (const int index : {-1, 2, 100}) {
        m_box->setCurrentIndex(index);
        m_box->setCurrentIndex(index, true);
    }

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, writingThePropertyToggles)
{
    AddPages("AB");
    TakeLog();

    EXPECT_TRUE(m_box->setProperty("currentIndex", 0));
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 shut");
    EXPECT_TRUE(m_box->setProperty("currentIndex", 0));
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
}

TEST_F(CustomToolBoxSignals, currentWidgetIsAlwaysOpenedAndNeverShut)
{
    AddPages("AB");
    TakeLog();

    m_box->setCurrentWidget(m_box->widget(1));
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    m_box->setCurrentWidget(m_box->widget(1));
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+ B+*");

    m_box->setCurrentIndex(0);
    TakeLog();
    m_box->setCurrentWidget(m_box->widget(0));
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open") << "and no warning for the first page";
}

TEST_F(CustomToolBoxSignals, foreignCurrentWidgetIsWarnedAboutOnceAndIgnored)
{
    AddPages("AB");
    TakeLog();
    const QLabel foreign;

    const ExpectLog warning("^CustomToolBox::setCurrentWidget: widget not contained in tool box$");
    m_box->setCurrentWidget(const_cast<QLabel*>(&foreign));

    EXPECT_EQ(warning.GetCount(), 1);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, insertingBeforeTheCurrentPageForgetsItSilently)
{
    AddPages("AB");
    m_box->setCurrentIndex(1, true);
    TakeLog();

    const ExpectLog warning("already has a layout");
    EXPECT_EQ(m_box->insertItem(0, new QLabel, QStringLiteral("N")), 0);

    EXPECT_EQ(warning.GetCount(), 1);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(m_box->currentIndex(), -1);
    EXPECT_EQ(m_box->currentWidget(), nullptr);
    EXPECT_EQ(Pages(), "N- A+ B+");
}

TEST_F(CustomToolBoxSignals, insertingAtTheCurrentPageForgetsIt)
{
    AddPages("AB");
    TakeLog();

    const ExpectLog warning("already has a layout");
    m_box->insertItem(0, new QLabel, QStringLiteral("N"));

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "N- A+ B-");
}

TEST_F(CustomToolBoxSignals, insertingAfterTheCurrentPageKeepsIt)
{
    AddPages("AB");
    TakeLog();

    const ExpectLog warning("already has a layout");
    EXPECT_EQ(m_box->insertItem(1, new QLabel, QStringLiteral("N")), 1);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* N- B-");
}

TEST_F(CustomToolBoxSignals, pagesStillOpenAndShutAfterAnInsertion)
{
    AddPages("AB");
    const ExpectLog warning("already has a layout");
    m_box->insertItem(1, new QLabel, QStringLiteral("N"));
    TakeLog();

    Header(1)->click();

    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A+ N+* B-");
}

TEST_F(CustomToolBoxSignals, removingTheCurrentPageOpensAShutFirstPage)
{
    AddPages("ABC");
    m_box->setCurrentIndex(0);
    m_box->setCurrentIndex(2);
    TakeLog();

    m_box->removeItem(2);

    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, removingTheCurrentPageBesideAnOpenFirstPageLeavesNoneCurrent)
{
    AddPages("ABC");
    m_box->setCurrentIndex(2);
    TakeLog();

    m_box->removeItem(2);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+ B-");
}

TEST_F(CustomToolBoxSignals, removingTheCurrentFirstPageOpensTheNextOne)
{
    AddPages("AB");
    TakeLog();

    m_box->removeItem(0);

    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "B+*");
}

TEST_F(CustomToolBoxSignals, removingAnotherPageTellsNothing)
{
    AddPages("ABC");
    m_box->setCurrentIndex(2);
    TakeLog();

    m_box->removeItem(1);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+ C+*");
}

TEST_F(CustomToolBoxSignals, removingTheLastPageTellsThatNoneIsCurrent)
{
    AddPages("A");
    TakeLog();

    m_box->removeItem(0);

    EXPECT_EQ(TakeLog(), "current -1");
    EXPECT_EQ(m_box->count(), 0);
    EXPECT_EQ(m_box->currentIndex(), -1);
}

TEST_F(CustomToolBoxSignals, removingAnIndexOutOfRangeDoesNothing)
{
    AddPages("A");
    TakeLog();
    m_box->hooks.clear();

    m_box->removeItem(-1);
    m_box->removeItem(1);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_TRUE(m_box->hooks.isEmpty());
    EXPECT_EQ(Pages(), "A+*");
}

TEST_F(CustomToolBoxSignals, deletedPageWidgetIsRemovedLikeAnyOther)
{
    AddPages("ABC");
    m_box->setCurrentIndex(0);
    m_box->setCurrentIndex(2);
    TakeLog();

    delete m_box->widget(1);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A- C+*");

    delete m_box->widget(1);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");

    delete m_box->widget(0);
    EXPECT_EQ(TakeLog(), "current -1");
}

TEST_F(CustomToolBoxSignals, disablingTheCurrentPageOpensTheNextEnabledOne)
{
    AddPages("ABC");
    m_box->setCurrentIndex(1);
    TakeLog();

    m_box->setItemEnabled(1, false);

    EXPECT_EQ(TakeLog(), "current 2, expanded 2 open");
    EXPECT_EQ(Pages(), "A+ B+ C+*");
}

TEST_F(CustomToolBoxSignals, disablingTheCurrentPageAlternatesOutwards)
{
    // Pages that are enabled besides the disabled current page "D", and the page that opens.
    const std::vector<std::pair<const char*, const char*>> cases{
        {"CE", "current 4, expanded 4 open"}, {"CF", "current 2, expanded 2 open"},
        {"BF", "current 5, expanded 5 open"}, {"BG", "current 1, expanded 1 open"},
        {"G", "current 6, expanded 6 open"},  {"B", "current 1, expanded 1 open"}};
    for (const auto& [enabled, expected] : cases) {
        SCOPED_TRACE(enabled);
        while (m_box->count() > 0)
            m_box->removeItem(0);
        AddPages("ABCDEFG");
        m_box->setCurrentIndex(3);
        for (int i = 0; i < 7; ++i) {
            if (i != 3 && !QLatin1String(enabled).contains(m_box->itemText(i)))
                m_box->setItemEnabled(i, false);
        }
        TakeLog();

        m_box->setItemEnabled(3, false);

        EXPECT_EQ(TakeLog(), expected);
    }
}

TEST_F(CustomToolBoxSignals, disablingTheCurrentPageAmongDisabledOnesOpensItIfShut)
{
    AddPages("AB");
    m_box->setItemEnabled(1, false);
    m_box->setCurrentIndex(0);
    EXPECT_EQ(Pages(), "A-* B-");
    TakeLog();

    m_box->setItemEnabled(0, false);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");

    m_box->setItemEnabled(0, false);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, disablingAnotherPageOrEnablingTellsNothing)
{
    AddPages("AB");
    TakeLog();

    m_box->setItemEnabled(1, false);
    m_box->setItemEnabled(1, true);
    m_box->setItemEnabled(0, true);
    m_box->setItemEnabled(2, false);
    m_box->setItemEnabled(-1, false);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, disabledHeaderIgnoresClicks)
{
    AddPages("AB");
    m_box->setItemEnabled(1, false);
    TakeLog();

    Click(1);

    EXPECT_EQ(TakeLog(), "");
}

TEST_F(CustomToolBoxSignals, compatClickOnTheOpenPageLeavesItOpenAndTellsNothing)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    Click(0);
    Click(0);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, compatClickOnAnotherPageShutsTheOpenOne)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    Click(1);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A- B+*");

    Click(0);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, compatUnforcedSelectOfAnotherPageSwitches)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    EXPECT_TRUE(m_box->setProperty("currentIndex", 1));

    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A- B+*");
}

TEST_F(CustomToolBoxSignals, compatForcedSelectOfTheOpenPageTellsNothing)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    m_box->setCurrentIndex(0, true);

    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, compatUnforcedSelectOfTheOpenPageShutsItForItsHeaderToo)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    m_box->setCurrentIndex(0);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 shut");
    EXPECT_EQ(Pages(), "A-* B-");

    // Until another page becomes current, the header cannot open it again.
    Click(0);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 shut");
    EXPECT_EQ(Pages(), "A-* B-");

    Click(1);
    Click(0);
    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open, current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+* B-");
}

TEST_F(CustomToolBoxSignals, compatInsertionBeforeTheCurrentPageLeavesItOpenAndForgotten)
{
    m_box->SetCompat(true);
    AddPages("AB");
    TakeLog();

    const ExpectLog warning("already has a layout");
    m_box->insertItem(0, new QLabel, QStringLiteral("N"));
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "N- A+ B-");

    Header(2)->click();
    EXPECT_EQ(TakeLog(), "current 2, expanded 2 open");
    EXPECT_EQ(Pages(), "N- A+ B+*");
}

TEST_F(CustomToolBoxSignals, compatRemovalOfTheCurrentPageOpensTheFirst)
{
    m_box->SetCompat(true);
    AddPages("ABC");
    m_box->setCurrentIndex(2, true);
    TakeLog();

    m_box->removeItem(2);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+* B-");

    m_box->removeItem(1);
    EXPECT_EQ(TakeLog(), "");

    m_box->removeItem(0);
    EXPECT_EQ(TakeLog(), "current -1");
}

TEST_F(CustomToolBoxSignals, compatDisablingTheCurrentPageSwitchesToItsNeighbour)
{
    m_box->SetCompat(true);
    AddPages("ABC");
    m_box->setCurrentIndex(1, true);
    TakeLog();

    m_box->setItemEnabled(1, false);

    EXPECT_EQ(TakeLog(), "current 2, expanded 2 open");
    EXPECT_EQ(Pages(), "A- B- C+*");
}

TEST_F(CustomToolBoxSignals, changingTheModeOpensAndShutsNothing)
{
    AddPages("ABC");
    m_box->setCurrentIndex(1);
    TakeLog();

    m_box->SetCompat(true);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(Pages(), "A+ B+* C-");

    // The page left open is not the current one, so nothing shuts it but itself.
    Click(2);
    EXPECT_EQ(TakeLog(), "current 2, expanded 2 open");
    EXPECT_EQ(Pages(), "A+ B- C+*");

    m_box->SetCompat(false);
    Click(2);
    EXPECT_EQ(TakeLog(), "current 2, expanded 2 shut");
}

TEST_F(CustomToolBoxSignals, hooksFollowInsertionsAndRemovalsButNoDestruction)
{
    AddPages("AB");
    const ExpectLog warning("already has a layout");
    m_box->insertItem(1, new QLabel, QStringLiteral("N"));
    m_box->removeItem(2);
    delete m_box->widget(0);

    EXPECT_EQ(m_box->hooks.join(QStringLiteral(", ")).toStdString(),
              "inserted 0, inserted 1, inserted 1, removed 2");
}

} // namespace
} // namespace LumetraTest
