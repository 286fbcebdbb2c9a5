// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/ThumbnailCache.h"

#include "core/PresetModel.h"

namespace LumetraPlugin {
namespace {

QString KeyOf(const PresetModel& model, const QModelIndex& index)
{
    const auto preset = model.GetPreset(index);
    return preset ? QString::fromStdString(preset->GetPreviewKey()) : QString();
}

} // namespace

ThumbnailCache::ThumbnailCache(PresetModel& model) : m_model(model) {}

QPixmap ThumbnailCache::Get(const QModelIndex& preset)
{
    Entry& entry = m_entries[KeyOf(m_model, preset)];
    if (!entry.isOld || entry.isAskedFor)
        return entry.picture;
    const auto image = preset.data(PresetModel::PreviewImageRole).value<QImage>();
    entry.isAskedFor = image.isNull();
    entry.isOld = image.isNull();
    if (!image.isNull())
        entry.picture = QPixmap::fromImage(image);
    return entry.picture;
}

void ThumbnailCache::SetReady(const QString& key)
{
    const auto entry = m_entries.find(key);
    if (entry == m_entries.end())
        return;
    entry->isAskedFor = false;
    emit changed(key);
}

void ThumbnailCache::MarkOld(const QModelIndex& preset)
{
    const QString key = KeyOf(m_model, preset);
    Entry& entry = m_entries[key];
    entry.isOld = true;
    entry.isAskedFor = false;
    emit changed(key);
}

void ThumbnailCache::MarkAllOld()
{
    for (Entry& entry : m_entries) {
        entry.isOld = true;
        entry.isAskedFor = false;
    }
    emit changed(QString());
}

void ThumbnailCache::Clear()
{
    m_entries.clear();
    emit changed(QString());
}

} // namespace LumetraPlugin
