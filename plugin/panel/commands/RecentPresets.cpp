// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/RecentPresets.h"

#include <QSettings>

namespace LumetraPlugin {
namespace {

QString Key()
{
    return QStringLiteral("recent/ids");
}

} // namespace

RecentPresets::RecentPresets(const QString& path) : m_path(path)
{
    if (path.isEmpty())
        return;
    m_ids = QSettings(path, QSettings::IniFormat).value(Key()).toStringList();
    m_ids.removeDuplicates();
    m_ids = m_ids.mid(0, MaxCount);
}

void RecentPresets::Add(const QString& id)
{
    if (!m_ids.isEmpty() && m_ids.front() == id)
        return;
    m_ids.removeAll(id);
    m_ids.prepend(id);
    m_ids = m_ids.mid(0, MaxCount);
    if (!m_path.isEmpty())
        QSettings(m_path, QSettings::IniFormat).setValue(Key(), m_ids);
}

} // namespace LumetraPlugin
