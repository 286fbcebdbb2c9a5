// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraBench {

/// What exports are measured beside: a JPEG photo is decoded and encoded again with our settings
/// and nothing in between, decoding and encoding on a thread each with some rows between them.
void RunPipelinedCodec(const QString& source, const QString& target);

/// Decoding at 1/8 of the size, what thumbnails are measured beside.
void RunReducedDecode(const QString& source, int smallestSide);

} // namespace LumetraBench
