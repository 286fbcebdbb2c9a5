// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PresetsWidget.h"

#include "panel/commands/PresetCommands.h"
#include "panel/grid/HoverPreview.h"
#include "panel/grid/ThumbnailCache.h"
#include "panel/widgets/FilterBar.h"
#include "panel/widgets/PresetPages.h"
#include "panel/widgets/TunePanel.h"

#include <QAction>
#include <QActionGroup>
#include <QDrag>
#include <QEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraPlugin {
namespace {

constexpr int PagesWithKeys = 9;
constexpr int MostOfTheList = 65; // percent of the height, before the controls have to scroll

} // namespace

PresetsWidget::PresetsWidget(PresetCommands& commands, const AppliedEdit& edit,
                             const RecentPresets& recent, ThumbnailCache& thumbnails,
                             HoverPreview& hover, const PanelChoices& choices, QWidget& frame)
    : QWidget(&frame), m_commands(commands), m_frame(frame), m_filter(recent),
      m_bar(new FilterBar(this)), m_pages(new PresetPages(commands, m_filter, thumbnails, this)),
      m_tune(new TunePanel(commands, edit, this)), m_choices(choices), m_view(new QMenu(this))
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addWidget(m_pages, 1);
    column->addWidget(m_tune);
    column->addStretch();
    ConnectPages(hover);
    MakeViewMenu();
    ConnectArrangement();
    MakeActions();
    connect(&commands, &PresetCommands::presetsChanged, m_pages, &PresetPages::Refresh);
    connect(&commands, &PresetCommands::presetAdded, this, &PresetsWidget::SelectNew);
    connect(&commands, &PresetCommands::appliedChanged, m_pages, &PresetPages::Refresh);
    connect(&commands, &PresetCommands::lookChanged, &thumbnails, &ThumbnailCache::MarkOld);
    connect(&commands, &PresetCommands::photoChanged, &thumbnails, &ThumbnailCache::MarkAllOld);
}

/// Deletes the pages before the filter, which they use.
PresetsWidget::~PresetsWidget()
{
    delete m_pages;
}

void PresetsWidget::ConnectPages(HoverPreview& hover)
{
    connect(m_bar, &FilterBar::textChanged, this, [this](const QString& text) {
        m_filter.SetText(text);
        SetListOpen(m_choices.IsListOpen() || !text.isEmpty());
        m_pages->FollowFilter();
    });
    connect(m_bar, &FilterBar::kindChosen, this, [this](PresetFilter::Kind kind) {
        m_filter.SetKind(kind);
        SetListOpen(true);
        m_pages->FollowFilter();
    });
    connect(m_bar, &FilterBar::importRequested, &m_commands, &PresetCommands::ImportByDialog);
    connect(m_bar, &FilterBar::left, m_pages, &PresetPages::FocusFirst);
    connect(m_pages, &PresetPages::chosen, this, [this, &hover](const QModelIndex& preset) {
        hover.End();
        m_commands.Apply(preset);
    });
    connect(m_pages, &PresetPages::stepped, this, [this, &hover](const QModelIndex& preset) {
        hover.End();
        m_commands.Apply(preset, false);
    });
    connect(m_pages, &PresetPages::stepsEnded, &m_commands, &PresetCommands::FinishApplyStep);
    connect(m_pages, &PresetPages::starClicked, this, [this](const QModelIndex& preset) {
        const bool isFavourite = preset.data(PresetModel::FavouriteRole).toBool();
        m_commands.SetFavourite(preset, !isFavourite);
    });
    connect(m_pages, &PresetPages::pointed, &hover, &HoverPreview::Point);
    connect(m_pages, &PresetPages::dragged, this, [this, &hover](const QModelIndex& preset) {
        hover.End();
        Drag(preset);
    });
    connect(m_pages, &PresetPages::menuRequested, this, &PresetsWidget::ShowMenu);
}

void PresetsWidget::ConnectArrangement()
{
    connect(m_bar, &FilterBar::foldRequested, this,
            [this] { SetListOpen(!m_choices.IsListOpen()); });
    connect(m_tune, &TunePanel::foldRequested, this,
            [this] { SetSlidersOpen(!m_choices.AreSlidersOpen()); });
    connect(m_tune, &TunePanel::contentChanged, this, &PresetsWidget::Arrange);
    connect(&m_commands, &PresetCommands::appliedChanged, m_pages, &PresetPages::ShowApplied);
    m_pages->setVisible(m_choices.IsListOpen());
    m_bar->ShowListOpen(m_choices.IsListOpen());
    m_tune->SetOpen(m_choices.AreSlidersOpen());
}

void PresetsWidget::MakeViewMenu()
{
    m_view->setObjectName(QStringLiteral("viewMenu"));
    auto* const sizes = new QActionGroup(this);
    const auto add = [this](const char* name) {
        auto* const action = m_view->addAction(QString());
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        return action;
    };
    for (const char* const name : {"smallThumbnails", "mediumThumbnails", "largeThumbnails"}) {
        const auto size = static_cast<ThumbnailSize>(m_sizes.size());
        m_sizes.push_back(add(name));
        sizes->addAction(m_sizes.back());
        connect(m_sizes.back(), &QAction::triggered, this, [this, size] { ChooseSize(size); });
    }
    m_view->addSeparator();
    m_listOpen = add("listOpen");
    m_slidersOpen = add("slidersOpen");
    connect(m_listOpen, &QAction::triggered, this, &PresetsWidget::SetListOpen);
    connect(m_slidersOpen, &QAction::triggered, this, &PresetsWidget::SetSlidersOpen);
    m_sizes[static_cast<std::size_t>(m_size)]->setChecked(true);
    m_listOpen->setChecked(m_choices.IsListOpen());
    m_slidersOpen->setChecked(m_choices.AreSlidersOpen());
    m_bar->OfferView(m_view);
}

void PresetsWidget::ShowViewTexts()
{
    const QString names[] = {tr("Small Thumbnails"), tr("Medium Thumbnails"),
                             tr("Large Thumbnails")};
    for (std::size_t i = 0; i < m_sizes.size(); ++i)
        m_sizes[i]->setText(names[i]);
    m_listOpen->setText(tr("List of Looks"));
    m_slidersOpen->setText(tr("Sliders"));
}

void PresetsWidget::ChooseSize(ThumbnailSize size)
{
    m_choices.SetThumbnailSize(size);
    Arrange();
}

void PresetsWidget::SetListOpen(bool isOpen)
{
    if (isOpen == m_choices.IsListOpen())
        return;
    m_choices.SetListOpen(isOpen);
    m_listOpen->setChecked(isOpen);
    m_bar->ShowListOpen(isOpen);
    m_pages->setVisible(isOpen);
    Arrange();
    m_pages->ShowApplied();
}

void PresetsWidget::SetSlidersOpen(bool areOpen)
{
    m_choices.SetSlidersOpen(areOpen);
    m_slidersOpen->setChecked(areOpen);
    m_tune->SetOpen(areOpen);
    Arrange();
    m_pages->ShowApplied();
}

void PresetsWidget::FollowSize()
{
    const ThumbnailSize size = m_choices.GetThumbnailSize(window()->height());
    m_sizes[static_cast<std::size_t>(size)]->setChecked(true);
    if (size == m_size)
        return;
    m_size = size;
    m_pages->SetThumbnailSize(size);
    emit thumbnailSizeChanged(size);
}

void PresetsWidget::Arrange()
{
    FollowSize();
    const int room = height() - m_bar->sizeHint().height();
    const int most = room * MostOfTheList / 100;
    const int list = m_choices.IsListOpen() ? std::min(m_pages->GetUsefulHeight(), most) : 0;
    m_tune->SetRoom(room - list);
}

void PresetsWidget::SelectNew(const QModelIndex& preset)
{
    const QPersistentModelIndex look = preset;
    if (!look.isValid())
        return;
    if (!m_filter.Accepts(look))
        m_bar->Clear();
    SetListOpen(true);
    m_pages->Reveal(look);
    if (isVisible())
        m_pages->FocusOnPage(look);
}

void PresetsWidget::RevealApplied()
{
    m_filter.TakeRecentOrder();
    m_pages->Refresh();
    if (const QModelIndex applied = m_commands.GetApplied(); applied.isValid())
        m_pages->Reveal(applied);
}

void PresetsWidget::ShowApplied()
{
    m_pages->ShowApplied();
}

QAction* PresetsWidget::AddAction(const char* name, const QKeySequence& key,
                                  const std::function<void()>& run)
{
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, run);
    m_frame.addAction(action);
    return action;
}

void PresetsWidget::MakeActions()
{
    m_apply = AddAction("applyPreset", {}, [this] { m_commands.Apply(GetTargetPreset()); });
    m_favourite = AddAction("favouritePreset", Qt::CTRL + Qt::Key_D, [this] {
        const QModelIndex preset = GetTargetPreset();
        m_commands.SetFavourite(preset, !preset.data(PresetModel::FavouriteRole).toBool());
    });
    m_saveAs = AddAction("savePreset", Qt::CTRL + Qt::SHIFT + Qt::Key_S,
                         [this] { m_commands.SaveAs(GetTargetPreset()); });
    m_rename =
        AddAction("renamePreset", Qt::Key_F2, [this] { m_commands.Rename(GetTargetPreset()); });
    m_remove = AddAction("removePreset", QKeySequence::Delete,
                         [this] { m_commands.Remove(GetTargetPreset()); });
    m_reset = AddAction("resetPreset", Qt::CTRL + Qt::Key_R, [this] { m_commands.Reset(); });
    m_commit =
        AddAction("commitPreset", Qt::CTRL + Qt::Key_Return, [this] { m_commands.Commit(); });
    m_discard =
        AddAction("discardPreset", Qt::CTRL + Qt::Key_Backspace, [this] { m_commands.Discard(); });
    m_import =
        AddAction("importPresets", Qt::CTRL + Qt::Key_I, [this] { m_commands.ImportByDialog(); });
    m_importFolder = AddAction("importPresetFolder", Qt::CTRL + Qt::SHIFT + Qt::Key_I,
                               [this] { m_commands.ImportFolderByDialog(); });
    m_bar->OfferImports({m_import, m_importFolder});
    m_export = AddAction("exportPreset", Qt::CTRL + Qt::SHIFT + Qt::Key_E,
                         [this] { m_commands.Export(GetTargetPreset()); });
    m_share = AddAction("sharePreset", {}, [this] { m_commands.Share(GetTargetPreset()); });
    m_search = AddAction("searchPresets", QKeySequence::Find, [this] {
        SetListOpen(true);
        m_bar->FocusSearch();
    });
    m_search->setProperty("showsPanel", true); // for editors that keep a hidden panel hidden
    m_next = AddAction("nextPreset", Qt::CTRL + Qt::Key_Down,
                       [this] { m_pages->StepFromApplied(true); });
    m_previous = AddAction("previousPreset", Qt::CTRL + Qt::Key_Up,
                           [this] { m_pages->StepFromApplied(false); });
    for (int page = 0; page < PagesWithKeys; ++page) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::ALT + Qt::Key_1 + page), this);
        connect(shortcut, &QShortcut::activated, this, [this, page] {
            const bool wasFolded = !m_choices.IsListOpen();
            SetListOpen(true);
            if (!wasFolded || !m_pages->IsOpen(page))
                m_pages->TogglePage(page);
        });
    }
    ShowActionTexts();
}

void PresetsWidget::ShowActionTexts()
{
    m_apply->setText(tr("Show on the photo"));
    m_favourite->setText(tr("Favourite"));
    m_saveAs->setText(tr("Save as a look…"));
    m_rename->setText(tr("Rename…"));
    m_remove->setText(tr("Delete…"));
    m_reset->setText(tr("Reset all values"));
    m_commit->setText(tr("Add another look on top"));
    m_discard->setText(tr("Remove the look"));
    m_search->setText(tr("Search looks"));
    m_next->setText(tr("Next look"));
    m_previous->setText(tr("Previous look"));
    m_import->setText(tr("Import looks…"));
    m_importFolder->setText(tr("Import a folder of looks…"));
    m_export->setText(tr("Export as a table…"));
    m_share->setText(tr("Share…"));
    for (QShortcut* const shortcut : findChildren<QShortcut*>())
        shortcut->setWhatsThis(tr("Open or shut the group in that place")); // for lists of keys
    ShowViewTexts();
}

QModelIndex PresetsWidget::GetTargetPreset() const
{
    if (m_menuPreset.isValid())
        return m_menuPreset;
    const QModelIndex current = m_pages->GetCurrentPreset();
    return current.isValid() ? current : m_commands.GetApplied();
}

void PresetsWidget::ShowMenu(const QModelIndex& preset, const QPoint& position)
{
    m_menuPreset = preset;
    QMenu menu(this);
    const bool isUsers = m_commands.IsUsers(preset);
    m_favourite->setCheckable(true);
    m_favourite->setChecked(preset.data(PresetModel::FavouriteRole).toBool());
    menu.addAction(m_apply);
    menu.addAction(m_favourite);
    menu.addSeparator();
    menu.addAction(m_saveAs);
    menu.addAction(m_share);
    menu.addAction(m_export);
    if (isUsers) {
        menu.addAction(m_rename);
        menu.addAction(m_remove);
    }
    if (preset == m_commands.GetApplied()) {
        menu.addSeparator();
        menu.addAction(m_reset);
        menu.addAction(m_discard);
        menu.addAction(m_commit);
    }
    menu.exec(position);
    m_favourite->setCheckable(false);
    m_menuPreset = QModelIndex();
}

/// Hands the look as a file to wherever it is dropped.
void PresetsWidget::Drag(const QModelIndex& preset)
{
    auto files = m_commands.MakeDragData(preset);
    if (!files)
        return;
    auto* const drag = new QDrag(this); // Qt deletes it
    drag->setMimeData(files.release());
    drag->exec(Qt::CopyAction);
}

void PresetsWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange();
}

void PresetsWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowActionTexts();
}

} // namespace LumetraPlugin
