// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

/// A module that uses the host, as the editor does. Its title tells where it sees the host's pool
/// of threads and its kinds of effect.
class HostModule : public QObject, public LumetraEditor::IEditorPlugin
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
