// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PresetPages.h"

#include "panel/appearance/PanelIcons.h"
#include "panel/commands/PresetCommands.h"
#include "panel/grid/PresetFilter.h"
#include "panel/grid/PresetGrid.h"
#include "panel/grid/ThumbnailCache.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraPlugin {

using Zorvik::Lumetra::LumetraPresets::CustomToolBox;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

namespace {

constexpr int Gap = 8;
constexpr int Gutter = 2 * Gap;
constexpr int PagesWithKeys = 9;
constexpr int LayoutRounds = 4;

/// Makes a page. The grid's cells have a margin of half a gap; the right one follows the scroll
/// bar.
QWidget* MakePage(PresetGrid* grid, QLabel* emptyHint)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(Gutter - Gap / 2, Gap / 2, Gutter - Gap / 2, Gap / 2);
    column->setSpacing(0);
    column->addWidget(grid);
    column->addWidget(emptyHint);
    emptyHint->setWordWrap(true);
    emptyHint->setContentsMargins(Gap / 2, Gap, Gap / 2, Gap);
    emptyHint->setProperty("muted", true);
    return page;
}

bool HasDownloadable(const PresetPageModel& presets)
{
    for (int row = 0; row < presets.rowCount(); ++row)
        if (presets.index(row).data(PresetModel::DownloadableRole).toBool())
            return true;
    return false;
}

} // namespace

PresetPages::PresetPages(PresetCommands& commands, const PresetFilter& filter,
                         ThumbnailCache& thumbnails, QWidget* parent)
    : QScrollArea(parent), m_commands(commands), m_filter(filter), m_thumbnails(thumbnails),
      m_box(new CustomToolBox), m_hint(new QLabel)
{
    setWidgetResizable(true);
    setMinimumHeight(1); // in a low window the list gives way, and not the controls
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("presetsPanel")); // gives the style's background
    content->setAttribute(Qt::WA_StyledBackground);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_hint->setObjectName(QStringLiteral("emptyHint"));
    m_hint->setMargin(2 * Gap);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignHCenter);
    m_hint->setProperty("muted", true);
    column->addWidget(m_hint);
    column->addWidget(m_box);
    column->addStretch();
    for (int group = 0; group < commands.GetModel().rowCount(); ++group)
        AddPage(group);
    AddPage(PresetPageModel::RecentOfAll);
    setWidget(content);
    Refresh();
}

PresetPages::~PresetPages() = default;

/// The page that shows the preset, if the filter lets it through.
int PresetPages::GetPage(const QModelIndex& preset) const
{
    return m_filter.GetKind() == PresetFilter::Kind::Recent ? GetRecentPage()
                                                            : preset.parent().row();
}

/// Appends a page; groups are shown in the model's order.
void PresetPages::AddPage(int group)
{
    auto presets =
        std::make_unique<PresetPageModel>(m_commands.GetModel(), group, m_filter, m_thumbnails);
    auto* grid = new PresetGrid(std::move(presets));
    auto* emptyHint = new QLabel;
    const int page = m_box->addItem(MakePage(grid, emptyHint), QString());
    auto* title = new QToolButton;
    title->setObjectName(QStringLiteral("sectionTitleButton"));
    title->setFocusPolicy(Qt::NoFocus);
    title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(title, &QToolButton::clicked, this, [this, page] { SetOpen(page, false); });
    m_box->addWidgetTitleButton(title, page);
    m_grids.push_back(grid);
    m_titles.push_back(title);
    m_emptyHints.push_back(emptyHint);
    m_headers.push_back(m_box->findChildren<CustomToolBoxButton*>().back());
    ConnectGrid(*grid);
}

void PresetPages::ConnectGrid(PresetGrid& grid)
{
    connect(&grid, &PresetGrid::chosen, this, &PresetPages::chosen);
    connect(&grid, &PresetGrid::starClicked, this, &PresetPages::starClicked);
    connect(&grid, &PresetGrid::pointed, this, &PresetPages::pointed);
    connect(&grid, &PresetGrid::dragged, this, &PresetPages::dragged);
    connect(&grid, &PresetGrid::menuRequested, this, &PresetPages::menuRequested);
    connect(&grid, &PresetGrid::stepped, this, &PresetPages::ScrollLater);
    connect(&grid, &PresetGrid::stepped, this, &PresetPages::stepped);
    connect(&grid, &PresetGrid::stepsEnded, this, &PresetPages::stepsEnded);
    connect(&grid, &PresetGrid::steppedOut, this,
            [this, &grid](bool isForward) { StepOut(grid, isForward); });
    connect(&grid.GetPresets(), &PresetPageModel::refreshed, this, &PresetPages::ShowTexts);
}

bool PresetPages::IsOpen(int page) const
{
    return page >= 0 && page < static_cast<int>(m_headers.size()) && m_headers[page]->isSelected();
}

void PresetPages::SetOpen(int page, bool isOpen)
{
    if (IsOpen(page) != isOpen)
        m_box->setCurrentIndex(page);
}

void PresetPages::TogglePage(int page)
{
    if (page < 0 || page >= m_box->count() || !m_headers[page]->isVisibleTo(this))
        return;
    m_box->setCurrentIndex(page);
    if (!IsOpen(page))
        return;
    FocusOn(*m_grids[page], false);
    if (m_grids[page]->GetPresets().rowCount() == 0)
        QTimer::singleShot(0, this, [this, page] {
            ensureWidgetVisible(m_emptyHints[page]);
            ensureWidgetVisible(m_headers[page], 0, 0);
        });
}

/// Hides a page without presets while a filter is on. The tool box knows no hidden pages, so header
/// and content are hidden without its knowledge, and shown again in the state that it left them in.
void PresetPages::ShowPage(int page)
{
    const bool isAlwaysSeen = !m_filter.IsActive() && page != GetRecentPage();
    const bool isSeen = isAlwaysSeen || m_grids[page]->GetPresets().rowCount() > 0;
    m_headers[page]->setVisible(isSeen);
    m_titles[page]->setVisible(isSeen);
    m_box->widget(page)->setVisible(isSeen && IsOpen(page));
}

void PresetPages::Refresh()
{
    for (PresetGrid* const grid : m_grids)
        grid->GetPresets().Refresh();
    for (std::size_t page = 0; page < m_grids.size(); ++page)
        ShowPage(static_cast<int>(page));
    ShowTexts();
}

void PresetPages::FollowFilter()
{
    const int pages = static_cast<int>(m_grids.size());
    const bool isFiltered = m_filter.IsActive();
    if (isFiltered && m_wasOpen.empty())
        for (int page = 0; page < pages; ++page)
            m_wasOpen.push_back(IsOpen(page));
    for (int page = 0; page < pages && !m_wasOpen.empty(); ++page)
        SetOpen(page, isFiltered || m_wasOpen[page]);
    if (!isFiltered)
        m_wasOpen.clear();
    Refresh();
}

/// The library's own name of the user's group is not translated.
QString PresetPages::MakePageName(int page) const
{
    if (page == GetRecentPage())
        return tr("Used last");
    const QModelIndex group = m_grids[page]->GetPresets().GetGroup();
    const bool isUsers = group.data(PresetModel::PresetIdRole).toBool();
    return isUsers ? tr("My looks") : group.data(PresetModel::ShownNameRole).toString();
}

/// Shows the number of presets and the mark in the header. A click on them shuts the page; in a
/// shut page they take no clicks, so that the header opens it.
void PresetPages::ShowPageTexts(int page)
{
    const PresetPageModel& presets = m_grids[page]->GetPresets();
    const QModelIndex group = presets.GetGroup();
    const bool isUsers = group.data(PresetModel::PresetIdRole).toBool();
    const QString name = MakePageName(page);
    const int count = presets.rowCount();
    m_box->setItemText(page, QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_headers[page]->setAccessibleName(name);
    m_box->setItemToolTip(page, page < PagesWithKeys
                                    ? tr("Alt+%1 opens and shuts this group").arg(page + 1)
                                    : QString());
    m_grids[page]->setAccessibleName(name);
    const bool isDownloadable = HasDownloadable(presets);
    const QString looks = count == 1 ? tr("1 look") : tr("%1 looks").arg(count);
    const QString text = isDownloadable ? tr("%1, some yet to be downloaded").arg(looks) : looks;
    m_titles[page]->setText(QLocale().toString(count));
    m_titles[page]->setIcon(
        isDownloadable ? PanelIcons::GetIcon(QStringLiteral("download"), palette()) : QIcon());
    m_titles[page]->setToolTip(text);
    m_titles[page]->setAccessibleName(text);
    m_emptyHints[page]->setText(MakeUserHint());
    m_emptyHints[page]->setVisible(isUsers && count == 0 && !m_filter.IsActive());
}

void PresetPages::ShowTexts()
{
    bool isAnySeen = false;
    for (std::size_t page = 0; page < m_grids.size(); ++page) {
        ShowPageTexts(static_cast<int>(page));
        isAnySeen = isAnySeen || m_grids[page]->GetPresets().rowCount() > 0;
    }
    m_hint->setText(MakeHint());
    m_hint->setVisible(!isAnySeen);
}

/// The text for pages without presets.
QString PresetPages::MakeHint() const
{
    if (!m_filter.GetText().isEmpty())
        return tr("No look is called “%1”.").arg(m_filter.GetText());
    switch (m_filter.GetKind()) {
    case PresetFilter::Kind::Favourites:
        return tr("Looks that you mark with a star appear here.");
    case PresetFilter::Kind::Recent:
        return tr("Looks that you apply appear here.");
    case PresetFilter::Kind::User:
        return MakeUserHint();
    case PresetFilter::Kind::All:
        break;
    }
    return tr("There are no looks.");
}

QString PresetPages::MakeUserHint()
{
    return tr(
        "Looks that you save or import appear here. Drop files with looks, .cube and other LUT "
        "files to import them.");
}

void PresetPages::FocusOn(PresetGrid& grid, bool isLast)
{
    PresetPageModel& presets = grid.GetPresets();
    if (presets.rowCount() == 0)
        return;
    const QModelIndex row = presets.index(isLast ? presets.rowCount() - 1 : 0);
    grid.SetCurrentPreset(presets.ToPreset(row));
    grid.setFocus(Qt::OtherFocusReason);
    ScrollLater(grid.GetCurrentPreset());
}

/// Scrolls as far as the preset's picture needs; with the page's header for the first row.
void PresetPages::ScrollTo(const QModelIndex& preset)
{
    const int page = GetPage(preset);
    PresetGrid& grid = *m_grids[page];
    const QModelIndex shown = grid.GetPresets().FromPreset(preset);
    if (!shown.isValid()) // the filter has left it out
        return;
    const QRect cell = grid.visualRect(shown);
    QRect wanted(grid.mapTo(widget(), cell.topLeft()), cell.size());
    if (cell.top() < grid.gridSize().height())
        wanted.setTop(m_headers[page]->mapTo(widget(), QPoint()).y());
    const int middle = wanted.center().y();
    ensureVisible(0, middle, 0, wanted.height() / 2 + 1);
}

/// Scrolls later: a page that has only just been opened, or has grown, has no place yet.
void PresetPages::ScrollLater(const QModelIndex& preset)
{
    QTimer::singleShot(0, this, [this, row = QPersistentModelIndex(preset)] {
        if (row.isValid())
            ScrollTo(row);
    });
}

void PresetPages::Reveal(const QModelIndex& preset)
{
    if (!preset.isValid() || !preset.parent().isValid())
        return;
    const int page = GetPage(preset);
    SetOpen(page, true);
    ShowPage(page);
    m_grids[page]->SetCurrentPreset(preset);
    m_revealed = isVisible() ? QModelIndex() : preset;
    m_isRevealing = true;
    Follow(preset);
}

void PresetPages::FocusOnPage(const QModelIndex& preset)
{
    m_grids[GetPage(preset)]->setFocus(Qt::OtherFocusReason);
}

/// Scrolls to what was to be seen: a list that is not shown has not been laid out.
void PresetPages::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    if (m_revealed.isValid())
        Reveal(QModelIndex(m_revealed));
}

void PresetPages::FocusFirst()
{
    for (PresetGrid* const grid : m_grids)
        if (grid->isVisibleTo(this) && grid->GetPresets().rowCount() > 0)
            return FocusOn(*grid, false);
}

/// The grid of the nearest open page with looks, beyond `page`; null when there is none.
PresetGrid* PresetPages::FindNextGrid(int page, bool isForward) const
{
    const int pages = static_cast<int>(m_grids.size());
    const int step = isForward ? 1 : -1;
    for (int next = page + step; next >= 0 && next < pages; next += step)
        if (m_grids[next]->isVisibleTo(this) && m_grids[next]->GetPresets().rowCount() > 0)
            return m_grids[next];
    return nullptr;
}

/// Moves on to the nearest open page.
void PresetPages::StepOut(const PresetGrid& grid, bool isForward)
{
    const auto found = std::find(m_grids.begin(), m_grids.end(), &grid);
    PresetGrid* const next = FindNextGrid(static_cast<int>(found - m_grids.begin()), isForward);
    if (!next)
        return;
    FocusOn(*next, !isForward);
    emit stepped(next->GetCurrentPreset());
}

void PresetPages::StepFromApplied(bool isForward)
{
    const QModelIndex applied = m_commands.GetApplied();
    const int none = isForward ? -1 : static_cast<int>(m_grids.size());
    const int page = applied.isValid() ? GetPage(applied) : none;
    PresetGrid* grid = applied.isValid() ? m_grids[page] : nullptr;
    const QModelIndex shown = grid ? grid->GetPresets().FromPreset(applied) : QModelIndex();
    QModelIndex next =
        shown.isValid() ? shown.sibling(shown.row() + (isForward ? 1 : -1), 0) : QModelIndex();
    if (!next.isValid()) {
        grid = FindNextGrid(page, isForward);
        if (!grid)
            return;
        next = grid->GetPresets().index(isForward ? 0 : grid->GetPresets().rowCount() - 1);
    }
    const QModelIndex preset = grid->GetPresets().ToPreset(next);
    grid->SetCurrentPreset(preset);
    emit chosen(preset);
}

void PresetPages::ShowApplied()
{
    const QModelIndex applied = m_commands.GetApplied();
    if (!applied.isValid() || !IsOpen(GetPage(applied)))
        return;
    Follow(m_isRevealing ? QModelIndex(m_followed) : applied);
}

void PresetPages::Follow(const QModelIndex& preset)
{
    const bool isUnderWay = m_scrollings > 0;
    m_followed = preset;
    m_scrollings = LayoutRounds;
    if (!isUnderWay)
        ScrollInRounds();
}

/// Scrolls again until the layouts have answered each other: the list may still be growing.
void PresetPages::ScrollInRounds()
{
    QTimer::singleShot(0, this, [this] {
        if (m_followed.isValid())
            ScrollTo(m_followed);
        if (--m_scrollings > 0)
            ScrollInRounds();
        else
            m_isRevealing = false;
    });
}

/// True when the look on the photo is seen, at least in part, in a viewport of that height.
bool PresetPages::IsAppliedInSight(int height) const
{
    const QModelIndex applied = m_commands.GetApplied();
    if (!applied.isValid() || !IsOpen(GetPage(applied)))
        return false;
    PresetGrid& grid = *m_grids[GetPage(applied)];
    const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(applied));
    const int top = grid.mapTo(widget(), cell.topLeft()).y() - verticalScrollBar()->value();
    return cell.isValid() && top < height && top + cell.height() > 0;
}

void PresetPages::SetThumbnailSize(ThumbnailSize size)
{
    m_size = size;
    for (PresetGrid* const grid : m_grids)
        grid->SetThumbnailSize(size);
    ShowApplied();
}

int PresetPages::GetUsefulHeight() const
{
    constexpr int looks = 6;
    const int room = width() - 2 * (Gutter - Gap / 2);
    const int columns = PresetGrid::CountColumns(room, m_size);
    const int rows = (looks + columns - 1) / columns;
    return m_headers.front()->sizeHint().height() + Gap +
           rows * PresetGrid::MakeCell(room, m_size, fontMetrics()).height();
}

QModelIndex PresetPages::GetCurrentPreset() const
{
    for (const PresetGrid* const grid : m_grids)
        if (grid == window()->focusWidget())
            return grid->GetCurrentPreset();
    return {};
}

/// Keeps the preset in sight; the base class would show the middle of a long page.
bool PresetPages::focusNextPrevChild(bool next)
{
    if (!QWidget::focusNextPrevChild(next)) // NOLINT(bugprone-parent-virtual-call)
        return false;
    if (const QModelIndex preset = GetCurrentPreset(); preset.isValid())
        ScrollLater(preset);
    else if (QWidget* const focused = focusWidget())
        ensureWidgetVisible(focused);
    return true;
}

/// Reserves the scroll bar's place, the right gutter, so that pictures keep their places and sizes
/// without it.
void PresetPages::KeepGutter()
{
    const int bar = width() - viewport()->width();
    for (PresetGrid* const grid : m_grids) {
        QLayout& column = *grid->parentWidget()->layout();
        QMargins margins = column.contentsMargins();
        margins.setRight(std::max(0, Gutter - Gap / 2 - bar));
        column.setContentsMargins(margins);
    }
}

void PresetPages::resizeEvent(QResizeEvent* event)
{
    const bool wasInSight = m_scrollings > 0 || IsAppliedInSight(event->oldSize().height());
    QScrollArea::resizeEvent(event);
    KeepGutter();
    if (wasInSight)
        ShowApplied();
}

void PresetPages::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Refresh(); // the looks have other names, and the filter finds others
    else if (event->type() == QEvent::PaletteChange)
        ShowTexts();
}

} // namespace LumetraPlugin
