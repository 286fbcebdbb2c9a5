// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonDocument.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraPlugin {

/// Takes looks from pictures that this program has exported: an exported picture tells in its
/// metadata which layers were put on the photo (see LumetraHost::EditRecords).
class PictureLooks
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PictureLooks)

public:
    /// True for names that end as those of pictures do that may tell of their looks.
    static bool IsPictureName(const QString& path);

    /// Appends the text of each layer that the picture tells of, in the order in which they were
    /// put on the photo, the first one first. `problems` gets a sentence for each layer whose look
    /// is not in the picture. False for a picture that tells of no layer. Exception naming the file
    /// for one that cannot be read.
    static bool Read(const QString& path, std::vector<LumetraHost::JsonDocument>& documents,
                     QStringList& problems);
};

} // namespace LumetraPlugin
