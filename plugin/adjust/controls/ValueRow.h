// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"
#include "adjust/controls/ValueScale.h"

#include <QWidget>

class QDoubleSpinBox;
class QLabel;

namespace LumetraAdjust {

class NeutralSlider;

/// One parameter: its name, a slider and a number that can be typed. A double-click on the name or
/// on the slider asks for the default. Wheel steps count only where the focus is, so that scrolling
/// the panel never changes the photo.
class ValueRow : public QWidget
{
    Q_OBJECT

public:
    explicit ValueRow(const LumetraEditor::ParameterDescription& parameter,
                      QWidget* parent = nullptr);

    NeutralSlider& GetSlider() { return *m_slider; }
    /// `name` stands before the slider; `spokenName` says of which effect it is.
    void SetNames(const QString& name, const QString& spokenName);
    /// Shows the slider and the number alone, where a heading says what they are.
    void HideName();
    /// Describes the range, with the unit in the language of this moment.
    void SetRangeText(const LumetraEditor::ParameterDescription& parameter);
    /// Shows a value without a signal. It stays as it is until the user moves the slider, even
    /// where it lies between two positions.
    void Show(double value);

signals:
    /// The user moves the slider.
    void moved(double value);
    /// The user has released the slider, or ended wheel or key steps.
    void finished();
    /// The user has typed a number.
    void typed(double value);
    void resetRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FollowSlider(int position);
    void ElideName();

    ValueScale m_scale;
    QString m_text;
    QLabel* m_name;
    NeutralSlider* m_slider;
    QDoubleSpinBox* m_number;
};

} // namespace LumetraAdjust
