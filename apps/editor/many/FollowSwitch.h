// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCheckBox>

namespace LumetraEditor {

/// Tells above the panels that their changes go to several photos, and switches that off. Hidden
/// while a single photo is selected.
class FollowSwitch : public QCheckBox
{
    Q_OBJECT

public:
    explicit FollowSwitch(QWidget* parent = nullptr);

    /// Tells how many photos are selected.
    void SetCount(int count);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowText();

    int m_count = 0;
};

} // namespace LumetraEditor
