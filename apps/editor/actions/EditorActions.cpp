// SPDX-License-Identifier: GPL-2.0-or-later
#include "actions/EditorActions.h"

#include "appearance/Icons.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QUndoStack>

namespace LumetraEditor {

EditorActions::EditorActions(QWidget& window, QUndoStack& undoStack)
    : QObject(&window), recent(new QMenu(&window)), photos(new QMenu(&window)), m_window(window),
      m_undoStack(undoStack), m_palettes(new QActionGroup(this)), m_orders(new QActionGroup(this)),
      m_languages(new QActionGroup(this)), m_file(new QMenu(&window)), m_edit(new QMenu(&window)),
      m_view(new QMenu(&window)), m_palette(new QMenu(&window)), m_language(new QMenu(&window)),
      m_background(new QMenu(&window)), m_help(new QMenu(&window))
{
    open = Add("open", {Qt::CTRL + Qt::Key_O});
    openFolder = Add("openFolder", {Qt::CTRL + Qt::SHIFT + Qt::Key_O});
    previousPhoto = Add("previousPhoto", {Qt::CTRL + Qt::Key_PageUp});
    nextPhoto = Add("nextPhoto", {Qt::CTRL + Qt::Key_PageDown});
    exportPhoto = Add("exportPhoto", {Qt::CTRL + Qt::Key_E});
    exportSeveral = Add("exportSeveral", {Qt::CTRL + Qt::ALT + Qt::Key_E});
    closePhoto = Add("closePhoto", {Qt::CTRL + Qt::Key_W});
    quit = Add("quit", {Qt::CTRL + Qt::Key_Q});
    undo = Add("undo", {Qt::CTRL + Qt::Key_Z});
    redo = Add("redo", {Qt::CTRL + Qt::SHIFT + Qt::Key_Z, Qt::CTRL + Qt::Key_Y});
    copyEdit = Add("copyEdit", {Qt::CTRL + Qt::SHIFT + Qt::Key_C});
    pasteEdit = Add("pasteEdit", {Qt::CTRL + Qt::SHIFT + Qt::Key_V});
    pasteParts = Add("pasteParts", {Qt::CTRL + Qt::ALT + Qt::Key_V});
    putLook = Add("putLook");
    revert = Add("revert");
    selectAll = Add("selectAll", {Qt::CTRL + Qt::Key_A});
    selectOne = Add("selectOne", {Qt::CTRL + Qt::SHIFT + Qt::Key_A});
    orderByName = Add("orderByName");
    orderByTime = Add("orderByTime");
    refresh = Add("refresh", {Qt::Key_F5});
    fit = Add("fit", {Qt::CTRL + Qt::Key_0});
    actualSize = Add("actualSize", {Qt::CTRL + Qt::Key_1});
    zoom200 = Add("zoom200", {Qt::CTRL + Qt::Key_2});
    zoom400 = Add("zoom400", {Qt::CTRL + Qt::Key_4});
    zoomIn = Add("zoomIn", {Qt::CTRL + Qt::Key_Plus, Qt::CTRL + Qt::Key_Equal});
    zoomOut = Add("zoomOut", {Qt::CTRL + Qt::Key_Minus});
    split = Add("split", {Qt::CTRL + Qt::Key_B});
    sideBySide = Add("sideBySide", {Qt::CTRL + Qt::SHIFT + Qt::Key_B});
    clipping = Add("clipping", {Qt::CTRL + Qt::Key_J});
    sidePanel = Add("sidePanel", {Qt::Key_F9});
    strip = Add("strip", {Qt::Key_F8});
    fullScreen = Add("fullScreen", {Qt::Key_F11});
    shortcuts = Add("shortcuts", {Qt::Key_F1});
    modules = Add("modules");
    clearRecent = Add("clearRecent");
    dark = Add("dark");
    light = Add("light");
    english = Add("english");
    german = Add("german");
    about = Add("about");
    for (QAction* const action : {split, sideBySide, clipping, sidePanel, strip, fullScreen,
                                  orderByName, orderByTime, dark, light, english, german})
        action->setCheckable(true);
    MakeBackgrounds();
    for (QAction* const action : {orderByName, orderByTime})
        m_orders->addAction(action);
    for (QAction* const action : {dark, light})
        m_palettes->addAction(action);
    for (QAction* const action : {english, german})
        m_languages->addAction(action);
    ConnectUndo();
    Translate();
}

void EditorActions::MakeBackgrounds()
{
    auto* const group = new QActionGroup(this);
    for (const char* const name : {"backgroundTheme", "backgroundDark", "backgroundMiddle",
                                   "backgroundLight", "backgroundWhite"}) {
        backgrounds.push_back(Add(name));
        backgrounds.back()->setCheckable(true);
        group->addAction(backgrounds.back());
        m_background->addAction(backgrounds.back());
    }
}

void EditorActions::ConnectUndo()
{
    connect(undo, &QAction::triggered, &m_undoStack, &QUndoStack::undo);
    connect(redo, &QAction::triggered, &m_undoStack, &QUndoStack::redo);
    for (const auto changed : {&QUndoStack::undoTextChanged, &QUndoStack::redoTextChanged})
        connect(&m_undoStack, changed, this, &EditorActions::ShowSteps);
    for (const auto changed : {&QUndoStack::canUndoChanged, &QUndoStack::canRedoChanged})
        connect(&m_undoStack, changed, this, &EditorActions::ShowSteps);
}

void EditorActions::ShowSteps()
{
    undo->setEnabled(m_undoStack.canUndo());
    redo->setEnabled(m_undoStack.canRedo());
    SetText(undo, tr("&Undo %1").arg(m_undoStack.undoText()).trimmed());
    SetText(redo, tr("&Redo %1").arg(m_undoStack.redoText()).trimmed());
    undo->setIconText(tr("Undo"));
    redo->setIconText(tr("Redo"));
}

void EditorActions::SetTargets(int count)
{
    m_targets = count;
    ShowTargets();
}

/// Commands that change several photos say so in the menu.
void EditorActions::ShowTargets()
{
    const auto show = [this](QAction* action, const QString& one, const QString& many) {
        SetText(action, m_targets > 1 ? many.arg(m_targets) : one);
        QString name = one;
        action->setIconText(name.remove(QLatin1Char('&')));
    };
    show(pasteEdit, tr("&Paste Edit"), tr("&Paste Edit on %1 Photos"));
    show(pasteParts, tr("Paste P&arts of Edit…"), tr("Paste P&arts of Edit on %1 Photos…"));
    show(putLook, tr("Put &Look on Selected Photos"), tr("Put &Look on All %1 Photos"));
    show(revert, tr("Re&vert to Original"), tr("Re&vert %1 Photos to Original"));
}

QAction* EditorActions::Add(const char* name, const QList<QKeySequence>& keys)
{
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    m_window.addAction(action); // in the window, keys also work where the menu bar is hidden
    m_all.push_back(action);
    return action;
}

void EditorActions::FillMenuBar(QMenuBar& bar)
{
    m_file->addActions({open, openFolder});
    m_file->addMenu(recent);
    m_file->addSeparator();
    m_file->addActions({previousPhoto, nextPhoto});
    m_file->addSeparator();
    m_file->addActions({exportPhoto, exportSeveral, closePhoto});
    m_file->addSeparator();
    m_file->addAction(quit);
    m_edit->addActions({undo, redo});
    m_edit->addSeparator();
    m_edit->addActions({copyEdit, pasteEdit, pasteParts});
    m_edit->addSeparator();
    m_edit->addAction(revert);
    photos->addActions({selectAll, selectOne});
    photos->addSeparator();
    photos->addActions({orderByName, orderByTime});
    photos->addSeparator();
    photos->addActions({copyEdit, pasteEdit, pasteParts, putLook, revert});
    photos->addSeparator();
    photos->addAction(refresh);
    m_view->addActions({fit, actualSize, zoom200, zoom400, zoomIn, zoomOut});
    m_view->addSeparator();
    m_view->addActions({split, sideBySide, clipping});
    m_view->addSeparator();
    m_view->addActions({sidePanel, strip, fullScreen});
    m_view->addSeparator();
    m_view->addMenu(m_background);
    m_palette->addActions({dark, light});
    m_language->addActions({english, german});
    m_view->addMenu(m_palette);
    m_view->addMenu(m_language);
    m_help->addActions({shortcuts, modules, about});
    for (QMenu* const menu : {m_file, m_edit, photos, m_view, m_help})
        bar.addMenu(menu);
}

void EditorActions::FillToolBar(QToolBar& bar)
{
    const QList<QAction*> groups[] = {
        {open, previousPhoto, nextPhoto}, {undo, redo}, {zoomOut, zoomIn, fit, actualSize}};
    for (const QList<QAction*>& group : groups) {
        bar.addActions(group);
        bar.addSeparator();
    }
}

/// Sets the text, and the tool tip of a tool button, which names the key too.
void EditorActions::SetText(QAction* action, const QString& text)
{
    action->setText(text);
    QString plain = text;
    plain = plain.remove(QLatin1Char('&')).remove(QStringLiteral("…")).trimmed();
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(key.isEmpty() ? plain : QStringLiteral("%1 (%2)").arg(plain, key));
}

void EditorActions::Translate()
{
    m_file->setTitle(tr("&File"));
    m_edit->setTitle(tr("&Edit"));
    photos->setTitle(tr("&Photos"));
    m_view->setTitle(tr("&View"));
    m_palette->setTitle(tr("&Theme"));
    m_background->setTitle(tr("Back&ground"));
    m_language->setTitle(tr("&Language"));
    m_help->setTitle(tr("&Help"));
    recent->setTitle(tr("Open &Recent"));
    SetText(open, tr("&Open…"));
    SetText(openFolder, tr("Open &Folder…"));
    SetText(clearRecent, tr("&Clear List"));
    SetText(previousPhoto, tr("&Previous Photo"));
    SetText(nextPhoto, tr("&Next Photo"));
    SetText(exportPhoto, tr("&Export…"));
    SetText(exportSeveral, tr("Export &Several…"));
    SetText(closePhoto, tr("&Close Photo"));
    SetText(quit, tr("&Quit"));
    ShowSteps();
    SetText(copyEdit, tr("&Copy Edit"));
    ShowTargets();
    SetText(selectAll, tr("Select &All Photos"));
    SetText(selectOne, tr("Select &Only This Photo"));
    SetText(orderByName, tr("Order by &Name"));
    SetText(orderByTime, tr("Order by &Time Taken"));
    SetText(refresh, tr("&Read Folder Again"));
    SetText(fit, tr("&Fit to Window"));
    SetText(actualSize, tr("&Actual Size"));
    SetText(zoom200, tr("&200 %"));
    SetText(zoom400, tr("&400 %"));
    SetText(zoomIn, tr("Zoom &In"));
    SetText(zoomOut, tr("Zoom &Out"));
    SetText(split, tr("&Before and After"));
    SetText(sideBySide, tr("Side &by Side"));
    SetText(clipping, tr("&Clipping Warnings"));
    SetText(sidePanel, tr("&Side Panel"));
    SetText(strip, tr("Photo S&trip"));
    SetText(fullScreen, tr("F&ull Screen"));
    const QString names[] = {tr("As the &Theme"), tr("&Dark"), tr("&Middle Grey"),
                             tr("&Light Grey"), tr("&White")};
    for (std::size_t i = 0; i < backgrounds.size(); ++i)
        SetText(backgrounds[i], names[i]);
    SetText(dark, tr("&Dark"));
    SetText(light, tr("&Light"));
    // Languages are named in their own words, so that users of a wrong one find back.
    SetText(english, QStringLiteral("&English"));
    SetText(german, QStringLiteral("&Deutsch"));
    SetText(shortcuts, tr("&Keyboard Shortcuts"));
    SetText(modules, tr("&Modules…"));
    SetText(about, tr("&About Lumetra"));
}

void EditorActions::SetIcons(LumetraHost::PaletteKind kind)
{
    const std::pair<QAction*, const char*> icons[] = {
        {open, "open"},      {previousPhoto, "previous"},
        {nextPhoto, "next"}, {undo, "undo"},
        {redo, "redo"},      {exportPhoto, "export"},
        {fit, "fit"},        {actualSize, "actual-size"},
        {zoomIn, "zoom-in"}, {zoomOut, "zoom-out"},
        {split, "split"},    {sideBySide, "side-by-side"},
        {strip, "strip"},    {sidePanel, "panel"},
        {revert, "revert"}};
    for (const auto& [action, name] : icons)
        action->setIcon(MakeIcon(QLatin1String(name), kind));
}

void EditorActions::SetPhotoEnabled(bool enabled)
{
    for (QAction* const action : {exportPhoto, exportSeveral, closePhoto, fit, actualSize, zoom200,
                                  zoom400, zoomIn, zoomOut, split, sideBySide, clipping})
        action->setEnabled(enabled);
}

void EditorActions::SetRowEnabled(bool enabled)
{
    for (QAction* const action : {selectAll, selectOne, refresh, strip})
        action->setEnabled(enabled);
}

std::vector<QAction*> EditorActions::GetKeyed() const
{
    std::vector<QAction*> keyed;
    for (QAction* const action : m_all)
        if (!action->shortcut().isEmpty())
            keyed.push_back(action);
    return keyed;
}

} // namespace LumetraEditor
