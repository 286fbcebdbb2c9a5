// SPDX-License-Identifier: GPL-2.0-or-later
#include "GalleryPresets.h"

#include "EffectPresets/EffectPresetControllerAbstract.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Brassel/SettingsKeys.h"

#include <QPainter>

namespace LumetraGallery {
namespace {

using namespace Zorvik;
using Brassel::Settings::ConfigData;
using Brassel::Settings::EffectInfo;
using Lumetra::LumetraPresets::EffectPresetControllerAbstract;
using Lumetra::LumetraPresets::IEffectPresetController;

struct Entry
{
    const char* english;
    const char* german;
    int intensity; // 1..100
};

struct GroupEntry
{
    const char* english;
    const char* german;
    std::vector<Entry> entries;
    bool isEditable;
};

const std::vector<GroupEntry>& Groups()
{
    static const std::vector<GroupEntry> groups{
        {"Portrait",
         "Porträt",
         {{"Soft Skin", "Weiche Haut", 80},
          {"Warm Window Light", "Warmes Fensterlicht", 65},
          {"Matte Editorial", "Mattes Magazin", 100}},
         false},
        {"Landscape",
         "Landschaft",
         {{"Clear Morning", "Klarer Morgen", 70}, {"Autumn Forest", "Herbstwald", 90}},
         false},
        {"Black and White", "Schwarzweiß", {{"Silver Grain", "Silberkorn", 100}}, false},
        {"User presets", "Eigene Presets", {{"Evening by the lake", "Abend am See", 45}}, true}};
    return groups;
}

const char* Text(Language language, const char* english, const char* german)
{
    return language == Language::English ? english : german;
}

/// A sky over a ground, tinted by the preset's name.
QImage PaintThumbnail(const std::string& name)
{
    const int hue = static_cast<int>(qHash(QString::fromStdString(name)) % 360);
    QImage image(88, 56, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0.0, QColor::fromHsv(hue, 110, 230));
    sky.setColorAt(0.62, QColor::fromHsv((hue + 30) % 360, 60, 245));
    sky.setColorAt(0.63, QColor::fromHsv((hue + 160) % 360, 90, 120));
    sky.setColorAt(1.0, QColor::fromHsv((hue + 180) % 360, 120, 60));
    painter.fillRect(image.rect(), sky);
    return image;
}

class GalleryController : public EffectPresetControllerAbstract
{
public:
    QImage GetPreviewImage() override { return PaintThumbnail(GetID()); }

protected:
    void ApplyInternal() override {}
    void ResetInternal() override {}
};

class GalleryFactory : public Lumetra::LumetraPresets::IEffectPresetControllerFactory
{
public:
    boost::intrusive_ptr<IEffectPresetController> CreateController(const std::string&) override
    {
        return new GalleryController;
    }
    boost::intrusive_ptr<IEffectPresetController>
    CopyController(const boost::intrusive_ptr<IEffectPresetController>& source) override
    {
        return new GalleryController(dynamic_cast<const GalleryController&>(*source));
    }
};

void WriteEntry(const Brassel::SerializerPtr& item, const Entry& entry, Language language)
{
    constexpr int BlendingKind = 1;
    item->Set(EffectInfo::KEY_NAME, Text(language, entry.english, entry.german));
    item->Set("id", entry.english);
    const auto intensity = item->CreateNode(ConfigData::INTENSITY);
    intensity->Set("type", BlendingKind);
    intensity->CreateNode("blendSetting")->Set("value", entry.intensity);
}

} // namespace

GalleryPresets::GalleryPresets(Language language)
    : EffectPresetModel(std::make_shared<GalleryFactory>())
{
    for (const GroupEntry& group : Groups()) {
        const auto node =
            Brassel::SerializerProperty::Create(std::make_shared<Core::Property>("gallery"));
        node->Set(ConfigData::EDITABLE, group.isEditable);
        const auto items = node->CreateCollection(ConfigData::ITEMS);
        for (const Entry& entry : group.entries)
            WriteEntry(items->AddElement(), entry, language);
        ParseGroup(Text(language, group.english, group.german), items, node);
    }
}

QModelIndex GalleryPresets::Group(int group) const
{
    return index(group, 0, QModelIndex());
}

QModelIndex GalleryPresets::Preset(int group, int preset) const
{
    return index(preset, 0, Group(group));
}

} // namespace LumetraGallery
