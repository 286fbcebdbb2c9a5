// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/controls/EffectControls.h"
#include "adjust/curve/CurvePoints.h"
#include "adjust/edit/AdjustCommands.h"

#include <array>

class QButtonGroup;
class QDoubleSpinBox;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace LumetraAdjust {

class CurveEditor;

/// The tone curve of all channels together, or of one of them, with the selected point in numbers.
class CurveControls : public EffectControls
{
    Q_OBJECT

public:
    /// `commands` are kept by reference.
    explicit CurveControls(AdjustCommands& commands, QWidget* parent = nullptr);

    void ShowValues() override;
    void ShowTexts() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeChannels(QVBoxLayout& column);
    void MakeNumbers(QVBoxLayout& column);
    QDoubleSpinBox* MakeNumber(const char* name);
    QString GetTitle() const;
    void ShowCurve();
    void ShowNumbers();
    void SetChannel(int channel);
    void TakeNumbers();
    void ResetCurve();

    AdjustCommands& m_commands;
    CurveEditor* m_editor;
    QButtonGroup* m_channels;
    std::array<QToolButton*, CurvePoints::Channels> m_buttons{};
    QLabel* m_inName = nullptr;
    QLabel* m_outName = nullptr;
    QDoubleSpinBox* m_in = nullptr;
    QDoubleSpinBox* m_out = nullptr;
    QToolButton* m_remove = nullptr;
    QToolButton* m_reset = nullptr;
    int m_channel = 0;
};

} // namespace LumetraAdjust
