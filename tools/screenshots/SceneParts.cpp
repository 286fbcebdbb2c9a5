// SPDX-License-Identifier: GPL-2.0-or-later
#include "SceneParts.h"

#include "EditorOnStage.h"

#include <QApplication>
#include <QKeyEvent>

namespace LumetraScreenshots {

void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, int times)
{
    for (int i = 0; i < times; ++i)
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QApplication::sendEvent(&widget, &event);
        }
}

void Adjust(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ShowAdjust(Light);
    stage.SetAdjustment("exposure.stops", 35);
    stage.SetAdjustment("contrast.amount", 18);
    stage.SetAdjustment("toneRegions.highlights", -40);
    stage.ShowAdjust(Effects);
    stage.SetAdjustment("vignette.amount", -120);
}

} // namespace LumetraScreenshots
