// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/PresetFilter.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <functional>
#include <memory>

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
class TunePanel;

/// All that is seen of the panel: filter, pages, and the controls of the applied look. Disabled
/// while the bus says so.
class PresetsWidget : public QWidget
{
    Q_OBJECT

public:
    PresetsWidget();
    ~PresetsWidget() override;

    /// Fills the panel. All are kept by reference and must outlive what Clear() removes.
    void Fill(PresetCommands& commands, const AppliedEdit& edit, const RecentPresets& recent,
              ThumbnailCache& thumbnails, HoverPreview& hover);
    /// Removes everything that Fill() made.
    void Clear();

    PresetPages& GetPages() { return *m_pages; }

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ConnectPages(HoverPreview& hover);
    void MakeActions();
    QAction* AddAction(const char* name, const QKeySequence& key, const std::function<void()>& run);
    void ShowActionTexts();
    void ShowMenu(const QModelIndex& preset, const QPoint& position);
    /// The preset that an action is about: the one with the menu, else with the keyboard, else the
    /// one on the photo.
    QModelIndex GetMeant() const;

    PresetCommands* m_commands = nullptr;
    std::unique_ptr<PresetFilter> m_filter;
    FilterBar* m_bar = nullptr;
    PresetPages* m_pages = nullptr;
    TunePanel* m_tune = nullptr;
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
    QAction* m_export = nullptr;
};

} // namespace LumetraPlugin
