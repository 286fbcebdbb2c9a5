// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "strip/FolderScan.h"
#include "strip/ThumbnailLoader.h"

#include <QAbstractListModel>
#include <QCache>
#include <QCollator>
#include <QHash>
#include <QSet>

#include <functional>
#include <memory>
#include <vector>

namespace LumetraEditor {

/// The order of a row of photos.
enum class PhotoOrder
{
    Name, ///< as people count: photo 2 stands before photo 10
    Time  ///< of the shot where the photo tells it, else of the file; equal times by name
};

/// The photos that the window can step through, in their order, with thumbnails that are made only
/// for the rows in sight. Pictures take a limited number of bytes, and those that were in sight
/// longest ago go first. Knows files by their paths: a link to a photo is a photo of its own.
class PhotoStripModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        PathRole = Qt::UserRole, ///< QString, absolute
        EditedRole,              ///< bool: the photo's edit shows something
        LooksRole,               ///< QStringList: shown names of the looks on the photo
        ProblemRole,             ///< QString: why the photo cannot be read; empty otherwise
        CurrentRole              ///< bool: the photo that the window shows, or was last asked for
    };

    /// Returns the name of a look in the user's language; empty where it is not known.
    using NameLook = std::function<QString(const ThumbnailLook& look)>;

    /// Bytes that all thumbnails may take together.
    static constexpr int DefaultCapacity = 64 << 20;

    /// `capacity` in bytes.
    explicit PhotoStripModel(ThumbnailLoader::Make make, QObject* parent = nullptr,
                             int capacity = DefaultCapacity);

    /// Begins anew with these files, whether they are there or not; they are never removed as
    /// vanished. A path that is given twice is in the model once.
    void Replace(const QStringList& paths);
    /// Adds photos in their places. Of those that are known already, a file or an edit that has
    /// changed gets another thumbnail.
    void Add(const std::vector<FoundPhoto>& photos);
    /// Follows the last Add() of a scan: removes photos that are not among `found`, but for the
    /// current one and the files of Replace(), and brings changed times into the order.
    void EndScan(const QSet<QString>& found);

    /// The row of a path; -1 where it is not in the model.
    int FindRow(const QString& path) const;
    /// The path of a row; empty beyond the ends.
    QString GetPath(int row) const;
    /// The capture times that are known, for the next scan.
    FolderScan::KnownTimes GetTimes() const;

    PhotoOrder GetOrder() const { return m_order; }
    void SetOrder(PhotoOrder order);
    /// The current photo's path, which need not be in the model; empty: none.
    const QString& GetCurrent() const { return m_current; }
    void SetCurrent(const QString& path);

    /// Makes thumbnails for these rows, and then for as many on either side. An empty range (`last`
    /// before `first`): for none.
    void SetVisibleRows(int first, int last);
    /// Sets the device pixels that a thumbnail has to fit into. The old ones are shown until the
    /// new ones come.
    void SetThumbnailSize(const QSize& size);
    /// Sets the colours of the monitor; null: sRGB.
    void SetDisplay(const std::shared_ptr<const LumetraHost::DisplayTransform>& display);
    /// Sets where looks get their names for the user. Without it they are named as edits have them.
    void SetNaming(const NameLook& nameLook) { m_nameLook = nameLook; }
    /// The photo's edit has changed. Does nothing for other photos.
    void MarkChanged(const QString& path);
    /// The photo cannot be read, whatever its thumbnail shows.
    void SetProblem(const QString& path, const QString& problem);
    /// True when every row in sight has the newest thumbnail, or a problem. For tests and pictures.
    bool HasAllThumbnails() const;
    /// Bytes that the thumbnails take now.
    int GetThumbnailBytes() const { return m_pictures.totalCost(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    struct Item;
    using ItemPtr = std::shared_ptr<Item>;
    using Rows = std::vector<ItemPtr>;

    ItemPtr MakeItem(const FoundPhoto& photo) const;
    bool IsBefore(const ItemPtr& first, const ItemPtr& second) const;
    void Insert(Rows fresh);
    void Update(Item& item, const FoundPhoto& photo);
    void Sort();
    void SortRows();
    void RemoveVanished(const QSet<QString>& found);
    int FindRow(const Item& item) const;
    void Announce(int row, const QVector<int>& roles);
    void MarkAllOld();
    bool NeedsThumbnail(const Item& item) const;
    void RequestThumbnails();
    void Take(const Thumbnail& thumbnail);
    QString DescribeRow(const Item& item, int row) const;
    QString DescribePhoto(const Item& item) const;
    QStringList NameLooks(const Item& item) const;

    QCollator m_collator;
    PhotoOrder m_order = PhotoOrder::Name;
    Rows m_rows;
    QHash<QString, ItemPtr> m_byPath;
    bool m_isUnsorted = false; ///< times have changed since the rows were sorted
    QString m_current;
    int m_firstVisible = 0;
    int m_lastVisible = -1;
    QSize m_size;
    std::shared_ptr<const LumetraHost::DisplayTransform> m_display;
    NameLook m_nameLook;
    int m_newestVersion = 0;
    mutable QCache<QString, QImage> m_pictures; ///< by path; looking one up counts as a use
    ThumbnailLoader m_loader;
};

} // namespace LumetraEditor
