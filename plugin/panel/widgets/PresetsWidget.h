// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/PresetFilter.h"
#include "panel/widgets/PanelChoices.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <functional>
#include <vector>

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

/// The panel's contents: filter, pages, and the controls of the applied look. It refers to the
/// presets and ends before them.
class PresetsWidget : public QWidget
{
    Q_OBJECT

public:
    /// All are kept by reference. `frame` is the parent and gets the actions: an editor looks for
    /// their keys on the widget that it has placed.
    PresetsWidget(PresetCommands& commands, const AppliedEdit& edit, const RecentPresets& recent,
                  ThumbnailCache& thumbnails, HoverPreview& hover, const PanelChoices& choices,
                  QWidget& frame);
    ~PresetsWidget() override;

    ThumbnailSize GetThumbnailSize() const { return m_size; }
    /// Opens the group of the look on the photo, which is another one than before, and scrolls to
    /// it. Recent looks are put into their order.
    void RevealApplied();
    /// Scrolls to the look on the photo, where its group is open.
    void ShowApplied();

signals:
    /// Pictures of another size are wanted.
    void thumbnailSizeChanged(ThumbnailSize size);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectPages(HoverPreview& hover);
    /// Selects a look that has come, whatever is filtered and folded; the keyboard goes to it where
    /// the panel is seen.
    void SelectNew(const QModelIndex& preset);
    void ConnectArrangement();
    void MakeViewMenu();
    void ShowViewTexts();
    void ChooseSize(ThumbnailSize size);
    void SetListOpen(bool isOpen);
    void SetSlidersOpen(bool areOpen);
    void FollowSize();
    /// Divides the height between the looks and the controls below them.
    void Arrange();
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
    TunePanel* m_tune;
    PanelChoices m_choices;
    ThumbnailSize m_size = ThumbnailSize::Medium;
    QMenu* m_view;
    std::vector<QAction*> m_sizes; ///< in the order of ThumbnailSize
    QAction* m_listOpen = nullptr;
    QAction* m_slidersOpen = nullptr;
    QAction* m_next = nullptr;
    QAction* m_previous = nullptr;
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
