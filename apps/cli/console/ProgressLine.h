// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace LumetraCli {

/// How far a batch is, in one line: "[=====>    ] 37/500, 2 failed, about 3 min". Its time begins
/// when it is made.
class ProgressLine
{
public:
    explicit ProgressLine(int total);

    /// One more has ended.
    void Step(bool isFailed);
    /// The line for a terminal of that many columns: with a bar where there is room for one, cut
    /// off where there is none for the text.
    QString ToText(int columns) const;

private:
    QString GetEstimate() const;
    QString MakeBar(int columns) const;

    int m_total;
    int m_done = 0;
    int m_failed = 0;
    QElapsedTimer m_time;
};

} // namespace LumetraCli
