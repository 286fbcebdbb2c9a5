// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QSpinBox;

namespace Zorvik::Lumetra {
class ClickSlider;
}

namespace LumetraPlugin {

/// A name, a slider and the number that it stands at, which can be typed too. Double-clicking the
/// slider or the name asks for a reset. Wheel steps count only where the focus is, so that
/// scrolling the panel never changes the photo.
class SliderRow : public QWidget
{
    Q_OBJECT

public:
    /// Takes the slider as a child.
    SliderRow(Zorvik::Lumetra::ClickSlider* slider, QWidget* parent = nullptr);

    Zorvik::Lumetra::ClickSlider& GetSlider() { return *m_slider; }
    void SetName(const QString& name);
    /// Shows the slider's number without a signal.
    void FollowSlider();
    /// Paints the groove in the palette's colours; from the centre where the range has two signs.
    void UpdateGroove();

signals:
    /// The user has typed a number, or stepped to it.
    void typed(int value);
    /// The user has released the slider, or ended wheel or key steps.
    void finished();
    void resetRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void OnTyped();

    QLabel* m_name;
    Zorvik::Lumetra::ClickSlider* m_slider;
    QSpinBox* m_number;
};

} // namespace LumetraPlugin
