// SPDX-License-Identifier: MIT
// Pages, headers, title widgets and layout of the tool box.
#include "support/ExpectLog.h"

#include "RealInput.h"
#include "ToolBoxFixture.h"

#include <QHBoxLayout>
#include <QProxyStyle>
#include <QPushButton>

namespace LumetraTest {
namespace {

class CustomToolBoxPages : public ToolBoxFixture
{
protected:
    QPixmap Square() const
    {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        return pixmap;
    }

    void ShowBox()
    {
        m_box->resize(240, 400);
        Show(*m_box);
    }
};

/// Logs how widgets called "title" are polished again, with their enabled state at that moment.
class PolishLogger : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget* widget) override
    {
        if (widget->objectName() == QLatin1String("title"))
            Log(QStringLiteral("polish"), *widget);
        QProxyStyle::polish(widget);
    }

    void unpolish(QWidget* widget) override
    {
        if (widget->objectName() == QLatin1String("title"))
            Log(QStringLiteral("unpolish"), *widget);
        QProxyStyle::unpolish(widget);
    }

    std::string TakeLog()
    {
        const std::string log = m_log.join(QStringLiteral(", ")).toStdString();
        m_log.clear();
        return log;
    }

private:
    void Log(const QString& call, const QWidget& widget)
    {
        m_log +=
            call + (widget.isEnabled() ? QStringLiteral(" enabled") : QStringLiteral(" disabled"));
    }

    QStringList m_log;
};

TEST_F(CustomToolBoxPages, emptyBoxHasNothingCurrent)
{
    EXPECT_EQ(m_box->count(), 0);
    EXPECT_EQ(m_box->currentIndex(), -1);
    EXPECT_EQ(m_box->currentWidget(), nullptr);
    EXPECT_EQ(m_box->getSpacing(), 0);
    EXPECT_EQ(m_box->backgroundRole(), QPalette::Button);
}

TEST_F(CustomToolBoxPages, nullWidgetIsRefused)
{
    AddPages("A");
    m_box->hooks.clear();

    EXPECT_EQ(m_box->addItem(nullptr, QStringLiteral("B")), -1);
    EXPECT_EQ(m_box->insertItem(0, nullptr, QStringLiteral("B")), -1);

    EXPECT_EQ(m_box->count(), 1);
    EXPECT_TRUE(m_box->hooks.isEmpty());
    EXPECT_EQ(m_box->findChildren<CustomToolBoxButton*>().size(), 1);
}

TEST_F(CustomToolBoxPages, insertionTellsTheIndexUsed)
{
    EXPECT_EQ(m_box->addItem(new QLabel, QStringLiteral("A")), 0);
    EXPECT_EQ(m_box->addItem(new QLabel, QIcon(), QStringLiteral("B")), 1);
    EXPECT_EQ(m_box->insertItem(2, new QLabel, QStringLiteral("C")), 2);
    EXPECT_EQ(m_box->insertItem(99, new QLabel, QStringLiteral("D")), 3);
    EXPECT_EQ(m_box->insertItem(-7, new QLabel, QIcon(), QStringLiteral("E")), 4);

    EXPECT_EQ(Pages(), "A+* B- C- D- E-");
}

TEST_F(CustomToolBoxPages, pagesAreFoundByIndexAndWidget)
{
    AddPages("AB");
    QLabel foreign;

    EXPECT_EQ(m_box->indexOf(m_box->widget(1)), 1);
    EXPECT_EQ(m_box->indexOf(&foreign), -1);
    EXPECT_EQ(m_box->indexOf(nullptr), -1);
    EXPECT_EQ(m_box->widget(-1), nullptr);
    EXPECT_EQ(m_box->widget(2), nullptr);
    EXPECT_EQ(m_box->currentWidget(), m_box->widget(0));
}

TEST_F(CustomToolBoxPages, itemAccessorsForwardToTheHeader)
{
    m_box->addItem(new QLabel, QIcon(Square()), QStringLiteral("A"));
    EXPECT_FALSE(m_box->itemIcon(0).isNull());

    m_box->setItemText(0, QStringLiteral("Portrait"));
    m_box->setItemToolTip(0, QStringLiteral("Looks for faces"));
    m_box->setItemIcon(0, QIcon());
    m_box->setItemEnabled(0, false);

    EXPECT_EQ(Header(0)->text(), QStringLiteral("Portrait"));
    EXPECT_EQ(m_box->itemText(0), QStringLiteral("Portrait"));
    EXPECT_EQ(Header(0)->toolTip(), QStringLiteral("Looks for faces"));
    EXPECT_EQ(m_box->itemToolTip(0), QStringLiteral("Looks for faces"));
    EXPECT_TRUE(m_box->itemIcon(0).isNull());
    EXPECT_FALSE(m_box->isItemEnabled(0));
    EXPECT_FALSE(Header(0)->isEnabled());
    EXPECT_TRUE(m_box->widget(0)->isEnabled());
}

TEST_F(CustomToolBoxPages, itemAccessorsIgnoreIndexesOutOfRange)
{
    AddPages("A");

    for (const int index : {-1, 1}) {
        m_box->setItemText(index, QStringLiteral("X"));
        m_box->setItemToolTip(index, QStringLiteral("X"));
        m_box->setItemIcon(index, QIcon(Square()));
        EXPECT_TRUE(m_box->itemText(index).isEmpty());
        EXPECT_TRUE(m_box->itemToolTip(index).isEmpty());
        EXPECT_TRUE(m_box->itemIcon(index).isNull());
        EXPECT_FALSE(m_box->isItemEnabled(index));
    }
    EXPECT_EQ(m_box->itemText(0), QStringLiteral("A"));
}

TEST_F(CustomToolBoxPages, pagesStandUnderTheirHeadersAndPackToTheTop)
{
    AddPages("ABC");
    m_box->setCurrentIndex(1);
    ShowBox();

    const int headerHeight = Header(0)->height();
    EXPECT_EQ(Header(0)->pos(), QPoint(0, 0));
    EXPECT_EQ(Header(0)->width(), m_box->width());
    EXPECT_EQ(m_box->widget(0)->pos(), QPoint(0, headerHeight));
    EXPECT_EQ(Header(1)->y(), m_box->widget(0)->geometry().bottom() + 1);
    EXPECT_EQ(m_box->widget(1)->y(), Header(1)->geometry().bottom() + 1);
    EXPECT_EQ(Header(2)->y(), m_box->widget(1)->geometry().bottom() + 1);
    EXPECT_LT(Header(2)->geometry().bottom(), m_box->height() / 2);
}

TEST_F(CustomToolBoxPages, spacingSeparatesHeadersAndPages)
{
    AddPages("AB");
    m_box->setSpacing(7);
    ShowBox();

    EXPECT_EQ(m_box->getSpacing(), 7);
    EXPECT_EQ(m_box->property("spacing").toInt(), 7);
    EXPECT_EQ(m_box->widget(0)->y(), Header(0)->geometry().bottom() + 1 + 7);

    EXPECT_TRUE(m_box->setProperty("spacing", 3));
    EXPECT_EQ(m_box->getSpacing(), 3);
}

TEST_F(CustomToolBoxPages, insertedPageIsNoWindowOfItsOwn)
{
    AddPages("AB");
    ShowBox();
    const ExpectLog warning("already has a layout");
    auto* inserted = new QLabel;

    m_box->insertItem(0, inserted, QStringLiteral("N"));
    m_box->setCurrentIndex(0);

    EXPECT_EQ(inserted->parentWidget(), m_box.get());
    EXPECT_FALSE(inserted->isWindow());
    EXPECT_TRUE(inserted->isVisible());
}

TEST_F(CustomToolBoxPages, titleButtonStandsAtTheEndOfItsHeaderRow)
{
    AddPages("AB");
    auto* title = new QPushButton(QStringLiteral("+"));
    m_box->addWidgetTitleButton(title, 1);
    ShowBox();

    EXPECT_EQ(title->parentWidget(), m_box.get());
    EXPECT_EQ(Header(0)->width(), m_box->width());
    EXPECT_EQ(title->x(), Header(1)->geometry().right() + 1 + 1);
    EXPECT_EQ(title->geometry().right(), m_box->width() - 1);
    EXPECT_LT(title->y(), Header(1)->geometry().bottom());
}

TEST_F(CustomToolBoxPages, titleButtonWithoutAPageIsOnlyTakenOver)
{
    AddPages("A");
    auto* title = new QPushButton;

    m_box->addWidgetTitleButton(title, 1);
    m_box->setCurrentIndex(0);

    EXPECT_EQ(title->parentWidget(), m_box.get());
    EXPECT_TRUE(title->isEnabled());
}

TEST_F(CustomToolBoxPages, titleButtonIsEnabledExactlyWhileItsPageIsOpen)
{
    AddPages("AB");
    auto* titleA = new QPushButton;
    auto* titleB = new QPushButton;
    m_box->addWidgetTitleButton(titleA, 0);
    m_box->addWidgetTitleButton(titleB, 1);
    EXPECT_TRUE(titleB->isEnabled()) << "left alone until a page is opened or shut";

    m_box->setCurrentIndex(0);
    EXPECT_FALSE(titleA->isEnabled());
    EXPECT_FALSE(titleB->isEnabled());

    m_box->setCurrentIndex(1);
    EXPECT_FALSE(titleA->isEnabled());
    EXPECT_TRUE(titleB->isEnabled());

    m_box->setCurrentIndex(0);
    EXPECT_TRUE(titleA->isEnabled());
    EXPECT_TRUE(titleB->isEnabled());
}

TEST_F(CustomToolBoxPages, laterTitleButtonReplacesTheEarlierOneButLeavesItInTheRow)
{
    AddPages("A");
    auto* earlier = new QPushButton;
    auto* later = new QPushButton;
    m_box->addWidgetTitleButton(earlier, 0);
    m_box->addWidgetTitleButton(later, 0);
    ShowBox();

    m_box->setCurrentIndex(0);

    EXPECT_TRUE(earlier->isVisible());
    EXPECT_TRUE(earlier->isEnabled());
    EXPECT_FALSE(later->isEnabled());
    EXPECT_LT(earlier->x(), later->x());
}

TEST_F(CustomToolBoxPages, titleButtonIsPolishedAgainAfterEveryChange)
{
    PolishLogger style;
    AddPages("AB");
    auto* title = new QPushButton;
    title->setObjectName(QStringLiteral("title"));
    title->setStyle(&style);
    m_box->addWidgetTitleButton(title, 0);
    style.TakeLog();

    m_box->setCurrentIndex(0);
    EXPECT_EQ(style.TakeLog(), "unpolish disabled, polish disabled") << "its new state is known";
    m_box->setCurrentIndex(0);
    EXPECT_EQ(style.TakeLog(), "unpolish enabled, polish enabled");
    m_box->setCurrentIndex(1);
    EXPECT_EQ(style.TakeLog(), "unpolish enabled, polish enabled")
        << "also when another page opens";
    delete title;
}

TEST_F(CustomToolBoxPages, disablingAPageDisablesItsTitleButtonAndEnablingLeavesIt)
{
    AddPages("AB");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 1);

    m_box->setItemEnabled(1, false);
    EXPECT_FALSE(title->isEnabled());
    m_box->setItemEnabled(1, true);
    EXPECT_FALSE(title->isEnabled());
}

TEST_F(CustomToolBoxPages, rowsKeepButtonBeforeTitleButtonWhenRebuilt)
{
    AddPages("AB");
    auto* title = new QPushButton;
    m_box->addWidgetTitleButton(title, 0);
    const ExpectLog warning("already has a layout");

    m_box->insertItem(1, new QLabel, QStringLiteral("N"));
    m_box->insertItem(1, new QLabel, QStringLiteral("M"));

    EXPECT_EQ(warning.GetCount(), 2);
    EXPECT_EQ(Pages(), "A+* M- N- B-");
    m_box->setCurrentIndex(0);
    EXPECT_FALSE(title->isEnabled());
}

TEST_F(CustomToolBoxPages, headerAfterTheCurrentPageTakesItsOwnPagesColour)
{
    AddPages("ABC");
    QPalette palette = m_box->widget(1)->palette();
    palette.setColor(m_box->widget(1)->backgroundRole(), Qt::magenta);
    m_box->widget(1)->setPalette(palette);

    m_box->setCurrentIndex(0);
    m_box->setCurrentIndex(0);

    const auto colour = [this](int i, QPalette::ColorGroup group) {
        return Header(i)->palette().color(group, Header(i)->backgroundRole());
    };
    EXPECT_EQ(colour(1, QPalette::Active), QColor(Qt::magenta));
    EXPECT_EQ(colour(1, QPalette::Disabled), QColor(Qt::magenta));
    EXPECT_EQ(colour(1, QPalette::Inactive), QColor(Qt::magenta));
    EXPECT_NE(colour(0, QPalette::Active), QColor(Qt::magenta));
    EXPECT_NE(colour(2, QPalette::Active), QColor(Qt::magenta));
}

TEST_F(CustomToolBoxPages, otherHeadersGetTheWindowRoleBack)
{
    AddPages("ABC");
    Header(2)->setBackgroundRole(QPalette::Base);

    QEvent styleChange(QEvent::StyleChange);
    QApplication::sendEvent(m_box.get(), &styleChange);

    EXPECT_EQ(Header(2)->backgroundRole(), QPalette::Window);
}

TEST_F(CustomToolBoxPages, otherChangesLeaveTheHeadersAlone)
{
    AddPages("ABC");
    Header(2)->setBackgroundRole(QPalette::Base);

    QEvent fontChange(QEvent::FontChange);
    QApplication::sendEvent(m_box.get(), &fontChange);

    EXPECT_EQ(Header(2)->backgroundRole(), QPalette::Base);
}

TEST_F(CustomToolBoxPages, theCurrentPageStaysItsPageWhileOthersComeAndGo)
{
    AddPages("abc");
    m_box->setCurrentIndex(1, true);
    QWidget* const current = m_box->currentWidget();
    for (int i = 0; i < 100; ++i) {
        m_box->addItem(new QLabel, QString::number(i));
        ASSERT_EQ(m_box->currentWidget(), current) << "with " << i << " more";
    }
    m_box->removeItem(0);
    EXPECT_EQ(m_box->currentIndex(), 0);
    for (int i = 0; i < 100; ++i)
        m_box->removeItem(2);
    EXPECT_EQ(m_box->count(), 2);
    EXPECT_EQ(m_box->currentWidget(), current);
    m_box->removeItem(0);
    EXPECT_EQ(m_box->currentIndex(), 0);
    EXPECT_NE(m_box->currentWidget(), current);
}

} // namespace
} // namespace LumetraTest
