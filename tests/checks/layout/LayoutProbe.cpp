// SPDX-License-Identifier: MIT
// Names the classes whose layout is checked, so that the compiler describes them. Never run.
#include "EffectPresets/EffectPresetControllerBase.h"
#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "Settings/BlendingSetting.h"
#include "Settings/IIntensitySettingsFactory.h"
#include "Settings/SliderSetting.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"
#include "widgets/IntensityWidget.h"
#include "widgets/NewPresetDialog.h"

using namespace Zorvik::Lumetra::LumetraPresets;

EffectPresetControllerBase* controller;
EffectPresetModel* model;
IEffectPresetControllerFactory* controllerFactory;
IIntensitySettingsFactory* intensityFactory;
BlendingSetting* blending;
SliderSetting* slider;
CustomToolBox* toolBox;
CustomToolBoxButton* header;
IntensityWidget* intensity;
NewPresetDialog* dialog;
