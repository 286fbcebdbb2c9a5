// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookReader.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Exception.h"
#include "archive/ZipReader.h"
#include "catalogue/CatalogueKeys.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/GroupChecker.h"
#include "catalogue/LocalNames.h"
#include "catalogue/VisibleText.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetNames.h"
#include "core/looks/LookFormat.h"
#include "storage/JsonSerializer.h"

#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueReport;
using LumetraHost::CatalogueReports;
using LumetraHost::CheckedNode;
using LumetraHost::JsonDocument;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using LumetraHost::ZipEntry;
using LumetraHost::ZipReader;
using PresetPtr = PresetModel::PresetPtr;
using Keys = LumetraHost::CatalogueKeys;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Brassel::Settings::EffectInfo;

[[noreturn]] void Fail(const std::string& description)
{
    throw Zorvik::Exception(description, BOOST_CURRENT_FUNCTION, "looks/LookReader", __LINE__);
}

[[noreturn]] void FailWithFirst(const CatalogueReports& reports)
{
    Fail(reports.GetAll().front().ToText());
}

/// Throws unless the top says that this is a file of this version.
void CheckHeader(const CheckedNode& root)
{
    const auto format = root.Text(LookFormat::KeyFormat);
    if (format.value_or(std::string()) != LookFormat::Name)
        root.ErrorAt(LookFormat::KeyFormat, "expected a look, whose \"format\" is \"" +
                                                std::string(LookFormat::Name) + "\", found " +
                                                (format ? "\"" + *format + "\"" : "none"));
    else if (const auto version = root.Int(LookFormat::KeyVersion); version != LookFormat::Version)
        root.ErrorAt(LookFormat::KeyVersion,
                     "expected version " + std::to_string(LookFormat::Version) + ", found " +
                         (version ? std::to_string(*version) : "none") +
                         (version > LookFormat::Version ? ": made by a newer program" : ""));
    if (root.GetReports().GetErrorCount() != 0)
        FailWithFirst(root.GetReports());
}

/// The text under `key` if it can be shown in one line; empty, after an error, for another one.
std::string ReadCredit(const CheckedNode& look, const char* key)
{
    const std::string text = look.Text(key).value_or(std::string());
    const QString shown = QString::fromStdString(text);
    const bool fits =
        shown.size() <= LookFormat::LongestCredit && !LumetraHost::VisibleText::HasControls(shown);
    if (!fits)
        look.ErrorAt(key, "expected at most " + std::to_string(LookFormat::LongestCredit) +
                              " characters without control characters");
    return fits ? text : std::string();
}

/// The names in other languages; each one that cannot be used is an error of its own.
std::map<std::string, std::string> ReadNames(const CheckedNode& look)
{
    std::map<std::string, std::string> names;
    const auto node = look.Node(Keys::Names);
    if (!node)
        return names;
    for (const auto& member : node->GetObject().GetMembers()) {
        const std::string& language = member.first;
        const auto name = node->Text(language);
        const QString fault =
            name ? PresetNames::FindFault(QString::fromStdString(*name)) : QString();
        if (!LumetraHost::LocalNames::IsLanguage(language))
            node->ErrorAt(language, "expected a language such as \"de\" or \"pt-BR\"");
        else if (!fault.isEmpty())
            node->ErrorAt(language, fault.toStdString());
        else if (name)
            names[language] = QString::fromStdString(*name).trimmed().toStdString();
    }
    return names;
}

/// The preview is for other programs: it is only looked at, so that its fault is told.
void CheckPreview(const CheckedNode& look)
{
    const auto preview = look.Node(LookFormat::KeyPreview);
    if (!preview)
        return;
    const auto mediaType = preview->Text(LookFormat::KeyMediaType);
    if (mediaType != std::string("image/jpeg") && mediaType != std::string("image/png"))
        preview->ErrorAt(LookFormat::KeyMediaType,
                         "expected \"image/jpeg\" or \"image/png\", found " +
                             (mediaType ? "\"" + *mediaType + "\"" : "none"));
    const auto data = preview->Text(LookFormat::KeyData).value_or(std::string());
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray::fromStdString(data),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.isEmpty() ||
        decoded.decoded.size() > LookFormat::LargestPreview)
        preview->ErrorAt(LookFormat::KeyData, "expected a picture of 1 to " +
                                                  std::to_string(LookFormat::LargestPreview) +
                                                  " bytes in base64");
}

LookCredits ReadCredits(const CheckedNode& look)
{
    LookCredits credits;
    credits.names = ReadNames(look);
    credits.author = ReadCredit(look, Keys::Author);
    credits.licence = ReadCredit(look, Keys::Licence);
    CheckPreview(look);
    return credits;
}

/// The members of a look that make the preset, in their places.
JsonValue::Object WithoutCredits(const JsonObject& look)
{
    const auto preset = std::make_shared<JsonObject>();
    for (const auto& [key, value] : look.GetMembers())
        if (key != Keys::Names && key != Keys::Author && key != Keys::Licence && key != Keys::Id &&
            key != Keys::Popular && key != LookFormat::KeyPreview)
            preset->Set(key, value);
    return preset;
}

void AppendErrors(const CatalogueReports& reports, QStringList& problems)
{
    for (const CatalogueReport& report : reports.GetAll())
        if (report.severity == CatalogueReport::Severity::Error)
            problems.append(QString::fromStdString(report.ToText()));
}

/// A name that is too long for a preset is no fault here: whoever imports the look decides on it.
bool CheckName(const CheckedNode& look)
{
    const auto name = look.Text(EffectInfo::KEY_NAME);
    const QString start =
        QString::fromStdString(name.value_or("")).trimmed().left(PresetNames::MaxLength);
    const QString fault = PresetNames::FindFault(start);
    if (!fault.isEmpty())
        look.ErrorAt(EffectInfo::KEY_NAME, fault.toStdString());
    return fault.isEmpty();
}

/// Adds errors about the preset alone to those about its look.
void AddErrors(const CatalogueReports& reports, const CheckedNode& look)
{
    for (CatalogueReport report : reports.GetAll()) {
        if (report.severity != CatalogueReport::Severity::Error)
            continue;
        report.path = look.GetPath() + (report.path.empty() ? "" : "/" + report.path);
        if (report.place.line == 0)
            report.place = look.GetPlace();
        look.GetReports().Add(report);
    }
}

/// Null, after an error, for a look that cannot be used.
PresetPtr MakePreset(const CheckedNode& look, const std::string& file,
                     PresetControllerFactory& factory)
{
    if (look.Has(Keys::Resource)) {
        look.ErrorAt(Keys::Resource, "expected the look's effects, found the name of a file");
        return nullptr;
    }
    const JsonValue::Object stored = WithoutCredits(look.GetObject());
    CatalogueReports reports;
    const CheckedNode item(stored, file, reports);
    const bool fits = LumetraHost::GroupChecker(PresetControllerFactory::GetKinds())
                          .CheckPreset(item, std::nullopt);
    AddErrors(reports, look);
    if (!fits)
        return nullptr;
    try {
        const auto node = LumetraHost::JsonSerializer::Create(stored, file, look.GetPath(), {});
        const PresetPtr preset(dynamic_cast<PresetController*>(factory.CreateController({}).get()));
        static_cast<Zorvik::Brassel::ISerializable&>(*preset).Deserialize(node);
        preset->InitIntensity(node->GetNode(ConfigData::INTENSITY));
        return preset;
    } catch (const std::exception& error) {
        look.Error(error);
        return nullptr;
    }
}

/// A preset without a trace of the object that it was read with: with an id of its own.
PresetPtr ReadLook(const CheckedNode& look, const std::string& file,
                   PresetControllerFactory& factory)
{
    if (!CheckName(look))
        return nullptr;
    const LookCredits credits = ReadCredits(look);
    const PresetPtr read = MakePreset(look, file, factory);
    const PresetPtr preset = read ? read->Copy() : nullptr;
    if (preset) {
        preset->SetName(QString::fromStdString(read->GetName()).trimmed().toStdString());
        preset->SetCredits(credits);
        // Presets of the user have one name: that in the user's language.
        const QString shown = LumetraHost::LocalNames::Read(look.GetSerializer()).Find();
        if (PresetNames::FindFault(shown).isEmpty())
            preset->SetName(shown.trimmed().toStdString());
    }
    return preset;
}

} // namespace

bool LookReader::IsLookName(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String(LookFormat::Suffix),
                                            Qt::CaseInsensitive) == 0;
}

JsonDocument LookReader::ReadFile(const QString& path)
{
    if (!ZipReader::IsZip(path))
        return JsonDocument::Read(path);
    ZipReader archive(path);
    for (const ZipEntry& entry : archive.GetEntries())
        if (entry.name == QLatin1String(LookFormat::EntryName))
            return JsonDocument::Parse(archive.Read(entry), archive.NameOf(entry).toStdString());
    Fail(path.toStdString() + ": expected an entry \"" + LookFormat::EntryName + "\", found none");
}

std::vector<PresetPtr> LookReader::Read(const JsonDocument& document,
                                        PresetControllerFactory& factory, QStringList& problems)
{
    CatalogueReports reports;
    const CheckedNode root(document.GetObject(), document.GetName(), reports);
    CheckHeader(root);
    const auto looks = root.Elements(LookFormat::KeyLooks);
    if (looks.size() > LookFormat::MostLooks)
        root.ErrorAt(LookFormat::KeyLooks, "expected at most " +
                                               std::to_string(LookFormat::MostLooks) +
                                               " looks, found " + std::to_string(looks.size()));
    else if (looks.empty() && reports.GetErrorCount() == 0)
        root.ErrorAt(LookFormat::KeyLooks, "expected at least one look, found none");
    if (looks.empty() || looks.size() > LookFormat::MostLooks)
        FailWithFirst(reports);
    std::vector<PresetPtr> presets;
    for (const CheckedNode& look : looks)
        if (const PresetPtr preset = ReadLook(look, document.GetName(), factory))
            presets.push_back(preset);
    AppendErrors(reports, problems);
    return presets;
}

QStringList LookReader::FindLongNames(const JsonDocument& document)
{
    CatalogueReports all, longNames; // Read() tells the others
    const CheckedNode root(document.GetObject(), document.GetName(), all);
    for (const CheckedNode& look : root.Elements(LookFormat::KeyLooks)) {
        const QString name = QString::fromStdString(look.Text(EffectInfo::KEY_NAME).value_or(""));
        if (!PresetNames::IsTooLong(name))
            continue;
        look.ErrorAt(EffectInfo::KEY_NAME, PresetNames::FindFault(name).toStdString());
        longNames.Add(all.GetAll().back());
    }
    QStringList problems;
    AppendErrors(longNames, problems);
    return problems;
}

} // namespace LumetraPlugin
