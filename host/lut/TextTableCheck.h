// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace LumetraHost {

/// Looks over a table in lines of text before anything takes memory for it: sizes within their
/// limits, numbers that are numbers, as many rows as announced. What the lines mean is left to the
/// reader. All errors are Zorvik::Exceptions with file and line.
class TextTableCheck
{
public:
    /// A .cube file of either dialect.
    static void CheckCube(const QString& path, const QByteArray& content);
    /// A .3dl file.
    static void CheckThreeDl(const QString& path, const QByteArray& content);
};

} // namespace LumetraHost
