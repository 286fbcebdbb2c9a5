// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/LookOptions.h"

#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/NameHint.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/LutImport.h"
#include "core/PresetModel.h"
#include "core/PresetSession.h"
#include "presets/PresetOptions.h"

#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>

namespace LumetraCli {
namespace {

using LumetraPlugin::LutImport;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetSession;
using Rows = std::vector<PresetRow>;

const QString PresetOption = QStringLiteral("preset");
const QString IntensityOption = QStringLiteral("intensity");
const QString SetOption = QStringLiteral("set");
const QString FavouritesOption = QStringLiteral("favourites");
const QString GroupOption = QStringLiteral("group");
const QString EditsOption = QStringLiteral("edits");

constexpr int FullIntensity = 100;

/// Adds the look of a LUT file to the user's presets for this run; nothing is saved. It keeps its
/// name even when the user has imported it before: outputs are named after it. Returns its id.
QString AddLutPreset(PresetSession& session, const QString& file)
{
    const auto added = LutImport::AddTo(session, file, {});
    if (added.size() != 1)
        throw UsageError(Text::tr("--preset: expected a file with one look, found %1 in "
                                  "\"%2\"; \"import\" makes a preset of each")
                             .arg(QString::number(added.size()), file));
    return added.front().data(PresetModel::PresetIdRole).toString();
}

/// Throws for a name that no preset has and that is, or looks like, the name of a file: the file is
/// missing or no LUT file.
void RefuseFile(const QString& preset)
{
    const QFileInfo file(preset);
    if (LutImport::IsLutName(preset, true) && !file.exists())
        throw UsageError(Text::tr("--preset: expected the name or id of a preset or a LUT "
                                  "file, found \"%1\", which is neither: there is no such "
                                  "file")
                             .arg(preset));
    if (file.exists())
        throw UsageError(Text::tr("--preset: expected the name or id of a preset or a LUT "
                                  "file (.cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif), "
                                  "found the %1 \"%2\"")
                             .arg(file.isDir() ? Text::tr("folder") : Text::tr("file"), preset));
}

/// The id of the preset or of the LUT file, which becomes a preset.
QString FindId(PresetSession& session, const Rows& rows, const QString& preset)
{
    if (LutImport::IsLutName(preset, true) && QFileInfo::exists(preset))
        return AddLutPreset(session, preset);
    if (!PresetRows::Has(rows, preset))
        RefuseFile(preset);
    return PresetRows::Find(rows, preset).id;
}

QString GetGroupName(const PresetRow& row)
{
    return row.index.parent().data(PresetModel::PresetNameRole).toString();
}

[[noreturn]] void RefuseGroup(const Rows& rows, const QString& group)
{
    std::vector<std::string> names;
    for (const PresetRow& row : rows)
        for (const QString& name : {GetGroupName(row), row.group})
            if (names.empty() || names.back() != name.toStdString())
                names.push_back(name.toStdString());
    throw UsageError(Text::tr("--group: expected the name of a group with presets, found "
                              "\"%1\"%2")
                         .arg(group, MakeNameHint(group, names)));
}

void AddOnce(QStringList& texts, const QString& text)
{
    if (!texts.contains(text))
        texts.append(text);
}

/// The look of presets one upon the other. `named`: the first of those that outputs are named
/// after.
ChosenLook MakeLook(PresetSession& session, const std::vector<PresetUse>& uses, std::size_t named)
{
    ChosenLook look;
    look.uses = uses;
    QStringList names, groups, intensities;
    for (std::size_t i = 0; i < uses.size(); ++i) {
        const auto packages = uses[i].MakePackages(session);
        look.layers.Add({packages, uses[i].MakeRecords(packages)});
        if (i < named)
            continue;
        names.append(uses[i].GetPreset().name);
        AddOnce(groups, GetGroupName(uses[i].GetPreset()));
        intensities.append(QString::number(uses[i].GetIntensity().value_or(FullIntensity)));
    }
    look.name = names.join(QLatin1Char('+'));
    look.group = groups.join(QLatin1Char('+'));
    look.intensity = intensities.join(QLatin1Char('+'));
    return look;
}

} // namespace

void LookOptions::Add(OptionTable& options)
{
    PresetOptions::Add(options,
                       Text::tr("The preset, by name or id, or a LUT file: .cube, .3dl, "
                                ".clf, .cc, .ccc, .cdl or a HaldCLUT picture. Given more "
                                "than once, each lies upon the one before, and --intensity "
                                "and --set belong to the preset before them."),
                       QStringLiteral("name|id|file"));
    options.AddOptions({
        {FavouritesOption,
         Text::tr("Makes a file of each photo with each favourite, upon the presets of "
                  "--preset, if there are any.")},
        {GroupOption, Text::tr("Does so with each preset of this group."), QStringLiteral("name")},
        {EditsOption,
         Text::tr("Begins with each photo's own edit, as the editor has saved it, below the "
                  "presets, if there are any.")},
    });
}

LookOptions::LookOptions(const QCommandLineParser& parser)
    : m_isFavourites(parser.isSet(FavouritesOption)), m_takesEdits(parser.isSet(EditsOption))
{
    if (parser.isSet(GroupOption))
        m_group = parser.value(GroupOption);
    ReadRequests(parser);
    if (m_isFavourites && m_group)
        throw UsageError(Text::tr("expected --favourites or --group, found both"));
    if (!HasPresets() && !m_takesEdits)
        throw UsageError(Text::tr("expected a look: --preset, --favourites, --group or --edits"));
}

/// The parser gives the values of each option, and the order of the options alone.
void LookOptions::ReadRequests(const QCommandLineParser& parser)
{
    const std::map<QString, QString> longNames = {{QStringLiteral("p"), PresetOption},
                                                  {QStringLiteral("i"), IntensityOption}};
    std::map<QString, QStringList> values;
    for (const QString& option : {PresetOption, IntensityOption, SetOption})
        values[option] = parser.values(option);
    Request first; // values in front of all presets
    for (const QString& found : parser.optionNames()) {
        const auto longName = longNames.find(found);
        const QString& option = longName == longNames.end() ? found : longName->second;
        if (values.count(option) == 0)
            continue;
        const QString value = values[option].takeFirst();
        Request& request = m_requests.empty() ? first : m_requests.back();
        if (option == SetOption)
            request.settings.append(value);
        else if (option == IntensityOption)
            request.intensity = value.isNull() ? QStringLiteral("") : value;
        else if (m_requests.empty())
            m_requests.push_back({value, first.intensity, first.settings});
        else
            m_requests.push_back({value, {}, {}});
    }
    if (m_requests.empty() && !(first.intensity.isNull() && first.settings.isEmpty()))
        throw UsageError(Text::tr("%1: expected a --preset that it belongs to, found none")
                             .arg(first.settings.isEmpty() ? QStringLiteral("--intensity")
                                                           : QStringLiteral("--set")));
}

bool LookOptions::IsInSeries(const PresetRow& row) const
{
    if (m_isFavourites)
        return row.isFavourite;
    return m_group->compare(GetGroupName(row), Qt::CaseInsensitive) == 0 ||
           m_group->compare(row.group, Qt::CaseInsensitive) == 0;
}

/// The ids of the series' presets.
QStringList LookOptions::FindSeries(const Rows& rows) const
{
    QStringList ids;
    for (const PresetRow& row : rows)
        if (IsInSeries(row))
            ids.append(row.id);
    if (!ids.isEmpty())
        return ids;
    if (m_isFavourites)
        throw UsageError(Text::tr("--favourites: expected favourites, found none; "
                                  "\"favourite\" makes a preset one"));
    RefuseGroup(rows, *m_group);
}

/// The ids of the presets; nothing, after a report, for a LUT file that cannot be used.
std::optional<QStringList> LookOptions::FindIds(PresetSession& session, Console& console) const
{
    const Rows rows = PresetRows::Read(session.GetModel());
    QStringList ids;
    try {
        for (const Request& request : m_requests)
            ids.append(FindId(session, rows, request.preset));
    } catch (const Zorvik::Exception& error) {
        console.ReportPlace(QString::fromUtf8(error.what()));
        return std::nullopt;
    }
    return ids;
}

std::vector<PresetUse> LookOptions::MakeUses(PresetSession& session, const QStringList& ids) const
{
    const Rows rows = PresetRows::Read(session.GetModel());
    std::vector<PresetUse> uses;
    for (std::size_t i = 0; i < m_requests.size(); ++i)
        uses.emplace_back(PresetRows::Find(rows, ids[static_cast<int>(i)]), m_requests[i].intensity,
                          m_requests[i].settings);
    return uses;
}

std::vector<ChosenLook> LookOptions::ChooseSeries(PresetSession& session,
                                                  const std::vector<PresetUse>& below,
                                                  const QStringList& ids, Console& console,
                                                  ExitCode& code) const
{
    const Rows rows = PresetRows::Read(session.GetModel());
    std::vector<ChosenLook> looks;
    for (const QString& id : ids) {
        try {
            std::vector<PresetUse> uses = below;
            uses.emplace_back(PresetRows::Find(rows, id), QString(), QStringList());
            looks.push_back(MakeLook(session, uses, below.size()));
        } catch (const Zorvik::Exception& error) {
            console.Report(QString::fromUtf8(error.what()));
            code = ExitCode::SomeFailed;
        }
    }
    return looks;
}

std::vector<ChosenLook> LookOptions::Choose(PresetSession& session, Console& console,
                                            ExitCode& code) const
{
    const QStringList series =
        IsSeries() ? FindSeries(PresetRows::Read(session.GetModel())) : QStringList();
    const auto ids = FindIds(session, console);
    if (!ids) {
        code = ExitCode::SomeFailed;
        return {};
    }
    const std::vector<PresetUse> uses = MakeUses(session, *ids);
    if (IsSeries())
        return ChooseSeries(session, uses, series, console, code);
    return {MakeLook(session, uses, 0)};
}

} // namespace LumetraCli
