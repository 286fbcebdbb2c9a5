// SPDX-License-Identifier: MIT
#include "RealInput.h"
#include "ToolBoxFixture.h"

#include <QStyleOptionToolBox>

namespace LumetraTest {
namespace {

/// Opens the protected operation that styles would be given.
class OptionReader : public CustomToolBoxButton
{
public:
    static QStyleOptionToolBox Read(const CustomToolBoxButton& button, int version = 2)
    {
        QStyleOptionToolBox option;
        option.version = version;
        (button.*(&OptionReader::initStyleOption))(&option);
        return option;
    }
};

class CustomToolBoxButtonInBox : public ToolBoxFixture
{
protected:
    QStyleOptionToolBox Option(int index) const { return OptionReader::Read(*Header(index)); }
};

TEST(CustomToolBoxButton, startsCheckableWithoutFocus)
{
    const CustomToolBoxButton button;

    EXPECT_TRUE(button.isCheckable());
    EXPECT_FALSE(button.isChecked());
    EXPECT_FALSE(button.isSelected());
    EXPECT_EQ(button.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(button.backgroundRole(), QPalette::Window);
    EXPECT_EQ(button.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    EXPECT_EQ(button.sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

TEST(CustomToolBoxButton, checkedButtonStaysCheckedUnlessCollapsable)
{
    CustomToolBoxButton button;
    Show(button);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] {
        ++clicks;
        if (clicks == 2)
            button.setChecked(true); // as the tool box does with an open page
    });

    Mouse::Click(button);
    EXPECT_TRUE(button.isChecked());
    Mouse::Click(button);
    EXPECT_TRUE(button.isChecked());
    EXPECT_EQ(clicks, 2);

    button.setCollapsable(true);
    Mouse::Click(button);
    EXPECT_FALSE(button.isChecked());
    EXPECT_EQ(clicks, 3);
}

TEST(CustomToolBoxButton, checkedButtonClicksAlsoWhenReleasedOutside)
{
    QWidget window;
    window.resize(200, 200);
    CustomToolBoxButton button(&window);
    Show(window);
    button.setChecked(true);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++clicks; });

    Mouse::Press(button, QPoint(3, 3));
    Mouse::Release(button, QPoint(3, button.height() + 30));

    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(button.isDown());
}

TEST_F(CustomToolBoxButtonInBox, optionTellsTextIconAndState)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    m_box->addItem(new QLabel, QIcon(pixmap), QStringLiteral("A"));
    m_box->addItem(new QLabel, QStringLiteral("B"));

    EXPECT_EQ(Option(0).text, QStringLiteral("A"));
    EXPECT_FALSE(Option(0).icon.isNull());
    EXPECT_TRUE(Option(0).state & QStyle::State_Selected);
    EXPECT_FALSE(Option(1).state & QStyle::State_Selected);
    EXPECT_FALSE(Option(1).state & QStyle::State_Sunken);
    EXPECT_EQ(Option(1).rect, Header(1)->rect());

    Header(1)->setDown(true);
    EXPECT_TRUE(Option(1).state & QStyle::State_Sunken);
}

TEST_F(CustomToolBoxButtonInBox, optionTellsThePositionAmongTheTabs)
{
    AddPages("A");
    EXPECT_EQ(Option(0).position, QStyleOptionToolBox::OnlyOneTab);

    AddPages("BC");
    EXPECT_EQ(Option(0).position, QStyleOptionToolBox::Beginning);
    EXPECT_EQ(Option(1).position, QStyleOptionToolBox::Middle);
    EXPECT_EQ(Option(2).position, QStyleOptionToolBox::End);
}

TEST_F(CustomToolBoxButtonInBox, optionTellsTheSelectedNeighbour)
{
    AddPages("ABC");

    EXPECT_EQ(Option(0).selectedPosition, QStyleOptionToolBox::NotAdjacent);
    EXPECT_EQ(Option(1).selectedPosition, QStyleOptionToolBox::PreviousIsSelected);
    EXPECT_EQ(Option(2).selectedPosition, QStyleOptionToolBox::NotAdjacent);

    m_box->setCurrentIndex(2);
    EXPECT_EQ(Option(1).selectedPosition, QStyleOptionToolBox::NextIsSelected);
}

TEST_F(CustomToolBoxButtonInBox, optionOfTheFirstVersionHasNoPositions)
{
    AddPages("AB");

    const auto option = OptionReader::Read(*Header(1), 1);

    EXPECT_EQ(option.text, QStringLiteral("B"));
    EXPECT_EQ(option.position, QStyleOptionToolBox().position);
    EXPECT_EQ(option.selectedPosition, QStyleOptionToolBox().selectedPosition);
}

} // namespace
} // namespace LumetraTest
