// SPDX-License-Identifier: MIT
#include "widgets/IntensityWidget.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Settings/TuneSettingType.h"

#include <QEvent>
#include <QToolTip>
#include <QtDebug>

#include <exception>
#include <utility>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

/// Warns once in a process, because every step of a drag would fail for the same reason.
void WarnOnce(const char* reason)
{
    static bool hasWarned = false;
    if (!std::exchange(hasWarned, true))
        qWarning("IntensityWidget: the preset did not take its intensity: %s", reason);
}

} // namespace

IntensityWidget::IntensityWidget(QWidget* parent) : ClickSlider(parent)
{
    connect(this, &QAbstractSlider::valueChanged, this, &IntensityWidget::OnIntensityChanged);
    connect(this, &QAbstractSlider::sliderReleased, this, &IntensityWidget::OnIntensityStop);
    connect(this, &ClickSlider::wheelFinished, this, &IntensityWidget::OnIntensityStop);
}

IntensityWidget::~IntensityWidget() = default;

void IntensityWidget::SetPersistentIndex(QPersistentModelIndex row)
{
    index = std::move(row);
    UpdateInfo();
}

void IntensityWidget::OnIntensityChanged(int intensity)
{
    Write(intensity, EffectPresetModel::IntensityRole);
    UpdateIntensityInfo();
    ShowIntensityToolTip();
}

void IntensityWidget::OnIntensityStop()
{
    Write(QVariant::fromValue(TuneSettingType::ChangeEnd), EffectPresetModel::TuneRole);
    ShowIntensityToolTip();
}

/// Does nothing if the row is gone. The result of setData() is always false and is not looked at.
/// Nothing may be thrown from here, because a Qt event is the caller; the row tells what it took.
void IntensityWidget::Write(const QVariant& written, int role)
{
    auto* model = const_cast<QAbstractItemModel*>(index.model());
    if (!model)
        return;
    try {
        model->setData(index, written, role);
        return;
    } catch (const std::exception& error) {
        WarnOnce(error.what());
    } catch (...) {
        WarnOnce("an exception that is no std::exception");
    }
    UpdateInfo();
}

/// The range comes before the value, which must not be clamped to the range of the row before.
void IntensityWidget::UpdateInfo()
{
    const bool wereBlocked = blockSignals(true);
    setMinimum(index.data(EffectPresetModel::IntensityMinRole).toInt());
    setMaximum(index.data(EffectPresetModel::IntensityMaxRole).toInt());
    setValue(index.data(EffectPresetModel::IntensityRole).toInt());
    UpdateIntensityInfo();
    blockSignals(wereBlocked);
}

void IntensityWidget::UpdateIntensityInfo()
{
    setToolTip(tr("Intensity: %1").arg(value(), 0, 10, QLatin1Char(' ')));
}

void IntensityWidget::ShowIntensityToolTip() const
{
    const int offset = property("tipYOffest").toInt();
    QToolTip::showText(mapToGlobal(QPoint(0, offset)), toolTip());
}

void IntensityWidget::changeEvent(QEvent* event)
{
    // QSlider's own handler would react to more than is wanted.
    QWidget::changeEvent(event); // NOLINT(bugprone-parent-virtual-call)
    if (event->type() == QEvent::LanguageChange) {
        UpdateInfo();
        UpdateIntensityInfo();
    }
}

} // namespace Zorvik::Lumetra::LumetraPresets
