// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/FileIdentity.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>
#include <set>

namespace LumetraEditor {

/// Knows the files that no export may replace: the photos of this session, photos that have an edit
/// of their own, and the program's own files. Files are told apart by device and inode, so that
/// links and other forms of a path change nothing. Usable from any thread. An answer holds for the
/// moment only, so that exports ask again right before they write.
class ExportGuard
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::ExportGuard)

public:
    /// Adds photos that the user can step to. They stay in the session when others follow them.
    void AddPhotos(const QStringList& paths);
    /// Sets the photo that is shown; empty: none.
    void SetOpenPhoto(const QString& path);

    /// A sentence for the user that names the file and says why it cannot be written; empty when
    /// the guard knows of no reason.
    QString FindObstacle(const QString& output) const;
    /// Answers for many outputs, in their order, and looks at the photos of the session once.
    QStringList FindObstacles(const QStringList& outputs) const;

private:
    /// The photos of the session, as they are on the disk at one moment.
    struct Photos
    {
        LumetraHost::FileIdentity open;
        std::set<LumetraHost::FileIdentity> all;
    };

    Photos LookAtPhotos() const;
    static QString FindObstacle(const QString& output, const Photos& photos);
    static QString FindPhoto(const QString& output, const Photos& photos);

    mutable std::mutex m_mutex; ///< guards the rest
    QSet<QString> m_photos;
    QString m_openPhoto;
};

} // namespace LumetraEditor
