// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Core/Property.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <QCoreApplication>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>

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

    /// Returns the edit, never null, without entries when nothing is applied. Its entries are
    /// "preset", "name", "blend" (1 the full effect, 255 none), "effects" as in a catalogue,
    /// "sliders" (a list of nodes with the position in the panel as "value") and, for a preset that
    /// has one, "intensity".
    Zorvik::Core::Property::Ptr Save() const;
    /// Does the inverse on a photo without open packages and keeps `edit`, which nobody changes
    /// any more. Returns a sentence for each entry that could not be used.
    QStringList Restore(const Zorvik::Core::Property::Ptr& edit);

    /// Takes all packages of the panel off the photo, however they came there, and restores `edit`.
    void GoBackTo(const Zorvik::Core::Property::Ptr& edit);

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
        Zorvik::Core::Property::Ptr edit;
    };

    void ResetPackage();
    Zorvik::Quindle::EffectsSettings Load(const Zorvik::Brassel::ISerializer& edit,
                                          QStringList& reports) const;
    QString DescribeStray(const std::string& problem) const;
    void Draw(const std::string& id, Zorvik::Quindle::EffectsSettings& settings);
    void RestoreValues(const std::string& id, const Zorvik::Quindle::EffectsSettings& values,
                       QStringList& reports);

    PresetCollection& m_presets;
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> m_workspace;
    std::optional<Stray> m_stray;
};

} // namespace LumetraPlugin
