// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IStatisticsEventHandler.h"

#include <QString>

namespace LumetraHost {

/// Usage events as lines of JSON in a local file; nothing ever leaves the machine. Off until it is
/// given a path. A line: {"time":"2024-05-01T12:00:00.000Z","event":"…","parameters":{"…":"…"}}.
/// A file that cannot be written is reported by one warning and never thrown at the sender.
class StatisticsLog : public Zorvik::Quindle::IStatisticsEventHandler
{
public:
    /// Appends to `path` from now on; empty: off.
    void SetPath(const QString& path);

    void SendEvent(const std::string& eventName,
                   const std::map<std::string, std::string>& parameters) override;

private:
    void Append(const QByteArray& line);
    void ReportOnce(const QString& reason);

    QString m_path;
    bool m_isReported = false;
};

} // namespace LumetraHost
