// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/PhotoStripModel.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace LumetraEditor {
namespace {

/// Roles that a thumbnail changes.
const QVector<int> ThumbnailRoles{Qt::DecorationRole,         Qt::ToolTipRole,
                                  Qt::AccessibleTextRole,     PhotoStripModel::EditedRole,
                                  PhotoStripModel::LooksRole, PhotoStripModel::ProblemRole};

QCollator MakeCollator()
{
    // The order is the same in both languages of the program. The locale of the system may be "C",
    // which knows no numbers in texts.
    QCollator collator(QLocale(QLocale::English));
    collator.setNumericMode(true);
    return collator;
}

} // namespace

struct PhotoStripModel::Item
{
    FoundPhoto file;
    QCollatorSortKey name;
    bool isGiven = false;     ///< by Replace()
    int version = 0;          ///< of the thumbnail that is needed
    int madeVersion = -1;     ///< of the thumbnail that came last
    Thumbnail thumbnail = {}; ///< without its picture, which the cache has

    QDateTime GetTime() const { return file.captured.isValid() ? file.captured : file.modified; }
};

PhotoStripModel::PhotoStripModel(ThumbnailLoader::Make make, QObject* parent, int capacity)
    : QAbstractListModel(parent), m_collator(MakeCollator()), m_pictures(capacity),
      m_loader(std::move(make))
{
    connect(&m_loader, &ThumbnailLoader::made, this, &PhotoStripModel::Take);
}

// The rows

PhotoStripModel::ItemPtr PhotoStripModel::MakeItem(const FoundPhoto& photo) const
{
    const auto item =
        std::make_shared<Item>(Item{photo, m_collator.sortKey(QFileInfo(photo.path).fileName())});
    item->version = m_newestVersion;
    return item;
}

bool PhotoStripModel::IsBefore(const ItemPtr& first, const ItemPtr& second) const
{
    if (m_order == PhotoOrder::Time && first->GetTime() != second->GetTime())
        return first->GetTime() < second->GetTime();
    const int byName = first->name.compare(second->name);
    return byName != 0 ? byName < 0 : first->file.path < second->file.path;
}

void PhotoStripModel::Replace(const QStringList& paths)
{
    beginResetModel();
    m_rows.clear();
    m_byPath.clear();
    m_pictures.clear();
    for (const QString& path : paths) {
        const QString absolute = QFileInfo(path).absoluteFilePath();
        if (m_byPath.contains(absolute))
            continue;
        const ItemPtr item = MakeItem({absolute, {}, {}, {}});
        item->isGiven = true;
        m_byPath.insert(absolute, item);
        m_rows.push_back(item);
    }
    SortRows();
    endResetModel();
    RequestThumbnails();
}

void PhotoStripModel::Add(const std::vector<FoundPhoto>& photos)
{
    Rows fresh;
    for (const FoundPhoto& photo : photos) {
        if (const ItemPtr known = m_byPath.value(photo.path)) {
            Update(*known, photo);
            continue;
        }
        fresh.push_back(MakeItem(photo));
        m_byPath.insert(photo.path, fresh.back());
    }
    Insert(std::move(fresh));
}

/// Inserts the rows in as few pieces as their places allow.
void PhotoStripModel::Insert(Rows fresh)
{
    const auto isBefore = [this](const ItemPtr& a, const ItemPtr& b) { return IsBefore(a, b); };
    std::sort(fresh.begin(), fresh.end(), isBefore);
    for (auto begin = fresh.begin(); begin != fresh.end();) {
        const auto place = std::upper_bound(m_rows.begin(), m_rows.end(), *begin, isBefore);
        const auto isBehind = [&](const ItemPtr& item) {
            return place != m_rows.end() && !IsBefore(item, *place);
        };
        const auto end = std::find_if(begin + 1, fresh.end(), isBehind);
        const auto row = static_cast<int>(place - m_rows.begin());
        beginInsertRows({}, row, row + static_cast<int>(end - begin) - 1);
        m_rows.insert(place, begin, end);
        endInsertRows();
        begin = end;
    }
    RequestThumbnails();
}

void PhotoStripModel::Update(Item& item, const FoundPhoto& photo)
{
    const bool isFirst = !item.file.modified.isValid(); // a given file of which nothing was known
    const bool isChanged =
        item.file.modified != photo.modified || item.file.editModified != photo.editModified;
    const QDateTime time = item.GetTime();
    const QDateTime captured = item.file.captured;
    item.file = photo;
    if (!isChanged && !photo.captured.isValid())
        item.file.captured = captured; // this scan did not ask for it
    m_isUnsorted = m_isUnsorted || item.GetTime() != time;
    if (isChanged && !isFirst)
        MarkChanged(photo.path);
}

void PhotoStripModel::EndScan(const QSet<QString>& found)
{
    RemoveVanished(found);
    if (m_isUnsorted && m_order == PhotoOrder::Time)
        Sort();
    m_isUnsorted = false;
    RequestThumbnails();
}

void PhotoStripModel::RemoveVanished(const QSet<QString>& found)
{
    const auto stays = [&](const ItemPtr& item) {
        return item->isGiven || item->file.path == m_current || found.contains(item->file.path);
    };
    for (int last = rowCount() - 1; last >= 0; --last) {
        if (stays(m_rows[static_cast<std::size_t>(last)]))
            continue;
        int first = last;
        while (first > 0 && !stays(m_rows[static_cast<std::size_t>(first - 1)]))
            --first;
        beginRemoveRows({}, first, last);
        for (int row = first; row <= last; ++row) {
            const QString& path = m_rows[static_cast<std::size_t>(row)]->file.path;
            m_pictures.remove(path);
            m_byPath.remove(path);
        }
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void PhotoStripModel::SortRows()
{
    std::sort(m_rows.begin(), m_rows.end(),
              [this](const ItemPtr& a, const ItemPtr& b) { return IsBefore(a, b); });
}

/// Sorts, and leads the indexes that others hold to the same photos as before.
void PhotoStripModel::Sort()
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    Rows kept;
    for (const QModelIndex& index : before)
        kept.push_back(m_rows[static_cast<std::size_t>(index.row())]);
    SortRows();
    QHash<const Item*, int> rows;
    for (int row = 0; row < rowCount(); ++row)
        rows.insert(m_rows[static_cast<std::size_t>(row)].get(), row);
    QModelIndexList after;
    for (const ItemPtr& item : kept)
        after.append(index(rows.value(item.get())));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void PhotoStripModel::SetOrder(PhotoOrder order)
{
    if (m_order == order)
        return;
    m_order = order;
    Sort();
    RequestThumbnails();
}

int PhotoStripModel::FindRow(const Item& item) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&item](const ItemPtr& row) { return row.get() == &item; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int PhotoStripModel::FindRow(const QString& path) const
{
    const ItemPtr item = m_byPath.value(path);
    return item ? FindRow(*item) : -1;
}

QString PhotoStripModel::GetPath(int row) const
{
    return row >= 0 && row < rowCount() ? m_rows[static_cast<std::size_t>(row)]->file.path
                                        : QString();
}

FolderScan::KnownTimes PhotoStripModel::GetTimes() const
{
    FolderScan::KnownTimes times;
    for (const ItemPtr& item : m_rows)
        if (item->file.captured.isValid())
            times.insert(item->file.path, item->file);
    return times;
}

void PhotoStripModel::SetCurrent(const QString& path)
{
    const int before = FindRow(m_current);
    m_current = path;
    for (const int row : {before, FindRow(path)})
        Announce(row, {CurrentRole});
}

void PhotoStripModel::Announce(int row, const QVector<int>& roles)
{
    if (row >= 0)
        emit dataChanged(index(row), index(row), roles);
}

// Thumbnails

void PhotoStripModel::SetVisibleRows(int first, int last)
{
    m_firstVisible = first;
    m_lastVisible = last;
    RequestThumbnails();
}

void PhotoStripModel::SetThumbnailSize(const QSize& size)
{
    if (m_size == size)
        return;
    m_size = size;
    MarkAllOld();
}

void PhotoStripModel::SetDisplay(
    const std::shared_ptr<const LumetraHost::DisplayTransform>& display)
{
    if (m_display == display)
        return;
    m_display = display;
    MarkAllOld();
}

void PhotoStripModel::MarkAllOld()
{
    ++m_newestVersion;
    for (const ItemPtr& item : m_rows)
        item->version = m_newestVersion;
    RequestThumbnails();
}

void PhotoStripModel::MarkChanged(const QString& path)
{
    const ItemPtr item = m_byPath.value(path);
    if (!item)
        return;
    item->version = ++m_newestVersion;
    RequestThumbnails();
}

void PhotoStripModel::SetProblem(const QString& path, const QString& problem)
{
    const ItemPtr item = m_byPath.value(path);
    if (!item)
        return;
    item->thumbnail.problem = problem;
    item->madeVersion = item->version;
    Announce(FindRow(*item), ThumbnailRoles);
}

bool PhotoStripModel::NeedsThumbnail(const Item& item) const
{
    const bool isMade = item.madeVersion == item.version;
    return !isMade || (item.thumbnail.problem.isEmpty() && !m_pictures.contains(item.file.path));
}

bool PhotoStripModel::HasAllThumbnails() const
{
    for (int row = std::max(m_firstVisible, 0); row <= std::min(m_lastVisible, rowCount() - 1);
         ++row)
        if (NeedsThumbnail(*m_rows[static_cast<std::size_t>(row)]))
            return false;
    return true;
}

void PhotoStripModel::RequestThumbnails()
{
    std::vector<ThumbnailRequest> requests;
    const auto request = [&](int first, int last) {
        for (int row = std::max(first, 0); row <= std::min(last, rowCount() - 1); ++row) {
            const Item& item = *m_rows[static_cast<std::size_t>(row)];
            if (NeedsThumbnail(item))
                requests.push_back({item.file.path, item.version, m_size, m_display});
        }
    };
    const int count = m_lastVisible - m_firstVisible + 1;
    if (count > 0 && !m_size.isEmpty()) {
        request(m_firstVisible, m_lastVisible);
        request(m_lastVisible + 1, m_lastVisible + count);
        request(m_firstVisible - count, m_firstVisible - 1);
    }
    m_loader.Want(std::move(requests));
}

void PhotoStripModel::Take(const Thumbnail& thumbnail)
{
    const ItemPtr item = m_byPath.value(thumbnail.path);
    if (!item || item->version != thumbnail.version)
        return;
    item->madeVersion = thumbnail.version;
    item->thumbnail = thumbnail;
    item->thumbnail.picture = {};
    if (thumbnail.picture.isNull())
        m_pictures.remove(thumbnail.path);
    else
        m_pictures.insert(thumbnail.path, new QImage(thumbnail.picture),
                          static_cast<int>(thumbnail.picture.sizeInBytes()));
    Announce(FindRow(*item), ThumbnailRoles);
}

// Roles that a view asks for

int PhotoStripModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PhotoStripModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Item& item = *m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return QFileInfo(item.file.path).fileName();
    case Qt::DecorationRole:
        if (const QImage* const picture = m_pictures.object(item.file.path))
            return *picture;
        return {};
    case Qt::ToolTipRole:
        return DescribePhoto(item);
    case Qt::AccessibleTextRole:
        return DescribeRow(item, index.row());
    case PathRole:
        return item.file.path;
    case EditedRole:
        return item.thumbnail.isEdited;
    case LooksRole:
        return NameLooks(item);
    case ProblemRole:
        return item.thumbnail.problem;
    case CurrentRole:
        return item.file.path == m_current;
    default:
        return {};
    }
}

/// The looks' names at this moment: the user may have renamed one, or changed the language.
QStringList PhotoStripModel::NameLooks(const Item& item) const
{
    QStringList names;
    for (const ThumbnailLook& look : item.thumbnail.looks) {
        const QString shown = m_nameLook ? m_nameLook(look) : QString();
        names.append(shown.isEmpty() ? look.name : shown);
    }
    return names;
}

/// Puts all into one line for a screen reader: "lake.jpg, edited, Golden, 3 of 128".
QString PhotoStripModel::DescribeRow(const Item& item, int row) const
{
    QStringList parts{QFileInfo(item.file.path).fileName()};
    if (!item.thumbnail.problem.isEmpty())
        parts.append(tr("cannot be opened"));
    if (item.thumbnail.isEdited)
        parts.append(tr("edited"));
    parts.append(NameLooks(item));
    parts.append(tr("%1 of %2").arg(row + 1).arg(rowCount()));
    return parts.join(QStringLiteral(", "));
}

/// The text of a tool tip; file names are no markup.
QString PhotoStripModel::DescribePhoto(const Item& item) const
{
    QStringList lines{QFileInfo(item.file.path).fileName().toHtmlEscaped()};
    if (!item.thumbnail.looks.empty())
        lines.append(NameLooks(item).join(QStringLiteral(" + ")).toHtmlEscaped());
    else if (item.thumbnail.isEdited)
        lines.append(tr("edited"));
    if (!item.thumbnail.problem.isEmpty())
        lines.append(item.thumbnail.problem.toHtmlEscaped());
    return QStringLiteral("<p>") + lines.join(QStringLiteral("<br>")) + QStringLiteral("</p>");
}

} // namespace LumetraEditor
