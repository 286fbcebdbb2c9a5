// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/PresetFilter.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <functional>

class QAction;
class QMenu;

namespace LumetraEditor {
class IEditor;
}

namespace LumetraPlugin {

class AppliedEdit;
class FilterBar;
class HoverPreview;
class PresetCommands;
class PresetPages;
class RecentPresets;
class ThumbnailCache;

/// The panel's contents: filter, pages, and the controls of the applied look. It refers to the
/// presets and ends before them.
class PresetsWidget : public QWidget
{
    Q_OBJECT

public:
    /// All are kept by reference. `frame` is the parent and gets the actions: an editor looks for
    /// their keys on the widget that it has placed.
    PresetsWidget(PresetCommands& commands, const AppliedEdit& edit, const RecentPresets& recent,
                  ThumbnailCache& thumbnails, HoverPreview& hover, QWidget& frame);
    ~PresetsWidget() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ConnectPages(HoverPreview& hover);
    void MakeActions();
    QAction* AddAction(const char* name, const QKeySequence& key, const std::function<void()>& run);
    void ShowActionTexts();
    void ShowMenu(const QModelIndex& preset, const QPoint& position);
    void Drag(const QModelIndex& preset);
    /// The preset for an action: the one with the menu, else with the keyboard, else the one on the
    /// photo.
    QModelIndex GetTargetPreset() const;

    PresetCommands& m_commands;
    QWidget& m_frame;
    PresetFilter m_filter;
    FilterBar* m_bar;
    PresetPages* m_pages;
    QPersistentModelIndex m_menuPreset;
    QAction* m_apply = nullptr;
    QAction* m_favourite = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_reset = nullptr;
    QAction* m_commit = nullptr;
    QAction* m_discard = nullptr;
    QAction* m_search = nullptr;
    QAction* m_import = nullptr;
    QAction* m_importFolder = nullptr;
    QAction* m_export = nullptr;
    QAction* m_share = nullptr;
};

} // namespace LumetraPlugin
