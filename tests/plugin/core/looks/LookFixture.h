// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetImport.h"
#include "core/PresetSession.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace LumetraTest {

/// A user with a store of their own, and files that come from elsewhere.
class LookTest : public testing::Test
{
protected:
    void SetUp() override;

    QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    QString Write(const char* name, const QByteArray& content) const;
    static QByteArray ReadFile(const QString& path);

    /// A preset of the user from a stored form: the members of a look beside its name.
    LumetraPlugin::PresetModel::PresetPtr AddPreset(const char* name, const QByteArray& members);
    LumetraPlugin::PresetModel::PresetPtr AddTable(const char* name, int points);
    /// Writes presets as a file.
    QString WriteLooks(const char* name,
                       const std::vector<LumetraPlugin::PresetModel::PresetPtr>& presets) const;

    QStringList GetNames() const { return session.GetModel().GetUserPresetNames(); }
    void Save();

    /// Imports one file.
    LumetraPlugin::ImportReport Import(const QString& path,
                                       const LumetraPlugin::ImportNaming& naming = {})
    {
        return ImportInto(session, path, naming);
    }
    static LumetraPlugin::ImportReport ImportInto(LumetraPlugin::PresetSession& target,
                                                  const QString& path,
                                                  const LumetraPlugin::ImportNaming& naming = {});
    /// All sentences about a file of which nothing is added.
    std::string Refusal(const QString& path);

    QTemporaryDir folder;
    mutable LumetraPlugin::PresetSession session{"test"};
};

/// A file of one look with these members beside its name.
QByteArray LookText(const QByteArray& name, const QByteArray& members);
/// A cube of so many points along each axis that turns a colour around.
QByteArray CubeText(int points);

} // namespace LumetraTest
