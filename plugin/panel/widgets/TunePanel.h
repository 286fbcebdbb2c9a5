// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

#include <vector>

class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace Zorvik::Lumetra::LumetraPresets {
class IntensityWidget;
}

namespace LumetraPlugin {

class AppliedEdit;
class PresetCommands;
class SliderRow;

/// The controls of the look that is on the photo: intensity, extra sliders and commands. Disabled
/// without a look.
class TunePanel : public QWidget
{
    Q_OBJECT

public:
    /// Both are kept by reference.
    TunePanel(PresetCommands& commands, const AppliedEdit& edit, QWidget* parent = nullptr);

    /// Binds all controls to the applied preset, or to none.
    void BindApplied();
    /// Reads the values again.
    void ReadValues();

protected:
    void changeEvent(QEvent* event) override;

private:
    void MakeHeader(QVBoxLayout& column);
    void MakeButtons(QVBoxLayout& column);
    void MakeSliders();
    SliderRow* MakeSlider(int position);
    void ShowNames();
    void ShowIcons();

    PresetCommands& m_commands;
    const AppliedEdit& m_edit;
    QPersistentModelIndex m_preset;
    QLabel* m_title = nullptr;
    QToolButton* m_favourite = nullptr;
    QToolButton* m_reset = nullptr;
    Zorvik::Lumetra::LumetraPresets::IntensityWidget* m_intensity;
    SliderRow* m_intensityRow;
    QVBoxLayout* m_sliderColumn;
    std::vector<SliderRow*> m_sliders;
    QPushButton* m_apply = nullptr;
    QPushButton* m_discard = nullptr;
    QPushButton* m_saveAs = nullptr;
};

} // namespace LumetraPlugin
