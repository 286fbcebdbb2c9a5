// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/NearestName.h"

#include <algorithm>
#include <numeric>

namespace LumetraHost {
namespace {

// Beyond this the comparison would cost more than its answer is worth.
constexpr std::size_t LongestName = 200;

char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Levenshtein's distance, one row of the table at a time.
std::size_t Distance(const std::string& first, const std::string& second)
{
    std::vector<std::size_t> row(second.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 1; i <= first.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= second.size(); ++j) {
            const bool isSame = Lower(first[i - 1]) == Lower(second[j - 1]);
            const std::size_t exchanged = diagonal + (isSame ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, exchanged});
        }
    }
    return row.back();
}

} // namespace

std::string NearestName(const std::string& text, const std::vector<std::string>& names)
{
    if (text.empty() || text.size() > LongestName)
        return {};
    std::size_t nearest = std::max<std::size_t>(1, text.size() / 3) + 1;
    std::string result;
    for (const std::string& name : names) {
        if (name.size() > LongestName)
            continue;
        const std::size_t distance = Distance(text, name);
        if (distance < nearest) {
            nearest = distance;
            result = name;
        }
    }
    return result;
}

std::string DidYouMean(const std::string& text, const std::vector<std::string>& names)
{
    const std::string name = NearestName(text, names);
    return name.empty() ? std::string() : ", did you mean \"" + name + "\"?";
}

} // namespace LumetraHost
