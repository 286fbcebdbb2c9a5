// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"
#include "image/Image.h"
#include "image/PictureArea.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace LumetraTest {

using Rgb = std::array<double, 3>; ///< encoded, 0 to 1

/// A setting and its value, as they stand in a file.
using Setting = std::pair<std::string, std::string>;
using Settings = std::vector<Setting>;

/// Writes foreign looks by hand, in every spelling, reads them back and draws them.
class ForeignFixture : public testing::Test
{
protected:
    ForeignFixture();

    QString Write(const std::string& name, const QByteArray& content) const;

    /// A packet with the settings as attributes; a value "x, y; x, y" becomes a list.
    static QByteArray MakeXmp(const Settings& settings, const std::string& name = {});
    /// Makes the same settings as elements, under another prefix and without a wrapper.
    static QByteArray MakeElements(const Settings& settings);
    static QByteArray MakeTemplate(const Settings& settings);
    /// A profile: settings are named "Section/Key"; every section is on.
    static QByteArray MakeProfile(const Settings& settings);

    /// The look of a file with these settings; the test fails when it has none.
    LumetraPlugin::ImportedLook Import(const Settings& settings) const;
    LumetraPlugin::ImportedLook ImportProfile(const Settings& settings) const;
    LumetraPlugin::ImportedLook ImportFile(const std::string& name, const QByteArray& content,
                                           const LumetraPlugin::ImportOptions& options = {}) const;
    /// The message of the error that the file gives.
    std::string FindError(const std::string& name, const QByteArray& content) const;

    /// The look on a picture of 16 bits, which may be a part of a larger one.
    static LumetraHost::Image Draw(const LumetraHost::Image& picture,
                                   const LumetraPlugin::ImportedLook& look,
                                   const std::optional<LumetraHost::PictureArea>& area = {});
    /// Colours through the look.
    static std::vector<Rgb> Draw(const std::vector<Rgb>& colours,
                                 const LumetraPlugin::ImportedLook& look);
    Rgb DrawSetting(const Rgb& colour, const Settings& settings) const;

    /// Names of the settings that are remarked on in that way.
    static std::vector<std::string> GetRemarked(const LumetraPlugin::ImportedLook& look,
                                                LumetraPlugin::ImportRemark::Kind kind);
    /// "id name=value …" of each effect, numbers that are not the default.
    static std::string Describe(const LumetraPlugin::ImportedLook& look);

    static double Luma(const Rgb& colour);
    static double Chroma(const Rgb& colour);
    static double Hue(const Rgb& colour); ///< degrees

    QTemporaryDir folder;
};

} // namespace LumetraTest
