// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueOptions.h"

#include "Console.h"
#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "catalogue/CatalogueFiles.h"
#include "core/PresetSession.h"
#include "core/UserPresetStore.h"

#include <QCoreApplication>
#include <QDir>

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueFiles;
using LumetraHost::CatalogueReport;
using LumetraPlugin::PresetSession;
using LumetraPlugin::UserPresetStore;

constexpr char PackageName[] = "lumetra.presets";

QString CatalogueOption()
{
    return QStringLiteral("catalogue");
}

QString OnlyNamedOption()
{
    return QStringLiteral("only-named");
}

QString StoreOption()
{
    return QStringLiteral("store");
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

/// Without the user's presets when their file cannot be read, which is reported.
QStringList LoadWithStore(PresetSession& session, const QStringList& catalogues,
                          const QString& store, Console& console)
{
    session.OpenStore(store);
    try {
        const QStringList unusable = session.Load(catalogues, nullptr);
        for (const std::string& report : session.GetStore()->GetReports())
            console.ReportPlace(QString::fromStdString(report));
        return unusable;
    } catch (const Zorvik::Exception& error) {
        console.ReportPlace(QString::fromUtf8(error.what()));
        session.CloseStore();
        return session.Load(catalogues, nullptr);
    }
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
    parser.addOption({StoreOption(),
                      QStringLiteral("Keeps your own presets and favourites in this file (%1).")
                          .arg(UserPresetStore::GetDefaultPath()),
                      QStringLiteral("file"), UserPresetStore::GetDefaultPath()});
}

std::unique_ptr<PresetSession> CatalogueOptions::Load(const QCommandLineParser& parser,
                                                      Console& console)
{
    const QStringList named = parser.values(CatalogueOption());
    auto session = std::make_unique<PresetSession>(PackageName);
    const QStringList others = parser.isSet(OnlyNamedOption()) ? QStringList() : FindCatalogues();
    const QStringList unusable =
        LoadWithStore(*session, others + named, parser.value(StoreOption()), console);
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
