// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobShard.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <numeric>
#include <queue>
#include <tuple>
#include <utility>

namespace LumetraHost {
namespace {

/// The bytes that a part has so far, and its number: the least part comes first, among equal ones
/// that of the lowest number.
using Load = std::pair<std::uint64_t, int>;
using LeastFirst = std::priority_queue<Load, std::vector<Load>, std::greater<>>;

/// The positions of the items, the largest one first.
std::vector<std::size_t> SortByBytes(const std::vector<JobShard::Item>& items)
{
    std::vector<std::size_t> order(items.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&items](std::size_t first, std::size_t second) {
        return std::tie(items[second].bytes, items[first].name) <
               std::tie(items[first].bytes, items[second].name);
    });
    return order;
}

/// Empty and missing photos count a little, so that they do not all fall to one part.
std::uint64_t GetWeight(const JobShard::Item& item)
{
    return std::max<std::uint64_t>(1, item.bytes);
}

} // namespace

std::optional<JobShard> JobShard::Parse(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,6})/([0-9]{1,6})\\z"));
    const auto match = form.match(text);
    JobShard shard;
    shard.index = match.captured(1).toInt();
    shard.count = match.captured(2).toInt();
    if (!match.hasMatch() || shard.index < 1 || shard.index > shard.count ||
        shard.count > MostShards)
        return std::nullopt;
    return shard;
}

QString JobShard::GetName() const
{
    return QStringLiteral("%1/%2").arg(QString::number(index), QString::number(count));
}

std::vector<std::size_t> JobShard::Choose(const std::vector<Item>& items) const
{
    LeastFirst loads;
    for (int part = 1; part <= count; ++part)
        loads.emplace(0, part);
    std::vector<std::size_t> chosen;
    for (const std::size_t position : SortByBytes(items)) {
        const auto [bytes, part] = loads.top();
        loads.pop();
        loads.emplace(bytes + GetWeight(items[position]), part);
        if (part == index)
            chosen.push_back(position);
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

} // namespace LumetraHost
