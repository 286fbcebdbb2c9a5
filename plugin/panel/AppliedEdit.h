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

/// What the panel has put on the photo, as the editor keeps it for undo and in sidecar files: the
/// preset and everything that was drawn, so that the photo looks the same again even where the
/// catalogue has changed since or no longer has the preset.
class AppliedEdit
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::AppliedEdit)

public:
    /// Both are kept; the collection by reference.
    AppliedEdit(PresetCollection& presets,
                std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace);

    /// Empty when nothing is applied. Members: "preset", "name", "blend" (1 the full effect, 255
    /// none), "effects" as in a catalogue, "sliders" (the positions in the panel) and, of a preset
    /// that has one, "intensity".
    QJsonObject Save() const;
    /// The inverse, on a photo without open packages. Returns a sentence for each member that could
    /// not be used.
    QStringList Restore(const QJsonObject& edit);

    /// Takes off what the panel has on the photo, however that came there, and restores `edit`.
    void GoBackTo(const QJsonObject& edit);

    /// The name of a look that is on the photo though no catalogue has it any more, or a file that
    /// its preset needs is missing; else empty.
    QString GetStrayName() const;
    /// Takes such a look off.
    void DropStray();
    /// Another preset has taken its place.
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
