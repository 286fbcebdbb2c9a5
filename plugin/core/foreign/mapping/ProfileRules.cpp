// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/ForeignNumber.h"
#include "core/foreign/mapping/LookBuilder.h"
#include "core/foreign/mapping/MappingRules.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/HaldReader.h"
#include "storage/ErrorText.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace LumetraPlugin::MappingRules {
namespace {

/// A path inside the folder; empty for absolute paths and those that lead out of it.
QString InFolder(const QString& folder, const QString& name)
{
    const QString relative = QDir::cleanPath(name);
    if (QDir::isAbsolutePath(relative) || relative.startsWith(QLatin1String("..")))
        return {};
    return QDir(folder).filePath(relative);
}

/// The file of a table, first as it is named and then by its name alone; empty when there is none.
QString FindTable(const QString& named, const QStringList& folders)
{
    QString name = named;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    for (const QString& folder : folders)
        for (const QString& path :
             {InFolder(folder, name), InFolder(folder, QFileInfo(name).fileName())})
            if (!path.isEmpty() && QFileInfo(path).isFile())
                return path;
    return {};
}

} // namespace

void SetTable(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    if (value.text.trimmed().isEmpty())
        return;
    const QString path =
        FindTable(value.text, QStringList(look.GetFolder()) + look.GetTableFolders());
    if (path.isEmpty())
        return look.LeaveOut(LookBuilder::tr("expected this picture beside the file or in a folder "
                                             "that is named for tables"));
    try {
        const LumetraHost::LookUpTable cube = LumetraHost::HaldReader::Read(path);
        look.Put(row.step, LumetraHost::Lut3dSettings::Create(nullptr, &cube));
        look.Set(row.step, "strength", look.GetNumber("Film Simulation/Strength", 100));
    } catch (const std::exception& error) {
        look.LeaveOut(LumetraHost::ErrorText::Show(error));
    }
}

/// The mixture of channels where the profile mixes by channels of its own choice, else luma.
void SetGreyMethod(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    const ForeignValue* const setting =
        look.GetLook().Find(QStringLiteral("Black & White/Setting"));
    look.Set(row.step, "amount", 100);
    if (value.text != QLatin1String("ChannelMixer") || !setting ||
        !setting->text.startsWith(QLatin1String("RGB")))
        return;
    const double red = look.GetNumber("Black & White/MixerRed", 33);
    const double green = look.GetNumber("Black & White/MixerGreen", 33);
    const double blue = look.GetNumber("Black & White/MixerBlue", 33);
    const double sum = red + green + blue;
    if (sum <= 0)
        return;
    look.Set(row.step, "red", red / sum);
    look.Set(row.step, "green", green / sum);
    look.Set(row.step, "blue", blue / sum);
}

} // namespace LumetraPlugin::MappingRules
