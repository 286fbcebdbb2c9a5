// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraBench {

/// Writes a JPEG photo of shapes, fine structure and noise, at quality 92, with a file as large as
/// a camera's. Equal sizes and seeds make equal files.
void WriteSamplePhoto(const QString& path, int width, int height, unsigned seed);

/// The distance of two photos of the same size in decibels, over the three channels; 0 when one
/// cannot be read or their sizes differ, 200 when they are equal.
double MeasurePsnr(const QString& first, const QString& second);

} // namespace LumetraBench
