// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/SectionPlan.h"

#include <algorithm>
#include <iterator>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;

constexpr const char* Titles[SectionPlan::Sections] = {
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Light"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Colour"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Curve"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Mixer"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Grading"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Detail"),
    QT_TRANSLATE_NOOP("LumetraAdjust::SectionPlan", "Effects")};

struct Place
{
    const char* effectID;
    int section;
    bool startsShut = false;
};

constexpr Place Places[] = {{"exposure", 0},
                            {"contrast", 0},
                            {"toneRegions", 0},
                            {"whiteBalance", 1},
                            {"vibrance", 1},
                            {"saturation", 1},
                            {"toneCurve", 2},
                            {"parametricCurve", 2},
                            {"colourMixer", 3},
                            {"primaries", 3, true},
                            {"channelMixer", 3, true},
                            {"greyMixer", 3, true},
                            {"blackAndWhite", 3, true},
                            {"colourGrading", 4},
                            {"splitToning", 4, true},
                            {"liftGammaGain", 4, true},
                            {"dehaze", 5},
                            {"texture", 5},
                            {"clarity", 5},
                            {"sharpen", 5},
                            {"gaussianBlur", 6},
                            {"vignette", 6},
                            {"grain", 6}};

/// The end of the list for an effect without a place.
const Place* FindPlace(const std::string& effectID)
{
    return std::find_if(std::begin(Places), std::end(Places),
                        [&](const Place& place) { return effectID == place.effectID; });
}

} // namespace

int SectionPlan::Find(const std::string& effectID)
{
    const Place* const place = FindPlace(effectID);
    return place == std::end(Places) ? Sections - 1 : place->section;
}

QString SectionPlan::GetTitle(int section)
{
    return tr(Titles[section]);
}

void SectionPlan::Sort(std::vector<EffectDescription>& effects)
{
    std::stable_sort(effects.begin(), effects.end(),
                     [](const EffectDescription& a, const EffectDescription& b) {
                         return FindPlace(a.effectID) < FindPlace(b.effectID);
                     });
}

bool SectionPlan::StartsShut(const std::string& effectID)
{
    const Place* const place = FindPlace(effectID);
    return place != std::end(Places) && place->startsShut;
}

} // namespace LumetraAdjust
