// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <string>

namespace Zorvik::Lumetra::LumetraPresets {

class IEffectPresetController;

/// Makes preset controllers. The host implements it and shares it with the model. What it throws
/// passes to the model's callers.
class LUMETRAPRESETSUTIL_EXPORT IEffectPresetControllerFactory
{
public:
    virtual ~IEffectPresetControllerFactory();

    /// Makes an empty preset, which the model then fills; never null. `kind` is the catalogue's
    /// controller kind; "" asks for the host's default kind. A kind that the host does not know is
    /// an exception of its own choice.
    virtual boost::intrusive_ptr<IEffectPresetController>
    CreateController(const std::string& kind) = 0;
    /// Makes a new preset, with an ID of its own, that starts from the settings of `source`; never
    /// null. The model calls it to save a preset under a new name, then names the copy, attaches it
    /// to the workspace and puts it into the user's group.
    virtual boost::intrusive_ptr<IEffectPresetController>
    CopyController(const boost::intrusive_ptr<IEffectPresetController>& source) = 0;

    IEffectPresetControllerFactory();
    IEffectPresetControllerFactory(const IEffectPresetControllerFactory& other);
    IEffectPresetControllerFactory& operator=(const IEffectPresetControllerFactory& other);
};

} // namespace Zorvik::Lumetra::LumetraPresets
