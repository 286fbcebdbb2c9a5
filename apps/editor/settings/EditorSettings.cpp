// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorSettings.h"

#include <QFileInfo>
#include <QLocale>

namespace LumetraEditor {
namespace {

using LumetraHost::PaletteKind;

const QString PaletteKey = QStringLiteral("palette");
const QString LanguageKey = QStringLiteral("language");
const QString ModulesOffKey = QStringLiteral("modulesOff");
const QString RecentKey = QStringLiteral("recentPhotos");

} // namespace

EditorSettings::EditorSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("lumetra"),
                 QStringLiteral("lumetra-editor"))
{
}

PaletteKind EditorSettings::GetPalette() const
{
    return m_settings.value(PaletteKey).toString() == QLatin1String("light") ? PaletteKind::Light
                                                                             : PaletteKind::Dark;
}

void EditorSettings::SetPalette(PaletteKind kind)
{
    m_settings.setValue(PaletteKey, kind == PaletteKind::Light ? QStringLiteral("light")
                                                               : QStringLiteral("dark"));
}

QString EditorSettings::GetLanguage() const
{
    const QString stored = m_settings.value(LanguageKey, QLocale::system().name()).toString();
    return stored.startsWith(QLatin1String("de")) ? QStringLiteral("de") : QStringLiteral("en");
}

void EditorSettings::SetLanguage(const QString& language)
{
    m_settings.setValue(LanguageKey, language);
}

QStringList EditorSettings::GetModulesOff() const
{
    return m_settings.value(ModulesOffKey).toStringList();
}

void EditorSettings::SetModulesOff(const QStringList& ids)
{
    m_settings.setValue(ModulesOffKey, ids);
}

QStringList EditorSettings::GetRecentPhotos() const
{
    return m_settings.value(RecentKey).toStringList();
}

void EditorSettings::AddRecentPhoto(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList photos = GetRecentPhotos();
    photos.removeAll(absolute);
    photos.prepend(absolute);
    m_settings.setValue(RecentKey, QStringList(photos.mid(0, MostRecentPhotos)));
}

void EditorSettings::ClearRecentPhotos()
{
    m_settings.remove(RecentKey);
}

QVariant EditorSettings::Get(const QString& key, const QVariant& defaultValue) const
{
    return m_settings.value(key, defaultValue);
}

} // namespace LumetraEditor
