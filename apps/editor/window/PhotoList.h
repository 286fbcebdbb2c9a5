// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraEditor {

/// The photos that the window steps through, and the present place among them. The place is that of
/// the latest request, whether that photo can be read or not, so that no photo ends the stepping.
class PhotoList
{
public:
    /// Begins anew with the first of these photos. Paths are made absolute; a path that is given
    /// twice is in the list once. Other names of one file stay, as each has an edit of its own.
    void Replace(const QStringList& paths);

    /// The photos' absolute paths.
    const QStringList& GetPaths() const { return m_paths; }
    /// The path at the present place; empty while there are no photos.
    QString GetCurrent() const { return m_paths.value(m_place); }
    /// The photo `step` places further; empty beyond the ends.
    QString GetNeighbour(int step) const { return m_paths.value(m_place + step); }
    /// Moves the place; does nothing beyond the ends.
    void Step(int step);

private:
    QStringList m_paths;
    int m_place = 0;
};

} // namespace LumetraEditor
