// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/JobShard.h"
#include "exporting/batch/PhotoJob.h"

#include <QCommandLineParser>

#include <optional>
#include <vector>

namespace LumetraCli {

class OptionTable;

/// The option --shard, with which several machines share the jobs of one list.
class ShardOptions
{
public:
    static void Add(OptionTable& options);

    /// `isPiped`: the only photo comes from a pipe, or its output goes there, which leaves nothing
    /// to share. UsageError for a shard then, and for any other text than "2/4".
    ShardOptions(const QCommandLineParser& parser, bool isPiped);

    /// "2/4"; empty without --shard.
    QString GetName() const;
    /// Keeps the jobs of the shard; all without --shard. Looks at the sizes of the photos.
    void Choose(std::vector<LumetraHost::PhotoJob>& jobs) const;

private:
    std::optional<LumetraHost::JobShard> m_shard;
};

} // namespace LumetraCli
