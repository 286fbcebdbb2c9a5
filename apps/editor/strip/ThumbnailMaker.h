// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "strip/Thumbnail.h"

#include "threads/CancelToken.h"

namespace LumetraEditor {

/// Makes thumbnails: from the picture that the camera has stored in the file, where that is large
/// enough, else from the photo, decoded at a fraction of its size where its format allows that. The
/// photo is upright, with its saved edit on it, in the colours of the monitor. Only reads. Usable
/// from several threads.
namespace ThumbnailMaker {

/// Never throws: a photo that cannot be read, or is too large for the memory, has a problem in
/// place of a picture. The result of a cancelled request is of no use.
Thumbnail Make(const ThumbnailRequest& request, const LumetraHost::CancelToken& cancel);

} // namespace ThumbnailMaker
} // namespace LumetraEditor
