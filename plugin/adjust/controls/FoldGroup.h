// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QToolButton;
class QVBoxLayout;

namespace LumetraAdjust {

class EffectControls;

/// Controls below a heading that shows and hides them. They are made when they are first shown.
class FoldGroup : public QWidget
{
    Q_OBJECT

public:
    using Maker = std::function<EffectControls*()>;

    /// `make` makes the controls, which this group owns.
    FoldGroup(Maker make, bool isOpen, QWidget* parent = nullptr);

    void SetTitle(const QString& title);
    QToolButton& GetHeading() { return *m_heading; }
    /// Null until the group has been open.
    EffectControls* GetControls() const { return m_controls; }

private:
    void SetOpen(bool isOpen);

    Maker m_make;
    QToolButton* m_heading;
    QVBoxLayout* m_column;
    EffectControls* m_controls = nullptr;
};

} // namespace LumetraAdjust
