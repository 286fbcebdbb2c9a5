// SPDX-License-Identifier: GPL-2.0-or-later
#include "histogram/HistogramFeed.h"

#include "histogram/HistogramWidget.h"
#include "session/Editor.h"
#include "workspace/WorkspaceController.h"

#include <QEvent>

namespace LumetraEditor {
namespace {

constexpr int LongestSide = 384; // some 100,000 pixels tell the shares of 256 values

} // namespace

HistogramFeed::HistogramFeed(Editor& editor, HistogramWidget& histogram)
    : QObject(&histogram), m_editor(editor), m_histogram(histogram),
      m_view(editor.GetHost().GetDrawer(), this)
{
    connect(&editor, &Editor::photoChanged, this, &HistogramFeed::Follow);
    connect(&editor, &Editor::shownOnTopChanged, this,
            [this] { m_view.SetShownOnTop(m_editor.GetShownOnTop()); });
    connect(&m_view, &LumetraHost::LiveView::frameReady, this, &HistogramFeed::Show);
    histogram.installEventFilter(this);
    Follow();
}

void HistogramFeed::Follow()
{
    const auto& photo = m_editor.GetPhoto().image;
    const QSize whole(photo.GetWidth(), photo.GetHeight());
    if (!m_editor.HasPhoto())
        m_histogram.SetHistogram({});
    const bool isWanted = m_editor.HasPhoto() && m_histogram.isVisible();
    const QSize size = whole.width() > LongestSide || whole.height() > LongestSide
                           ? whole.scaled(LongestSide, LongestSide, Qt::KeepAspectRatio)
                           : whole;
    m_view.SetView({QRectF(QPointF(), whole), isWanted ? size.expandedTo({1, 1}) : QSize()});
}

/// Shows a frame, unless it is of a part that was asked for before the photo changed.
void HistogramFeed::Show(const LumetraHost::ViewFrame& frame)
{
    const auto& photo = m_editor.GetPhoto().image;
    if (m_editor.HasPhoto() && frame.part == QRect(0, 0, photo.GetWidth(), photo.GetHeight()))
        m_histogram.SetHistogram(Histogram::Of(frame.picture));
}

bool HistogramFeed::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        Follow();
    return QObject::eventFilter(watched, event);
}

} // namespace LumetraEditor
