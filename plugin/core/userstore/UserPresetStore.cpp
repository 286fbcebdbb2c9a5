// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserPresetStore.h"

#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "core/PresetController.h"
#include "core/userstore/StoreTables.h"
#include "core/userstore/UserStoreFormat.h"
#include "core/userstore/UserStoreMerge.h"
#include "storage/ErrorText.h"
#include "storage/JsonException.h"
#include "storage/JsonSerializer.h"

#include <QStandardPaths>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonDocument;
using LumetraHost::JsonObject;
using LumetraHost::JsonPlace;
using LumetraHost::JsonSerializer;
using LumetraHost::JsonValue;
using Format = UserStoreFormat;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

JsonValue MakeValue(JsonValue::Content content)
{
    return JsonValue(std::move(content));
}

/// "file:line:column: path: message".
std::string Report(const JsonDocument& document, const JsonValue& value, const std::string& path,
                   const std::string& message)
{
    const JsonPlace place{document.GetName(), value.line, value.column};
    return place.ToText() + ": " + path + ": " + message;
}

bool IsTextOrAbsent(const JsonObject& object, const char* key)
{
    const JsonValue* value = object.Find(key);
    return !value || value->As<std::string>();
}

/// The list under `key` in `object`; another value in its place is reported.
JsonValue::Array FindList(const JsonDocument& document, const JsonObject& object, const char* key,
                          const std::string& path, std::vector<std::string>& reports)
{
    const JsonValue* value = object.Find(key);
    if (!value)
        return nullptr;
    const auto* list = value->As<JsonValue::Array>();
    if (!list)
        reports.push_back(
            Report(document, *value, path,
                   std::string("expected collection, found ") + value->GetKindName()));
    return list ? *list : nullptr;
}

} // namespace

UserPresetStore::UserPresetStore(
    const QString& path,
    std::shared_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory> factory)
    : m_file(path, UserStoreFormat::GetForm()), m_factory(std::move(factory)),
      m_seen(path.toStdString()), m_remembered(path.toStdString())
{
}

UserPresetStore::~UserPresetStore() = default;

QString UserPresetStore::GetDefaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lumetra/presets.json");
}

/// Lets a controller read the entry as the model will: one that throws would take all the others
/// with it.
bool UserPresetStore::TryPreset(const JsonValue& element, std::size_t index,
                                std::vector<std::string>* reports) const
{
    const std::string path =
        std::string(Format::Presets) + "/" + Format::Items + "[" + std::to_string(index) + "]";
    const auto refuse = [&](const std::string& message) {
        if (reports)
            reports->push_back(Report(m_seen, element, path, message));
        return false;
    };
    const auto* object = element.As<JsonValue::Object>();
    if (!object)
        return refuse(std::string("expected node, found ") + element.GetKindName());
    try {
        const auto node =
            JsonSerializer::Create(*object, m_seen.GetName(), path, {}, m_file.GetContents());
        const auto controller = m_factory->CreateController(node->Get(ConfigData::CONTROLLER, ""));
        static_cast<Zorvik::Brassel::ISerializable&>(*controller).Deserialize(node);
        controller->InitIntensity(node->GetNode(ConfigData::INTENSITY));
        const auto* preset = dynamic_cast<const PresetController*>(controller.get());
        if (reports && preset && !preset->GetIntensityRemark().empty())
            reports->push_back(
                Report(m_seen, element, path + "/intensity", preset->GetIntensityRemark()));
        return true;
    } catch (const LumetraHost::JsonException& error) {
        if (reports)
            reports->push_back(error.GetPlace().ToText() + ": " + error.what());
        return false;
    } catch (const std::exception& error) {
        return refuse(LumetraHost::ErrorText::FirstLine(error));
    }
}

JsonValue::Array UserPresetStore::CollectPresets(const JsonDocument& document)
{
    const auto presets = std::make_shared<LumetraHost::JsonArray>();
    const JsonObject* holder = document.GetObject().get();
    std::string path = Format::Items;
    if (const JsonValue* value = holder->Find(Format::Presets)) {
        const auto* node = value->As<JsonValue::Object>();
        if (!node) {
            m_reports.push_back(
                Report(document, *value, Format::Presets,
                       std::string("expected node, found ") + value->GetKindName()));
            return presets;
        }
        holder = node->get();
        path = std::string(Format::Presets) + "/" + path;
    }
    const auto list = FindList(document, *holder, Format::Items, path, m_reports);
    for (std::size_t i = 0; list && i < list->elements.size(); ++i)
        if (TryPreset(list->elements[i], i, &m_reports))
            presets->elements.push_back(list->elements[i]);
    return presets;
}

JsonValue::Array UserPresetStore::CollectMarks(const JsonDocument& document)
{
    const auto marks = std::make_shared<LumetraHost::JsonArray>();
    const auto list = FindList(document, *document.GetObject(), Format::Favourites,
                               Format::Favourites, m_reports);
    for (std::size_t i = 0; list && i < list->elements.size(); ++i) {
        const JsonValue& element = list->elements[i];
        const auto* mark = element.As<JsonValue::Object>();
        if (mark && IsTextOrAbsent(**mark, Format::Group) && IsTextOrAbsent(**mark, Format::ID))
            marks->elements.push_back(element);
        else
            m_reports.push_back(Report(
                document, element, std::string(Format::Favourites) + "[" + std::to_string(i) + "]",
                "expected a node with the texts \"group\" and \"id\""));
    }
    return marks;
}

Zorvik::Brassel::ConstSerializerPtr UserPresetStore::Load()
{
    m_seen = m_file.Read();
    m_reports = m_file.GetReports();

    const auto holder = std::make_shared<JsonObject>();
    holder->Set(Format::Items, MakeValue(CollectPresets(m_seen)));
    const auto usable = std::make_shared<JsonObject>();
    usable->Set(Format::Presets, MakeValue(holder));
    usable->Set(Format::Favourites, MakeValue(CollectMarks(m_seen)));
    return JsonSerializer::Create(usable, m_seen.GetName(), m_file.GetContents());
}

/// Writes the model; tables that this store keeps already are written by their names.
JsonDocument UserPresetStore::Write(const EffectPresetModel& model) const
{
    JsonDocument state(m_seen.GetName());
    state.SetContents(m_file.GetContents());
    model.Serialize(state.GetRoot());
    return state;
}

void UserPresetStore::Remember(const EffectPresetModel& model)
{
    m_remembered = Write(model);
}

std::vector<std::string> UserPresetStore::Save(const EffectPresetModel& model)
{
    const JsonDocument state = Write(model);
    const UserStoreMerge merge(
        [this](const JsonValue& element) { return TryPreset(element, 0, nullptr); });
    // The merge compares tables by the names of their files.
    StoreTables tables;
    for (const JsonDocument& document : {m_remembered, state, m_seen})
        tables.TakeOut(*document.GetObject());
    const auto edit = [&](JsonObject& current) {
        tables.TakeOut(current);
        return merge.Apply(*m_remembered.GetObject(), *state.GetObject(), *m_seen.GetObject(),
                           current);
    };
    m_seen = m_file.Update(edit, tables.GetContents());
    m_remembered = state;

    std::vector<std::string> news;
    for (const std::string& report : m_file.GetReports())
        if (std::find(m_reports.begin(), m_reports.end(), report) == m_reports.end())
            news.push_back(report);
    return news;
}

} // namespace LumetraPlugin
