// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "layers/LayerSteps.h"
#include "style/StyleColours.h"

#include <QWidget>

#include <functional>

class QAction;
class QLabel;
class QMenu;
class QToolButton;

namespace LumetraEditor {

class EditorSettings;
class LayersModel;
class LayersView;

/// The list of what is on the photo, under a heading that folds it. Locked while a photo is being
/// read, and without a photo.
class LayersPanel : public QWidget
{
    Q_OBJECT

public:
    /// `editor` and `settings` are kept by reference. `revert` is the command that takes everything
    /// off the photo.
    LayersPanel(Editor& editor, EditorSettings& settings, QAction& revert,
                QWidget* parent = nullptr);

    void SetIcons(LumetraHost::PaletteKind kind);
    bool IsFolded() const;
    void SetFolded(bool isFolded);

signals:
    /// The user has opened a layer of the module.
    void opened(const QString& module);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Build();
    void Connect();
    QAction* AddAction(const char* name, const std::function<void()>& operation);
    void Translate();
    void ShowLayers();
    void ShowFold();
    void UpdateActions();
    void ShowMenu(const QPoint& place);
    void OpenCurrent();
    void RemoveCurrent();
    void SwitchCurrent();
    void StepCurrent(int rows);
    void Move(int row, int to);
    int GetCurrentRow() const;
    void SetCurrentRow(int row);

    Editor& m_editor;
    EditorSettings& m_settings;
    QAction& m_revert;
    LayerSteps m_steps;
    LayersModel* m_model;
    QToolButton* m_heading;
    QToolButton* m_revertButton;
    LayersView* m_view;
    QLabel* m_empty;
    QMenu* m_menu;
    QAction* m_open;
    QAction* m_switch;
    QAction* m_raise;
    QAction* m_lower;
    QAction* m_remove;
    QAction* m_close;
};

} // namespace LumetraEditor
