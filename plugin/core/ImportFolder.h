// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace LumetraPlugin {

/// Finds the files with looks that paths of a user stand for.
class ImportFolder
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::ImportFolder)

public:
    /// The most files that one import takes.
    static constexpr int MostFiles = 20000;
    static constexpr int DeepestFolder = 16;

    /// Files as they are given, in that order; a folder gives the files in it and in the folders
    /// below it whose names can be imported, sorted by path. Hidden files and linked folders are
    /// passed over, and in folders so are pictures that cannot be tables of colours. `problems`
    /// gets a sentence for a folder that cannot be read, has no looks, or has too many.
    static QStringList FindFiles(const QStringList& paths, QStringList& problems);
};

} // namespace LumetraPlugin
