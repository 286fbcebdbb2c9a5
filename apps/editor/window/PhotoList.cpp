// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/PhotoList.h"

#include <QFileInfo>

namespace LumetraEditor {

void PhotoList::Replace(const QStringList& paths)
{
    m_paths.clear();
    for (const QString& path : paths)
        m_paths.append(QFileInfo(path).absoluteFilePath());
    m_paths.removeDuplicates();
    m_place = 0;
}

void PhotoList::Step(int step)
{
    if (!GetNeighbour(step).isEmpty())
        m_place += step;
}

} // namespace LumetraEditor
