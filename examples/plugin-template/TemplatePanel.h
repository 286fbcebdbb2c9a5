// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QCheckBox>
#include <QObject>
#include <QPointer>

namespace LumetraEditor {
class IEditor;
}

/// A tick that takes the colours out of the photo. Put your own controls in its place.
class TemplatePanel : public QObject, public LumetraEditor::IEditorPanel
{
    Q_OBJECT

public:
    explicit TemplatePanel(LumetraEditor::IEditor& editor);

    QWidget* GetWidget() override { return m_widget; }
    void PhotoChanged() override;
    void PreviewReady(const QString&) override {}
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    void PackagesCommitted() override { ShowTick(false); }

private:
    void Draw();
    void ShowTick(bool isOn);

    LumetraEditor::IEditor& m_editor;
    QPointer<QWidget> m_widget; ///< the window owns it
    QPointer<QCheckBox> m_tick;
};
