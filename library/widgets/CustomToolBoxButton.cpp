// SPDX-License-Identifier: MIT
#include "widgets/CustomToolBoxButton.h"

#include "widgets/CustomToolBox.h"

#include <QStyleOptionToolBox>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

using TabPosition = QStyleOptionToolBox::TabPosition;
using SelectedPosition = QStyleOptionToolBox::SelectedPosition;

TabPosition PositionAmong(int count, int index)
{
    if (count == 1)
        return QStyleOptionToolBox::OnlyOneTab;
    if (index == 0)
        return QStyleOptionToolBox::Beginning;
    return index == count - 1 ? QStyleOptionToolBox::End : QStyleOptionToolBox::Middle;
}

SelectedPosition PositionBeside(int current, int index)
{
    if (current == index - 1)
        return QStyleOptionToolBox::PreviousIsSelected;
    return current == index + 1 ? QStyleOptionToolBox::NextIsSelected
                                : QStyleOptionToolBox::NotAdjacent;
}

} // namespace

CustomToolBoxButton::CustomToolBoxButton(QWidget* parent) : QPushButton(parent)
{
    setBackgroundRole(QPalette::Window);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    setFocusPolicy(Qt::NoFocus);
    setCheckable(true);
}

void CustomToolBoxButton::setCollapsable(bool isCollapsable)
{
    collapsable = isCollapsable;
}

void CustomToolBoxButton::setSelected(bool isSelectedNow)
{
    selected = isSelectedNow;
}

bool CustomToolBoxButton::isSelected() const
{
    return selected;
}

void CustomToolBoxButton::setIndex(int pageIndex)
{
    index = pageIndex;
}

void CustomToolBoxButton::initStyleOption(QStyleOptionToolBox* option) const
{
    option->initFrom(this);
    if (selected)
        option->state |= QStyle::State_Selected;
    if (isDown())
        option->state |= QStyle::State_Sunken;
    option->text = text();
    option->icon = icon();

    const auto* toolBox = qobject_cast<const CustomToolBox*>(parentWidget());
    if (option->version < 2 || !toolBox)
        return;
    option->position = PositionAmong(toolBox->count(), index);
    option->selectedPosition = PositionBeside(toolBox->currentIndex(), index);
}

// Either call may end with this button deleted, because a receiver of the tool box's signals may
// remove the page. Nothing may follow them.
void CustomToolBoxButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (collapsable || !isChecked())
        QPushButton::mouseReleaseEvent(event);
    else
        click();
}

} // namespace Zorvik::Lumetra::LumetraPresets
