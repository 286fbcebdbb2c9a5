// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace Zorvik::Lumetra {
class IWorkspaceController;
}

namespace LumetraPlugin {

class PresetCollection;

/// The look that the panel has put on the photo, stored for undo and in sidecar files: the preset
/// and everything that was drawn, so that the photo looks the same again even where the catalogue
/// has changed since or no longer has the preset.
class AppliedEdit
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::AppliedEdit)

public:
    /// Both are kept, the collection by reference.
    AppliedEdit(PresetCollection& presets,
                std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace);

    /// The look as JSON, empty when nothing is applied. Members: "preset", "name", "blend" (1 the
    /// full effect, 255 none), "effects" as in a catalogue, "sliders" (the positions in the panel),
    /// and "intensity" where the preset has one.
    QJsonObject Save() const;
    /// Puts a saved look on a photo without open packages. Returns a sentence for each member that
    /// could not be used.
    QStringList Restore(const QJsonObject& edit);

    /// Takes all packages of the panel off the photo, however they came there, and restores `edit`.
    void GoBackTo(const QJsonObject& edit);

    /// The name of a stray look: one that is on the photo though no catalogue has it any more, or
    /// though a file that its preset needs is missing. Else empty.
    QString GetStrayName() const { return m_stray ? m_stray->name : QString(); }
    /// Takes a stray look off.
    void DropStray();
    /// Forgets the stray look; another preset has taken its place.
    void ForgetStray() { m_stray.reset(); }

private:
    struct Stray
    {
        QString name;
        QJsonObject edit;
    };

    void ResetPackage();
    void Draw(const QJsonObject& edit, Zorvik::Quindle::EffectsSettings& settings,
              QStringList& reports);
    void RestoreValues(const QString& id, const QJsonObject& edit, QStringList& reports);

    PresetCollection& m_presets;
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> m_workspace;
    std::optional<Stray> m_stray;
};

} // namespace LumetraPlugin
