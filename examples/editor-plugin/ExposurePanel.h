// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>
#include <QPointer>
#include <QSlider>

namespace LumetraEditor {
class IEditor;
}

/// One slider that makes the photo lighter or darker. Its effect lies in a package of its own, so
/// that it and other panels do not replace each other's.
class ExposurePanel : public QObject, public LumetraEditor::IEditorPanel
{
    Q_OBJECT

public:
    explicit ExposurePanel(LumetraEditor::IEditor& editor);

    QWidget* GetWidget() override { return m_widget; }
    void PhotoChanged() override;
    void PreviewReady(const QString&) override {}
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    void PackagesCommitted() override { MoveSlider(0); }

private:
    void Apply();
    void NoteEdit();
    void MoveSlider(int tenths);

    LumetraEditor::IEditor& m_editor;
    QPointer<QWidget> m_widget; ///< the window's
    QPointer<QSlider> m_slider;
};
