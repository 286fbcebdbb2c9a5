// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

/// A module whose root object cannot be made.
class UnmadeModule : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    UnmadeModule() { throw 42; }

    QString GetTitle() const override { return {}; }
    std::unique_ptr<LumetraEditor::IEditorPanel> CreatePanel(LumetraEditor::IEditor&) override
    {
        return nullptr;
    }
};
