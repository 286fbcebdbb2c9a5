// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueOptions.h"

#include "Console.h"
#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueFiles.h"
#include "core/PresetSession.h"

#include <QCoreApplication>
#include <QDir>

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueFiles;
using LumetraHost::CatalogueReport;
using LumetraPlugin::PresetSession;

constexpr char PackageName[] = "lumetra.presets";

QString CatalogueOption()
{
    return QStringLiteral("catalogue");
}

QString OnlyNamedOption()
{
    return QStringLiteral("only-named");
}

/// The data folder that this program was installed with: "share" beside its "bin".
QString InstalledDataFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share"));
}

/// The catalogues that need not be named. A program in its build tree uses those of its sources.
QStringList FindCatalogues()
{
    const QStringList folders = CatalogueFiles::GetDataFolders(InstalledDataFolder());
    QStringList files = CatalogueFiles::Find(folders);
#ifdef LUMETRA_SOURCE_CATALOGUE
    if (!QDir(InstalledDataFolder() + QStringLiteral("/lumetra/catalogue")).exists())
        files = CatalogueFiles::FindIn(QStringLiteral(LUMETRA_SOURCE_CATALOGUE)) + files;
#endif
    return files;
}

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

void CatalogueOptions::Add(QCommandLineParser& parser)
{
    parser.addOption({CatalogueOption(),
                      QStringLiteral("Also reads the presets of this catalogue file. May be given "
                                     "more than once."),
                      QStringLiteral("file")});
    parser.addOption(
        {OnlyNamedOption(), QStringLiteral("Reads no other catalogues than those named.")});
}

std::unique_ptr<PresetSession> CatalogueOptions::Load(const QCommandLineParser& parser,
                                                      Console& console)
{
    const QStringList named = parser.values(CatalogueOption());
    auto session = std::make_unique<PresetSession>(PackageName);
    const QStringList others = parser.isSet(OnlyNamedOption()) ? QStringList() : FindCatalogues();
    const QStringList unusable = session->Load(others + named, nullptr);
    Report(*session, console);
    for (const QString& file : named)
        if (unusable.contains(file))
            return nullptr;
    if (HasPresets(session->GetModel()))
        return session;
    console.Report(QStringLiteral("expected at least one preset, found none in any catalogue; "
                                  "--catalogue names a file"));
    return nullptr;
}

} // namespace LumetraCli
