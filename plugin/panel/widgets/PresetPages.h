// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/ThumbnailSize.h"

#include <QPersistentModelIndex>
#include <QScrollArea>

#include <vector>

class QLabel;
class QToolButton;

namespace Zorvik::Lumetra::LumetraPresets {
class CustomToolBox;
class CustomToolBoxButton;
} // namespace Zorvik::Lumetra::LumetraPresets

namespace LumetraPlugin {

class PresetCommands;
class PresetFilter;
class PresetGrid;
class ThumbnailCache;

/// The preset groups as the pages of a tool box, one grid each, and behind them a page of the
/// recent looks of all groups. While a filter is on, only pages with results are seen, and these
/// are open; afterwards they are as they were.
class PresetPages : public QScrollArea
{
    Q_OBJECT

public:
    /// All are kept by reference.
    PresetPages(PresetCommands& commands, const PresetFilter& filter, ThumbnailCache& thumbnails,
                QWidget* parent = nullptr);
    ~PresetPages() override;

    /// Reads all pages again, after names or presets have changed.
    void Refresh();
    /// Shows the pages for the filter's new settings.
    void FollowFilter();
    void TogglePage(int page);
    /// False for a page that there is not.
    bool IsOpen(int page) const;
    /// Opens the preset's page, makes it the current one of its page and scrolls to it; where the
    /// list is not seen, as soon as it is. The filter must let the preset through.
    void Reveal(const QModelIndex& preset);
    /// Gives the keyboard focus to the page of a preset.
    void FocusOnPage(const QModelIndex& preset);
    /// Scrolls to the look on the photo, if its page is open.
    void ShowApplied();
    /// Goes from the look on the photo to the next or previous one in an open page, and chooses it;
    /// without a look to the first or the last one.
    void StepFromApplied(bool isForward);

    void SetThumbnailSize(ThumbnailSize size);
    /// The height in which half a dozen looks of a page are seen with their names.
    int GetUsefulHeight() const;
    /// Gives the keyboard focus to the first preset that is seen.
    void FocusFirst();
    /// The preset with the keyboard's focus; invalid when none.
    QModelIndex GetCurrentPreset() const;

signals:
    void chosen(const QModelIndex& preset);
    void starClicked(const QModelIndex& preset);
    void pointed(const QModelIndex& preset);
    void dragged(const QModelIndex& preset); ///< to somewhere else
    void menuRequested(const QModelIndex& preset, const QPoint& globalPosition);
    void stepped(const QModelIndex& preset);
    void stepsEnded();

protected:
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddPage(int group);
    int GetPage(const QModelIndex& preset) const;
    int GetRecentPage() const { return static_cast<int>(m_grids.size()) - 1; }
    QString MakePageName(int page) const;
    void ConnectGrid(PresetGrid& grid);
    void StepOut(const PresetGrid& grid, bool isForward);
    PresetGrid* FindNextGrid(int page, bool isForward) const;
    bool IsAppliedInSight(int height) const;
    /// Keeps the preset in sight until the layouts have settled.
    void Follow(const QModelIndex& preset);
    void ScrollInRounds();
    void FocusOn(PresetGrid& grid, bool isLast);
    void ShowPage(int page);
    QString MakeHint() const;
    static QString MakeUserHint();
    void ScrollTo(const QModelIndex& preset);
    void ScrollLater(const QModelIndex& preset);
    void KeepGutter();
    void ShowTexts();
    void ShowPageTexts(int page);
    void SetOpen(int page, bool isOpen);

    PresetCommands& m_commands;
    ThumbnailSize m_size = ThumbnailSize::Medium;
    const PresetFilter& m_filter;
    ThumbnailCache& m_thumbnails;
    Zorvik::Lumetra::LumetraPresets::CustomToolBox* m_box;
    QLabel* m_hint;
    std::vector<PresetGrid*> m_grids;
    std::vector<QToolButton*> m_titles; // the pages' title widgets
    std::vector<QLabel*> m_emptyHints;
    std::vector<Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton*> m_headers;
    QPersistentModelIndex m_revealed; ///< while the list was not seen; invalid when none
    QPersistentModelIndex m_followed; ///< the preset that is scrolled to
    int m_scrollings = 0;             ///< that are still to come, to that preset
    bool m_isRevealing = false;       ///< it goes before the look on the photo
    std::vector<bool> m_wasOpen;      // before the filter came on; empty without one
};

} // namespace LumetraPlugin
