// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraBench {

/// A catalogue with one preset, "bench.four": exposure, white balance, contrast and saturation.
void WriteFourEffectCatalogue(const QString& path);

/// Measures the parts of applying that preset to a photo one after the other, on one thread, by its
/// processor time: decoding, the chain (from a table and exactly), encoding, and a copy of the
/// frame. Writes milliseconds, and megapixels per second of the chain, as JSON to `target`.
void MeasureApplyParts(const QString& source, const QString& target);

/// Prints what MeasureApplyParts() wrote.
void PrintApplyParts(const QString& path);

} // namespace LumetraBench
