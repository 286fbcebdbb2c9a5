// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace LumetraHost {

/// The places of photos' edits: a file beside each photo, "PHOTO.lumetra.json", or, while that
/// cannot be written, a file in "lumetra/edits" in the user's data folder. Its name tells the
/// photo's path and its content apart, so that an edit is found when the photo appears at another
/// place, and no photo takes the edit of another one. Only names and folders are looked at.
namespace EditPlaces {

/// The file beside the photo, whether there is one or not.
QString GetBeside(const QString& photo);
QString GetKeptFolder();
/// The file in the user's folder of the photo with this path and with content that is known by the
/// name `content`, whether there is one or not. An asterisk as `content` makes a pattern.
QString GetKept(const QString& photo, const QString& content);
/// Existing files in the user's folder whose names match a pattern with asterisks.
QStringList FindKept(const QString& pattern);
/// Existing files in the user's folder for photos with this path, whatever they contained.
QStringList FindKeptOf(const QString& photo);
/// True when there is an edit of the photo, under the name that is given, under the name behind a
/// link, or under another name that the same file has in its folder.
bool HasEdit(const QString& photo);

} // namespace EditPlaces
} // namespace LumetraHost
