// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "background/BackgroundThread.h"
#include "edit/EditState.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace LumetraEditor {

/// Keeps the edit of a photo in a file beside it, "PHOTO.lumetra.json". Written beside the GUI
/// thread, whole or not at all; of several states in a row the last one is written. A file that
/// cannot be read is never lost: it is copied to a dated name before it is written over.
class Sidecar : public QObject
{
    Q_OBJECT

public:
    explicit Sidecar(QObject* parent = nullptr);
    /// Waits until everything is written.
    ~Sidecar() override;

    static QString GetPath(const QString& photo);

    /// From now on the sidecar of this photo: its edit, nothing when there is no file or, after
    /// problem(), when it cannot be read. Waits until the earlier one is written.
    std::optional<EditState> Open(const QString& photo);
    /// For the photo opened last.
    void Write(const EditState& state);
    /// Returns when everything is written.
    void Flush();
    /// False after a write has failed, until one succeeds or another photo is opened.
    bool IsSafe() const { return m_isSafe; }

signals:
    /// A sentence with the file's name.
    void problem(const QString& message);

private:
    struct Job;

    void Report(const Job& job);

    QString m_path;
    bool m_isSafe = true;
    std::shared_ptr<std::atomic<bool>> m_isUnreadable; ///< the file of m_path
    std::atomic<int> m_newest{0};
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
