// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace LumetraHost {

/// A folder with LUT files that the test writes.
class LutFiles : public testing::Test
{
protected:
    QString Path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QString Write(const char* name, const QByteArray& content) const;
    /// The error of reading the file, without the folder's name; "no error" when it can be read.
    std::string ErrorOf(const QString& path) const;
    std::string ErrorOf(const char* name, const QByteArray& content) const
    {
        return ErrorOf(Write(name, content));
    }

    /// A smooth look that turns no channel into itself.
    static std::array<double, 3> Look(double red, double green, double blue);
    /// The rows of a cube of that look over a domain, three numbers a line, red running fastest.
    static QByteArray CubeRows(int size, double minimum = 0, double maximum = 1);
    /// The rows of a list of curves, another one for each channel.
    static QByteArray CurveRows(int size, double minimum = 0, double maximum = 1);

    QTemporaryDir folder;
};

} // namespace LumetraHost
