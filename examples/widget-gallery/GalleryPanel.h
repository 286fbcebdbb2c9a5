// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "GalleryPresets.h"
#include "style/StyleColours.h"

#include <QWidget>

class QPushButton;
class QSlider;
class QToolButton;
class QVBoxLayout;

namespace Zorvik::Lumetra::LumetraPresets {
class CustomToolBox;
class IntensityWidget;
} // namespace Zorvik::Lumetra::LumetraPresets

namespace LumetraGallery {

/// A presets panel: the tool box with a page for each group, the intensity slider of one preset
/// and an extra slider with the bipolar groove.
class GalleryPanel : public QWidget
{
public:
    GalleryPanel(LumetraHost::PaletteKind kind, Language language);
    ~GalleryPanel() override;

    Zorvik::Lumetra::LumetraPresets::CustomToolBox& ToolBox() const { return *m_toolBox; }
    Zorvik::Lumetra::LumetraPresets::IntensityWidget& Intensity() const { return *m_intensity; }
    QSlider& ExtraSlider() const { return *m_extra; }
    QToolButton& AddButton() const { return *m_add; }
    QPushButton& Header(int page) const;

private:
    void AddPages();
    void AddSlider(QVBoxLayout* column, const QString& name, QSlider* slider);

    Language m_language;
    GalleryPresets m_presets;
    Zorvik::Lumetra::LumetraPresets::CustomToolBox* m_toolBox;
    Zorvik::Lumetra::LumetraPresets::IntensityWidget* m_intensity;
    QSlider* m_extra;
    QToolButton* m_add;
};

} // namespace LumetraGallery
