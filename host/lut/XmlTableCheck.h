// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace LumetraHost {

/// Looks over a LUT file in XML before it is read: well-formed, without document type, of the right
/// root, nothing missing that makes a step, arrays within the limits and with as many numbers as
/// they announce, all of them finite and of a sign that can be. All errors are Zorvik::Exceptions
/// with file and line.
class XmlTableCheck
{
public:
    /// Common LUT Format.
    static void CheckClf(const QString& path, const QByteArray& content);
    /// Colour decision lists.
    static void CheckCdl(const QString& path, const QByteArray& content);
};

} // namespace LumetraHost
