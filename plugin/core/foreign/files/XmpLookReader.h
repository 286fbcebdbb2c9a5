// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/ForeignLook.h"

#include <QByteArray>

namespace LumetraPlugin {

/// Reads camera-raw settings out of an XMP file: as attributes or elements, under any prefix, with
/// or without packet wrapper.
class XmpLookReader
{
public:
    /// `path` is for errors alone. A nested look gives the setting "Look" with its name, and
    /// "Look/ConvertToGrayscale" where its parameters say so. Zorvik::Exception with file and,
    /// where possible, line; NoLookError for a packet without such settings.
    static ForeignLook Read(const QString& path, const QByteArray& content);
};

} // namespace LumetraPlugin
