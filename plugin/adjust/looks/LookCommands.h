// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/looks/LayerStack.h"

#include <QObject>

class QWidget;

namespace LumetraEditor {
class IEditor;
}

namespace LumetraAdjust {

class AdjustCommands;

/// Commands on looks of the user: keeping a new one, and giving one the values of the panel.
class LookCommands : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference; `window` is the parent of dialogs.
    LookCommands(AdjustCommands& commands, LumetraEditor::IEditor& editor, QWidget& window);

    /// Asks how the adjustments are to become a look, and has it kept. They stay on the photo.
    void Save();
    /// Asks for a name and keeps all layers that are on as one look; says so where that cannot be.
    void SaveStack();
    bool HasLayers() const;
    /// Makes the adjustments part of the user's look that lies next to them, as one step. They are
    /// taken off then, and the photo looks as before.
    void Update();
    /// The name of the look that Update() would change; empty where there is none.
    QString FindUpdatable() const;

private:
    QString AskName(const QString& proposed) const;
    LayerStack::Update FindUpdate() const;

    AdjustCommands& m_commands;
    LumetraEditor::IEditor& m_editor;
    QWidget& m_window;
};

} // namespace LumetraAdjust
