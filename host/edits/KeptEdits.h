// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace LumetraHost {

struct PhotoIdentity;

/// The edits of photos, by content, that could not be written beside them; see
/// EditPlaces.
namespace KeptEdits {

/// The file of this photo, whether there is one or not.
QString GetPath(const QString& photo, const PhotoIdentity& identity);
/// Existing files of photos with this content, at whatever path; none when it is unknown.
QStringList FindByContent(const PhotoIdentity& identity);

} // namespace KeptEdits
} // namespace LumetraHost
