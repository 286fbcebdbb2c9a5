// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueSchema.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "storage/JsonDocument.h"
#include "storage/JsonWriter.h"

#include <set>
#include <vector>

namespace LumetraTools {
namespace {

using LumetraHost::JsonDocument;
using LumetraHost::JsonWriter;
using Zorvik::Quindle::EffectDescriptor;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;

constexpr char Head[] = R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "$id": "https://lumetra.org/schema/catalogue-1.json",
  "title": "Catalogue of presets",
  "type": "object",
  "required": ["format", "version"],
  "additionalProperties": false,
  "properties": {
    "$schema": { "type": "string" },
    "format": { "const": "lumetra-catalogue" },
    "version": { "const": 1 },
    "defaultSettings": {
      "description": "The extra sliders that presets offer. An array, or an object by name.",
      "type": ["array", "object"],
      "if": { "type": "array" },
      "then": { "items": { "$ref": "#/$defs/slider" } },
      "else": { "additionalProperties": { "$ref": "#/$defs/slider" } }
    },
    "groups": {
      "description": "An array, or an object by name.",
      "type": ["array", "object"],
      "if": { "type": "array" },
      "then": { "items": { "allOf": [{ "$ref": "#/$defs/group" }], "required": ["name"] } },
      "else": { "additionalProperties": { "$ref": "#/$defs/group" } }
    }
  },
  "$defs": {
    "group": {
      "type": "object",
      "additionalProperties": false,
      "properties": {
        "name": { "type": "string", "minLength": 1, "description": "What the panel shows." },
        "names": { "$ref": "#/$defs/names" },
        "settings": { "$ref": "#/$defs/groupSettings" },
        "items": {
          "type": ["array", "object"],
          "if": { "type": "array" },
          "then": { "items": { "$ref": "#/$defs/preset" } },
          "else": { "additionalProperties": { "$ref": "#/$defs/preset" } }
        }
      }
    },
    "names": {
      "description": "The name in other languages, such as \"de\" or \"pt-BR\".",
      "type": "object",
      "propertyNames": { "pattern": "^[a-z]{2,3}(-[A-Z][a-z]{3})?(-([A-Z]{2}|[0-9]{3}))?$" },
      "additionalProperties": { "type": "string", "minLength": 1 }
    },
    "groupSettings": {
      "type": "object",
      "additionalProperties": false,
      "properties": {
        "editable": { "const": false },
        "controller": { "enum": ["", "photo"] },
        "appStoreId": {
          "type": "object",
          "additionalProperties": false,
          "properties": { "id": { "type": "string" } }
        },
        "intensity": { "$ref": "#/$defs/intensity" }
      }
    },
    "preset": {
      "type": "object",
      "required": ["name"],
      "additionalProperties": false,
      "properties": {
        "name": { "type": "string", "minLength": 1, "description": "What the panel shows." },
        "names": { "$ref": "#/$defs/names" },
        "id": { "type": "string", "minLength": 1,
                "description": "One of its own among all catalogues. Never change it again." },
        "popular": { "type": "boolean", "default": false },
        "controller": { "enum": ["", "photo"] },
        "image": { "type": "string" },
        "resource": { "type": "string", "description": "The file that brings the effects later." },
        "author": { "type": "string", "description": "Who has made the look." },
        "licence": { "type": "string", "description": "What others may do with it." },
        "previewCropPolicy": { "enum": [0, 1], "default": 1,
                               "description": "0: the whole photo, 1: its centre." },
        "previewFitPolicy": { "enum": [0, 1], "default": 0,
                              "description": "0: scaled to its place, 1: never enlarged." },
        "intensity": { "$ref": "#/$defs/intensity" },
        "sliders": {
          "description": "Extra sliders in place of those that all presets offer.",
          "type": "array", "items": { "$ref": "#/$defs/slider" }
        },
        "settings": { "$ref": "#/$defs/effectsHolder" },
        "settingsPreview": { "$ref": "#/$defs/effectsHolder" },
        "effects": { "$ref": "#/$defs/effects" }
      }
    },
    "intensity": {
      "type": "object",
      "required": ["type"],
      "additionalProperties": false,
      "properties": {
        "type": { "enum": [0, 1, 2], "description": "0: none, 1: blending, 2: slider." },
        "intensityNone": true,
        "blendSetting": { "$ref": "#/$defs/blending" },
        "sliderSetting": { "$ref": "#/$defs/slider" }
      },
      "allOf": [
        { "if": { "required": ["type"], "properties": { "type": { "const": 1 } } },
          "then": { "required": ["blendSetting"] } },
        { "if": { "required": ["type"], "properties": { "type": { "const": 2 } } },
          "then": { "required": ["sliderSetting"] } }
      ]
    },
    "blending": {
      "type": "object",
      "required": ["value"],
      "additionalProperties": false,
      "properties": {
        "value": { "type": "integer", "minimum": 1, "maximum": 100,
                   "description": "Where the slider starts; 100 is the whole effect." },
        "begin": { "type": "integer", "minimum": 1, "maximum": 255, "default": 1 },
        "end": { "type": "integer", "minimum": 1, "maximum": 255, "default": 255 }
      }
    },
    "slider": {
      "type": "object",
      "required": ["variables"],
      "additionalProperties": false,
      "properties": {
        "title": { "type": "string" },
        "begin": { "type": "integer" },
        "end": { "type": "integer" },
        "variables": {
          "type": ["array", "object"],
          "minItems": 1, "minProperties": 1,
          "if": { "type": "array" },
          "then": { "items": { "$ref": "#/$defs/variable" } },
          "else": { "additionalProperties": { "$ref": "#/$defs/variable" } }
        }
      }
    },
    "effectsHolder": {
      "type": "object",
      "required": ["effects"],
      "additionalProperties": false,
      "properties": { "effects": { "$ref": "#/$defs/effects" } }
    },
    "effects": {
      "type": ["array", "object"],
      "minItems": 1, "minProperties": 1,
      "if": { "type": "array" },
      "then": { "items": { "$ref": "#/$defs/effectElement" } },
      "else": { "additionalProperties": { "$ref": "#/$defs/effectElement" } }
    },
    "effectElement": {
      "type": "object",
      "required": ["effect"],
      "additionalProperties": false,
      "properties": { "effect": { "$ref": "#/$defs/effect" } }
    },
)";

using Descriptors = std::vector<std::shared_ptr<const EffectDescriptor>>;

/// A list of elements with commas between them.
class List
{
public:
    void Add(const std::string& element) { m_text += (m_text.empty() ? "" : ",") + element; }
    std::string InBrackets() const { return "[" + m_text + "]"; }
    std::string InBraces() const { return "{" + m_text + "}"; }

private:
    std::string m_text;
};

std::string Quote(const std::string& text)
{
    return JsonWriter::Quote(text);
}

Descriptors FindDescriptors()
{
    Descriptors descriptors;
    for (const std::string& id : EffectRegistry::GetEffectIDs())
        descriptors.push_back(EffectRegistry::Find(id));
    return descriptors;
}

std::string EffectIDs(const Descriptors& descriptors)
{
    List ids;
    for (const auto& descriptor : descriptors)
        ids.Add(Quote(descriptor->effectID));
    return ids.InBrackets();
}

std::string ParameterNames(const EffectDescriptor& descriptor)
{
    List names;
    for (const EffectParameter& parameter : descriptor.parameters)
        names.Add(Quote(parameter.name));
    return names.InBrackets();
}

std::string ParameterText(const EffectParameter& parameter)
{
    std::string text = Quote(parameter.name) + ": { \"type\": \"number\", \"minimum\": " +
                       JsonWriter::NumberText(parameter.minimum) +
                       ", \"maximum\": " + JsonWriter::NumberText(parameter.maximum) +
                       ", \"default\": " + JsonWriter::NumberText(parameter.defaultValue);
    if (!parameter.unit.empty())
        text += ", \"description\": " + Quote("Unit: " + parameter.unit);
    return text + " }";
}

/// The table of "lut3d" as a file, which must lie inside the catalogue's folder.
constexpr char FileText[] = R"json("file": { "type": "string", "minLength": 1,
    "pattern": "^(?!/)(?!(.*/)?\\.\\.(/|$))",
    "description": "A file of a look-up table, from the catalogue's folder." })json";

/// The schema of an effect. Effects may read more than numbers, but an unknown number is a mistake.
std::string EffectText(const EffectDescriptor& descriptor)
{
    List properties;
    properties.Add("\"id\": { \"const\": " + Quote(descriptor.effectID) + " }");
    for (const EffectParameter& parameter : descriptor.parameters)
        properties.Add(ParameterText(parameter));
    if (descriptor.effectID == LumetraHost::Lut3dParameters::EffectId)
        properties.Add(FileText);
    return Quote("effect-" + descriptor.effectID) + ": { \"properties\": " + properties.InBraces() +
           ", \"additionalProperties\": { \"type\": "
           "[\"array\", \"boolean\", \"null\", \"object\", \"string\"] } }";
}

std::string IfIs(const std::string& key, const std::string& effectID, const std::string& then)
{
    return "{ \"if\": { \"required\": [\"" + key + "\"], \"properties\": { \"" + key +
           "\": { \"const\": " + Quote(effectID) + " } } }, \"then\": " + then + " }";
}

std::string AnyEffectText(const Descriptors& descriptors)
{
    List cases;
    for (const auto& descriptor : descriptors)
        cases.Add(IfIs("id", descriptor->effectID,
                       "{ \"$ref\": " + Quote("#/$defs/effect-" + descriptor->effectID) + " }"));
    return R"("effect": { "type": "object", "required": ["id"],
        "properties": { "id": { "enum": )" +
           EffectIDs(descriptors) + " } }, \"allOf\": " + cases.InBrackets() + " }";
}

std::string VariableText(const Descriptors& descriptors)
{
    List cases;
    List all;
    std::set<std::string> names;
    for (const auto& descriptor : descriptors) {
        cases.Add(IfIs("effectID", descriptor->effectID,
                       "{ \"properties\": { \"setting\": { \"enum\": " +
                           ParameterNames(*descriptor) + " } } }"));
        for (const EffectParameter& parameter : descriptor->parameters)
            names.insert(parameter.name);
    }
    for (const std::string& name : names)
        all.Add(Quote(name));
    return R"("variable": { "type": "object", "required": ["setting", "begin", "end"],
        "additionalProperties": false, "properties": {
        "effectID": { "description": "Default: the slider's own name.", "enum": )" +
           EffectIDs(descriptors) + " }, \"setting\": { \"enum\": " + all.InBrackets() +
           R"( }, "begin": { "type": "number" }, "end": { "type": "number" } }, "allOf": )" +
           cases.InBrackets() + " }";
}

} // namespace

std::string CatalogueSchema::ToText()
{
    const Descriptors descriptors = FindDescriptors();
    std::string text = Head + AnyEffectText(descriptors) + "," + VariableText(descriptors);
    for (const auto& descriptor : descriptors)
        text += "," + EffectText(*descriptor);
    const JsonDocument schema =
        JsonDocument::Parse(QByteArray::fromStdString(text + "}}"), "the schema");
    return schema.ToText().toStdString();
}

} // namespace LumetraTools
