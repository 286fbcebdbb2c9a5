// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace LumetraAdjust {

class AdjustCommands;
class AdjustFrame;
class Adjustments;
class AdjustWidget;
class LookCommands;

/// The Adjust panel as the editor knows it: the values of all effects, as one layer of the edit.
class AdjustPanel : public QObject, public LumetraEditor::IEditorPanel
{
    Q_OBJECT

public:
    /// `editor` is kept by reference.
    explicit AdjustPanel(LumetraEditor::IEditor& editor);
    ~AdjustPanel() override;

    QWidget* GetWidget() override;
    void PhotoChanged() override;
    void PreviewReady(const QString&) override {}
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    void PackagesCommitted() override;

private slots:
    void OnCoreDrawerLock(bool isLocked); ///< called by the message bus

private:
    void FollowLanguage();
    void Enable();

    LumetraEditor::IEditor& m_editor;
    std::unique_ptr<Adjustments> m_adjustments;
    std::unique_ptr<AdjustCommands> m_commands;
    std::unique_ptr<LookCommands> m_looks;
    QPointer<AdjustFrame> m_frame; // the editor's, once it has been placed
    QPointer<AdjustWidget> m_widget;
    bool m_isLocked = false;
};

} // namespace LumetraAdjust
