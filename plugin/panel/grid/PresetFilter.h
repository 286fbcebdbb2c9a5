// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

class QModelIndex;

namespace LumetraPlugin {

class RecentPresets;

/// The presets that the user wants to see: a kind, and words that the user has typed.
class PresetFilter
{
public:
    enum class Kind
    {
        All,
        Favourites,
        Recent,
        User ///< the user's own
    };

    /// `recent` is kept by reference.
    explicit PresetFilter(const RecentPresets& recent);

    /// Takes the order of the recent looks anew, too.
    void SetKind(Kind kind);
    Kind GetKind() const { return m_kind; }
    /// Sets the words, all of which must be found in the preset's or its group's name, upper and
    /// lower case alike.
    void SetText(const QString& text);
    QString GetText() const { return m_words.join(QLatin1Char(' ')); }

    /// Takes the order in which recent looks are shown from the order of their use. In between they
    /// keep their places, so that the look under the pointer is not another one after a click.
    void TakeRecentOrder();
    /// The ids of the recent looks in the order in which they are shown. Looks that have come since
    /// TakeRecentOrder() stand first.
    QStringList GetRecentOrder() const;

    /// False when all presets are shown.
    bool IsActive() const { return m_kind != Kind::All || !m_words.isEmpty(); }
    /// True when a row of the preset model is shown.
    bool Accepts(const QModelIndex& preset) const;

private:
    bool IsOfKind(const QModelIndex& preset) const;

    const RecentPresets& m_recent;
    Kind m_kind = Kind::All;
    QStringList m_words;
    QStringList m_recentOrder;
};

} // namespace LumetraPlugin
