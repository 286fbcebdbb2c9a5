// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "edits/PhotoIdentity.h"

#include "photo/Photo.h"

#include <QObject>
#include <QString>

#include <atomic>

namespace LumetraEditor {

/// Reads photo files beside the GUI thread. Only the latest request is delivered: a photo of an
/// earlier one that is still being read is dropped, and one that waits is not read.
class PhotoLoader : public QObject
{
    Q_OBJECT

public:
    explicit PhotoLoader(QObject* parent = nullptr);

    /// Ends with loaded() or failed() for this path, unless another photo is asked for before.
    void Load(const QString& path);
    bool IsLoading() const { return m_isLoading; }

signals:
    /// `identity` is that of the file before it was read.
    void loaded(const QString& path, const LumetraHost::KeptPhoto& photo,
                const LumetraHost::PhotoIdentity& identity);
    /// `message` names the file and what was expected.
    void failed(const QString& path, const QString& message);

private:
    struct Job;

    void Deliver(const Job& job);

    std::atomic<int> m_newest{0};
    bool m_isLoading = false;
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
