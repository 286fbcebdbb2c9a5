// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <vector>

namespace LumetraBenchmark {

/// Measures how long the GUI thread works between two waits of its event loop, which is how long a
/// user may wait for an answer. Real time: what other programs take counts too.
class LoopWatch : public QObject
{
    Q_OBJECT

public:
    LoopWatch();

    void Restart();
    int GetCount() const { return static_cast<int>(m_stretches.size()); }
    /// Milliseconds; `share` 1 is the longest stretch, 0.5 the median.
    double GetStretch(double share) const;

private:
    void Begin();
    void End();

    QElapsedTimer m_timer;
    bool m_isAwake = false;
    std::vector<double> m_stretches;
};

} // namespace LumetraBenchmark
