// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Settings/IntensitySettingType.h"
#include "Settings/SliderSetting.h"
#include "catalogue/LocalNames.h"

#include <QModelIndex>
#include <QString>

#include <vector>

namespace LumetraPlugin {
class PresetModel;
}

namespace LumetraCli {

/// Data of one preset, from the model's roles.
struct PresetRow
{
    QModelIndex index;
    QString group; ///< the name of the group that the user reads
    QString name;  ///< of the catalogue, whatever the language; what is stored and scripted
    QString shown; ///< the name that the user reads
    QString id;
    LumetraHost::LocalNames names; ///< the translations of `name`
    Zorvik::Lumetra::LumetraPresets::IntensitySettingType intensityType;
    int intensity = 0;
    int intensityMinimum = 0;
    int intensityMaximum = 0;
    bool isPopular = false;
    bool isFavourite = false;
    bool isUsers = false; ///< stands in the user's group
    QString problem;      ///< a file that it needs and that is missing; empty when all are there
    Zorvik::Lumetra::LumetraPresets::SliderSetting::List sliders;

    /// True when `text` is the name in one language or another.
    bool IsNamed(const QString& text, Qt::CaseSensitivity sensitivity) const;
    bool HasIntensity() const;
    /// "none", "blending" or "slider".
    QString GetIntensityKind() const;
    /// Tells value and range too, in the user's language: "80 (1 to 100), blending".
    QString DescribeIntensity() const;
};

/// Reads the presets of a model through its roles. Resources that are there are handed over.
class PresetRows
{
public:
    static std::vector<PresetRow> Read(LumetraPlugin::PresetModel& model);

    /// The reason why the preset cannot be drawn: its `problem`, or a file that it needs and that
    /// is damaged. Empty when it can. Reads the files.
    static QString FindProblem(const PresetRow& row);

    /// True when Find() would find one or several.
    static bool Has(const std::vector<PresetRow>& rows, const QString& nameOrId);
    /// The preset with that id; else the one with that name, in the catalogue or in any language,
    /// upper and lower case alike when no name is written just so. UsageError, which begins with
    /// the `argument` it came from, for an unknown name, with the nearest one, and for one that
    /// several presets have, with their ids.
    static PresetRow Find(const std::vector<PresetRow>& rows, const QString& nameOrId,
                          const QString& argument = QStringLiteral("--preset"));
};

} // namespace LumetraCli
