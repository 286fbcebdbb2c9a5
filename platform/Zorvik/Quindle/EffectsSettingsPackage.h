// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <string>

namespace Zorvik::Quindle {

/// Names the layer of the drawer that a set of effects belongs to. It is a plain value that starts
/// with empty names and without an index.
class ZORVIKPLATFORM_EXPORT EffectsSettingsPackage
{
public:
    static constexpr unsigned NoIndex = 0xFFFFFFFF;

    /// The package name is the layer's own. All presets of one panel share it, so that applying one
    /// replaces another.
    const std::string& GetPackageName() const;
    void SetPackageName(const std::string& name);

    /// The preset name tells which preset was drawn into the layer; the library puts the preset's
    /// ID here, not the name that the user sees.
    const std::string& GetPresetName() const;
    void SetPresetName(const std::string& name);

    /// The index is the layer's number in the drawer, which counts upwards; 0xFFFFFFFF means that
    /// there is none yet, and the drawer then chooses one.
    unsigned GetIndex() const;
    void SetIndex(unsigned index);

private:
    std::string m_packageName;
    std::string m_presetName;
    unsigned m_index = NoIndex;
};

} // namespace Zorvik::Quindle
