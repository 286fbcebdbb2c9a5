// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetResource.h"

#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Exception.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/EffectsChecker.h"
#include "core/PresetModel.h"
#include "storage/JsonDocument.h"

#include <QDir>
#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueReport;
using LumetraHost::JsonDocument;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

/// Throws the first error, if there is any.
void Check(const JsonDocument& document)
{
    LumetraHost::CatalogueReports reports;
    const LumetraHost::CheckedNode root(document.GetObject(), document.GetName(), reports);
    const bool isEmpty = LumetraHost::EffectsChecker::Check(root).empty();
    if (isEmpty && reports.GetErrorCount() == 0)
        root.Error("expected \"effects\" with at least one effect");
    for (const CatalogueReport& report : reports.GetAll())
        if (report.severity == CatalogueReport::Severity::Error)
            throw Zorvik::Exception(report.ToText(), BOOST_CURRENT_FUNCTION, "core/PresetResource",
                                    __LINE__);
}

/// Hands the file to the preset. Returns why it cannot be used; empty when the preset has its
/// effects.
QString HandOver(PresetModel& model, const QModelIndex& preset, const QString& path)
{
    try {
        model.setData(preset, path, PresetModel::DownloadedResourceRole);
        return {};
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
}

} // namespace

EffectsSettings PresetResource::Read(const QString& path)
{
    const JsonDocument document = JsonDocument::Read(path);
    Check(document);
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    const auto list = document.GetRoot()->GetCollection(IEffectSettings::EFFECTS);
    for (std::size_t i = 0; i < list->GetCount(); ++i) {
        const auto element = list->GetElement(i);
        const auto effect =
            IEffectSettings::CreateEffectSettings(element->GetNode(IEffectSettings::EFFECT));
        element->ReadObject(IEffectSettings::EFFECT, *effect);
        settings.Effects().push_back(effect);
    }
    return settings;
}

QString PresetResource::GetPlace(const PresetModel& model, const QModelIndex& preset)
{
    const auto controller = model.GetPreset(preset);
    if (!controller || controller->GetResource().empty())
        return {};
    const QString storeId = preset.data(PresetModel::AppStoreIdRole).toString();
    const QString place = QDir::cleanPath(storeId + QLatin1Char('/') +
                                          QString::fromStdString(controller->GetResource()));
    const bool isInside = QDir::isRelativePath(place) && !place.startsWith(QLatin1String(".."));
    return isInside ? place : QString();
}

QString PresetResource::Find(const PresetModel& model, const QModelIndex& preset,
                             const QStringList& folders)
{
    const QString place = GetPlace(model, preset);
    if (place.isEmpty())
        return {};
    for (const QString& folder : folders) {
        const QString path = QDir(folder).filePath(place);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString PresetResource::FindFault(PresetModel& model, const QModelIndex& preset,
                                  const QStringList& folders)
{
    if (!preset.data(PresetModel::DownloadableRole).toBool())
        return {};
    const QString place = GetPlace(model, preset);
    if (place.isEmpty())
        return QStringLiteral(
                   "expected a \"resource\" inside the folder of resources, found \"%1\"")
            .arg(QString::fromStdString(model.GetPreset(preset)->GetResource()));
    const QString path = Find(model, preset, folders);
    if (path.isEmpty())
        return QStringLiteral("expected its effects in the file \"%1\" below \"%2\", found none")
            .arg(place, folders.value(0));
    return HandOver(model, preset, path);
}

QStringList PresetResource::FetchAll(PresetModel& model, const QStringList& folders)
{
    QStringList problems;
    for (int g = 0; g < model.rowCount(); ++g) {
        const QModelIndex group = model.index(g, 0);
        for (int i = 0; i < model.rowCount(group); ++i) {
            const QModelIndex preset = model.index(i, 0, group);
            const QString path = Find(model, preset, folders);
            const QString problem = path.isEmpty() ? path : HandOver(model, preset, path);
            if (!problem.isEmpty())
                problems.append(problem);
        }
    }
    return problems;
}

} // namespace LumetraPlugin
