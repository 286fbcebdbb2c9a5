// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

namespace LumetraEditor {

/// A label of one line of plain text that never asks for more room than there is: text that does
/// not fit ends in an ellipsis, and the tool tip has all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// The text as it is painted.
    QString GetElided() const;
};

} // namespace LumetraEditor
