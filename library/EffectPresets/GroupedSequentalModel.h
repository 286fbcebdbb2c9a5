// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>

#include <type_traits>
#include <vector>

namespace Zorvik::Lumetra {

/// A two-level item model: an ordered list of groups, each with an ordered list of items, in one
/// column. The derived model supplies data() and fills the groups.
///
/// An index points at its group record or item slot inside these lists, so it means nothing once a
/// list has grown or shrunk: keep a QPersistentModelIndex, or the item. Columns are not checked,
/// and an index of another model is the caller's fault.
template <class Info, class Item>
class GroupedSequentalModel : public QAbstractItemModel
{
public:
    /// A group: its items and what is known of it.
    struct GroupInfo
    {
        std::vector<Item> items;
        Info info;
    };
    // Else the item lists, and with them all item slots, would be copied when the list of groups
    // grows.
    static_assert(std::is_nothrow_move_constructible_v<GroupInfo>);

    explicit GroupedSequentalModel(QObject* parent = nullptr);
    ~GroupedSequentalModel() override;

    using QObject::parent;

    /// Constant time.
    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    /// Linear in the number of items.
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Always 1.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

protected:
    bool IsGroupElement(const QModelIndex& index) const;
    bool IsSingleElement(const QModelIndex& index) const;
    /// The first slot that holds this very item; invalid for a null item and for one that no group
    /// holds. Linear in the number of items.
    QPersistentModelIndex indexForItem(const Item& item) const;

    std::vector<GroupInfo> m_groups;

private:
    /// Negative rows are out of range too.
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
