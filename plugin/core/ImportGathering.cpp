// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/ImportGathering.h"

#include "catalogue/VisibleText.h"
#include "core/PresetCollection.h"
#include "core/PresetNames.h"

#include <set>
#include <string>

namespace LumetraPlugin {
namespace {

using LumetraHost::VisibleText;

constexpr int LongestQuote = 80; // characters of a name in a sentence

/// The name as sentences show it.
QString Quote(const QString& name)
{
    const QString visible = VisibleText::Make(name);
    return visible.size() <= LongestQuote ? visible : visible.left(LongestQuote) + QChar(0x2026);
}

} // namespace

ImportGathering::ImportGathering(PresetCollection& collection, const ImportNaming& naming)
    : m_collection(collection), m_naming(naming), m_contents(collection),
      m_before(naming.sharesCatalogueNames ? TakenNames::OfUser(collection.GetModel())
                                           : TakenNames::OfAll(collection.GetModel())),
      m_taken(m_before)
{
}

void ImportGathering::Take(const Candidate& look)
{
    m_entries.push_back({look, m_contents.MakeKey(*look.preset)});
}

ImportReport ImportGathering::Finish()
{
    ImportReport report;
    if (!CheckGivenName(report))
        return report;
    Ask();
    for (const Entry& entry : m_entries)
        Decide(entry, report);
    const QModelIndexList indexes = m_collection.GetModel().AddUserPresets(m_presets);
    for (std::size_t i = 0; i < report.presets.size(); ++i)
        report.presets[i].index = indexes[static_cast<int>(i)];
    return report;
}

/// The looks that the user has not yet. Several of one content count once.
std::vector<const ImportGathering::Entry*> ImportGathering::FindNew() const
{
    std::vector<const Entry*> found;
    std::set<std::string> contents;
    for (const Entry& entry : m_entries) {
        const bool isKnown = m_contents.Find(entry.content).has_value();
        if (!isKnown && (!entry.content || contents.insert(*entry.content).second))
            found.push_back(&entry);
    }
    return found;
}

bool ImportGathering::CheckGivenName(ImportReport& report) const
{
    if (m_naming.name.isEmpty())
        return true;
    const auto looks = FindNew();
    if (looks.size() > 1)
        report.problems.append(tr("%1: expected one look for the name \"%2\", found %3")
                                   .arg(looks.front()->look.path, Quote(m_naming.name),
                                        QString::number(looks.size())));
    return looks.size() <= 1;
}

void ImportGathering::Ask()
{
    if (!m_naming.name.isEmpty())
        return;
    QStringList tooLong, taken;
    for (const Entry* const entry : FindNew()) {
        const QString& name = entry->look.name;
        if (PresetNames::IsTooLong(name))
            tooLong.append(Quote(name));
        else if (m_before.Contains(name))
            taken.append(Quote(name));
    }
    m_isShortening = !tooLong.isEmpty() && m_naming.askShortened && m_naming.askShortened(tooLong);
    m_isNumbering = taken.isEmpty() || !m_naming.askNumbered || m_naming.askNumbered(taken);
}

void ImportGathering::Decide(const Entry& entry, ImportReport& report)
{
    const Candidate& look = entry.look;
    if (const auto knownAs = m_contents.Find(entry.content)) {
        report.known.push_back({look.path, Quote(look.name), *knownAs});
        return;
    }
    const bool isNamed = !m_naming.name.isEmpty();
    const QString fault = isNamed ? QString() : FindFault(look);
    if (!fault.isEmpty()) {
        report.problems.append(fault);
        report.tooLong += PresetNames::IsTooLong(look.name) ? 1 : 0;
        return;
    }
    const QString name = isNamed ? m_naming.name : MakeName(look);
    m_contents.Add(entry.content, name);
    Append(look, name, report);
}

QString ImportGathering::FindFault(const Candidate& look) const
{
    if (PresetNames::IsTooLong(look.name) && !m_isShortening)
        return tr("%1: a look cannot be called \"%2\": %3")
            .arg(look.path, Quote(look.name), PresetNames::FindFault(look.name));
    if (!m_isNumbering && m_before.Contains(look.name))
        return tr("%1: \"%2\" is left out: a look of that name is here already")
            .arg(look.path, Quote(look.name));
    return {};
}

/// Looks of one name are told apart by their groups before they are numbered.
QString ImportGathering::MakeName(const Candidate& look) const
{
    const auto isTaken = [this](const QString& name) { return m_taken.Contains(name); };
    const QString withGroup = QStringLiteral("%1 (%2)").arg(look.name, look.group);
    const bool needsGroup = !look.group.isEmpty() && isTaken(look.name);
    return PresetNames::MakeFreeOf(
        needsGroup && !PresetNames::IsTooLong(withGroup) ? withGroup : look.name, isTaken);
}

void ImportGathering::Append(const Candidate& look, const QString& name, ImportReport& report)
{
    m_taken.Add(name, m_collection.GetModel().GetUserGroup().row());
    look.preset->SetName(name.toStdString());
    m_presets.push_back(look.preset);
    const bool isShortened = m_naming.name.isEmpty() && PresetNames::IsTooLong(look.name);
    report.presets.push_back(
        {look.path, name, isShortened ? Quote(look.name) : QString(), look.remarks, {}});
}

} // namespace LumetraPlugin
