// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetGrid.h"

#include "core/PresetModel.h"
#include "panel/grid/PresetDelegate.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>

namespace LumetraPlugin {
namespace {

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

bool IsForward(int key)
{
    return key == Qt::Key_Right || key == Qt::Key_Down;
}

bool IsChoice(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

PresetGrid::PresetGrid(std::unique_ptr<PresetPageModel> presets, QWidget* parent)
    : QListView(parent), m_presets(std::move(presets)), m_delegate(new PresetDelegate(this))
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Fixed);
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true);
    setItemDelegate(m_delegate);
    setModel(m_presets.get());
    connect(m_presets.get(), &PresetPageModel::refreshed, this, &PresetGrid::Arrange);
    connect(m_presets.get(), &PresetPageModel::modelReset, this, &PresetGrid::KeepCurrent);
    Arrange();
}

PresetGrid::~PresetGrid()
{
    setModel(nullptr); // the view would hear too late of the model's end
}

void PresetGrid::SetCurrentPreset(const QModelIndex& preset)
{
    m_current = preset;
    setCurrentIndex(m_presets->FromPreset(preset));
}

QModelIndex PresetGrid::GetCurrentPreset() const
{
    return m_presets->ToPreset(currentIndex());
}

void PresetGrid::KeepCurrent()
{
    setCurrentIndex(m_presets->FromPreset(m_current));
}

void PresetGrid::SetThumbnailSize(ThumbnailSize size)
{
    m_size = size;
    m_delegate->SetPictureSize(ThumbnailShape::Of(size).picture);
    Arrange();
    scheduleDelayedItemsLayout();
}

int PresetGrid::CountColumns(int width, ThumbnailSize size)
{
    const ThumbnailShape shape = ThumbnailShape::Of(size);
    return std::max(shape.fewestColumns, width / shape.smallestCell);
}

QSize PresetGrid::MakeCell(int width, ThumbnailSize size, const QFontMetrics& metrics)
{
    // One pixel less, or the last cell wraps.
    const int cellWidth = std::max(1, (width - 1) / CountColumns(width, size));
    return {cellWidth, PresetDelegate::GetCellHeight(cellWidth, metrics)};
}

/// Divides the width among the cells; the height is that of their rows.
void PresetGrid::Arrange()
{
    const int columns = CountColumns(width(), m_size);
    const QSize cell = MakeCell(width(), m_size, fontMetrics());
    if (cell != gridSize())
        setGridSize(cell);
    const int rows = (m_presets->rowCount() + columns - 1) / columns;
    if (const int needed = rows * cell.height(); needed != height() || needed != minimumHeight())
        setFixedHeight(needed);
}

void PresetGrid::resizeEvent(QResizeEvent* event)
{
    Arrange();
    QListView::resizeEvent(event);
    scheduleDelayedItemsLayout();
}

void PresetGrid::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Arrange();
}

void PresetGrid::Step(QKeyEvent* event)
{
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    const QModelIndex after = currentIndex();
    if (after == before) {
        emit steppedOut(IsForward(event->key()));
        return;
    }
    m_current = m_presets->ToPreset(after);
    emit stepped(m_current);
}

void PresetGrid::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain =
        event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if (isPlain && IsArrow(event->key())) {
        Step(event);
    } else if (isPlain && IsChoice(event->key())) {
        if (currentIndex().isValid())
            emit chosen(GetCurrentPreset());
    } else {
        QListView::keyPressEvent(event);
    }
}

void PresetGrid::keyReleaseEvent(QKeyEvent* event)
{
    QListView::keyReleaseEvent(event);
    if (IsArrow(event->key()) && !event->isAutoRepeat())
        emit stepsEnded();
}

bool PresetGrid::IsOnStar(const QModelIndex& row, const QPoint& position) const
{
    return row.isValid() && PresetDelegate::GetStarRect(visualRect(row)).contains(position);
}

void PresetGrid::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex row = indexAt(event->pos());
    m_pressed = event->button() == Qt::LeftButton ? row : QModelIndex();
    m_pressedAt = event->pos();
    if (row.isValid())
        SetCurrentPreset(m_presets->ToPreset(row));
    event->accept();
}

/// Chooses a preset only when the mouse was pressed on it too, as for any button.
void PresetGrid::mouseReleaseEvent(QMouseEvent* event)
{
    const QModelIndex row = indexAt(event->pos());
    const bool isClick = event->button() == Qt::LeftButton && row.isValid() && row == m_pressed;
    m_pressed = QModelIndex();
    event->accept();
    if (!isClick)
        return;
    if (IsOnStar(row, event->pos()))
        emit starClicked(m_presets->ToPreset(row));
    else
        emit chosen(m_presets->ToPreset(row));
}

void PresetGrid::Point(const QModelIndex& row)
{
    const QPersistentModelIndex preset = m_presets->ToPreset(row);
    if (preset == m_pointed)
        return;
    m_pointed = preset;
    emit pointed(preset);
}

void PresetGrid::mouseMoveEvent(QMouseEvent* event)
{
    QListView::mouseMoveEvent(event);
    if (event->buttons() == Qt::NoButton)
        Point(indexAt(event->pos()));
    const int way = (event->pos() - m_pressedAt).manhattanLength();
    if (!(event->buttons() & Qt::LeftButton) || !m_pressed.isValid() ||
        way < QApplication::startDragDistance())
        return;
    const QModelIndex preset = m_presets->ToPreset(m_pressed);
    m_pressed = QModelIndex(); // its end is no click
    emit dragged(preset);
}

void PresetGrid::leaveEvent(QEvent* event)
{
    QListView::leaveEvent(event);
    Point(QModelIndex());
}

/// Leaves scrolling to the panel.
void PresetGrid::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void PresetGrid::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex row = isByKey ? currentIndex() : indexAt(event->pos());
    if (!row.isValid())
        return;
    const QPoint position =
        isByKey ? viewport()->mapToGlobal(visualRect(row).center()) : event->globalPos();
    emit menuRequested(m_presets->ToPreset(row), position);
}

} // namespace LumetraPlugin
