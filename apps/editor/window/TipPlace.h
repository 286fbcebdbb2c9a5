// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>

#include <vector>

class QWidget;

namespace LumetraEditor {

/// Moves the tool tips of crowded areas beside these, where they cover neither what they explain
/// nor its neighbours: those of sliders and of pictures in rows. Tips of other widgets stay where
/// they are.
class TipPlace : public QObject
{
    Q_OBJECT

public:
    explicit TipPlace(QObject* parent);

    /// Tips of `area` and of what is in it stand at that edge of it, outside. The area outlives
    /// this.
    void Keep(QWidget& area, Qt::Edge edge);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Area
    {
        QWidget* widget;
        Qt::Edge edge;
    };

    const Area* FindArea(const QWidget& tip) const;
    void Move(QWidget& tip) const;

    std::vector<Area> m_areas;
    QPointer<QWidget> m_asked; ///< the widget under the pointer that a tip has been asked for
};

} // namespace LumetraEditor
