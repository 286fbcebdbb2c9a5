// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace Zorvik::Lumetra::LumetraPresets {
class IntensityWidget;
}

namespace LumetraPlugin {

class AppliedEdit;
class PresetCommands;
class SliderRow;

/// The controls of the look that is on the photo: intensity, extra sliders, which scroll where
/// there is no room for all, and commands. Disabled without a look. The sliders can be folded.
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

    void SetOpen(bool isOpen);
    bool IsOpen() const { return m_isOpen; }
    /// Takes at most that height, and at least what one slider needs.
    void SetRoom(int height);

signals:
    /// There is more or less to show than before: SetRoom() may be called again.
    void contentChanged();
    /// The user folds or unfolds the sliders.
    void foldRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void MakeHeader(QVBoxLayout& column);
    void MakeScroll(QVBoxLayout& column);
    void MakeButtons(QVBoxLayout& column);
    int GetSlidersHeight() const;
    void ShowFold();
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
    QToolButton* m_fold = nullptr;
    QScrollArea* m_scroll = nullptr;
    QVBoxLayout* m_sliderColumn;
    bool m_isOpen = true;
    int m_room = QWIDGETSIZE_MAX;
    std::vector<SliderRow*> m_sliders;
    QPushButton* m_apply = nullptr;
    QPushButton* m_discard = nullptr;
    QPushButton* m_saveAs = nullptr;
};

} // namespace LumetraPlugin
