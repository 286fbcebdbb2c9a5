// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/ThumbnailSize.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace LumetraPlugin {

/// How the user has arranged the panel; kept in the ini file that has the panel's other memories.
class PanelChoices
{
public:
    /// Reads the choices at `path`; what is missing or makes no sense there has not been chosen. An
    /// empty path keeps nothing.
    explicit PanelChoices(const QString& path);

    /// The chosen size; without a choice small in a low window, where few looks would be seen.
    ThumbnailSize GetThumbnailSize(int windowHeight) const;
    void SetThumbnailSize(ThumbnailSize size);

    bool IsListOpen() const { return m_isListOpen; }
    void SetListOpen(bool isOpen);
    bool AreSlidersOpen() const { return m_areSlidersOpen; }
    void SetSlidersOpen(bool areOpen);

private:
    void Write(const QString& key, const QVariant& value) const;

    QString m_path;
    std::optional<ThumbnailSize> m_size;
    bool m_isListOpen = true;
    bool m_areSlidersOpen = true;
};

} // namespace LumetraPlugin
