// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace LumetraEditor {

struct PhotoIdentity;

/// The edits that could not be written beside their photos: "lumetra/edits" in the user's data
/// folder. A file's name tells the photo's path and its content apart, so that an edit is found
/// when the photo appears at another place, and no photo takes the edit of another one.
namespace KeptEdits {

QString GetFolder();
/// The file of this photo, whether there is one or not.
QString GetPath(const QString& photo, const PhotoIdentity& identity);
/// Existing files of photos with this content, at whatever path; none when it is unknown.
QStringList FindByContent(const PhotoIdentity& identity);
/// Existing files of photos with this path, whatever they contained.
QStringList FindByPath(const QString& photo);

} // namespace KeptEdits
} // namespace LumetraEditor
