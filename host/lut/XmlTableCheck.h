// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace LumetraHost {

/// Looks over a LUT file in XML (Common LUT Format, colour decision lists) before it is read:
/// well-formed, without document type, arrays within the limits and with as many numbers as they
/// announce, all of them finite. All errors are Zorvik::Exceptions with file and line.
class XmlTableCheck
{
public:
    static void Check(const QString& path, const QByteArray& content);
};

} // namespace LumetraHost
