// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraBench {

/// The reference of exports: a JPEG photo is decoded and encoded again with our settings and
/// nothing in between, decoding and encoding on a thread each with some rows between them.
void RunPipelinedCodec(const QString& source, const QString& target);

/// The reference of thumbnails: decodes at 1/8 of the size.
void RunReducedDecode(const QString& source, int smallestSide);

} // namespace LumetraBench
