// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/ShardOptions.h"

#include "console/OptionTable.h"
#include "console/Text.h"
#include "console/UsageError.h"

#include <QFileInfo>

#include <utility>

namespace LumetraCli {
namespace {

using LumetraHost::JobShard;
using LumetraHost::PhotoJob;

const QString ShardOption = QStringLiteral("shard");

std::optional<JobShard> ReadShard(const QCommandLineParser& parser)
{
    if (!parser.isSet(ShardOption))
        return std::nullopt;
    const QString text = parser.value(ShardOption);
    const auto shard = JobShard::Parse(text);
    if (!shard)
        throw UsageError(Text::tr("--shard: expected i/n, such as 2/4, with i from 1 to n and n "
                                  "up to %1, found \"%2\"")
                             .arg(QString::number(JobShard::MostShards), text));
    return shard;
}

std::vector<JobShard::Item> MakeItems(const std::vector<PhotoJob>& jobs)
{
    std::vector<JobShard::Item> items;
    for (const PhotoJob& job : jobs) {
        const QString name = job.photo + QLatin1Char('\n') + job.output;
        items.push_back(
            {name.toStdString(), static_cast<std::uint64_t>(QFileInfo(job.photo).size())});
    }
    return items;
}

} // namespace

void ShardOptions::Add(OptionTable& options)
{
    options.AddOption(
        {ShardOption,
         Text::tr("Works on one of several parts of about as many bytes, such as 2/4, the second "
                  "of four. All parts together are the whole list, as long as every machine has "
                  "the same list and photos of the same sizes."),
         QStringLiteral("i/n")});
}

ShardOptions::ShardOptions(const QCommandLineParser& parser, bool isPiped)
    : m_shard(ReadShard(parser))
{
    if (m_shard && isPiped)
        throw UsageError(Text::tr("--shard: expected photos and outputs that are files, found a "
                                  "pipe"));
}

QString ShardOptions::GetName() const
{
    return m_shard ? m_shard->GetName() : QString();
}

void ShardOptions::Choose(std::vector<PhotoJob>& jobs) const
{
    if (!m_shard)
        return;
    std::vector<PhotoJob> chosen;
    for (const std::size_t position : m_shard->Choose(MakeItems(jobs)))
        chosen.push_back(std::move(jobs[position]));
    jobs = std::move(chosen);
}

} // namespace LumetraCli
