// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPixmap>

class QModelIndex;

namespace LumetraPlugin {

class PresetModel;

/// The presets' pictures as they were last rendered. A picture is asked for when somebody wants to
/// paint it, and only then; one that has become old goes on being shown until the new one comes.
class ThumbnailCache : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailCache(PresetModel& model);

    /// The preset's picture, asked for if it is missing or old; a null one while there is none.
    QPixmap Get(const QModelIndex& preset);

    /// The picture of that key has been rendered.
    void SetReady(const QString& key);
    /// The preset looks different now.
    void MarkOld(const QModelIndex& preset);
    void MarkAllOld();
    /// Another photo: old pictures must not be seen.
    void Clear();

signals:
    /// The preset of that key would be painted differently; an empty key: all of them.
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
