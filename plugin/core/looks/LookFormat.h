// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

namespace LumetraPlugin {

/// The stored form of looks that leave the program: one JSON text with a list of presets, each in
/// the form of the user's store with its tables inside. docs/looks.md describes it. The keys that a
/// look shares with a preset of a catalogue are in CatalogueKeys.
struct LookFormat
{
    static constexpr char Name[] = "lumetra-look";
    static constexpr int Version = 1;
    static constexpr char Suffix[] = "lumetra";      ///< of files with looks
    static constexpr char EntryName[] = "look.json"; ///< of the text in a zip archive

    // Keys at the top.
    static constexpr char KeyFormat[] = "format";
    static constexpr char KeyVersion[] = "version";
    static constexpr char KeyLooks[] = "looks";

    // Keys of a look.
    static constexpr char KeyPreview[] = "preview";
    static constexpr char KeyMediaType[] = "mediaType"; ///< "image/jpeg" or "image/png"
    static constexpr char KeyData[] = "data";           ///< base64

    static constexpr int MostLooks = 1000;            ///< in one file
    static constexpr int LargestPreview = 256 * 1024; ///< bytes
    static constexpr int LongestCredit = 200;         ///< characters of author and licence
    /// Bytes of a text up to which files are plain; longer ones are packed.
    static constexpr qint64 LargestPlainText = 64 * 1024;
};

} // namespace LumetraPlugin
