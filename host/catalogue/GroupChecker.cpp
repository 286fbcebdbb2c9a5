// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/GroupChecker.h"

#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "catalogue/CatalogueKeys.h"
#include "catalogue/EffectsChecker.h"
#include "catalogue/IntensityChecker.h"
#include "catalogue/LocalNames.h"
#include "catalogue/NearestName.h"
#include "catalogue/VisibleText.h"

#include <QDir>

namespace LumetraHost {
namespace {

using Keys = CatalogueKeys;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Brassel::Settings::EffectInfo;
using Zorvik::Quindle::IEffectSettings;

/// Reads everything that is not looked at further, only to see that it fits.
void CheckPlainKeys(const CheckedNode& item)
{
    item.NoteUnknownKeys({EffectInfo::KEY_NAME, Keys::Names, Keys::Id, Keys::Popular, Keys::Image,
                          Keys::CropPolicy, Keys::FitPolicy, EffectInfo::TAG_SETTINGS,
                          EffectInfo::TAG_SETTINGS_PREVIEW, IEffectSettings::EFFECTS,
                          ConfigData::INTENSITY, ConfigData::CONTROLLER, Keys::Resource,
                          Keys::Sliders, Keys::Author, Keys::Licence});
    item.Text(Keys::Author);
    item.Text(Keys::Licence);
    item.Bool(Keys::Popular);
    item.Text(Keys::Image);
    item.Int(Keys::CropPolicy);
    item.Int(Keys::FitPolicy);
}

/// Warns of control characters: such a name could act on a terminal, and no preset can be saved
/// under it.
void WarnOfControls(const CheckedNode& node, const char* key)
{
    const JsonValue* value = node.GetObject().Find(key);
    const auto* text = value ? value->As<std::string>() : nullptr;
    const QString name = text ? QString::fromStdString(*text) : QString();
    if (VisibleText::HasControls(name))
        node.WarningAt(key, "expected a text without control characters, found \"" +
                                VisibleText::Make(name).toStdString() + "\"");
}

/// Checks the translations of a name.
void CheckLocalNames(const CheckedNode& node)
{
    const auto names = node.Node(Keys::Names);
    if (!names)
        return;
    for (const auto& [language, value] : names->GetObject().GetMembers()) {
        if (!LocalNames::IsLanguage(language))
            names->WarningAt(language, "expected a language, such as \"de\", \"pt-BR\" or "
                                       "\"zh-Hant\", found \"" +
                                           language + "\": no program asks for it");
        const auto name = names->Text(language);
        if (name && QString::fromStdString(*name).trimmed().isEmpty())
            names->ErrorAt(language, "expected a name that is not empty");
        WarnOfControls(*names, language.c_str());
    }
}

/// Warns of a resource outside of its folder: resources are looked for inside it and nowhere else.
void WarnOfPlace(const CheckedNode& item, const std::string& resource)
{
    const QString place = QDir::cleanPath(QString::fromStdString(resource));
    if (!QDir::isRelativePath(place) || place.startsWith(QLatin1String("..")))
        item.WarningAt(Keys::Resource,
                       "expected a file inside the group's folder of resources, found \"" +
                           resource + "\"");
}

std::set<std::string> CheckEffects(const CheckedNode& item)
{
    if (const auto preview = item.Node(EffectInfo::TAG_SETTINGS_PREVIEW)) {
        preview->NoteUnknownKeys({IEffectSettings::EFFECTS});
        EffectsChecker::Check(*preview);
    }
    const auto settings = item.Node(EffectInfo::TAG_SETTINGS);
    if (!settings)
        return item.Has(EffectInfo::TAG_SETTINGS) ? std::set<std::string>()
                                                  : EffectsChecker::Check(item);
    settings->NoteUnknownKeys({IEffectSettings::EFFECTS});
    return EffectsChecker::Check(*settings);
}

} // namespace

GroupChecker::GroupChecker(const std::set<std::string>& controllerKinds,
                           std::vector<SliderParameters> sliders)
    : m_controllerKinds(controllerKinds), m_sliders(std::move(sliders))
{
}

std::optional<std::string> GroupChecker::CheckName(const CheckedNode& group)
{
    std::optional<std::string> name = group.Text(EffectInfo::KEY_NAME);
    if (!name && !group.Has(EffectInfo::KEY_NAME))
        name = group.GetName();
    if (name && name->empty()) {
        group.Error("expected the group's \"name\", found none");
        return std::nullopt;
    }
    WarnOfControls(group, EffectInfo::KEY_NAME);
    CheckLocalNames(group);
    if (name && !m_groupNames.insert(*name).second)
        group.WarningAt(EffectInfo::KEY_NAME,
                        "expected a name of its own, found \"" + *name + "\" again");
    return name;
}

void GroupChecker::CheckKind(const CheckedNode& node) const
{
    const auto kind = node.Text(ConfigData::CONTROLLER);
    if (!kind || m_controllerKinds.count(*kind) != 0)
        return;
    const std::vector<std::string> kinds(m_controllerKinds.begin(), m_controllerKinds.end());
    std::string message = "expected a kind of preset controller (";
    for (const std::string& known : kinds)
        message += (known == kinds.front() ? "\"" : ", \"") + known + "\"";
    node.ErrorAt(ConfigData::CONTROLLER,
                 message + "), found \"" + *kind + "\"" + DidYouMean(*kind, kinds));
}

void GroupChecker::CheckSettings(const CheckedNode& settings) const
{
    settings.NoteUnknownKeys({ConfigData::EDITABLE, ConfigData::APPSTOREID, ConfigData::CONTROLLER,
                              ConfigData::INTENSITY});
    if (settings.Bool(ConfigData::EDITABLE).value_or(false))
        settings.WarningAt(ConfigData::EDITABLE,
                           "expected false: an editable group takes the place of the user's "
                           "presets");
    if (const auto store = settings.Node(ConfigData::APPSTOREID)) {
        store->NoteUnknownKeys({Keys::Id});
        store->Text(Keys::Id);
    }
    CheckKind(settings);
    if (const auto intensity = settings.Node(ConfigData::INTENSITY))
        IntensityChecker::Check(*intensity);
}

/// A preset without an id has its name for one.
bool GroupChecker::TakeId(const CheckedNode& item)
{
    const std::string id = *item.Text(item.Has(Keys::Id) ? Keys::Id : EffectInfo::KEY_NAME);
    const auto [earlier, isNew] = m_ids.emplace(id, item);
    if (!isNew)
        item.ErrorAt(Keys::Id, "expected an id of its own, found \"" + id + "\" again (first at " +
                                   earlier->second.GetPlace().ToText() + ")");
    return isNew;
}

/// The extra sliders of a preset without errors: those that it lists, else the catalogue's.
std::vector<SliderParameters> GroupChecker::SlidersOf(const CheckedNode& item) const
{
    if (!item.Has(Keys::Sliders))
        return m_sliders;
    std::vector<SliderParameters> sliders;
    for (const CheckedNode& slider : item.Elements(Keys::Sliders))
        sliders.push_back(IntensityChecker::ReadParameters(slider));
    return sliders;
}

bool GroupChecker::CheckPreset(const CheckedNode& item,
                               const std::optional<CheckedNode>& groupIntensity) const
{
    const CatalogueReports& reports = item.GetReports();
    const std::size_t errorCount = reports.GetErrorCount();
    CheckPlainKeys(item);
    const auto name = item.Text(EffectInfo::KEY_NAME);
    if (name.value_or(std::string()).empty() && reports.GetErrorCount() == errorCount)
        item.Error("expected the preset's \"name\", found none");
    WarnOfControls(item, EffectInfo::KEY_NAME);
    WarnOfControls(item, Keys::Id);
    CheckLocalNames(item);
    const auto id = item.Text(Keys::Id);
    if (id && id->empty())
        item.ErrorAt(Keys::Id, "expected an id that is not empty");
    CheckKind(item);
    // A preset with a resource gets its effects from there, later.
    const auto resource = item.Text(Keys::Resource);
    const bool hasEffects = !resource || resource->empty();
    if (!hasEffects)
        WarnOfPlace(item, *resource);
    const std::set<std::string> effectIDs =
        hasEffects ? CheckEffects(item) : std::set<std::string>();
    const auto own = item.Node(ConfigData::INTENSITY);
    if (own)
        IntensityChecker::Check(*own);
    for (const CheckedNode& slider : item.Elements(Keys::Sliders))
        IntensityChecker::CheckSlider(slider);
    const auto& intensity = own ? own : groupIntensity;
    if (intensity && hasEffects && reports.GetErrorCount() == errorCount) {
        IntensityChecker::CheckEffects(*intensity, item, effectIDs);
        IntensityChecker::CheckStart(*intensity, item,
                                     item.Node(EffectInfo::TAG_SETTINGS).value_or(item));
        IntensityChecker::CheckSharing(*intensity, item, effectIDs, SlidersOf(item));
    }
    return reports.GetErrorCount() == errorCount;
}

std::optional<CheckedGroup> GroupChecker::Check(const CheckedNode& group)
{
    const std::size_t errorCount = group.GetReports().GetErrorCount();
    group.NoteUnknownKeys(
        {EffectInfo::KEY_NAME, Keys::Names, EffectInfo::TAG_SETTINGS, ConfigData::ITEMS});
    const auto name = CheckName(group);
    const auto settings = group.Node(EffectInfo::TAG_SETTINGS);
    if (settings)
        CheckSettings(*settings);
    const bool isGood = name && group.GetReports().GetErrorCount() == errorCount;

    std::optional<CheckedNode> intensity;
    if (isGood && settings)
        intensity = settings->Node(ConfigData::INTENSITY);
    std::vector<CheckedNode> items;
    for (const CheckedNode& item : group.Elements(ConfigData::ITEMS))
        if (CheckPreset(item, intensity) && TakeId(item))
            items.push_back(item);
    if (!isGood)
        return std::nullopt;
    return CheckedGroup{*name, group, settings, items};
}

} // namespace LumetraHost
