// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/PhotoStrip.h"

#include "strip/PhotoStripDelegate.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr int UsualHeight = 96;
constexpr int LeastHeight = 64;
constexpr int MostHeight = 240;

} // namespace

PhotoStrip::PhotoStrip(PhotoStripModel& photos, QWidget* parent)
    : QListView(parent), m_photos(photos)
{
    setObjectName(QStringLiteral("photoStrip"));
    setAccessibleName(tr("Photos"));
    setFlow(LeftToRight);
    setWrapping(false);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    setMaximumHeight(MostHeight);
    setMouseTracking(true);
    setItemDelegate(new PhotoStripDelegate(this));
    setModel(&m_photos);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &PhotoStrip::FollowVisibleRows);
}

QSize PhotoStrip::sizeHint() const
{
    return {QListView::sizeHint().width(), UsualHeight};
}

QSize PhotoStrip::minimumSizeHint() const
{
    return {QListView::minimumSizeHint().width(), LeastHeight};
}

// Cells

/// The scroll bar's room is kept free, so that cells keep their size when it comes and goes.
void PhotoStrip::ArrangeCells()
{
    const int height = contentsRect().height() - horizontalScrollBar()->sizeHint().height();
    const QSize cell = PhotoStripDelegate::GetCellSize(height, fontMetrics());
    if (cell != gridSize())
        setGridSize(cell);
    const QSize picture =
        PhotoStripDelegate::GetPictureRect(QRect(QPoint(), cell), fontMetrics()).size();
    m_photos.SetThumbnailSize(picture * devicePixelRatioF());
    FollowVisibleRows();
}

void PhotoStrip::FollowVisibleRows()
{
    const int width = gridSize().width();
    if (!isVisible() || width < 1)
        return m_photos.SetVisibleRows(0, -1);
    const int left = horizontalOffset();
    m_photos.SetVisibleRows(left / width, (left + viewport()->width() - 1) / width);
}

void PhotoStrip::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    ArrangeCells();
}

/// Follows every layout of the rows.
void PhotoStrip::updateGeometries()
{
    QListView::updateGeometries();
    horizontalScrollBar()->setSingleStep(gridSize().width());
    FollowVisibleRows();
}

void PhotoStrip::showEvent(QShowEvent* event)
{
    QListView::showEvent(event);
    ArrangeCells();
    ShowCurrent();
}

void PhotoStrip::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    m_photos.SetVisibleRows(0, -1);
}

void PhotoStrip::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Photos"));
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        ArrangeCells();
}

// The current photo and the selection

QModelIndex PhotoStrip::FindCurrent() const
{
    return m_photos.index(m_photos.FindRow(m_photos.GetCurrent()));
}

void PhotoStrip::ShowCurrent()
{
    const QModelIndex current = FindCurrent();
    if (!current.isValid())
        return;
    if (!selectionModel()->isSelected(current))
        selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    scrollTo(current);
}

void PhotoStrip::SelectOnlyCurrent()
{
    selectionModel()->setCurrentIndex(FindCurrent(), QItemSelectionModel::ClearAndSelect);
}

int PhotoStrip::CountSelected() const
{
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        count += range.height();
    return count;
}

QStringList PhotoStrip::GetSelectedPhotos() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const int row : rows)
        paths.append(m_photos.GetPath(row));
    if (const int current = paths.indexOf(m_photos.GetCurrent()); current > 0)
        paths.move(current, 0);
    return paths;
}

void PhotoStrip::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (m_isChoosing)
        return;
    KeepCurrentSelected();
    emit selectionMoved();
}

void PhotoStrip::KeepCurrentSelected()
{
    const QModelIndex current = FindCurrent();
    if (current.isValid() && !selectionModel()->isSelected(current))
        selectionModel()->select(current, QItemSelectionModel::Select);
}

/// Selects all from the current photo to that row.
void PhotoStrip::SelectTo(int row)
{
    const QModelIndex end = m_photos.index(row);
    const QModelIndex begin = FindCurrent();
    const QItemSelection range =
        begin.row() < row ? QItemSelection(begin, end) : QItemSelection(end, begin);
    selectionModel()->select(begin.isValid() ? range : QItemSelection(end, end),
                             QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(end, QItemSelectionModel::NoUpdate);
    scrollTo(end);
}

void PhotoStrip::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex pressed = indexAt(event->pos());
    const bool isRange = event->modifiers() == Qt::ShiftModifier;
    if (pressed.isValid() && isRange && event->button() == Qt::LeftButton)
        return SelectTo(pressed.row());
    const bool isPlain = event->modifiers() == Qt::NoModifier && pressed.isValid();
    const bool isNew = !selectionModel()->isSelected(pressed);
    const bool isChosen = isPlain && (event->button() == Qt::LeftButton ||
                                      (event->button() == Qt::RightButton && isNew));
    {
        const QScopedValueRollback<bool> choosing(m_isChoosing, true);
        QListView::mousePressEvent(event);
    }
    if (isChosen)
        emit chosen(m_photos.GetPath(pressed.row()));
    KeepCurrentSelected();
    emit selectionMoved();
}

/// The row to which a key leads that moves without selecting; -1 for any other key.
int PhotoStrip::FindRowOfKey(int key) const
{
    const int last = m_photos.rowCount() - 1;
    const int page = std::max(1, viewport()->width() / std::max(1, gridSize().width()) - 1);
    const int here = currentIndex().row();
    switch (key) {
    case Qt::Key_Left:
        return std::max(here - 1, 0);
    case Qt::Key_Right:
        return std::min(here + 1, last);
    case Qt::Key_PageUp:
        return std::max(here - page, 0);
    case Qt::Key_PageDown:
        return std::min(here + page, last);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

void PhotoStrip::keyPressEvent(QKeyEvent* event)
{
    const int row = FindRowOfKey(event->key());
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (row >= 0 && modifiers == Qt::NoModifier)
        emit chosen(m_photos.GetPath(row));
    else if (row >= 0 && modifiers == Qt::ShiftModifier)
        SelectTo(row);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit chosen(m_photos.GetPath(currentIndex().row()));
    else if (event->key() == Qt::Key_Escape && CountSelected() > 1)
        SelectOnlyCurrent();
    else
        QListView::keyPressEvent(event);
}

void PhotoStrip::contextMenuEvent(QContextMenuEvent* event)
{
    const QPoint place = event->reason() == QContextMenuEvent::Keyboard
                             ? viewport()->mapToGlobal(visualRect(currentIndex()).center())
                             : event->globalPos();
    emit menuRequested(place);
}

} // namespace LumetraEditor
