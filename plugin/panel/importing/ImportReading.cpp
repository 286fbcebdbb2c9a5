// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/importing/ImportReading.h"

#include "panel/importing/BackgroundWork.h"

#include <QFileInfo>

namespace LumetraPlugin {

std::optional<ImportedFiles> ImportReading::Run(const Work& work)
{
    ImportedFiles files;
    BackgroundWork background({tr("Import looks"), tr("Files that are read")}, m_window);
    const bool isDone = background.Run([&](const BackgroundWork::Progress& progress) {
        files = work([&progress](int done, int total, const QString& path) {
            return progress(done, total, QFileInfo(path).fileName());
        });
    });
    return isDone ? std::optional(std::move(files)) : std::nullopt;
}

} // namespace LumetraPlugin
