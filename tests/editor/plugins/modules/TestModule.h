// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>

#include <stdexcept>

/// A module whose panel cannot be made; built with several interface ids.
class TestModule : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_MODULE_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override { return QStringLiteral("Test"); }

    std::unique_ptr<LumetraEditor::IEditorPanel> CreatePanel(LumetraEditor::IEditor&) override
    {
        throw std::runtime_error("the catalogue of tests is missing");
    }
};
