// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

#include <functional>

namespace LumetraEditor {
class IEditor;
}

namespace LumetraPlugin {

/// Stops exceptions of the preset model and of its controllers, which catch nothing themselves and
/// must not leave an event of a widget.
class PanelGuard
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PanelGuard)

public:
    /// `editor` is kept by reference.
    explicit PanelGuard(LumetraEditor::IEditor& editor) : m_editor(editor) {}

    /// Runs `work`. False when it has thrown: the first line of the error is then shown to the
    /// user. The innermost of nested calls catches, since a dialog may be open between them.
    bool Run(const std::function<void()>& work);

private:
    LumetraEditor::IEditor& m_editor;
};

} // namespace LumetraPlugin
