// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetController.h"
#include "storage/JsonValue.h"

#include <QByteArray>
#include <QString>

namespace LumetraPlugin {

/// Collects looks and writes them as one file, see LookFormat.
class LookWriter
{
public:
    enum class Packing
    {
        Automatic, ///< a zip archive for texts over LookFormat::LargestPlainText
        Plain      ///< the JSON text itself, for text editors
    };

    LookWriter();

    /// Adds the preset as it stands, with the values of its sliders and its intensity, its credits
    /// and its tables. `preview` is a JPEG file, or empty. Exception when a table is missing or
    /// damaged, and for a text that is no UTF-8; nothing is added then.
    void Add(const PresetController& preset, const QByteArray& preview = {});

    /// The content of a file with these looks. Exception for one that could not be read again.
    QByteArray ToFile(Packing packing, const QString& fileName) const;
    /// Replaces or creates the file at `path`. Exception, and the file as it was, as from ToFile()
    /// and CheckedFileWriter.
    void Write(const QString& path, Packing packing = Packing::Automatic) const;

private:
    std::shared_ptr<LumetraHost::JsonArray> m_looks;
    LumetraHost::JsonObject m_root;
};

} // namespace LumetraPlugin
