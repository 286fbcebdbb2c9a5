// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>

#include <vector>

namespace LumetraBenchmark {

/// Measures how long the GUI thread works on one event, with all that happens inside it: no other
/// event is answered meanwhile. Event loops inside an event are measured by their own events.
class WatchedApplication : public QApplication
{
    Q_OBJECT

public:
    WatchedApplication(int& argc, char** argv);

    /// Forgets all measurements; measures from now on, down to this depth of loops.
    void Restart();
    /// Milliseconds of the thread's own processor time, which other programs do not disturb;
    /// `share` 1 is the longest event.
    double GetWork(double share) const;
    /// Milliseconds of real time; `share` as for GetWork().
    double GetReal(double share) const;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    int m_depth = 0;
    int m_watchedDepth = 0;
    std::vector<double> m_work;
    std::vector<double> m_real;
};

} // namespace LumetraBenchmark
