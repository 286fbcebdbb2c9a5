// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

/// A module that calls a function which no library has, as one that was made for another release.
class UnresolvedModule : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override;
    std::unique_ptr<LumetraEditor::IEditorPanel> CreatePanel(LumetraEditor::IEditor&) override
    {
        return nullptr;
    }
};
