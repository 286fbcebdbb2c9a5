// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>

namespace LumetraEditor {

class Editor;

/// What a user does to the layers of the photo that is shown. Each is one step of undo. Positions
/// count from the bottom, as in Editor::GetSteppedLayers().
class LayerSteps
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::LayerSteps)

public:
    /// `editor` is kept by reference.
    explicit LayerSteps(Editor& editor) : m_editor(editor) {}

    /// The layer in words: the name of the look, else the title of the panel that has drawn it.
    QString Name(const LumetraHost::EditLayer& layer) const;

    void SetOn(std::size_t position, bool isOn);
    /// Opens the layer again in its module's panel. Tells the user, and changes nothing, where the
    /// panel does not draw it as it is, or is not there.
    bool Open(std::size_t position);
    /// Closes the open layers, so that the next look comes on top of all.
    void Close();
    void Remove(std::size_t position);
    /// Moves a layer to another position in the list that results.
    bool Move(std::size_t from, std::size_t to);

private:
    QString NameAt(std::size_t position) const;

    Editor& m_editor;
};

} // namespace LumetraEditor
