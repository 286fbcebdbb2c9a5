// SPDX-License-Identifier: GPL-2.0-or-later
#include "PanelFixture.h"

#include "core/PresetCollection.h"
#include "panel/grid/PresetDelegate.h"
#include "panel/grid/PresetGrid.h"
#include "panel/widgets/PresetPages.h"
#include "panel/widgets/PresetsWidget.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QTimer>

#include <algorithm>

namespace LumetraTest {
namespace {

using LumetraHost::Image;
using LumetraPlugin::PresetDelegate;
using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;

constexpr char Catalogue[] = R"({"format": "lumetra-catalogue", "version": 1,
  "defaultSettings": {
    "exposure": {"title": "Exposure", "begin": -100, "end": 100,
                 "variables": [{"setting": "stops", "begin": -2, "end": 2}]},
    "contrast": {"title": "Contrast", "begin": -100, "end": 100,
                 "variables": [{"setting": "amount", "begin": -100, "end": 100}]}},
  "groups": [
    {"name": "Looks", "settings": {"intensity": {"type": 1, "blendSetting": {"value": 80}}},
     "items": [
       {"name": "Bright", "id": "bright", "popular": true,
        "effects": [{"effect": {"id": "exposure", "stops": 1}}]},
       {"name": "Grey", "id": "grey", "effects": [{"effect": {"id": "saturation", "amount": -100}}]},
       {"name": "Hard", "id": "hard", "effects": [{"effect": {"id": "contrast", "amount": 40}},
                                                  {"effect": {"id": "exposure", "stops": 0.5}}]}]},
    {"name": "Evenings", "items": [
       {"name": "Warm", "id": "warm",
        "intensity": {"type": 2, "sliderSetting": {"title": "Warmth", "begin": 0, "end": 100,
          "variables": [{"effectID": "whiteBalance", "setting": "temperature",
                         "begin": 6500, "end": 9500}]}},
        "effects": [{"effect": {"id": "whiteBalance", "temperature": 8000}}]},
       {"name": "Plain", "id": "plain", "previewCropPolicy": 0,
        "effects": [{"effect": {"id": "exposure", "stops": -0.5}}]}]},
    {"name": "Film", "settings": {"appStoreId": {"id": "film-pack"},
                                  "intensity": {"type": 1, "blendSetting": {"value": 60}}},
     "items": [{"name": "Silver", "id": "silver", "resource": "silver.json"},
               {"name": "Thief", "id": "thief", "resource": "../../thief.json"}]}]})";

Image Gradient(int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* pixel = image.Row(y) + 4 * x;
            pixel[0] = static_cast<std::uint8_t>(200 * x / width);
            pixel[1] = static_cast<std::uint8_t>(200 * y / height);
            pixel[2] = 90;
            pixel[3] = 255;
        }
    }
    return image;
}

void WriteFile(const QString& path, const char* text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

void ClickAt(QWidget& widget, const QPoint& position)
{
    QMouseEvent press(QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(&widget, &release);
}

} // namespace

PanelFixture::PanelFixture() : photo(Gradient(60, 40))
{
    files.catalogues = QStringList{folder.filePath(QStringLiteral("looks.json"))};
    files.store = folder.filePath(QStringLiteral("presets.json"));
    files.recent = folder.filePath(QStringLiteral("panel.ini"));
    files.resources = QStringList{folder.filePath(QStringLiteral("resources"))};
    WriteFile(files.catalogues.front(), Catalogue);
    Restart();
    editor.OpenPhoto(photo);
}

PanelFixture::~PanelFixture()
{
    editor.SetPanel(nullptr);
    editor.undoStack.clear();
}

void PanelFixture::Restart()
{
    editor.SetPanel(nullptr);
    panel.reset();
    panel = std::make_unique<LumetraPlugin::PresetsPanel>(editor, files);
    editor.SetPanel(panel.get());
    panel->GetWidget()->resize(320, 900);
    panel->GetWidget()->show();
    QApplication::processEvents();
}

PresetModel& PanelFixture::Model()
{
    return panel->GetPresets().GetModel();
}

QModelIndex PanelFixture::Preset(int group, int row)
{
    return Model().index(row, 0, Model().index(group, 0));
}

QModelIndex PanelFixture::Named(const char* name)
{
    for (int g = 0; g < Model().rowCount(); ++g)
        for (int i = 0; i < Model().rowCount(Model().index(g, 0)); ++i)
            if (Preset(g, i).data(PresetModel::PresetNameRole) == QString::fromUtf8(name))
                return Preset(g, i);
    ADD_FAILURE() << "expected a preset named " << name;
    return {};
}

bool PanelFixture::IsApplied(const char* name)
{
    return Named(name).data(PresetModel::AppliedRole).toBool();
}

PresetGrid& PanelFixture::Grid(int page)
{
    const auto grids = panel->GetWidget()->findChildren<PresetGrid*>();
    const auto found = std::find_if(grids.begin(), grids.end(), [page](PresetGrid* grid) {
        return grid->GetPresets().GetGroup().row() == page;
    });
    EXPECT_NE(found, grids.end()) << page;
    return **found;
}

void PanelFixture::Click(const char* name)
{
    PresetGrid& grid = Grid(Named(name).parent().row());
    const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named(name)));
    ClickAt(*grid.viewport(), PresetDelegate::GetPictureRect(cell).center());
}

void PanelFixture::ClickStar(const char* name)
{
    PresetGrid& grid = Grid(Named(name).parent().row());
    const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named(name)));
    ClickAt(*grid.viewport(), PresetDelegate::GetStarRect(cell).center());
}

void PanelFixture::Trigger(const char* action)
{
    Find<QAction>(action).trigger();
}

void PanelFixture::Drag(const char* slider, std::initializer_list<int> values)
{
    auto& dragged = Find<QSlider>(slider);
    dragged.setSliderDown(true);
    for (const int value : values)
        dragged.setValue(value);
    dragged.setSliderDown(false);
}

void PanelFixture::TriggerAndType(const char* action, const QString& name)
{
    QTimer::singleShot(0, [name] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->findChild<QLineEdit*>()->setText(name);
        dialog->accept();
        if (dialog->isVisible())
            dialog->reject();
    });
    Trigger(action);
}

QString PanelFixture::StoreText() const
{
    QFile file(files.store);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList PanelFixture::Shown(int page)
{
    QStringList names;
    auto& presets = Grid(page).GetPresets();
    for (int row = 0; row < presets.rowCount(); ++row)
        names.append(presets.index(row).data().toString());
    return names;
}

} // namespace LumetraTest
