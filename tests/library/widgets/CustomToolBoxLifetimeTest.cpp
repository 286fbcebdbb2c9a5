// SPDX-License-Identifier: MIT
// Pages, boxes and title buttons that end at awkward moments.
#include "support/ExpectLog.h"

#include "RealInput.h"
#include "ToolBoxFixture.h"

#include <QPushButton>

#include <functional>

namespace LumetraTest {
namespace {

class CustomToolBoxLifetime : public ToolBoxFixture
{
protected:
    void ShowBox()
    {
        m_box->resize(240, 400);
        Show(*m_box);
    }

    void OnExpanded(const std::function<void(int)>& action)
    {
        QObject::connect(m_box.get(), &CustomToolBox::expandedChanged, m_box.get(),
                         [action](int index) { action(index); });
    }

    void OnCurrent(const std::function<void(int)>& action)
    {
        QObject::connect(m_box.get(), &CustomToolBox::currentChanged, m_box.get(), action);
    }
};

void RunDeferredDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(CustomToolBoxLifetime, removedPageDisposesOfItsWidgetInTheEventLoop)
{
    AddPages("AB");
    const QPointer<QWidget> widget = m_box->widget(1);
    const QPointer<QWidget> header = Header(1);

    m_box->removeItem(1);
    EXPECT_TRUE(header.isNull());
    ASSERT_FALSE(widget.isNull());
    EXPECT_EQ(widget->parentWidget(), m_box.get());

    RunDeferredDeletions();
    EXPECT_TRUE(widget.isNull());
    EXPECT_EQ(m_box->count(), 1);
}

TEST_F(CustomToolBoxLifetime, removedPagesWidgetGoesWithTheBoxWhereNoEventLoopRuns)
{
    AddPages("AB");
    const QPointer<QWidget> widget = m_box->widget(1);
    m_box->removeItem(1);

    m_box.reset();

    EXPECT_TRUE(widget.isNull());
}

TEST_F(CustomToolBoxLifetime, removedPagesTitleButtonStaysAsAHiddenChild)
{
    AddPages("AB");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 1);
    ShowBox();
    EXPECT_TRUE(title->isVisible());

    m_box->removeItem(1);
    RunDeferredDeletions();

    EXPECT_FALSE(title->isVisible());
    EXPECT_EQ(title->parentWidget(), m_box.get());
    m_box->setCurrentIndex(0);
    EXPECT_TRUE(title->isEnabled());
}

TEST_F(CustomToolBoxLifetime, removedPageHidesAnEarlierTitleButtonOfItsRowToo)
{
    AddPages("AB");
    auto* earlier = new QPushButton;
    auto* later = new QPushButton;
    auto* other = new QPushButton;
    m_box->addWidgetTitleButton(earlier, 1);
    m_box->addWidgetTitleButton(later, 1);
    m_box->addWidgetTitleButton(other, 0);
    ShowBox();
    ASSERT_TRUE(earlier->isVisible());

    m_box->removeItem(1);

    EXPECT_TRUE(earlier->isHidden());
    EXPECT_TRUE(later->isHidden());
    EXPECT_EQ(earlier->parentWidget(), m_box.get()) << "it stays the caller's";
    EXPECT_TRUE(other->isVisible());
}

TEST_F(CustomToolBoxLifetime, deletedPageHidesTheTitleButtonsOfItsRebuiltRow)
{
    AddPages("AB");
    auto* earlier = new QPushButton;
    auto* later = new QPushButton;
    auto* deleted = new QPushButton;
    m_box->addWidgetTitleButton(earlier, 1);
    m_box->addWidgetTitleButton(deleted, 1);
    m_box->addWidgetTitleButton(later, 1);
    {
        const ExpectLog warning("already has a layout");
        m_box->insertItem(0, new QLabel, QStringLiteral("N"));
    }
    ShowBox();
    delete deleted;

    delete m_box->widget(2);

    EXPECT_TRUE(earlier->isHidden());
    EXPECT_TRUE(later->isHidden());
}

TEST_F(CustomToolBoxLifetime, titleButtonThatMovedToAnotherRowStaysVisible)
{
    AddPages("AB");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 0);
    m_box->addWidgetTitleButton(title, 1);
    ShowBox();

    m_box->removeItem(0);
    EXPECT_TRUE(title->isVisible());
    m_box->removeItem(0);
    EXPECT_TRUE(title->isHidden());
}

TEST_F(CustomToolBoxLifetime, deletedTitleButtonIsForgotten)
{
    AddPages("AB");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 0);

    delete title;

    m_box->setCurrentIndex(0);
    m_box->setItemEnabled(0, false);
    m_box->removeItem(0);
    EXPECT_EQ(Pages(), "B+*");
}

TEST_F(CustomToolBoxLifetime, filledBoxIsDeletedSilently)
{
    AddPages("ABC");
    m_box->addWidgetTitleButton(new QPushButton, 0);
    m_box->setCurrentIndex(2);
    const QPointer<QWidget> widget = m_box->widget(1);
    TakeLog();

    m_box.reset();

    EXPECT_EQ(TakeLog(), "");
    EXPECT_TRUE(widget.isNull());
}

TEST_F(CustomToolBoxLifetime, filledBoxIsDeletedAfterItsLayoutWasRebuilt)
{
    AddPages("ABC");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 2);
    {
        const ExpectLog warning("already has a layout");
        m_box->insertItem(0, new QLabel, QStringLiteral("M"));
        m_box->insertItem(0, new QLabel, QStringLiteral("N"));
    }
    m_box->addItem(new QLabel, QStringLiteral("Z"));
    ShowBox();
    m_box->removeItem(1);
    delete m_box->widget(2);
    delete title;
    RunDeferredDeletions();
    EXPECT_EQ(Pages(), "N- A+ C- Z-");
    TakeLog();

    m_box.reset();

    EXPECT_EQ(TakeLog(), "");
}

TEST_F(CustomToolBoxLifetime, pageWidgetThatItsOwnerTookBackStillRemovesItsPage)
{
    AddPages("AB");
    QWidget owner;
    QWidget* const taken = m_box->widget(1);

    taken->setParent(&owner);
    delete taken;

    EXPECT_EQ(Pages(), "A+*");
}

TEST_F(CustomToolBoxLifetime, removalTakesAWidgetFromAnOwnerWhoTookItBack)
{
    AddPages("AB");
    QWidget owner;
    const QPointer<QWidget> taken = m_box->widget(1);
    taken->setParent(&owner);

    m_box->removeItem(1);
    ASSERT_FALSE(taken.isNull());
    EXPECT_EQ(taken->parentWidget(), m_box.get());

    RunDeferredDeletions();
    EXPECT_TRUE(taken.isNull());
}

TEST_F(CustomToolBoxLifetime, boxDeletedBeforeAPageThatItsOwnerTookBack)
{
    AddPages("AB");
    QWidget owner;
    const QPointer<QWidget> taken = m_box->widget(1);
    taken->setParent(&owner);

    m_box.reset();

    EXPECT_FALSE(taken.isNull());
}

TEST_F(CustomToolBoxLifetime, widgetAddedTwiceLosesBothPagesAtOnce)
{
    AddPages("A");
    auto* twice = new QLabel;
    m_box->addItem(twice, QStringLiteral("B"));
    m_box->addItem(twice, QStringLiteral("C"));
    EXPECT_EQ(m_box->count(), 3);

    delete twice;

    EXPECT_EQ(Pages(), "A+*");
    EXPECT_EQ(m_box->findChildren<CustomToolBoxButton*>().size(), 1);
}

TEST_F(CustomToolBoxLifetime, pageRemovedFromItsOwnClickedSignal)
{
    AddPages("ABC");
    ShowBox();
    OnCurrent([this](int index) {
        if (index == 1)
            m_box->removeItem(index);
    });
    TakeLog();

    Mouse::Click(*Header(1));
    RunDeferredDeletions();

    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open");
    EXPECT_EQ(Pages(), "A+ C-");
}

TEST_F(CustomToolBoxLifetime, pageDeletedFromItsOwnClickedSignal)
{
    AddPages("ABC");
    m_box->setCurrentIndex(0);
    ShowBox();
    OnExpanded([this](int index) {
        if (index == 1)
            delete m_box->widget(1);
    });
    TakeLog();

    Mouse::Click(*Header(1));

    EXPECT_EQ(TakeLog(), "current 1, expanded 1 open, current 0, expanded 0 open");
    EXPECT_EQ(Pages(), "A+* C-");
}

TEST_F(CustomToolBoxLifetime, compatPageRemovedInsideAClick)
{
    m_box->SetCompat(true);
    AddPages("AB");
    ShowBox();
    OnCurrent([this](int index) {
        if (index == 1)
            m_box->removeItem(index);
    });
    TakeLog();

    Mouse::Click(*Header(1));
    RunDeferredDeletions();

    EXPECT_EQ(TakeLog(), "current 1, current 0, expanded 0 open, expanded 1 open");
    EXPECT_EQ(Pages(), "A+*");
}

TEST_F(CustomToolBoxLifetime, allPagesRemovedInsideAClick)
{
    AddPages("AB");
    ShowBox();
    bool isDone = false;
    OnCurrent([this, &isDone](int) {
        if (std::exchange(isDone, true))
            return;
        while (m_box->count() > 0)
            m_box->removeItem(0);
    });

    Mouse::Click(*Header(1));
    RunDeferredDeletions();

    EXPECT_EQ(m_box->count(), 0);
    EXPECT_EQ(m_box->currentIndex(), -1);
}

TEST_F(CustomToolBoxLifetime, boxDeletedInsideAClickOnItsHeader)
{
    AddPages("AB");
    ShowBox();
    OnCurrent([this](int) { m_box.reset(); });

    Mouse::Click(*Header(1));

    EXPECT_EQ(m_box, nullptr);
    EXPECT_EQ(TakeLog(), "current 0, expanded 0 open, current 1");
}

TEST_F(CustomToolBoxLifetime, boxDeletedByTheSignalOfItsFirstPage)
{
    OnCurrent([this](int) { m_box.reset(); });

    EXPECT_EQ(m_box->addItem(new QLabel, QStringLiteral("A")), 0);

    EXPECT_EQ(m_box, nullptr);
}

TEST_F(CustomToolBoxLifetime, boxDeletedByTheSignalOfARemoval)
{
    AddPages("A");
    OnCurrent([this](int index) {
        if (index < 0)
            m_box.reset();
    });

    m_box->removeItem(0);

    EXPECT_EQ(m_box, nullptr);
}

TEST_F(CustomToolBoxLifetime, pageAddedInsideItsNeighboursSignal)
{
    AddPages("AB");
    ShowBox();
    OnCurrent([this](int) { m_box->addItem(new QLabel, QString::number(m_box->count())); });

    Mouse::Click(*Header(1));

    EXPECT_EQ(Pages(), "A+ B+* 2-");
}

} // namespace
} // namespace LumetraTest
