// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/ExitCode.h"
#include "console/OptionTable.h"
#include "exporting/batch/PhotoLook.h"
#include "presets/PresetUse.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace LumetraCli {

class Console;

/// A look that every photo gets: presets one upon the other, and how outputs are named after them.
struct ChosenLook
{
    std::vector<PresetUse> uses;    ///< bottom first; none: the photos' edits alone
    LumetraHost::LookLayers layers; ///< of all uses
    QString name;                   ///< of the presets, in the catalogue; empty without one
    QString group;                  ///< of the presets' groups, in the catalogue
    QString intensity;              ///< of the presets; 100 for one without intensity
};

/// The options of apply that choose looks: --preset, with --intensity and --set for each,
/// --favourites, --group and --edits.
class LookOptions
{
public:
    static void Add(OptionTable& options);

    /// Reads the options. UsageError for values that belong to no preset, and when no look is
    /// chosen at all.
    explicit LookOptions(const QCommandLineParser& parser);

    /// Looks begin with each photo's own saved edit.
    bool TakesEdits() const { return m_takesEdits; }
    /// Each photo has a file for each of several looks.
    bool IsSeries() const { return m_isFavourites || m_group.has_value(); }
    bool HasPresets() const { return IsSeries() || !m_requests.empty(); }

    /// The looks, each of which makes a file of each photo. Those of a series that cannot be used
    /// are reported and left out, and `code` becomes SomeFailed. None, after a report and with that
    /// code, when a LUT file cannot be used. UsageError for an unknown preset or group, and for
    /// values that a preset does not have. Zorvik::Exception for another preset of --preset that
    /// cannot be used.
    std::vector<ChosenLook> Choose(LumetraPlugin::PresetSession& session, Console& console,
                                   ExitCode& code) const;

private:
    /// A --preset with the values that follow it.
    struct Request
    {
        QString preset;
        QString intensity; ///< null: the preset's own
        QStringList settings;
    };

    void ReadRequests(const QCommandLineParser& parser);
    std::optional<QStringList> FindIds(LumetraPlugin::PresetSession& session,
                                       Console& console) const;
    std::vector<PresetUse> MakeUses(LumetraPlugin::PresetSession& session,
                                    const QStringList& ids) const;
    bool IsInSeries(const PresetRow& row) const;
    QStringList FindSeries(const std::vector<PresetRow>& rows) const;
    std::vector<ChosenLook> ChooseSeries(LumetraPlugin::PresetSession& session,
                                         const std::vector<PresetUse>& below,
                                         const QStringList& ids, Console& console,
                                         ExitCode& code) const;

    std::vector<Request> m_requests;
    std::optional<QString> m_group;
    bool m_isFavourites = false;
    bool m_takesEdits = false;
};

} // namespace LumetraCli
