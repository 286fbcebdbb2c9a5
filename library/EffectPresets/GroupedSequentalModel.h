// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>

#include <type_traits>
#include <vector>

namespace Zorvik::Lumetra {

/// A two-level item model has an ordered list of groups, each with an ordered list of items, in one
/// column. The derived model supplies data() and fills the groups. No operation throws; whatever is
/// out of range gives an invalid index or no rows.
///
/// An index points at its group record or item slot inside these lists, so it means nothing once a
/// list has grown or shrunk: keep a QPersistentModelIndex, or the item. Columns are not checked,
/// and an index of another model is the caller's fault.
template <class Info, class Item>
class GroupedSequentalModel : public QAbstractItemModel
{
public:
    /// Holds one group's items and the payload that the derived model knows the group by.
    struct GroupInfo
    {
        std::vector<Item> items;
        Info info;
    };
    // A record that may throw while it is moved would be copied, with all its item slots, when the
    // list of groups grows.
    static_assert(std::is_nothrow_move_constructible_v<GroupInfo>);

    /// Makes a model without groups.
    explicit GroupedSequentalModel(QObject* parent = nullptr);
    ~GroupedSequentalModel() override;

    using QObject::parent;

    /// Returns the index of a group, or of an item below a group's index in column 0, in constant
    /// time. An item's index as parent is taken for that of the group in the same row.
    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    /// Returns the item's group in column 0, and an invalid index for a group or an index that
    /// points at nothing in the lists. The search is linear in the number of items.
    QModelIndex parent(const QModelIndex& child) const override;
    /// Returns the number of groups, the number of a group's items, or 0 below an item.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Returns 1 for every parent, items included.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

protected:
    /// True for a valid index without a parent.
    bool IsGroupElement(const QModelIndex& index) const;
    /// True for a valid index directly below a group.
    bool IsSingleElement(const QModelIndex& index) const;
    /// Returns the first slot that holds this very item, and an invalid index for a null item or
    /// one that no group holds. The search is linear in the number of items.
    QPersistentModelIndex indexForItem(const Item& item) const;

    std::vector<GroupInfo> m_groups;

private:
    /// True for a row from 0 to `count` - 1; negative rows are out of range too.
    static bool IsInRange(int row, std::size_t count)
    {
        return static_cast<quint64>(static_cast<qint64>(row)) < count;
    }

    QModelIndex CreateIndex(int row, int column, const void* element) const
    {
        return createIndex(row, column, const_cast<void*>(element));
    }
};

template <class Info, class Item>
GroupedSequentalModel<Info, Item>::GroupedSequentalModel(QObject* parent)
    : QAbstractItemModel(parent)
{
}

template <class Info, class Item>
GroupedSequentalModel<Info, Item>::~GroupedSequentalModel() = default;

template <class Info, class Item>
QModelIndex GroupedSequentalModel<Info, Item>::index(int row, int column,
                                                     const QModelIndex& parent) const
{
    if (!parent.isValid())
        return IsInRange(row, m_groups.size()) ? CreateIndex(row, column, &m_groups[row])
                                               : QModelIndex();
    if (parent.column() != 0 || !IsInRange(parent.row(), m_groups.size()))
        return QModelIndex();
    const auto& items = m_groups[parent.row()].items;
    return IsInRange(row, items.size()) ? CreateIndex(row, column, &items[row]) : QModelIndex();
}

template <class Info, class Item>
QModelIndex GroupedSequentalModel<Info, Item>::parent(const QModelIndex& child) const
{
    if (!child.isValid())
        return QModelIndex();
    const void* element = child.internalPointer();
    for (std::size_t g = 0; g < m_groups.size(); ++g) {
        if (element == &m_groups[g])
            return QModelIndex();
        for (const Item& item : m_groups[g].items)
            if (element == &item)
                return CreateIndex(static_cast<int>(g), 0, &m_groups[g]);
    }
    return QModelIndex();
}

template <class Info, class Item>
int GroupedSequentalModel<Info, Item>::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.parent().isValid() || !IsInRange(parent.row(), m_groups.size()))
        return 0;
    return static_cast<int>(m_groups[parent.row()].items.size());
}

template <class Info, class Item>
int GroupedSequentalModel<Info, Item>::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

template <class Info, class Item>
bool GroupedSequentalModel<Info, Item>::IsGroupElement(const QModelIndex& index) const
{
    return index.isValid() && !index.parent().isValid();
}

template <class Info, class Item>
bool GroupedSequentalModel<Info, Item>::IsSingleElement(const QModelIndex& index) const
{
    if (!index.isValid())
        return false;
    const QModelIndex group = index.parent();
    return group.isValid() && !group.parent().isValid();
}

template <class Info, class Item>
QPersistentModelIndex GroupedSequentalModel<Info, Item>::indexForItem(const Item& item) const
{
    if (!item)
        return QPersistentModelIndex();
    for (std::size_t g = 0; g < m_groups.size(); ++g) {
        const QModelIndex group = index(static_cast<int>(g), 0, QModelIndex());
        for (std::size_t i = 0; i < m_groups[g].items.size(); ++i) {
            const QModelIndex found = index(static_cast<int>(i), 0, group);
            if (m_groups[g].items[i] == item)
                return QPersistentModelIndex(found);
        }
    }
    return QPersistentModelIndex();
}

} // namespace Zorvik::Lumetra
