// SPDX-License-Identifier: GPL-2.0-or-later
#include "Scenes.h"

#include "GalleryPanel.h"
#include "Pointer.h"
#include "style/EditorStyle.h"
#include "style/MessageBoxAlertBackend.h"
#include "widgets/CustomToolBox.h"
#include "widgets/IntensityWidget.h"
#include "widgets/NewPresetDialog.h"

#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <QToolTip>

namespace LumetraGallery {
namespace {

using LumetraHost::PaletteKind;
using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;

void Show(QWidget& widget)
{
    widget.show();
    QApplication::setActiveWindow(&widget);
    QApplication::processEvents();
}

/// Runs layouts only before painting: events of the window system would move the pointer away.
QImage Grab(QWidget& widget)
{
    QApplication::sendPostedEvents();
    return widget.grab().toImage();
}

/// A scene of the presets panel, which `arrange` brings into the state to be seen.
Scene PanelScene(const char* name, const std::function<void(GalleryPanel&)>& arrange)
{
    return {QString::fromLatin1(name), [arrange](PaletteKind kind, Language language) {
                GalleryPanel panel(kind, language);
                Show(panel);
                arrange(panel);
                return Grab(panel);
            }};
}

/// A scene of the name dialog.
Scene DialogScene(const char* name, NewPresetDialog::Mode mode,
                  const std::function<void(NewPresetDialog&)>& arrange)
{
    return {QString::fromLatin1(name), [mode, arrange](PaletteKind, Language) {
                NewPresetDialog dialog({QStringLiteral("Soft Skin")}, mode, nullptr);
                Show(dialog);
                arrange(dialog);
                return Grab(dialog);
            }};
}

QToolButton& DialogButton(NewPresetDialog& dialog, const char* name)
{
    return *dialog.findChild<QToolButton*>(QString::fromLatin1(name));
}

QLineEdit& NameEdit(NewPresetDialog& dialog)
{
    return *dialog.findChild<QLineEdit*>();
}

QPoint HandleCentre(QSlider& slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.value();
    option.sliderValue = slider.value();
    option.subControls = QStyle::SC_All;
    return slider.style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
        .center();
}

void Centre(QWidget& widget, void (*act)(QWidget&, const QPoint&))
{
    act(widget, widget.rect().center());
}

QWidget* VisibleToolTip()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

/// The panel with the tool tip where it stands on the screen.
QImage GrabWithToolTip(GalleryPanel& panel)
{
    QImage image = Grab(panel);
    if (QWidget* toolTip = VisibleToolTip()) {
        const QImage tip = Grab(*toolTip);
        QPainter painter(&image);
        painter.drawImage(toolTip->pos() - panel.mapToGlobal(QPoint()), tip);
        delete toolTip;
    }
    return image;
}

Scene ToolTipScene()
{
    return {QStringLiteral("intensity-tooltip"), [](PaletteKind kind, Language language) {
                GalleryPanel panel(kind, language);
                Show(panel);
                // Leaves room on the screen for the tool tip below the slider.
                panel.move(0, -panel.Intensity().mapTo(&panel, QPoint()).y());
                PressAt(panel.Intensity(), HandleCentre(panel.Intensity()));
                panel.Intensity().setValue(62);
                return GrabWithToolTip(panel);
            }};
}

Scene AlertScene()
{
    return {QStringLiteral("alert"), [](PaletteKind, Language) {
                using Zorvik::Util::AlertBox;
                const QString text =
                    QCoreApplication::translate("NewPresetDialog",
                                                "Name \"%1\" already exists, choose another one.")
                        .arg(QStringLiteral("Soft Skin"));
                AlertBox alert(AlertBox::Level::Warning, QString(), text, QMessageBox::Ok, nullptr,
                               Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
                const LumetraHost::MessageBoxAlertBackend backend(
                    std::make_shared<LumetraHost::EditorStyle>());
                const auto messageBox = backend.MakeMessageBox(alert);
                Show(*messageBox);
                return Grab(*messageBox);
            }};
}

void AddToolBoxScenes(std::vector<Scene>& scenes)
{
    scenes.push_back(PanelScene("panel", [](GalleryPanel&) {}));
    scenes.push_back(PanelScene("toolbox-shut",
                                [](GalleryPanel& panel) { panel.ToolBox().setCurrentIndex(0); }));
    scenes.push_back(PanelScene("toolbox-several-open", [](GalleryPanel& panel) {
        panel.ToolBox().setCurrentIndex(1);
        panel.ToolBox().setCurrentIndex(3);
    }));
    scenes.push_back(
        PanelScene("toolbox-hover", [](GalleryPanel& panel) { Centre(panel.Header(1), HoverAt); }));
    scenes.push_back(PanelScene("toolbox-pressed",
                                [](GalleryPanel& panel) { Centre(panel.Header(1), PressAt); }));
    scenes.push_back(PanelScene("toolbox-disabled", [](GalleryPanel& panel) {
        panel.ToolBox().setItemEnabled(1, false);
        panel.ToolBox().setItemEnabled(3, false);
    }));
}

void AddIntensityScenes(std::vector<Scene>& scenes)
{
    scenes.push_back(PanelScene("intensity-hover", [](GalleryPanel& panel) {
        HoverAt(panel.Intensity(), HandleCentre(panel.Intensity()));
        HoverAt(panel.ExtraSlider(), HandleCentre(panel.ExtraSlider()));
    }));
    scenes.push_back(PanelScene("intensity-pressed", [](GalleryPanel& panel) {
        PressAt(panel.Intensity(), HandleCentre(panel.Intensity()));
        PressAt(panel.ExtraSlider(), HandleCentre(panel.ExtraSlider()));
    }));
    scenes.push_back(
        PanelScene("intensity-focus", [](GalleryPanel& panel) { panel.Intensity().setFocus(); }));
    scenes.push_back(
        PanelScene("intensity-disabled", [](GalleryPanel& panel) { panel.setEnabled(false); }));
    scenes.push_back(PanelScene("intensity-positive",
                                [](GalleryPanel& panel) { panel.ExtraSlider().setValue(75); }));
    scenes.push_back(PanelScene("intensity-zero", [](GalleryPanel& panel) {
        panel.ExtraSlider().setValue(0);
        panel.Intensity().setValue(1);
    }));
    scenes.push_back(ToolTipScene());
}

void AddDialogScenes(std::vector<Scene>& scenes)
{
    const auto typed = QStringLiteral("Ägäis – jeder Morgen");
    scenes.push_back(DialogScene("dialog-create", NewPresetDialog::Create,
                                 [](NewPresetDialog& dialog) { NameEdit(dialog).setFocus(); }));
    scenes.push_back(
        DialogScene("dialog-rename", NewPresetDialog::Rename, [typed](NewPresetDialog& dialog) {
            dialog.SetName(QStringLiteral("Soft Skin"));
            NameEdit(dialog).setText(typed);
        }));
    scenes.push_back(DialogScene("dialog-disabled", NewPresetDialog::Rename,
                                 [typed](NewPresetDialog& dialog) { dialog.SetName(typed); }));
    scenes.push_back(
        DialogScene("dialog-hover", NewPresetDialog::Create, [](NewPresetDialog& dialog) {
            Centre(DialogButton(dialog, "saveButton"), HoverAt);
            Centre(DialogButton(dialog, "cancelButton"), HoverAt);
        }));
    scenes.push_back(
        DialogScene("dialog-pressed", NewPresetDialog::Create, [](NewPresetDialog& dialog) {
            Centre(DialogButton(dialog, "saveButton"), PressAt);
            Centre(DialogButton(dialog, "cancelButton"), PressAt);
        }));
    scenes.push_back(
        DialogScene("dialog-focus-save", NewPresetDialog::Create, [](NewPresetDialog& dialog) {
            DialogButton(dialog, "saveButton").setFocus(Qt::TabFocusReason);
        }));
    scenes.push_back(
        DialogScene("dialog-focus-cancel", NewPresetDialog::Create, [](NewPresetDialog& dialog) {
            DialogButton(dialog, "cancelButton").setFocus(Qt::TabFocusReason);
        }));
}

} // namespace

std::vector<Scene> AllScenes()
{
    std::vector<Scene> scenes;
    AddToolBoxScenes(scenes);
    AddIntensityScenes(scenes);
    AddDialogScenes(scenes);
    scenes.push_back(AlertScene());
    return scenes;
}

} // namespace LumetraGallery
