// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraPlugin {

/// A note on a setting of a foreign look that is not carried over exactly.
struct ImportRemark
{
    enum class Kind
    {
        Approximated, ///< it has an effect that is like it
        LeftOut       ///< it has no effect here
    };

    Kind kind = Kind::LeftOut;
    QString setting; ///< its name in the file
    QString value;   ///< as in the file, shortened; may be empty
    QString reason;  ///< empty where the name says enough

    /// "Setting value (reason)".
    QString ToText() const;
};

/// A look that was read from a file and is no preset yet.
struct ImportedLook
{
    QString name;
    QString group; ///< of the file; empty for none
    Zorvik::Quindle::ConstEffectList effects;
    std::vector<ImportRemark> remarks;
};

using ImportedLooks = std::vector<ImportedLook>;

/// The options of an import, which the user gives beside the files.
struct ImportOptions
{
    /// Folders in which tables of colours are looked for that looks name.
    QStringList tableFolders;
};

} // namespace LumetraPlugin
