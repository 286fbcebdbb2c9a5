// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

#include <QSettings>
#include <QStringList>

namespace LumetraEditor {

/// The user's choices, kept in "lumetra/lumetra-editor.ini" in the user's configuration folder.
class EditorSettings
{
public:
    static constexpr int MostRecentPhotos = 10;

    EditorSettings();

    LumetraHost::PaletteKind GetPalette() const;
    void SetPalette(LumetraHost::PaletteKind kind);

    /// The language, "en" or "de"; by default that of the system, where the editor has its texts.
    QString GetLanguage() const;
    void SetLanguage(const QString& language);

    /// Absolute paths, the newest first.
    QStringList GetRecentPhotos() const;
    void AddRecentPhoto(const QString& path);
    void ClearRecentPhotos();

    /// The ids of modules that are not to be loaded.
    QStringList GetModulesOff() const;
    void SetModulesOff(const QStringList& ids);

    /// A value without an operation of its own.
    QVariant Get(const QString& key, const QVariant& defaultValue = {}) const;
    void Set(const QString& key, const QVariant& value) { m_settings.setValue(key, value); }

private:
    QSettings m_settings;
};

} // namespace LumetraEditor
