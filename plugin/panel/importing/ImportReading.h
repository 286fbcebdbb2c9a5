// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetImport.h"

#include <QCoreApplication>

#include <functional>
#include <optional>

class QWidget;

namespace LumetraPlugin {

/// Reads files for an import on a thread of its own, see BackgroundWork.
class ImportReading
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::ImportReading)

public:
    /// Reads the files and tells how far it is; ends, with whatever it has, when it is told to.
    /// Runs on the other thread.
    using Work = std::function<ImportedFiles(const PresetImport::Progress& progress)>;

    /// `window` is the parent of the dialog, kept by reference.
    explicit ImportReading(QWidget& window) : m_window(window) {}

    /// Returns when the work is done; nothing when the user has ended it. What `work` throws is
    /// thrown here.
    std::optional<ImportedFiles> Run(const Work& work);

private:
    QWidget& m_window;
};

} // namespace LumetraPlugin
