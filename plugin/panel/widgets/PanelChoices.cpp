// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PanelChoices.h"

#include <QSettings>

#include <algorithm>
#include <iterator>
#include <utility>

namespace LumetraPlugin {
namespace {

constexpr int LowWindow = 900; // logical pixels

const QString SizeKey = QStringLiteral("view/thumbnails");
const QString ListKey = QStringLiteral("view/listOpen");
const QString SlidersKey = QStringLiteral("view/slidersOpen");

const std::pair<ThumbnailSize, const char*> SizeNames[] = {{ThumbnailSize::Small, "small"},
                                                           {ThumbnailSize::Medium, "medium"},
                                                           {ThumbnailSize::Large, "large"}};

std::optional<ThumbnailSize> FindSize(const QString& name)
{
    for (const auto& [size, text] : SizeNames)
        if (name == QLatin1String(text))
            return size;
    return std::nullopt;
}

} // namespace

PanelChoices::PanelChoices(const QString& path) : m_path(path)
{
    if (path.isEmpty())
        return;
    const QSettings file(path, QSettings::IniFormat);
    m_size = FindSize(file.value(SizeKey).toString());
    m_isListOpen = file.value(ListKey, true).toBool();
    m_areSlidersOpen = file.value(SlidersKey, true).toBool();
}

ThumbnailSize PanelChoices::GetThumbnailSize(int windowHeight) const
{
    return m_size.value_or(windowHeight < LowWindow ? ThumbnailSize::Small : ThumbnailSize::Medium);
}

void PanelChoices::SetThumbnailSize(ThumbnailSize size)
{
    m_size = size;
    const auto* const found = std::find_if(std::begin(SizeNames), std::end(SizeNames),
                                           [size](const auto& name) { return name.first == size; });
    Write(SizeKey, QLatin1String(found->second));
}

void PanelChoices::SetListOpen(bool isOpen)
{
    m_isListOpen = isOpen;
    Write(ListKey, isOpen);
}

void PanelChoices::SetSlidersOpen(bool areOpen)
{
    m_areSlidersOpen = areOpen;
    Write(SlidersKey, areOpen);
}

void PanelChoices::Write(const QString& key, const QVariant& value) const
{
    if (!m_path.isEmpty())
        QSettings(m_path, QSettings::IniFormat).setValue(key, value);
}

} // namespace LumetraPlugin
