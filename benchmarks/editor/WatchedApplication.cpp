// SPDX-License-Identifier: GPL-2.0-or-later
#include "WatchedApplication.h"

#include <algorithm>

#include <time.h>

namespace LumetraBenchmark {
namespace {

double Now(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double Quantile(std::vector<double> values, double share)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

} // namespace

WatchedApplication::WatchedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

void WatchedApplication::Restart()
{
    m_work.clear();
    m_real.clear();
    m_watchedDepth = m_depth;
}

double WatchedApplication::GetWork(double share) const
{
    return Quantile(m_work, share);
}

double WatchedApplication::GetReal(double share) const
{
    return Quantile(m_real, share);
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event)
{
    const double work = Now(CLOCK_THREAD_CPUTIME_ID);
    const double real = Now(CLOCK_MONOTONIC);
    ++m_depth;
    const bool result = QApplication::notify(receiver, event);
    if (--m_depth == m_watchedDepth) {
        m_work.push_back(Now(CLOCK_THREAD_CPUTIME_ID) - work);
        m_real.push_back(Now(CLOCK_MONOTONIC) - real);
    }
    return result;
}

} // namespace LumetraBenchmark
