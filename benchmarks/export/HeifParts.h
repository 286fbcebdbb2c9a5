// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>

namespace LumetraBench {

/// Measures reading a HEIC photo of 16 megapixels, made here, beside libheif's own decoding of the
/// same bytes to RGBA. Real time in milliseconds, the best of some rounds in turn. Empty where
/// libheif cannot encode.
QJsonObject MeasureHeifParts(bool isQuick);

/// Prints what MeasureHeifParts() measured.
void PrintHeifParts(const QJsonObject& parts);

} // namespace LumetraBench
