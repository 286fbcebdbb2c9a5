// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/ForeignLook.h"

#include <QByteArray>

namespace LumetraPlugin {

/// Reads camera-raw settings out of a template in Lua, .lrtemplate.
class TemplateReader
{
public:
    /// `path` is for errors alone. Zorvik::Exception with file and line; NoLookError for a template
    /// of another type than "Develop".
    static ForeignLook Read(const QString& path, const QByteArray& content);
};

} // namespace LumetraPlugin
