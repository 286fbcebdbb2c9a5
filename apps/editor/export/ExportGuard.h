// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "storage/FileIdentity.h"

#include <QCoreApplication>
#include <QMultiHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <deque>
#include <map>
#include <mutex>

namespace LumetraEditor {

/// Knows the files that no export may replace: the photos of this session, photos that have an edit
/// of their own, and the program's own files. Files are told apart by device and inode, so that
/// links and other forms of a path change nothing. Photos are looked at once, on a thread of the
/// guard, and an answer looks again at those few alone that may be the output: there may be
/// thousands of them, on a slow drive. Usable from any thread. An answer holds for the moment only,
/// so that exports ask again right before they write.
class ExportGuard
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::ExportGuard)

public:
    ~ExportGuard();

    /// Adds photos that the user can step to. They stay in the session when others follow them.
    void AddPhotos(const QStringList& paths);
    /// Sets the photo that is shown; empty: none.
    void SetOpenPhoto(const QString& path);

    /// A sentence for the user that names the file and says why it cannot be written; empty when
    /// the guard knows of no reason.
    QString FindObstacle(const QString& output) const;

private:
    void LookAtNewPhotos() const;
    QString GetOpenPhoto() const;
    bool IsPhoto(const QString& output, const LumetraHost::FileIdentity& file) const;
    QString FindPhoto(const QString& output) const;

    mutable std::mutex m_looking; ///< held while a photo is looked at
    mutable std::mutex m_mutex;   ///< guards the rest
    QSet<QString> m_photos;
    QMultiHash<QString, QString> m_byName; ///< photos by their folded file names
    mutable std::deque<QString> m_new;     ///< photos that nobody has looked at
    /// Photos by what they were when they were looked at; another file may be there by now.
    mutable std::multimap<LumetraHost::FileIdentity, QString> m_byIdentity;
    QString m_openPhoto;
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
