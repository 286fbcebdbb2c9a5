// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <Qt>

class QImage;
class QWidget;

namespace LumetraScreenshots {

class EditorOnStage;

inline const QString Look = QStringLiteral("Candlelight");
inline const QString OtherLook = QStringLiteral("Fresh");
inline const QString Sample = QStringLiteral("lake.jpg");
inline const QString OwnLook = QStringLiteral("My Evening");

/// Sections of the Adjust panel.
constexpr int Light = 0, Curve = 2, Mixer = 3, Grading = 4, Effects = 6;

/// Presses a key so many times, and lets it go each time.
void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, int times);
/// Opens the sample photo and makes a warm evening of light, curve, wheels and vignette of it.
void Adjust(EditorOnStage& stage);

} // namespace LumetraScreenshots
