// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/EffectsChecker.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/NearestName.h"
#include "catalogue/TableFolder.h"
#include "engine/base/IStoredElsewhere.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "storage/ErrorText.h"
#include "storage/JsonWriter.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <limits>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectDescriptor;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::IEffectSettings;

constexpr const auto& FileKey = Lut3dSettings::KeyFile;

std::vector<std::string> ParameterNames(const EffectDescriptor& descriptor)
{
    std::vector<std::string> names;
    for (const EffectParameter& parameter : descriptor.parameters)
        names.push_back(parameter.name);
    return names;
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text.empty() ? "none" : text;
}

std::string UnknownEffect(const std::string& effectID)
{
    return "expected a known effect, found \"" + effectID + "\"" +
           DidYouMean(effectID, EffectRegistry::GetEffectIDs());
}

std::string UnknownParameter(const EffectDescriptor& descriptor, const std::string& name)
{
    const std::vector<std::string> names = ParameterNames(descriptor);
    return "expected a parameter of the effect \"" + descriptor.effectID + "\" (" + Listed(names) +
           "), found \"" + name + "\"" + DidYouMean(name, names);
}

const EffectParameter* FindParameter(const EffectDescriptor& descriptor, const std::string& name)
{
    const auto& all = descriptor.parameters;
    const auto found =
        std::find_if(all.begin(), all.end(), [&name](const auto& p) { return p.name == name; });
    return found == all.end() ? nullptr : &*found;
}

void WarnUnlessWithin(const CheckedNode& node, const std::string& key,
                      const EffectParameter& parameter, double value)
{
    if (value < parameter.minimum || value > parameter.maximum)
        node.WarningAt(key, "expected a number from " + JsonWriter::NumberText(parameter.minimum) +
                                " to " + JsonWriter::NumberText(parameter.maximum) + ", found " +
                                JsonWriter::NumberText(value));
}

/// True when there is nothing but the id and numbers in their places.
bool CheckKeys(const CheckedNode& effect, const EffectDescriptor& descriptor)
{
    bool isPlain = true;
    for (const auto& [key, value] : effect.GetObject().GetMembers()) {
        if (key == IEffectSettings::KEY_EFFECT_ID)
            continue;
        const EffectParameter* const parameter = FindParameter(descriptor, key);
        const auto* const number = value.As<JsonNumber>();
        if (parameter && number)
            WarnUnlessWithin(effect, key, *parameter, number->value);
        else if (parameter)
            effect.Number(key);
        else if (number)
            effect.ErrorAt(key, UnknownParameter(descriptor, key));
        isPlain = isPlain && parameter && number;
    }
    return isPlain;
}

bool HasTable(const CheckedNode& effect)
{
    return effect.Has(Lut3dSettings::KeyCurve) || effect.Has(Lut3dSettings::KeyCube);
}

/// Puts the tables of the named file into the effect's values, from which presets are read. No node
/// below the effect has been taken yet that new members could disturb. Files of the user's presets
/// name no files: they hold their tables themselves.
void TakeTables(const CheckedNode& effect, const std::string& name)
{
    const TableFolder* const folder = effect.GetTables();
    if (!folder)
        return effect.ErrorAt(FileKey, "expected the table itself, as \"" +
                                           std::string(Lut3dSettings::KeyCurve) + "\" or \"" +
                                           Lut3dSettings::KeyCube + "\", found the name of a file");
    if (HasTable(effect))
        return effect.ErrorAt(FileKey, "expected either the name of a file or the table itself, "
                                       "found both");
    try {
        const auto found = folder->Read(name);
        dynamic_cast<const Lut3dSettings&>(*found).WriteTables(effect.GetSerializer());
    } catch (const std::exception& error) {
        effect.ErrorAt(FileKey, ErrorText::FirstLine(error));
    }
}

void CheckTables(const CheckedNode& effect)
{
    if (const auto name = effect.Text(FileKey))
        TakeTables(effect, *name);
    else if (!effect.Has(FileKey) && !HasTable(effect))
        effect.Warning("expected a table, \"" + std::string(Lut3dSettings::KeyCurve) + "\", \"" +
                       Lut3dSettings::KeyCube + "\" or \"" + FileKey +
                       "\", found none: the effect changes nothing");
}

/// Lets effects that are more than numbers read the node: they know best what they can read.
void CheckByReading(const CheckedNode& effect)
{
    try {
        const auto node = effect.GetSerializer();
        const auto settings = IEffectSettings::CreateEffectSettings(node);
        static_cast<Zorvik::Brassel::ISerializable&>(*settings).Deserialize(node);
        const auto* elsewhere = dynamic_cast<const IStoredElsewhere*>(settings.get());
        const std::string problem =
            elsewhere ? elsewhere->FindProblem(ContentCheck::Content) : std::string();
        if (!problem.empty())
            effect.Error(Zorvik::Exception(problem, BOOST_CURRENT_FUNCTION,
                                           "catalogue/EffectsChecker", __LINE__));
    } catch (const std::exception& error) {
        effect.Error(error);
    }
}

std::string CheckEffect(const CheckedNode& effect)
{
    const auto effectID = effect.Text(IEffectSettings::KEY_EFFECT_ID);
    if (!effectID) {
        if (!effect.Has(IEffectSettings::KEY_EFFECT_ID))
            effect.Error("expected the effect's \"id\", found none");
        return {};
    }
    const auto descriptor = EffectRegistry::Find(*effectID);
    if (!descriptor) {
        effect.ErrorAt(IEffectSettings::KEY_EFFECT_ID, UnknownEffect(*effectID));
        return *effectID;
    }
    const std::size_t errorCount = effect.GetReports().GetErrorCount();
    const bool isPlain = CheckKeys(effect, *descriptor);
    if (*effectID == Lut3dParameters::EffectId)
        CheckTables(effect);
    const bool readsMore = descriptor->create || !isPlain; // than what has just been checked
    if (readsMore && effect.GetReports().GetErrorCount() == errorCount)
        CheckByReading(effect);
    return *effectID;
}

void AddID(std::set<std::string>& ids, const CheckedNode& effect, const std::string& effectID)
{
    if (!ids.insert(effectID).second && !effectID.empty())
        effect.WarningAt(IEffectSettings::KEY_EFFECT_ID,
                         "expected each effect once, found \"" + effectID +
                             "\" again: sliders move the first one only");
}

} // namespace

std::set<std::string> EffectsChecker::Check(const CheckedNode& holder)
{
    std::set<std::string> ids;
    const std::size_t errorCount = holder.GetReports().GetErrorCount();
    const auto elements = holder.Elements(IEffectSettings::EFFECTS);
    for (const CheckedNode& element : elements) {
        element.NoteUnknownKeys({IEffectSettings::EFFECT});
        if (const auto effect = element.Node(IEffectSettings::EFFECT))
            AddID(ids, *effect, CheckEffect(*effect));
        else if (!element.Has(IEffectSettings::EFFECT))
            element.Error("expected a node \"effect\", found none");
    }
    if (elements.empty() && holder.GetReports().GetErrorCount() == errorCount)
        holder.Warning("expected at least one effect, found none");
    return ids;
}

void EffectsChecker::CheckParameter(const CheckedNode& node, const std::string& key,
                                    const std::string& effectID, const std::string& parameter)
{
    const auto descriptor = EffectRegistry::Find(effectID);
    if (!descriptor)
        node.ErrorAt(key, UnknownEffect(effectID));
    else if (!FindParameter(*descriptor, parameter))
        node.ErrorAt(key, UnknownParameter(*descriptor, parameter));
}

void EffectsChecker::CheckRange(const CheckedNode& node, const std::string& key,
                                const std::string& effectID, const std::string& parameter)
{
    const auto descriptor = EffectRegistry::Find(effectID);
    const auto* const found = descriptor ? FindParameter(*descriptor, parameter) : nullptr;
    if (const auto value = node.Number(key); value && found)
        WarnUnlessWithin(node, key, *found, *value);
}

std::optional<double> EffectsChecker::FindValue(const CheckedNode& holder,
                                                const std::string& effectID,
                                                const std::string& parameter)
{
    const auto descriptor = EffectRegistry::Find(effectID);
    const auto* const found = descriptor ? FindParameter(*descriptor, parameter) : nullptr;
    if (!found)
        return std::nullopt;
    for (const CheckedNode& element : holder.Elements(IEffectSettings::EFFECTS))
        if (const auto effect = element.Node(IEffectSettings::EFFECT))
            if (effect->Text(IEffectSettings::KEY_EFFECT_ID) == effectID)
                return effect->Number(parameter).value_or(found->defaultValue);
    return std::nullopt;
}

double EffectsChecker::GetWidth(const std::string& effectID, const std::string& parameter)
{
    const auto descriptor = EffectRegistry::Find(effectID);
    const auto* const found = descriptor ? FindParameter(*descriptor, parameter) : nullptr;
    return found ? found->maximum - found->minimum : std::numeric_limits<double>::infinity();
}

} // namespace LumetraHost
