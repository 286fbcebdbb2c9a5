// SPDX-License-Identifier: MIT
#include "EffectPresets/GroupedSequentalModel.h"

#include "support/ModelText.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

using LumetraTest::IndexText;

namespace {

using Text = std::shared_ptr<std::string>;
using Base = Zorvik::Lumetra::GroupedSequentalModel<int, Text>;

/// The template with the least that a derived model adds, its helpers open.
class TextModel : public Base
{
public:
    using Base::indexForItem;
    using Base::IsGroupElement;
    using Base::IsSingleElement;

    void AddGroup(const std::vector<Text>& items)
    {
        m_groups.push_back({items, static_cast<int>(m_groups.size())});
    }

    const void* GroupAddress(int group) const { return &m_groups.at(group); }
    const void* SlotAddress(int group, int row) const { return &m_groups.at(group).items.at(row); }

    QVariant data(const QModelIndex& /*index*/, int /*role*/) const override { return QVariant(); }
};

Text Make(const std::string& text)
{
    return std::make_shared<std::string>(text);
}

/// Groups of two and three items.
class GroupedSequentalModelTest : public testing::Test
{
protected:
    GroupedSequentalModelTest()
    {
        model.AddGroup({Make("a"), second});
        model.AddGroup({Make("c"), Make("d"), Make("e")});
    }

    QModelIndex Group(int row, int column = 0) const
    {
        return model.index(row, column, QModelIndex());
    }

    Text second = Make("b");
    TextModel model;
};

} // namespace

TEST_F(GroupedSequentalModelTest, anEmptyModelHasNoRows)
{
    const TextModel empty;
    EXPECT_EQ(empty.rowCount(QModelIndex()), 0);
    EXPECT_EQ(empty.columnCount(QModelIndex()), 1);
    EXPECT_FALSE(empty.index(0, 0, QModelIndex()).isValid());
    EXPECT_FALSE(empty.indexForItem(second).isValid());
}

TEST_F(GroupedSequentalModelTest, pointsAtGroupRecordsAndItemSlots)
{
    EXPECT_EQ(Group(1).internalPointer(), model.GroupAddress(1));
    EXPECT_EQ(model.index(2, 0, Group(1)).internalPointer(), model.SlotAddress(1, 2));
    EXPECT_EQ(Group(1).row(), 1);
    EXPECT_EQ(model.index(2, 0, Group(1)).row(), 2);
}

TEST_F(GroupedSequentalModelTest, refusesRowsOutOfRange)
{
    for (const int row : {-1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(Group(row).isValid()) << row;
    for (const int row : {-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(model.index(row, 0, Group(1)).isValid()) << row;
    EXPECT_FALSE(model.index(2, 0, Group(0)).isValid());
}

TEST_F(GroupedSequentalModelTest, doesNotCheckColumns)
{
    const QModelIndex group = Group(0, 7);
    EXPECT_TRUE(group.isValid());
    EXPECT_EQ(group.column(), 7);
    EXPECT_EQ(model.index(1, 5, Group(0)).column(), 5);
    EXPECT_EQ(Group(0, 5).internalPointer(), Group(0).internalPointer());
}

TEST_F(GroupedSequentalModelTest, onlyColumnZeroHasChildren)
{
    EXPECT_FALSE(model.index(0, 0, Group(0, 1)).isValid());
    EXPECT_TRUE(model.index(0, 0, Group(0, 0)).isValid());
}

TEST_F(GroupedSequentalModelTest, anItemAsParentIsTakenForTheGroupOfItsRow)
{
    const QModelIndex item = model.index(1, 0, Group(0));
    EXPECT_EQ(model.index(0, 0, item), model.index(0, 0, Group(1)));
    const QModelIndex farItem = model.index(2, 0, Group(1));
    EXPECT_FALSE(model.index(0, 0, farItem).isValid()) << "there is no group 2";
}

TEST_F(GroupedSequentalModelTest, theParentOfAnItemIsItsGroupInColumnZero)
{
    EXPECT_FALSE(model.parent(QModelIndex()).isValid());
    EXPECT_FALSE(model.parent(Group(1)).isValid());
    EXPECT_FALSE(model.parent(Group(1, 4)).isValid());
    EXPECT_EQ(model.parent(model.index(2, 0, Group(1))), Group(1));
    EXPECT_EQ(model.parent(model.index(2, 6, Group(1))), Group(1, 0));
}

TEST_F(GroupedSequentalModelTest, anIndexThatPointsNowhereHasNoParent)
{
    TextModel other;
    other.AddGroup({Make("x")});
    const QModelIndex foreign = other.index(0, 0, other.index(0, 0, QModelIndex()));
    EXPECT_FALSE(model.parent(foreign).isValid());
}

TEST_F(GroupedSequentalModelTest, countsRowsByLevel)
{
    EXPECT_EQ(model.rowCount(QModelIndex()), 2);
    EXPECT_EQ(model.rowCount(Group(0)), 2);
    EXPECT_EQ(model.rowCount(Group(1)), 3);
    EXPECT_EQ(model.rowCount(model.index(1, 0, Group(0))), 0) << "an item has none";
}

TEST_F(GroupedSequentalModelTest, hasOneColumnEverywhere)
{
    EXPECT_EQ(model.columnCount(QModelIndex()), 1);
    EXPECT_EQ(model.columnCount(Group(0)), 1);
    EXPECT_EQ(model.columnCount(model.index(0, 0, Group(0))), 1);
}

TEST_F(GroupedSequentalModelTest, tellsGroupsFromItems)
{
    EXPECT_FALSE(model.IsGroupElement(QModelIndex()));
    EXPECT_FALSE(model.IsSingleElement(QModelIndex()));
    EXPECT_TRUE(model.IsGroupElement(Group(0)));
    EXPECT_FALSE(model.IsSingleElement(Group(0)));
    const QModelIndex item = model.index(0, 0, Group(0));
    EXPECT_FALSE(model.IsGroupElement(item));
    EXPECT_TRUE(model.IsSingleElement(item));
}

TEST_F(GroupedSequentalModelTest, findsAnItemByIdentity)
{
    EXPECT_EQ(IndexText(model.indexForItem(second)), "0/1");
    EXPECT_FALSE(model.indexForItem(Make("b")).isValid()) << "equal, but another object";
    EXPECT_FALSE(model.indexForItem(nullptr).isValid());
}

TEST_F(GroupedSequentalModelTest, findsTheFirstOfSeveralSlots)
{
    model.AddGroup({second, second});
    EXPECT_EQ(IndexText(model.indexForItem(second)), "0/1");
}

TEST_F(GroupedSequentalModelTest, neverFindsANullSlot)
{
    model.AddGroup({nullptr});
    EXPECT_FALSE(model.indexForItem(nullptr).isValid());
}

TEST(GroupedSequentalModel, releasesItsItemsWhenItDies)
{
    Text item = Make("x");
    const std::weak_ptr<std::string> watch = item;
    {
        TextModel owner;
        owner.AddGroup({std::move(item)});
        EXPECT_FALSE(watch.expired());
    }
    EXPECT_TRUE(watch.expired());
}

TEST_F(GroupedSequentalModelTest, addsNothingToTheMetaObjectOfItsBase)
{
    EXPECT_EQ(model.metaObject(), &QAbstractItemModel::staticMetaObject);
}

TEST_F(GroupedSequentalModelTest, aRecordMovesWithoutThrowing)
{
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Base::GroupInfo>);
}
