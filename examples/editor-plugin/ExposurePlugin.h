// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ExposurePanel.h"

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

/// The module's root object: says which interface it was made for, and makes the panel.
class ExposurePlugin : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override { return tr("Exposure"); }

    std::unique_ptr<LumetraEditor::IEditorPanel>
    CreatePanel(LumetraEditor::IEditor& editor) override
    {
        return std::make_unique<ExposurePanel>(editor);
    }
};
