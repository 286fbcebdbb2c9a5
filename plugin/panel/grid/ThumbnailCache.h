// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPixmap>

class QModelIndex;

namespace LumetraPlugin {

class PresetModel;

/// The presets' pictures as they were last rendered. A picture is requested only when it is to be
/// painted; an outdated one is shown until the new one comes.
class ThumbnailCache : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailCache(PresetModel& model);

    /// The preset's picture, requested if it is missing or outdated; null while there is none.
    QPixmap Get(const QModelIndex& preset);

    /// Marks the picture of that key as rendered.
    void SetReady(const QString& key);
    /// Marks the preset's picture as outdated.
    void MarkOld(const QModelIndex& preset);
    void MarkAllOld();
    /// Drops all pictures: those of another photo must not be seen.
    void Clear();

signals:
    /// The preset with that key looks different now; an empty key: all of them.
    void changed(const QString& key);

private:
    struct Entry
    {
        QPixmap picture;
        bool isOld = true;
        bool isAskedFor = false;
    };

    PresetModel& m_model;
    QHash<QString, Entry> m_entries;
};

} // namespace LumetraPlugin
