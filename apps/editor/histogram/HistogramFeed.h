// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/view/LiveView.h"

#include <QObject>

namespace LumetraEditor {

class Editor;
class HistogramWidget;

/// Keeps a histogram of the whole photo as it is edited, whatever part of it the canvas shows: the
/// photo is rendered at a reduced size on a thread of its own, the newest state first. A look that
/// is shown under the pointer counts. Nothing is rendered while the histogram is out of sight.
class HistogramFeed : public QObject
{
    Q_OBJECT

public:
    /// Both are kept by reference; the widget outlives the feed.
    HistogramFeed(Editor& editor, HistogramWidget& histogram);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow();
    void Show(const LumetraHost::ViewFrame& frame);

    Editor& m_editor;
    HistogramWidget& m_histogram;
    LumetraHost::LiveView m_view;
};

} // namespace LumetraEditor
