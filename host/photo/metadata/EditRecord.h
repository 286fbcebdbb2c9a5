// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace LumetraHost {

/// One preset that was put on a photo, as recorded in exported photos.
struct EditRecord
{
    std::string preset;
    int intensity = 100; ///< percent: the share of the preset's full effect
    /// The layer itself as JSON text; empty when the record has only its name.
    std::string look = {};
    std::string lookLeftOut = {}; ///< why the look is not there; empty when nobody knows
};

/// Keeps the presets of a photo in its XMP packet: an ordered array "Presets" of structures with
/// "Name", "Intensity" and, where they are not empty, "Look" and "LookLeftOut" in a namespace of
/// their own, "Job" there, and "xmp:CreatorTool".
class EditRecords
{
public:
    static constexpr char Namespace[] = "https://lumetra.org/ns/edit/1.0/";

    /// `packet` with the records added after those that it has; empty: a new packet. `job` is the
    /// fingerprint of the job that makes the file (see JobFingerprint). It replaces that of an
    /// earlier export, which is removed for an empty one too. The other properties stay.
    /// Zorvik::Exception for a damaged packet, which then is left as it is.
    static QByteArray Add(const QByteArray& packet, const std::vector<EditRecord>& records,
                          const std::string& creatorTool, const std::string& job = {});
    /// The records of a packet, bottom first. Zorvik::Exception for a damaged packet.
    static std::vector<EditRecord> Read(const QByteArray& packet);
    /// The fingerprint of the job that made the file; empty where there is none.
    /// Zorvik::Exception for a damaged packet.
    static std::string ReadJob(const QByteArray& packet);
};

} // namespace LumetraHost
