// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

namespace LumetraAdjust {

/// The controls of one effect. Whoever owns them says when values or texts are to be read anew.
class EffectControls : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows the values as they are, without a signal.
    virtual void ShowValues() = 0;
    /// Shows all texts in the language of this moment.
    virtual void ShowTexts() = 0;
};

} // namespace LumetraAdjust
