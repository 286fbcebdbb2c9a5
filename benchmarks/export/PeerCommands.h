// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace LumetraBench {

/// Another program that can do a similar job.
struct Peer
{
    std::string name;
    std::string program;
    std::vector<std::string> words; ///< the whole command line
    std::string remark;             ///< how its chain differs from ours
    std::optional<double> atLeast;  ///< how many times our time we want it to take
    bool isQuick = false;           ///< quick enough to be measured on many photos
};

/// The commands that put the five colour effects of our case on a photo, as far as each program has
/// them. `folder` takes the files that they need.
std::vector<Peer> MakePeers(const QString& source, const QString& folder);
/// The file that the peer's command writes.
QString GetPeerOutput(const Peer& peer, const QString& folder);

} // namespace LumetraBench
