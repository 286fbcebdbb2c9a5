// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/ViewCommands.h"

#include "actions/EditorActions.h"
#include "canvas/PhotoCanvas.h"
#include "histogram/HistogramWidget.h"
#include "settings/EditorSettings.h"

#include <QAction>

#include <iterator>

namespace LumetraEditor {
namespace {

const QString BackgroundKey = QStringLiteral("window/background");

/// A colour around the photo and its name in the settings.
struct Background
{
    const char* name;
    QColor colour;
};

/// In the order of their commands. The first is that of the theme; the others are neutral, since a
/// tint beside a photo changes how its colours are seen.
const Background Backgrounds[] = {{"theme", {}},
                                  {"dark", {30, 30, 30}},
                                  {"middle", {119, 119, 119}},
                                  {"light", {198, 198, 198}},
                                  {"white", {255, 255, 255}}};

template <class Operation>
void On(QAction* action, PhotoCanvas& canvas, Operation operation)
{
    QObject::connect(action, &QAction::triggered, &canvas, operation);
}

void ConnectZoom(const EditorActions& actions, PhotoCanvas& canvas)
{
    On(actions.fit, canvas, [&canvas] { canvas.Fit(); });
    On(actions.actualSize, canvas, [&canvas] { canvas.SetZoom(1); });
    On(actions.zoom200, canvas, [&canvas] { canvas.SetZoom(2); });
    On(actions.zoom400, canvas, [&canvas] { canvas.SetZoom(4); });
    On(actions.zoomIn, canvas, [&canvas] { canvas.ZoomIn(); });
    On(actions.zoomOut, canvas, [&canvas] { canvas.ZoomOut(); });
}

/// The two views with the original take each other's place.
void ConnectComparison(const EditorActions& actions, PhotoCanvas& canvas)
{
    On(actions.split, canvas, [&canvas, &actions](bool isOn) {
        canvas.SetSplit(isOn);
        actions.sideBySide->setChecked(canvas.IsSideBySide());
    });
    On(actions.sideBySide, canvas, [&canvas, &actions](bool isOn) {
        canvas.SetSideBySide(isOn);
        actions.split->setChecked(canvas.IsSplit());
    });
}

void ConnectClipping(const EditorActions& actions, PhotoCanvas& canvas, HistogramWidget& histogram)
{
    On(actions.clipping, canvas, [&canvas](bool isOn) { canvas.SetClippingShown(isOn); });
    QObject::connect(&histogram, &HistogramWidget::clippingClicked, actions.clipping,
                     &QAction::trigger);
}

void ConnectBackgrounds(const EditorActions& actions, PhotoCanvas& canvas, EditorSettings& settings)
{
    const QString stored = settings.Get(BackgroundKey).toString();
    actions.backgrounds.front()->setChecked(true);
    for (std::size_t i = 0; i < std::size(Backgrounds); ++i) {
        QAction* const action = actions.backgrounds[i];
        const Background& background = Backgrounds[i];
        On(action, canvas, [&background, &canvas, &settings] {
            settings.Set(BackgroundKey, QLatin1String(background.name));
            canvas.SetBackground(background.colour);
        });
        if (stored == QLatin1String(background.name)) {
            action->setChecked(true);
            canvas.SetBackground(background.colour);
        }
    }
}

} // namespace

void ConnectViewCommands(EditorActions& actions, PhotoCanvas& canvas, HistogramWidget& histogram,
                         EditorSettings& settings)
{
    ConnectZoom(actions, canvas);
    ConnectComparison(actions, canvas);
    ConnectClipping(actions, canvas, histogram);
    ConnectBackgrounds(actions, canvas, settings);
}

} // namespace LumetraEditor
