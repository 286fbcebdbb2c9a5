// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/ProgressLine.h"

#include "console/Text.h"

#include <algorithm>

namespace LumetraCli {
namespace {

constexpr int NarrowestBar = 10; ///< columns without the brackets
constexpr int WidestBar = 30;

constexpr qint64 Second = 1000; ///< milliseconds
constexpr qint64 Minute = 60 * Second;
constexpr qint64 Hour = 60 * Minute;
/// From so much on the larger unit is precise enough.
constexpr double Enough = 1.5;

QString Describe(qint64 milliseconds)
{
    const auto time = static_cast<double>(milliseconds);
    const auto count = [time](qint64 unit) { return qRound64(time / static_cast<double>(unit)); };
    if (time >= Enough * Hour)
        return Text::tr("about %1 h").arg(count(Hour));
    if (time >= Enough * Minute)
        return Text::tr("about %1 min").arg(count(Minute));
    return Text::tr("about %1 s").arg(count(Second));
}

} // namespace

ProgressLine::ProgressLine(int total) : m_total(total)
{
    m_time.start();
}

void ProgressLine::Step(bool isFailed)
{
    ++m_done;
    m_failed += isFailed ? 1 : 0;
}

QString ProgressLine::GetEstimate() const
{
    if (m_done == 0 || m_done >= m_total)
        return {};
    return Describe(m_time.elapsed() * (m_total - m_done) / m_done);
}

QString ProgressLine::MakeBar(int columns) const
{
    const int width = std::min(columns, WidestBar);
    if (width < NarrowestBar || m_total < 1)
        return {};
    const int filled = static_cast<int>(static_cast<qint64>(width) * m_done / m_total);
    const QString done = QString(filled, QLatin1Char('='));
    return QStringLiteral("[%1] ").arg(
        (filled < width ? done + QLatin1Char('>') : done).leftJustified(width, QLatin1Char(' ')));
}

QString ProgressLine::ToText(int columns) const
{
    QStringList parts{QStringLiteral("%1/%2").arg(m_done).arg(m_total)};
    if (m_failed > 0)
        parts.append(Text::tr("%1 failed").arg(m_failed));
    if (const QString estimate = GetEstimate(); !estimate.isEmpty())
        parts.append(estimate);
    const QString text = parts.join(QStringLiteral(", "));
    constexpr int brackets = 3; // with the space behind them
    return (MakeBar(columns - text.size() - brackets) + text).left(columns);
}

} // namespace LumetraCli
