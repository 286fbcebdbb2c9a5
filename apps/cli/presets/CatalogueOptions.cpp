// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/CatalogueOptions.h"

#include "console/Console.h"
#include "console/Text.h"
#include "core/CatalogueLocations.h"
#include "core/PresetModel.h"
#include "core/PresetResource.h"
#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueReport;
using LumetraPlugin::CatalogueLocations;
using LumetraPlugin::PresetResource;
using LumetraPlugin::PresetSession;
using LumetraPlugin::UserPresetStore;

const QString CatalogueOption = QStringLiteral("catalogue");
const QString OnlyNamedOption = QStringLiteral("only-named");
const QString StoreOption = QStringLiteral("store");

bool HasPresets(const QAbstractItemModel& model)
{
    for (int group = 0; group < model.rowCount(); ++group)
        if (model.rowCount(model.index(group, 0)) > 0)
            return true;
    return false;
}

void Report(const PresetSession& session, Console& console)
{
    for (const CatalogueReport& report : session.GetReports())
        if (report.severity != CatalogueReport::Severity::Note)
            console.ReportPlace(QString::fromStdString(report.ToText()));
}

} // namespace

void CatalogueOptions::Add(OptionTable& options)
{
    options.AddOption({CatalogueOption,
                       Text::tr("Also reads the presets of this catalogue file. May be given "
                                "more than once."),
                       QStringLiteral("file")});
    options.AddOption({OnlyNamedOption, Text::tr("Reads no other catalogues than those named.")});
    options.AddOption({StoreOption,
                       Text::tr("Keeps your own presets and favourites in this file. Default: "
                                "lumetra/presets.json in your data folder"),
                       QStringLiteral("file"), UserPresetStore::GetDefaultPath()});
    options.AddNote(StoreOption, Text::tr("(here: %1)").arg(UserPresetStore::GetDefaultPath()));
}

std::unique_ptr<PresetSession> CatalogueOptions::Load(const QCommandLineParser& parser,
                                                      Console& console)
{
    const QStringList named = parser.values(CatalogueOption);
    auto session = std::make_unique<PresetSession>(PresetSession::PackageName);
    const QStringList others =
        parser.isSet(OnlyNamedOption) ? QStringList() : CatalogueLocations::FindFiles();
    QStringList problems;
    const QStringList unusable =
        session->LoadWithStore(others + named, parser.value(StoreOption), problems);
    problems +=
        PresetResource::FetchAll(session->GetModel(), CatalogueLocations::GetResourceFolders());
    for (const QString& problem : problems)
        console.ReportPlace(problem);
    Report(*session, console);
    if (parser.isSet(StoreOption) && !session->GetStore())
        return nullptr;
    for (const QString& file : named)
        if (unusable.contains(file))
            return nullptr;
    if (HasPresets(session->GetModel()))
        return session;
    console.Report(Text::tr("expected at least one preset, found none in any catalogue; "
                            "--catalogue names a file"));
    return nullptr;
}

} // namespace LumetraCli
