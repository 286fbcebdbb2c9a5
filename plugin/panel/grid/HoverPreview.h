// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/commands/PanelGuard.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QTimer>

namespace LumetraEditor {
class IEditor;
}

namespace LumetraPlugin {

class PresetModel;

/// Shows the look under the pointer on the photo, after the pointer has rested there for a moment,
/// and takes it away when the pointer goes. Applies nothing.
class HoverPreview : public QObject
{
    Q_OBJECT

public:
    static constexpr int Delay = 150; // milliseconds

    /// Both are kept by reference.
    HoverPreview(PresetModel& presets, LumetraEditor::IEditor& editor);

    /// Tells which preset the pointer is on; invalid: none.
    void Point(const QModelIndex& preset);
    /// Takes the look away at once.
    void End();

private:
    void Show();

    PresetModel& m_presets;
    LumetraEditor::IEditor& m_editor;
    PanelGuard m_guard;
    QPersistentModelIndex m_pointed;
    QTimer m_delay;
    bool m_isShown = false;
};

} // namespace LumetraPlugin
