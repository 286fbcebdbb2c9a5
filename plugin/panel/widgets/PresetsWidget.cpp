// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PresetsWidget.h"

#include "panel/commands/PresetCommands.h"
#include "panel/grid/HoverPreview.h"
#include "panel/grid/ThumbnailCache.h"
#include "panel/widgets/FilterBar.h"
#include "panel/widgets/PresetPages.h"
#include "panel/widgets/TunePanel.h"

#include <QAction>
#include <QDrag>
#include <QEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QVBoxLayout>

namespace LumetraPlugin {
namespace {

constexpr int PagesWithKeys = 9;

} // namespace

PresetsWidget::PresetsWidget(PresetCommands& commands, const AppliedEdit& edit,
                             const RecentPresets& recent, ThumbnailCache& thumbnails,
                             HoverPreview& hover, QWidget& frame)
    : QWidget(&frame), m_commands(commands), m_frame(frame), m_filter(recent),
      m_bar(new FilterBar(this)), m_pages(new PresetPages(commands, m_filter, thumbnails, this))
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addWidget(m_pages, 1);
    column->addWidget(new TunePanel(commands, edit, this));
    ConnectPages(hover);
    MakeActions();
    connect(&commands, &PresetCommands::presetsChanged, m_pages, &PresetPages::Refresh);
    connect(&commands, &PresetCommands::presetAdded, m_pages, &PresetPages::Reveal);
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
        m_pages->FollowFilter();
    });
    connect(m_bar, &FilterBar::kindChosen, this, [this](PresetFilter::Kind kind) {
        m_filter.SetKind(kind);
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
    m_search = AddAction("searchPresets", QKeySequence::Find, [this] { m_bar->FocusSearch(); });
    for (int page = 0; page < PagesWithKeys; ++page) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::ALT + Qt::Key_1 + page), this);
        connect(shortcut, &QShortcut::activated, this, [this, page] { m_pages->TogglePage(page); });
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
    m_import->setText(tr("Import looks…"));
    m_importFolder->setText(tr("Import a folder of looks…"));
    m_export->setText(tr("Export as a table…"));
    m_share->setText(tr("Share…"));
    for (QShortcut* const shortcut : findChildren<QShortcut*>())
        shortcut->setWhatsThis(tr("Open or shut the group in that place")); // for lists of keys
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

void PresetsWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowActionTexts();
}

} // namespace LumetraPlugin
