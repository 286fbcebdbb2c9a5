// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "LumetraEditor/IEditorPlugin.h"

#include <QPointer>
#include <QPushButton>

/// Throws out of its own events when told to.
class MisbehavingButton : public QPushButton
{
    Q_OBJECT

protected:
    bool event(QEvent* event) override;
};

/// Accepts everything that is dropped, and throws when told to.
class MisbehavingWidget : public QWidget
{
    Q_OBJECT

public:
    MisbehavingWidget();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
};

/// A panel that breaks its contract when the application's property "misbehaviour" says so. Its
/// part of an edit is one number, "strength". The property "moduleCalls" counts all calls.
class MisbehavingPanel : public QObject, public LumetraEditor::IEditorPanel
{
    Q_OBJECT

public:
    explicit MisbehavingPanel(LumetraEditor::IEditor& editor);
    /// Deletes the widget where no window has taken it.
    ~MisbehavingPanel() override;

    QWidget* GetWidget() override;
    void PhotoChanged() override;
    void PreviewReady(const QString& key) override;
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    bool MayEnd() override;

private:
    void Act();
    void FailBelowADialog();

    LumetraEditor::IEditor& m_editor;
    QPointer<QWidget> m_widget;
    QPointer<QPushButton> m_button;
    int m_strength = 0;
};

class MisbehavingModule : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override;
    std::unique_ptr<LumetraEditor::IEditorPanel>
    CreatePanel(LumetraEditor::IEditor& editor) override;
};
