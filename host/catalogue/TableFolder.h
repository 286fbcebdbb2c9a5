// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <QString>

#include <functional>
#include <string>

namespace LumetraHost {

/// The folder of a catalogue, with the files of look-up tables that the catalogue names. Files
/// outside of it are refused, for a catalogue comes from anywhere and would be incomplete without
/// them.
class TableFolder
{
public:
    /// Reads the table of a file as an effect "lut3d". Zorvik::Exception with the file and what was
    /// expected.
    using Reader = std::function<Zorvik::Quindle::EffectPtr(const QString& path)>;

    /// `catalogue` is the file of the catalogue. Where that is a link, the folder is the one that
    /// the file itself lies in. `read` must not be empty.
    TableFolder(const QString& catalogue, Reader read);

    /// Reads the table of the file `name`, a path from the folder with "/" between its parts.
    /// Zorvik::Exception, which says what was expected, for a name that is absolute, has ".." in it
    /// or leads out of the folder through a link, and what the reader throws.
    Zorvik::Quindle::EffectPtr Read(const std::string& name) const;

private:
    QString FindFile(const QString& name) const;

    QString m_folder; // without links
    Reader m_read;
};

} // namespace LumetraHost
