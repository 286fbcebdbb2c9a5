// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"
#include "Zorvik/Lumetra/ClickSlider.h"

#include <QPersistentModelIndex>

namespace Zorvik::Lumetra::LumetraPresets {

/// The slider for one preset's intensity is bound to the preset's row in an EffectPresetModel.
/// Every move is written into the row, which draws it live; the end of a drag, or of wheel or key
/// steps, ends the change. A tool tip shows "Intensity: N" meanwhile.
///
/// Nothing is thrown out of it: a write that the row refuses with an exception of any type (see
/// EffectPresetModel::PresetRole) is caught, the first one in the process is warned about in Qt's
/// log, and range and value are read from the row again.
///
/// It does not follow the model: the host binds it again when the row or its values change. The
/// tool tip's distance in pixels below the widget's top is the dynamic property "tipYOffest".
class LUMETRAPRESETSUTIL_EXPORT IntensityWidget : public ClickSlider
{
    Q_OBJECT

public:
    /// Makes a slider that is bound to no row; `parent` owns it.
    explicit IntensityWidget(QWidget* parent = nullptr);
    ~IntensityWidget() override;

    /// Binds the slider to a preset's row and takes over its range and value, without writing
    /// anything or showing the tool tip. With an invalid index all of them are 0, and moves are
    /// written nowhere. A change of the earlier row that is still open stays open.
    void SetPersistentIndex(QPersistentModelIndex row);

protected:
    /// Reads the row again and translates the tool tip when the language changes. The handlers of
    /// the classes between this one and QWidget are left out.
    void changeEvent(QEvent* event) override;

private:
    void OnIntensityChanged(int intensity);
    void OnIntensityStop();
    void UpdateInfo();
    void UpdateIntensityInfo();
    void ShowIntensityToolTip() const;
    void Write(const QVariant& written, int role);

    QPersistentModelIndex index;
};

} // namespace Zorvik::Lumetra::LumetraPresets
