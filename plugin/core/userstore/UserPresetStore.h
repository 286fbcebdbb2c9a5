// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "userdata/UserDataFile.h"

#include <memory>
#include <string>
#include <vector>

namespace Zorvik::Lumetra::LumetraPresets {
class EffectPresetModel;
class IEffectPresetControllerFactory;
} // namespace Zorvik::Lumetra::LumetraPresets

namespace LumetraPlugin {

/// Keeps the user's presets and favourite marks in a file of theirs, through the model.
///
/// Load() before the model is filled, Remember() after it, Save() right after each change that was
/// made through the model: a rename, for one, sends no signal. What Save() writes is the difference
/// to what was last remembered or saved, carried over to the file as it is then; the model does not
/// learn of other programs' presets until the next start. The file shows the model at that moment,
/// an intensity that has been dragged included. Look-up tables stand in files beside it, which are
/// read when a preset that needs one is drawn.
class UserPresetStore
{
public:
    /// `factory` makes the controllers that entries are tried with; the same as the model's.
    UserPresetStore(
        const QString& path,
        std::shared_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory> factory);
    ~UserPresetStore();

    /// "lumetra/presets.json" in the user's data folder.
    static QString GetDefaultPath();

    /// What the model can read of the file: usable presets and marks, the rest reported. It writes
    /// nothing. Exception when the file exists and cannot be read at all, or is none of ours.
    Zorvik::Brassel::ConstSerializerPtr Load();
    /// Notes what `model` holds now, so that Save() knows what has changed since.
    void Remember(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model);
    /// Writes what has changed in `model`. Returns what was repaired on the way, and what could not
    /// be done beside it, such as a backup: a sentence each. Exception when the presets are not
    /// saved, as when the file comes from a newer program; nothing is lost then, and the next
    /// Save() tries again.
    std::vector<std::string> Save(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model);

    /// What Load() took from a backup or left aside, a sentence each with file and place.
    const std::vector<std::string>& GetReports() const;

private:
    LumetraHost::JsonDocument
    Write(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model) const;
    bool TryPreset(const LumetraHost::JsonValue& element, std::size_t index,
                   std::vector<std::string>* reports) const;
    LumetraHost::JsonValue::Array CollectPresets(const LumetraHost::JsonDocument& document);
    LumetraHost::JsonValue::Array CollectMarks(const LumetraHost::JsonDocument& document);

    LumetraHost::UserDataFile m_file;
    std::shared_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory> m_factory;
    LumetraHost::JsonDocument m_seen;       // the file when it was last read or written
    LumetraHost::JsonDocument m_remembered; // what the model wrote of itself then
    std::vector<std::string> m_reports;
};

} // namespace LumetraPlugin
