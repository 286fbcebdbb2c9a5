// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace LumetraPlugin {

/// Runs work on a thread of its own while the user waits for it. The window goes on being drawn;
/// when the work takes longer, a dialog shows how far it is and lets the user end it.
class BackgroundWork
{
public:
    /// Is told how many parts of how many are done, and the name of the next one; returns false to
    /// end.
    using Progress = std::function<bool(int done, int total, const QString& name)>;
    /// Tells how far it is, and ends when it is told to. Runs on the other thread.
    using Work = std::function<void(const Progress& progress)>;

    /// The texts of the dialog, in the user's language.
    struct Texts
    {
        QString title;
        QString parts; ///< names the parts that the bar counts, for screen readers
    };

    /// `window` is the parent of the dialog, kept by reference.
    BackgroundWork(const Texts& texts, QWidget& window) : m_texts(texts), m_window(window) {}

    /// Returns when the work is done; false when the user has ended it. What `work` throws is
    /// thrown here.
    bool Run(const Work& work);

private:
    Texts m_texts;
    QWidget& m_window;
};

} // namespace LumetraPlugin
