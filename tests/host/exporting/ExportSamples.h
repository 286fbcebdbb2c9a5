// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/Export.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QByteArray>

#include <vector>

namespace LumetraTest {

using Packages = std::vector<Zorvik::Quindle::EffectsSettings>;

/// A JPEG file of a pattern, with this profile.
LumetraHost::Bytes MakeJpeg(int width, int height, const QByteArray& profile = {});
/// The file with EXIF, IPTC and XMP data that say this orientation.
LumetraHost::Bytes AddTags(const LumetraHost::Bytes& jpeg, int orientation);

Packages MakeColours();
Packages MakeNeighbours();
/// Packages of both kinds one on the other, some of which change nothing.
Packages MakeLayers();
/// A run of colours that a table may stand for.
Packages MakeColourRun();
/// A run of colours before effects that no table can stand for.
Packages MakeMixedRun();

LumetraHost::ExportRecipe
MakeRecipe(const Packages& packages,
           LumetraHost::PhotoFormat format = LumetraHost::PhotoFormat::Jpeg);

/// An exported file with all warnings.
struct Converted
{
    LumetraHost::Bytes file;
    LumetraHost::Warnings warnings;
};

Converted Join(const LumetraHost::Export::Result& result);
/// Exports as the tool does: from the bytes of the file.
Converted Convert(const LumetraHost::Bytes& content, const LumetraHost::ExportRecipe& recipe,
                  int threads = 2);
Converted Convert(const LumetraHost::Bytes& content, const Packages& packages, int threads = 2,
                  LumetraHost::PhotoFormat format = LumetraHost::PhotoFormat::Jpeg);
/// Exports as the editor does: the photo that was read before.
Converted ConvertPhoto(const LumetraHost::Bytes& content, const LumetraHost::ExportRecipe& recipe);
/// True when the file is decoded in bands.
bool CanStream(const LumetraHost::Bytes& content);

} // namespace LumetraTest
