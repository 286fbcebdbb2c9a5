// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditFile.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace LumetraHost {

/// Looks for the edit of a photo: beside it, then in the user's own folder. Only reads.
///
/// An edit of this very photo comes before all others: the newer one of the file beside it and of
/// the one that was kept for this path, else the newest that was kept for its content at another
/// path. Where there is none, the newest edit that was made for another content under its name is
/// found, for the user to decide about.
class EditSearch
{
public:
    struct Found
    {
        QString path;
        EditFile edit;
        bool isOfOtherPhoto = false;
    };

    EditSearch(const QString& photo, const PhotoIdentity& identity);

    const std::optional<Found>& GetFound() const { return m_found; }
    /// Files that are there and cannot be read, and why; in the same order.
    const QStringList& GetUnreadable() const { return m_unreadable; }
    const QStringList& GetProblems() const { return m_problems; }

private:
    std::optional<Found> Read(const QString& path);
    std::vector<Found> ReadAll(const QStringList& paths);
    void Choose(std::vector<Found> edits, bool areOfOtherPhoto);

    PhotoIdentity m_identity;
    std::optional<Found> m_found;
    QStringList m_unreadable;
    QStringList m_problems;
};

} // namespace LumetraHost
