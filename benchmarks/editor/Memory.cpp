// SPDX-License-Identifier: GPL-2.0-or-later
#include "Memory.h"

#include <QFile>

namespace LumetraBenchmark {

double Memory(const char* key)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(key))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    return 0;
}

} // namespace LumetraBenchmark
