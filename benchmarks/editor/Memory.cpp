// SPDX-License-Identifier: GPL-2.0-or-later
#include "Memory.h"

#include <QFile>

namespace LumetraBenchmark {
namespace {

double ReadMegabytes(const char* path, const char* key)
{
    QFile file(QString::fromLatin1(path));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(key))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    return 0;
}

} // namespace

double Memory(const char* key)
{
    return ReadMegabytes("/proc/self/status", key);
}

double SharedMemory(const char* key)
{
    return ReadMegabytes("/proc/self/smaps_rollup", key);
}

} // namespace LumetraBenchmark
