// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <map>

namespace LumetraPlugin {

/// The value of a setting as a file of another program has it.
struct ForeignValue
{
    QString text;      ///< of a number, a switch or a name
    QStringList items; ///< of a list, such as the points of a curve: "x, y" or x and y in turn
    bool isList = false;
    bool isTree = false; ///< true for structures, such as masks, whose content is not kept
};

/// A look of another program: settings by the names that its maker publishes. Camera-raw settings
/// have no prefix ("Contrast2012"), those of raw profiles stand behind their section
/// ("Exposure/Compensation").
struct ForeignLook
{
    QString name;  ///< empty where the file has none
    QString group; ///< empty where the file has none
    std::map<QString, ForeignValue> settings;

    /// Null when there is none.
    const ForeignValue* Find(const QString& setting) const
    {
        const auto found = settings.find(setting);
        return found == settings.end() ? nullptr : &found->second;
    }
    void SetText(const QString& setting, const QString& text) { settings[setting].text = text; }
};

} // namespace LumetraPlugin
