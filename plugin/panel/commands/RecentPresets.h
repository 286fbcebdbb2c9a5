// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace LumetraPlugin {

/// The ids of the presets that the user has put on a photo last, each once, the latest first; kept
/// in an ini file beside the user's presets. Presets that are gone stay in the list until later
/// ones push them out, since deleting can be undone.
class RecentPresets
{
public:
    static constexpr int MaxCount = 24;

    /// Reads the list at `path`; a missing file, or an empty path, is an empty list.
    explicit RecentPresets(const QString& path);

    void Add(const QString& id);
    bool Contains(const QString& id) const { return m_ids.contains(id); }
    const QStringList& GetIds() const { return m_ids; }

private:
    QString m_path;
    QStringList m_ids;
};

} // namespace LumetraPlugin
