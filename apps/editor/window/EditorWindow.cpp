// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/EditorWindow.h"

#include "actions/EditorActions.h"
#include "actions/PanelKeys.h"
#include "actions/PhotoKeys.h"
#include "actions/ShortcutsDialog.h"
#include "actions/TextKeys.h"
#include "appearance/Icons.h"
#include "appearance/MonitorColours.h"
#include "appearance/Theme.h"
#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "export/ExportCommand.h"
#include "export/ExportGuard.h"
#include "histogram/HistogramFeed.h"
#include "layers/LayersPanel.h"
#include "many/ManyCommands.h"
#include "plugins/ModulesDialog.h"
#include "plugins/PluginLoader.h"
#include "session/Editor.h"
#include "strip/PhotoBrowser.h"
#include "strip/PhotoStrip.h"
#include "strip/PhotoStripModel.h"
#include "strip/ThumbnailMaker.h"
#include "window/AboutDialog.h"
#include "window/ElidedLabel.h"
#include "window/FileDrop.h"
#include "window/FullScreen.h"
#include "window/MessageBar.h"
#include "window/OpenDialogs.h"
#include "window/PanelTabs.h"
#include "window/PhotoText.h"
#include "window/Questions.h"
#include "window/RowActions.h"
#include "window/SideColumn.h"
#include "window/StartPage.h"
#include "window/TipPlace.h"
#include "window/ViewCommands.h"
#include "window/WindowPlace.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace LumetraEditor {
namespace {

using LumetraHost::PaletteKind;

const QString GeometryKey = QStringLiteral("window/geometry");
const QString SplitterKey = QStringLiteral("window/splitter");
const QString ColumnKey = QStringLiteral("window/column");
const QString MonitorProfileKey = QStringLiteral("monitorProfile");
const QString StatisticsFileKey = QStringLiteral("statisticsFile");
constexpr int SideWidth = 336;
constexpr QSize FirstSize(1280, 800);
constexpr QSize SmallestSize(600, 480);

} // namespace

EditorWindow::EditorWindow(Editor& editor)
    : m_editor(editor), m_actions(new EditorActions(*this, editor.GetUndoStack())),
      m_toolBar(new QToolBar(this)), m_compare(new QToolButton(this)),
      m_splitter(new QSplitter(this)), m_column(new QSplitter(Qt::Vertical, m_splitter)),
      m_centre(new QStackedWidget(m_column)), m_start(new StartPage(m_centre)),
      m_canvas(new PhotoCanvas(m_centre)),
      m_photos(new PhotoStripModel(&ThumbnailMaker::Make, this)),
      m_strip(new PhotoStrip(*m_photos, m_column)), m_side(new SideColumn(m_settings, m_splitter)),
      m_layers(new LayersPanel(editor, m_settings, *m_actions->revert, m_side)),
      m_panels(&m_side->GetPanels()),
      m_panelKeys(new PanelKeys(*this, [this](QWidget& panel) { RevealPanel(panel); })),
      m_messages(new MessageBar(m_centre)), m_photoText(new ElidedLabel(this)),
      m_placeText(new QLabel(this)), m_zoomText(new QLabel(this)),
      m_progress(new QProgressBar(this)), m_cancel(new QToolButton(this)),
      m_export(new ExportCommand(editor, m_settings, *this)),
      m_many(new ManyCommands(editor, *m_actions, m_settings, *this)),
      m_monitor(new MonitorColours(editor, *this)),
      m_browser(new PhotoBrowser(editor, m_settings, *m_photos, *m_strip, this)),
      m_fullScreen(new FullScreen(*this, *m_actions, *m_browser, *m_side, *m_canvas))
{
    setObjectName(QStringLiteral("editorWindow"));
    new CanvasFeed(editor, *m_canvas, this); // these belong to the window
    new HistogramFeed(editor, m_side->GetHistogram());
    setWindowIcon(MakeProgramIcon());
    setAcceptDrops(true);
    setMinimumSize(SmallestSize);
    m_actions->FillMenuBar(*menuBar());
    BuildToolBar();
    BuildCentre();
    BuildStatusBar();
    ConnectActions();
    ConnectEditor();
    ConnectExporter();
    ConnectBrowser();
    RestoreSettings();
    ShowPhoto();
}

EditorWindow::~EditorWindow()
{
    // Panels are removed before their widgets.
    m_editor.RemovePanels();
}

void EditorWindow::BuildToolBar()
{
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_toolBar->setIconSize({20, 20});
    m_actions->FillToolBar(*m_toolBar);
    m_compare->setObjectName(QStringLiteral("compare"));
    m_compare->setFocusPolicy(Qt::StrongFocus);
    m_toolBar->addWidget(m_compare);
    m_toolBar->addActions({m_actions->split, m_actions->sideBySide});
    auto* const gap = new QWidget(m_toolBar);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(gap);
    m_toolBar->addActions({m_actions->exportPhoto, m_actions->strip, m_actions->sidePanel});
    for (QAction* const action : m_toolBar->actions())
        if (auto* const button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(action)))
            button->setFocusPolicy(Qt::TabFocus);
    addToolBar(m_toolBar);
}

void EditorWindow::BuildCentre()
{
    m_splitter->setObjectName(QStringLiteral("splitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(1);
    m_column->setObjectName(QStringLiteral("column"));
    m_column->setChildrenCollapsible(false);
    m_column->setHandleWidth(1);
    m_column->setStretchFactor(0, 1);
    m_column->setStretchFactor(1, 0);
    m_centre->addWidget(m_start);
    m_centre->addWidget(m_canvas);

    m_side->AddLayers(*m_layers);
    m_side->AddAbovePanels(&m_many->GetFollowSwitch());
    auto* const tips = new TipPlace(this);
    tips->Keep(*m_side, Qt::LeftEdge);
    tips->Keep(*m_strip, Qt::TopEdge);

    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setSizes({FirstSize.width() - SideWidth, SideWidth});
    setCentralWidget(m_splitter);
}

void EditorWindow::BuildStatusBar()
{
    m_photoText->setObjectName(QStringLiteral("photoText"));
    m_placeText->setObjectName(QStringLiteral("placeText"));
    m_zoomText->setObjectName(QStringLiteral("zoomText"));
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setFixedWidth(160);
    m_progress->setTextVisible(false);
    m_progress->hide();
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_photoText, 1);
    m_cancel->setObjectName(QStringLiteral("cancelExport"));
    m_cancel->setFocusPolicy(Qt::StrongFocus);
    m_cancel->setAutoRaise(true);
    m_cancel->hide();
    statusBar()->addPermanentWidget(&m_many->GetProgress());
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_cancel);
    statusBar()->addPermanentWidget(m_placeText);
    statusBar()->addPermanentWidget(m_zoomText);
}

void EditorWindow::ConnectActions()
{
    const auto on = [this](QAction* action, auto&& operation) {
        connect(action, &QAction::triggered, this, operation);
    };
    on(m_actions->open, [this] { TakeFiles(AskForPhotos(m_settings, this)); });
    on(m_actions->openFolder, [this] { OpenPhotos(AskForFolder(m_settings, this)); });
    on(m_actions->exportPhoto, [this] { m_export->Ask(); });
    on(m_actions->exportSeveral,
       [this] { m_export->ExportSelection(m_browser->GetSelectedPhotos()); });
    on(m_actions->closePhoto, [this] { m_editor.ClosePhoto(); });
    on(m_actions->quit, [this] { close(); });
    on(m_actions->sidePanel, [this](bool checked) { m_side->setVisible(checked); });
    on(m_actions->dark, [this] { UsePalette(PaletteKind::Dark); });
    on(m_actions->light, [this] { UsePalette(PaletteKind::Light); });
    on(m_actions->english, [this] { UseLanguage(QStringLiteral("en")); });
    on(m_actions->german, [this] { UseLanguage(QStringLiteral("de")); });
    on(m_actions->shortcuts, [this] { ShowShortcuts(); });
    ConnectViewCommands(*m_actions, *m_canvas, m_side->GetHistogram(), m_settings);
    on(m_actions->modules, [this] {
        ModulesDialog(
            m_modules, m_settings, [this](const QString& id) { return m_editor.IsInUse(id); }, this)
            .exec();
    });
    on(m_actions->about, [this] { AboutDialog(this).exec(); });
    on(m_actions->clearRecent, [this] {
        m_settings.ClearRecentPhotos();
        ShowRecentPhotos();
    });
    connect(m_compare, &QToolButton::pressed, this, [this] { m_canvas->SetComparing(true); });
    connect(m_compare, &QToolButton::released, this, [this] { m_canvas->SetComparing(false); });
    connect(m_start, &StartPage::openRequested, m_actions->open, &QAction::trigger);
    connect(m_start, &StartPage::photoRequested, this,
            [this](const QString& path) { OpenPhotos({path}); });
}

void EditorWindow::ConnectEditor()
{
    connect(&m_editor, &Editor::openingStarted, this, &EditorWindow::ShowOpening);
    connect(&m_editor, &Editor::openingEnded, this, &EditorWindow::ShowPhoto);
    connect(&m_editor, &Editor::photoChanged, this, [this] {
        if (m_editor.HasPhoto())
            m_settings.AddRecentPhoto(m_editor.GetPhotoPath());
        m_messages->ClearPhoto();
        ShowRecentPhotos();
        ShowPhoto();
    });
    m_editor.SetQuestions({[this](const QString& photo) { return AskToStartAnew(photo, this); },
                           [this](const QString& photo, const QString& problem) {
                               return AskToLoseEdit(photo, problem, this);
                           }});
    connect(&m_editor, &Editor::messageGiven, m_messages, [this](const QString& message) {
        m_messages->Show(message, MessageBar::About::Photo);
    });
    connect(&m_editor, &Editor::noticeGiven, m_messages, [this](const QString& message) {
        m_messages->Show(message, MessageBar::About::Program);
    });
    connect(m_layers, &LayersPanel::opened, m_panels, &PanelTabs::ShowPanel);
    connect(&m_editor, &Editor::briefGiven, m_messages, [this](const QString& message) {
        m_messages->Show(message, MessageBar::About::Moment);
    });
    connect(m_many, &ManyCommands::told, &m_editor, &Editor::ShowNotice);
    // The bar is raised again, since a page that comes to the front would cover it.
    connect(m_centre, &QStackedWidget::currentChanged, m_messages, &MessageBar::raise);
    connect(m_panelKeys, &PanelKeys::keysTaken, &m_editor, &Editor::ShowNotice);
    connect(m_canvas, &PhotoCanvas::zoomChanged, this, &EditorWindow::ShowZoom);
    connect(m_fullScreen, &FullScreen::changed, m_panelKeys, &PanelKeys::KeepHidden);
    new PhotoKeys(*this, *m_canvas); // these belong to the window
    new TextKeys(*this);
}

void EditorWindow::ConnectExporter()
{
    Exporter& exporter = m_export->GetExporter();
    connect(m_cancel, &QToolButton::clicked, &exporter, &Exporter::Cancel);
    connect(&exporter, &Exporter::progressed, m_progress, &QProgressBar::setValue);
    connect(m_export, &ExportCommand::started, this, &EditorWindow::ShowExport);
    connect(m_export, &ExportCommand::ended, this, [this](const QString& message, bool isAsWanted) {
        m_cancel->hide();
        ShowPhoto();
        m_messages->Show(message,
                         isAsWanted ? MessageBar::About::Moment : MessageBar::About::Photo);
    });
}

void EditorWindow::ConnectBrowser()
{
    connect(m_browser, &PhotoBrowser::placeChanged, this, &EditorWindow::ShowPlace);
    connect(m_browser, &PhotoBrowser::photosFound, this,
            [this](const QStringList& paths) { m_export->GetGuard().AddPhotos(paths); });
    connect(m_browser, &PhotoBrowser::problemFound, m_messages,
            [this](const QString& text) { m_messages->Show(text); });
    connect(m_browser, &PhotoBrowser::selectionChanged, m_many,
            [this] { m_many->SetSelection(m_browser->GetSelectedPhotos()); });
    ConnectRowActions(*m_actions, *m_browser, *m_strip);
}

void EditorWindow::RestoreSettings()
{
    m_actions->sidePanel->setChecked(true);
    RestorePlace(*this, m_settings.Get(GeometryKey).toByteArray(), FirstSize);
    m_splitter->restoreState(m_settings.Get(SplitterKey).toByteArray());
    m_column->restoreState(m_settings.Get(ColumnKey).toByteArray());
    m_monitor->Use(m_settings.Get(MonitorProfileKey).toString());
    m_editor.GetHost().GetStatisticsLog().SetPath(m_settings.Get(StatisticsFileKey).toString());
    UsePalette(m_settings.GetPalette());
    UseLanguage(m_settings.GetLanguage());
    Translate(); // here, because English needs no translator and so sends no event
    ShowRecentPhotos();
}

void EditorWindow::LoadPanels(const QStringList& folders)
{
    PluginLoader loader;
    loader.LoadFolders(folders, m_settings.GetModulesOff());
    m_modules = loader.GetModules();
    UseLanguage(m_settings.GetLanguage()); // libraries that came with panels have texts too
    for (const LoadedPlugin& plugin : loader.GetPlugins())
        AddPanel(plugin);
    for (const QString& report : loader.GetReports())
        m_editor.ShowNotice(report);
}

void EditorWindow::UseMonitorProfile(const QString& choice)
{
    m_monitor->Use(choice);
}

void EditorWindow::AddPanel(const LoadedPlugin& plugin)
{
    GuardedPanel* const panel = m_editor.AddPanel(plugin);
    if (!panel)
        return;
    m_panels->AddPanel(*panel);
    if (QWidget* const widget = panel->GetWidget())
        m_panelKeys->Take(*widget, panel->GetTitle());
    connect(panel, &GuardedPanel::putOutOfUse, m_panelKeys, &PanelKeys::Release);
}

void EditorWindow::RevealPanel(QWidget& panel)
{
    m_actions->sidePanel->setChecked(true);
    m_side->show();
    m_panels->setCurrentWidget(&panel);
}

void EditorWindow::OpenPhotos(const QStringList& paths)
{
    m_browser->Open(paths);
}

void EditorWindow::TakeFiles(const QStringList& paths)
{
    QStringList photos, others;
    for (const QString& path : paths)
        (IsLookFile(path) ? others : photos).append(path);
    if (!others.isEmpty() && !DropOnPanel(*m_panels, others))
        m_messages->Show(tr("%1: no panel takes files of this kind").arg(others.first()));
    if (!photos.isEmpty())
        OpenPhotos(photos);
}

void EditorWindow::ShowOpening(const QString& path)
{
    m_photoText->setText(tr("Opening %1…").arg(QFileInfo(path).fileName()));
    m_progress->setRange(0, 0);
    m_progress->setAccessibleName(tr("Opening"));
    m_progress->show();
}

void EditorWindow::ShowExport()
{
    m_actions->exportPhoto->setEnabled(false);
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_progress->setAccessibleName(tr("Exporting"));
    m_progress->show();
    m_cancel->show();
}

void EditorWindow::ShowPhoto()
{
    const bool hasPhoto = m_editor.HasPhoto();
    m_progress->setVisible(m_export->GetExporter().IsRunning());
    m_centre->setCurrentWidget(hasPhoto ? static_cast<QWidget*>(m_canvas) : m_start);
    m_actions->SetPhotoEnabled(hasPhoto);
    m_actions->exportPhoto->setEnabled(hasPhoto && !m_export->GetExporter().IsRunning());
    m_compare->setEnabled(hasPhoto);
    m_zoomText->setVisible(hasPhoto);
    setWindowFilePath(m_editor.GetPhotoPath());
    setWindowTitle(hasPhoto ? tr("%1 – Lumetra").arg(QFileInfo(m_editor.GetPhotoPath()).fileName())
                            : QStringLiteral("Lumetra"));
    m_photoText->setText(hasPhoto ? DescribePhoto(m_editor.GetPhotoPath(), m_editor.GetPhoto())
                                  : QString());
    ShowPlace();
}

void EditorWindow::ShowPlace()
{
    m_placeText->setText(m_browser->GetPlaceText());
    m_placeText->setVisible(!m_placeText->text().isEmpty());
}

void EditorWindow::ShowZoom(double zoom)
{
    m_zoomText->setText(tr("%1 %").arg(zoom * 100, 0, 'f', zoom < 0.1 ? 1 : 0));
}

void EditorWindow::ShowRecentPhotos()
{
    const QStringList paths = m_settings.GetRecentPhotos();
    m_actions->recent->clear();
    for (const QString& path : paths) {
        QString text = path;
        QAction* const action =
            m_actions->recent->addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
        connect(action, &QAction::triggered, this, [this, path] { OpenPhotos({path}); });
    }
    m_actions->recent->addSeparator();
    m_actions->recent->addAction(m_actions->clearRecent);
    m_actions->recent->setEnabled(!paths.isEmpty());
    m_start->SetRecentPhotos(paths);
}

void EditorWindow::UsePalette(PaletteKind kind)
{
    m_palette = kind;
    m_settings.SetPalette(kind);
    UseTheme(kind);
    (kind == PaletteKind::Dark ? m_actions->dark : m_actions->light)->setChecked(true);
    m_actions->SetIcons(kind);
    m_compare->setIcon(MakeIcon(QStringLiteral("compare"), kind));
    m_start->SetIcons(kind);
    m_layers->SetIcons(kind);
}

void EditorWindow::UseLanguage(const QString& language)
{
    m_settings.SetLanguage(language);
    LumetraEditor::UseLanguage(language);
    (language == QLatin1String("de") ? m_actions->german : m_actions->english)->setChecked(true);
}

void EditorWindow::Translate()
{
    m_actions->Translate();
    m_compare->setText(tr("Compare"));
    m_compare->setToolTip(tr("Hold to see the original (Space)"));
    m_compare->setAccessibleName(tr("Hold to see the original"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleName(tr("Cancel the export"));
    m_toolBar->setWindowTitle(tr("Tools"));
    m_canvas->setAccessibleName(PhotoCanvas::tr("Photo"));
    m_panels->UpdateTitles();
    ShowZoom(m_canvas->GetView().GetZoom());
    ShowPhoto();
}

void EditorWindow::ShowShortcuts()
{
    ShortcutsDialog dialog(*m_actions, this);
    for (const GuardedPanel* const panel : m_panels->GetPanels())
        dialog.AddPanel(panel->GetTitle(), *panel->GetWidget());
    dialog.exec();
}

void EditorWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_browser->Refresh(); // other programs may have changed the folder meanwhile
}

bool EditorWindow::MayClose()
{
    if (m_export->IsRunning() && !AskToStopExport(this))
        return false;
    if (!m_many->MayEnd() || !m_editor.MayEndPanels())
        return false;
    return m_editor.MayLeavePhoto();
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    if (!MayClose()) {
        event->ignore();
        return;
    }
    m_editor.SaveEdit();
    m_settings.Set(GeometryKey, saveGeometry());
    m_fullScreen->Leave(); // the splitters are remembered with all that they divide
    m_settings.Set(SplitterKey, m_splitter->saveState());
    m_settings.Set(ColumnKey, m_column->saveState());
    event->accept();
}

/// Files that a panel gives away are for other programs.
void EditorWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->source() && !GetLocalFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void EditorWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    TakeFiles(GetLocalFiles(*event->mimeData()));
}

} // namespace LumetraEditor
