// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ZipEntry.h"

#include <QStringList>

#include <algorithm>

namespace LumetraHost {
namespace {

constexpr int LongestName = 1000; // characters

bool IsAbsolute(const QString& name)
{
    return name.startsWith(QLatin1Char('/')) || (name.size() > 1 && name.at(1) == QLatin1Char(':'));
}

} // namespace

QString ZipEntry::GetFileName() const
{
    return name.section(QLatin1Char('/'), -1);
}

bool ZipEntry::IsFinderNote() const
{
    return name.startsWith(QLatin1String("__MACOSX/")) ||
           GetFileName().startsWith(QLatin1String("._"));
}

std::string ZipEntry::FindNameFault(const QString& name)
{
    if (name.isEmpty() || name.size() > LongestName)
        return "expected a name of 1 to " + std::to_string(LongestName) + " characters, found " +
               std::to_string(name.size());
    if (std::any_of(name.begin(), name.end(),
                    [](QChar letter) { return letter < QLatin1Char(' '); }))
        return "expected a name without control characters";
    if (IsAbsolute(name) || name.split(QLatin1Char('/')).contains(QStringLiteral("..")))
        return "expected a name inside the archive, found one that leads out of it";
    return {};
}

} // namespace LumetraHost
