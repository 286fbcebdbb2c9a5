// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugin/core/foreign/ForeignFixture.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "core/foreign/ForeignImport.h"
#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

namespace LumetraTest {
namespace {

using LumetraHost::Image;
using LumetraPlugin::ImportedLook;
using LumetraPlugin::ImportRemark;

constexpr char CameraRaw[] = "http://ns.adobe.com/camera-raw-settings/1.0/";

bool IsList(const Setting& setting)
{
    return setting.second.find(',') != std::string::npos;
}

std::string Replace(std::string text, char from, char to)
{
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

std::string Quote(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string ListElement(const std::string& name, const std::string& list)
{
    std::string items;
    std::istringstream stream(list);
    for (std::string item; std::getline(stream, item, ';');)
        items += "<rdf:li>" + item + "</rdf:li>";
    return "<" + name + "><rdf:Seq>" + items + "</rdf:Seq></" + name + ">\n";
}

/// The nested look stands as a structure.
std::string LookElement(const std::string& prefix, const std::string& name)
{
    return "<" + prefix + ":Look><rdf:Description " + prefix + ":Name=" + Quote(name) + "/></" +
           prefix + ":Look>\n";
}

/// Elements for what no attribute can hold; for all settings where `withPlain`.
std::string MakeElementsOf(const Settings& settings, const std::string& prefix, bool withPlain)
{
    std::string elements;
    for (const Setting& setting : settings) {
        const std::string name = prefix + ":" + setting.first;
        if (setting.first == "Look")
            elements += LookElement(prefix, setting.second);
        else if (IsList(setting))
            elements += ListElement(name, setting.second);
        else if (withPlain)
            elements += "<" + name + ">" + setting.second + "</" + name + ">\n";
    }
    return elements;
}

/// The value as Lua writes it.
std::string ToLua(const Setting& setting)
{
    const QString value = QString::fromStdString(setting.second);
    bool isNumber = false;
    value.toDouble(&isNumber);
    if (setting.first == "Look")
        return "{ Name = " + Quote(setting.second) + " }";
    if (IsList(setting))
        return "{ " + Replace(setting.second, ';', ',') + " }";
    if (setting.second == "True")
        return "true";
    return isNumber && setting.second.front() != '+' ? setting.second : Quote(setting.second);
}

} // namespace

ForeignFixture::ForeignFixture()
{
    LumetraHost::RegisterEffects();
}

QString ForeignFixture::Write(const std::string& name, const QByteArray& content) const
{
    QFile file(folder.filePath(QString::fromStdString(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

QByteArray ForeignFixture::MakeXmp(const Settings& settings, const std::string& name)
{
    std::string attributes;
    for (const Setting& setting : settings)
        if (setting.first != "Look" && !IsList(setting))
            attributes += "\n   crs:" + setting.first + "=" + Quote(setting.second);
    std::string elements = MakeElementsOf(settings, "crs", false);
    if (!name.empty())
        elements += "<crs:Name><rdf:Alt><rdf:li xml:lang=\"x-default\">" + name +
                    "</rdf:li></rdf:Alt></crs:Name>\n";
    return QByteArray::fromStdString(
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "  <rdf:Description rdf:about=\"\" xmlns:crs=" +
        Quote(CameraRaw) +
        "\n"
        "   crs:PresetType=\"Normal\" crs:SupportsAmount=\"True\"" +
        attributes + ">\n" + elements + "  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n");
}

QByteArray ForeignFixture::MakeElements(const Settings& settings)
{
    return QByteArray::fromStdString(
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:raw=" +
        Quote(CameraRaw) + ">\n<raw:ProcessVersion>11.0</raw:ProcessVersion>\n" +
        MakeElementsOf(settings, "raw", true) + "</rdf:Description></rdf:RDF>\n");
}

QByteArray ForeignFixture::MakeTemplate(const Settings& settings)
{
    std::string text;
    for (const Setting& setting : settings)
        text += "\t\t\t" + setting.first + " = " + ToLua(setting) + ",\n";
    return QByteArray::fromStdString(
        "s = {\n\tid = \"A1\",\n\tinternalName = \"Inner\",\n"
        "\ttitle = ZSTR \"$$$/Looks/Old=Old Paper\",\n\ttype = \"Develop\",\n"
        "\tvalue = {\n\t\tsettings = {\n" +
        text + "\t\t},\n\t\tuuid = \"B2\",\n\t},\n\tversion = 0,\n}\n");
}

QByteArray ForeignFixture::MakeProfile(const Settings& settings)
{
    std::map<std::string, std::string> sections;
    for (const auto& [name, value] : settings) {
        const std::size_t slash = name.find('/');
        sections[name.substr(0, slash)] += name.substr(slash + 1) + "=" + value + "\n";
    }
    std::string text = "[Version]\nAppVersion=5.8\nVersion=346\n";
    for (const auto& [section, keys] : sections)
        text += "\n[" + section + "]\nEnabled=true\n" + keys;
    return QByteArray::fromStdString(text);
}

ImportedLook ForeignFixture::Import(const Settings& settings) const
{
    return ImportFile("look.xmp", MakeXmp(settings));
}

ImportedLook ForeignFixture::ImportProfile(const Settings& settings) const
{
    return ImportFile("look.pp3", MakeProfile(settings));
}

ImportedLook ForeignFixture::ImportFile(const std::string& name, const QByteArray& content,
                                        const LumetraPlugin::ImportOptions& options) const
{
    try {
        return LumetraPlugin::ForeignImport::Read(Write(name, content), options).front();
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
        return {};
    }
}

std::string ForeignFixture::FindError(const std::string& name, const QByteArray& content) const
{
    try {
        LumetraPlugin::ForeignImport::Read(Write(name, content), {});
        return {};
    } catch (const std::exception& error) {
        return error.what();
    }
}

Image ForeignFixture::Draw(const Image& picture, const ImportedLook& look,
                           const std::optional<LumetraHost::PictureArea>& area)
{
    Zorvik::Quindle::EffectList effects;
    for (const auto& effect : look.effects)
        effects.push_back(effect->Clone());
    LumetraHost::RenderOptions options;
    options.area = area;
    return LumetraHost::Renderer().Render(picture, effects, 1, options);
}

std::vector<Rgb> ForeignFixture::Draw(const std::vector<Rgb>& colours, const ImportedLook& look)
{
    Image chart = Image::Allocate(static_cast<int>(colours.size()), 1, Image::Depth::Bits16);
    std::uint16_t* next = chart.Row16(0);
    for (const Rgb& colour : colours) {
        for (const double value : colour)
            *next++ = static_cast<std::uint16_t>(std::lround(65535 * value));
        *next++ = 65535;
    }
    const Image drawn = Draw(chart, look);
    std::vector<Rgb> result;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const std::uint16_t* const pixel = drawn.Row16(0) + 4 * i;
        result.push_back({pixel[0] / 65535.0, pixel[1] / 65535.0, pixel[2] / 65535.0});
    }
    return result;
}

Rgb ForeignFixture::DrawSetting(const Rgb& colour, const Settings& settings) const
{
    return Draw(std::vector<Rgb>{colour}, Import(settings)).front();
}

std::vector<std::string> ForeignFixture::GetRemarked(const ImportedLook& look,
                                                     ImportRemark::Kind kind)
{
    std::vector<std::string> names;
    for (const ImportRemark& remark : look.remarks)
        if (remark.kind == kind)
            names.push_back(remark.setting.toStdString());
    return names;
}

std::string ForeignFixture::Describe(const ImportedLook& look)
{
    std::ostringstream text;
    for (const auto& effect : look.effects) {
        text << effect->GetEffectID();
        const auto descriptor = Zorvik::Quindle::EffectRegistry::Find(effect->GetEffectID());
        for (const auto& parameter : descriptor->parameters)
            if (effect->GetParameter(parameter.name) != parameter.defaultValue)
                text << " " << parameter.name << "=" << effect->GetParameter(parameter.name);
        text << "\n";
    }
    return text.str();
}

double ForeignFixture::Luma(const Rgb& c)
{
    return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2];
}

double ForeignFixture::Chroma(const Rgb& c)
{
    const auto [least, most] = std::minmax({c[0], c[1], c[2]});
    return most - least;
}

double ForeignFixture::Hue(const Rgb& c)
{
    const double degrees =
        std::atan2(std::sqrt(3.0) * (c[1] - c[2]), 2 * c[0] - c[1] - c[2]) * 180 / M_PI;
    return degrees < 0 ? degrees + 360 : degrees;
}

} // namespace LumetraTest
