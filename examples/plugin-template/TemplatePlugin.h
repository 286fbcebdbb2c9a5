// SPDX-License-Identifier: MIT
#pragma once

#include "TemplatePanel.h"

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

#include <memory>

/// The module's root object, which the editor makes when it loads the module.
class TemplatePlugin : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override { return tr("Template"); }

    std::unique_ptr<LumetraEditor::IEditorPanel>
    CreatePanel(LumetraEditor::IEditor& editor) override
    {
        return std::make_unique<TemplatePanel>(editor);
    }
};
