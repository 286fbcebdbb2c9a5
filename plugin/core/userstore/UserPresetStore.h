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
/// Call Load() before the model is filled, Remember() after it, Save() right after each change that
/// was made through the model: a rename, for one, sends no signal. Save() carries the changes since
/// the last Remember() or Save() over to the file as it is then; the model does not learn of other
/// programs' presets until the next start. The model is saved as it is at that moment, with an
/// intensity that is being dragged. Look-up tables stand in files beside it, which are read when a
/// preset that needs one is drawn.
class UserPresetStore
{
public:
    /// `factory` makes the controllers that try entries; pass the model's.
    UserPresetStore(
        const QString& path,
        std::shared_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory> factory);
    ~UserPresetStore();

    /// The path "lumetra/presets.json" in the user's data folder.
    static QString GetDefaultPath();

    /// The part of the file that the model can read: usable presets and marks; others are reported.
    /// Writes nothing. Exception when the file exists and cannot be read at all, or is of another
    /// form.
    Zorvik::Brassel::ConstSerializerPtr Load();
    /// Notes what `model` holds now, so that Save() knows what has changed since.
    void Remember(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model);
    /// Writes the changes of `model`. Returns a sentence for each repair, and for each step beside
    /// saving that failed, such as a backup. Exception when the presets are not saved, as when the
    /// file comes from a newer program; nothing is lost then, and the next Save() tries again.
    std::vector<std::string> Save(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model);

    /// The folder of the look-up tables beside the file.
    const LumetraHost::ContentFolderPtr& GetTables() const { return m_file.GetContents(); }
    /// Sentences, with file and place, about data that Load() took from a backup or left aside.
    const std::vector<std::string>& GetReports() const { return m_reports; }

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
