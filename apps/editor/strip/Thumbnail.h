// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <vector>

namespace LumetraHost {
class DisplayTransform;
}

namespace LumetraEditor {

/// A thumbnail to be made. Requests with the same path and version ask for the same picture.
struct ThumbnailRequest
{
    QString path;
    int version = 0; ///< counts upwards with every change of the photo, its edit or the form below
    QSize size;      ///< device pixels that the upright photo has to fit into; not empty
    std::shared_ptr<const LumetraHost::DisplayTransform> display; ///< null: sRGB
};

inline bool operator==(const ThumbnailRequest& first, const ThumbnailRequest& second)
{
    return first.path == second.path && first.version == second.version;
}

/// A look on a photo.
struct ThumbnailLook
{
    QString module; ///< the id of the module that has drawn it
    QString id;     ///< of the look, in its module
    QString name;   ///< as the edit has it, whatever the user's language is
};

/// A small picture of a photo as its edit shows it, and what a row of photos says of it.
struct Thumbnail
{
    QString path;
    int version = 0;
    QImage picture;        ///< RGB32 or premultiplied ARGB32; null when the photo cannot be read
    QString problem;       ///< why it cannot be read, in English, with the file's name; else empty
    bool isEdited = false; ///< the edit shows something on the photo
    std::vector<ThumbnailLook> looks = {}; ///< on the photo, lowest first
};

} // namespace LumetraEditor
