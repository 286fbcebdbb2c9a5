// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "settings/EditorSettings.h"
#include "style/StyleColours.h"

#include <QMainWindow>

#include <vector>

class QLabel;
class QProgressBar;
class QSplitter;
class QStackedWidget;
class QToolBar;
class QToolButton;

namespace LumetraEditor {

class Editor;
class EditorActions;
class ExportCommand;
class FullScreen;
class LayersPanel;
class ManyCommands;
class MessageBar;
class PhotoBrowser;
class PhotoStrip;
class PhotoStripModel;
class MonitorColours;
class PanelKeys;
class PanelTabs;
class PhotoCanvas;
class SideColumn;
class StartPage;
struct FoundModule;
struct LoadedPlugin;

/// The editor's one window: the photo in the middle, the panels beside it, commands around them. It
/// only connects the parts with each other.
class EditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `editor` is kept by reference and outlives the window.
    explicit EditorWindow(Editor& editor);
    ~EditorWindow() override;

    /// Loads the modules of these folders and places their panels.
    void LoadPanels(const QStringList& folders);
    /// Places the module's panel; a module that fails is reported.
    void AddPanel(const LoadedPlugin& plugin);
    /// Opens photos and folders of photos, see PhotoBrowser::Open().
    void OpenPhotos(const QStringList& paths);
    /// The photos of the window and the selection among them.
    PhotoBrowser& GetBrowser() { return *m_browser; }
    /// Opens photos and folders, and hands files with looks to the panel that takes them.
    void TakeFiles(const QStringList& paths);

    /// See MonitorColours::Use(); until the program ends.
    void UseMonitorProfile(const QString& choice);
    void UsePalette(LumetraHost::PaletteKind kind);
    void UseLanguage(const QString& language);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildToolBar();
    void BuildCentre();
    void BuildStatusBar();
    void ConnectActions();
    void ConnectEditor();
    void RestoreSettings();

    void ConnectExporter();
    /// Takes files that are dropped on the window: opens photos, hands other files to the panels.
    void ConnectBrowser();
    void ShowPhoto();
    void ShowZoom(double zoom);
    void ShowOpening(const QString& path);
    void ShowExport();
    void ShowRecentPhotos();
    void ShowShortcuts();
    void RevealPanel(QWidget& panel);
    void ShowPlace();
    void Translate();
    bool MayClose();

    Editor& m_editor;
    EditorSettings m_settings;
    std::vector<FoundModule> m_modules;
    LumetraHost::PaletteKind m_palette = LumetraHost::PaletteKind::Dark;

    EditorActions* m_actions;
    QToolBar* m_toolBar;
    QToolButton* m_compare;
    QSplitter* m_splitter;
    QSplitter* m_column; ///< the photo and the strip below it
    QStackedWidget* m_centre;
    StartPage* m_start;
    PhotoCanvas* m_canvas;
    PhotoStripModel* m_photos;
    PhotoStrip* m_strip;
    SideColumn* m_side;
    LayersPanel* m_layers;
    PanelTabs* m_panels;
    PanelKeys* m_panelKeys;
    MessageBar* m_messages;
    QLabel* m_photoText;
    QLabel* m_placeText;
    QLabel* m_zoomText;
    QProgressBar* m_progress;
    QToolButton* m_cancel;
    ExportCommand* m_export;
    ManyCommands* m_many;
    MonitorColours* m_monitor;
    PhotoBrowser* m_browser;
    FullScreen* m_fullScreen;
};

} // namespace LumetraEditor
