// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/OptionTable.h"

#include <QCommandLineParser>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace LumetraCli {
namespace {

using ValueKind = OptionTable::ValueKind;

struct NamedKind
{
    const char* name;
    ValueKind kind;
};

/// Names of values that can be completed by their kind.
constexpr NamedKind NamedKinds[] = {
    {"file", ValueKind::File},       {"photo", ValueKind::File},    {"template", ValueKind::File},
    {"folder", ValueKind::Folder},   {"preset", ValueKind::Preset}, {"id", ValueKind::Preset},
    {"command", ValueKind::Command},
};

/// Names that stand for values which nobody can list.
constexpr const char* Placeholders[] = {"name", "number", "text"};

ValueKind FindKind(const QString& name)
{
    const auto* const found =
        std::find_if(std::begin(NamedKinds), std::end(NamedKinds), [&name](const NamedKind& one) {
            return name.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0;
        });
    return found == std::end(NamedKinds) ? ValueKind::Text : found->kind;
}

bool IsPlaceholder(const QString& name)
{
    return std::any_of(std::begin(Placeholders), std::end(Placeholders), [&name](const char* one) {
        return name.compare(QLatin1String(one), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

void OptionTable::AddArgument(const QString& name, const QString& help, const QString& syntax,
                              const QString& values)
{
    m_arguments.append(
        {name, help, syntax.isEmpty() ? name : syntax, values.isEmpty() ? name : values});
}

QString OptionTable::GetNote(const QCommandLineOption& option) const
{
    for (const QString& name : option.names())
        if (m_notes.contains(name))
            return m_notes.value(name);
    return {};
}

void OptionTable::Fill(QCommandLineParser& parser) const
{
    for (QCommandLineOption option : m_options) {
        const QString note = GetNote(option);
        if (!note.isEmpty())
            option.setDescription(option.description() + QLatin1Char(' ') + note);
        parser.addOption(option);
    }
    for (const Argument& argument : m_arguments)
        parser.addPositionalArgument(argument.name, argument.help, argument.syntax);
}

QString OptionTable::GetUsage(const QString& options) const
{
    QStringList words{options};
    for (const Argument& argument : m_arguments)
        words.append(argument.syntax);
    return words.join(QLatin1Char(' '));
}

ValueKind OptionTable::GetValueKind(const QString& valueName)
{
    const QStringList parts = valueName.split(QLatin1Char('|'));
    int kinds = 0;
    for (const QString& part : parts)
        kinds |= static_cast<int>(FindKind(part));
    if (kinds != 0)
        return static_cast<ValueKind>(kinds);
    const bool isOpen = parts.size() < 2 || std::any_of(parts.begin(), parts.end(), &IsPlaceholder);
    return isOpen ? ValueKind::Text : ValueKind::Choice;
}

QStringList OptionTable::GetChoices(const QString& valueName)
{
    if (GetValueKind(valueName) != ValueKind::Choice)
        return {};
    return valueName.split(QLatin1Char('|'));
}

QString OptionTable::GetLongName(const QCommandLineOption& option)
{
    return GetNames(option).last();
}

QStringList OptionTable::GetNames(const QCommandLineOption& option)
{
    QStringList names = option.names();
    std::stable_sort(names.begin(), names.end(),
                     [](const QString& a, const QString& b) { return a.size() < b.size(); });
    for (QString& name : names)
        name.prepend(name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--"));
    return names;
}

} // namespace LumetraCli
