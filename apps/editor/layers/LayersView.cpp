// SPDX-License-Identifier: GPL-2.0-or-later
#include "layers/LayersView.h"

#include "layers/LayersModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace LumetraEditor {

enum class LayersView::Command
{
    None,
    Open,
    Remove,
    Raise,
    Lower,
    Other ///< a key of the base class that the window must not take
};

LayersView::LayersView(QWidget* parent) : QTreeView(parent)
{
    setObjectName(QStringLiteral("layersList"));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setDragDropOverwriteMode(false);
    setFrameShape(NoFrame);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerPixel);
}

void LayersView::FollowRows()
{
    const int rows = model() ? std::min(model()->rowCount(), MostRows) : 0;
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(LayersModel::NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(LayersModel::IntensityColumn, QHeaderView::ResizeToContents);
    header()->setMinimumSectionSize(0);
    const int height = rows > 0 ? rowHeight(model()->index(0, 0)) : 0;
    setFixedHeight(rows * height + 2 * frameWidth());
}

void LayersView::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        if (model() && model()->columnCount() > 1)
            FollowRows();
}

LayersView::Command LayersView::FindCommand(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const int key = event.key();
    if (modifiers == Qt::AltModifier && key == Qt::Key_Up)
        return Command::Raise;
    if (modifiers == Qt::AltModifier && key == Qt::Key_Down)
        return Command::Lower;
    if (modifiers != Qt::NoModifier)
        return Command::None;
    if (key == Qt::Key_Delete)
        return Command::Remove;
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return Command::Open;
    return key == Qt::Key_Space ? Command::Other : Command::None;
}

bool LayersView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        FindCommand(*static_cast<QKeyEvent*>(event)) != Command::None) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

bool LayersView::IsOnTick(const QPoint& place) const
{
    const QModelIndex index = indexAt(place);
    QStyleOptionViewItem option = viewOptions();
    option.rect = visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    return index.column() == LayersModel::NameColumn &&
           style()
               ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this)
               .contains(place);
}

/// Two quick clicks on the tick are two clicks.
void LayersView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (indexAt(event->pos()).isValid() && event->button() == Qt::LeftButton &&
        !IsOnTick(event->pos()))
        emit openRequested();
}

void LayersView::keyPressEvent(QKeyEvent* event)
{
    switch (FindCommand(*event)) {
    case Command::Open:
        return emit openRequested();
    case Command::Remove:
        return emit removeRequested();
    case Command::Raise:
        return emit stepRequested(-1);
    case Command::Lower:
        return emit stepRequested(1);
    case Command::Other:
    case Command::None:
        QTreeView::keyPressEvent(event);
    }
}

} // namespace LumetraEditor
