// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/OutputOptions.h"

#include "Zorvik/Exception.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "photos/PhotoInputs.h"
#include "presets/LookOptions.h"

#include <unistd.h>

namespace LumetraCli {
namespace {

using LumetraHost::ExistingOutput;
using LumetraHost::OutputRules;
using LumetraHost::OutputTemplate;
using LumetraHost::PhotoInput;

constexpr char DefaultOutput[] = "{folder}/{name}_{preset}.{ext}";
constexpr char DefaultOutputOfEdits[] = "{folder}/{name}_edited.{ext}";

const QString OutputOption = QStringLiteral("output");
const QString OverwriteOption = QStringLiteral("overwrite");
const QString SkipOption = QStringLiteral("skip");

bool IsPipedOut(const QCommandLineParser& parser)
{
    return parser.value(OutputOption) == PhotoInputs::Pipe;
}

void CheckPlaceholders(const OutputTemplate& names, const LookOptions& looks)
{
    for (const char* const name : {"preset", "group", "intensity"})
        if (!looks.HasPresets() && names.Uses(QLatin1String(name)))
            throw UsageError(Text::tr("--output: expected no {%1}, as no preset is named, found it")
                                 .arg(QLatin1String(name)));
    if (looks.IsSeries() && !names.Uses(QStringLiteral("preset")))
        throw UsageError(Text::tr("--output: expected {preset} in the name, as each preset "
                                  "makes a file of its own"));
}

OutputTemplate ReadNames(const QCommandLineParser& parser, const LookOptions& looks)
{
    const bool isNamed = parser.isSet(OutputOption) && !IsPipedOut(parser);
    const char* const usual = looks.HasPresets() ? DefaultOutput : DefaultOutputOfEdits;
    try {
        const OutputTemplate names(isNamed ? parser.value(OutputOption) : QLatin1String(usual));
        CheckPlaceholders(names, looks);
        return names;
    } catch (const Zorvik::Exception& error) {
        throw UsageError(QStringLiteral("--output: ") + QString::fromUtf8(error.what()));
    }
}

ExistingOutput ReadExisting(const QCommandLineParser& parser)
{
    const bool isOverwrite = parser.isSet(OverwriteOption);
    const bool isSkip = parser.isSet(SkipOption);
    if (isOverwrite)
        return isSkip ? ExistingOutput::KeepDoneOrOverwrite : ExistingOutput::Overwrite;
    return isSkip ? ExistingOutput::KeepDone : ExistingOutput::Refuse;
}

OutputRules ReadRules(const QCommandLineParser& parser)
{
    OutputRules rules;
    rules.existing = ReadExisting(parser);
    rules.existingHint = QStringLiteral("; --overwrite replaces it, --skip leaves what is done");
    rules.otherHint = QStringLiteral("; --overwrite replaces it");
    rules.leavesOutResults = !PhotoInputs::TakesResults(parser);
    rules.resultHint = QStringLiteral("; --again takes it");
    return rules;
}

void CheckPipedIn(const OutputTemplate& names, const LookOptions& looks, bool keepsDone)
{
    if (looks.IsSeries())
        throw UsageError(Text::tr("expected one look for the standard input, found a series"));
    if (keepsDone)
        throw UsageError(
            Text::tr("--skip: expected the name of a photo, found the standard input"));
    if (looks.TakesEdits())
        throw UsageError(
            Text::tr("--edits: expected the name of a photo, found the standard input"));
    if (names.Uses(QStringLiteral("date")))
        throw UsageError(
            Text::tr("--output: expected no {date}, which the standard input does not have"));
}

} // namespace

void OutputOptions::Add(OptionTable& options)
{
    options.AddOptions({
        {{QStringLiteral("o"), OutputOption},
         Text::tr("Where to write. {folder}, {name}, {ext} and {original_ext} are the "
                  "photo's, {preset}, {group} and {intensity} the preset's; {n} is the "
                  "photo's number, {n:04} with four digits; {date} is when it was taken, "
                  "{date:yyyy-MM-dd} in that form. Photos that would share one file are "
                  "left out. - alone is the standard output, for one photo. Default: %1, "
                  "with --edits alone %2")
             .arg(QLatin1String(DefaultOutput), QLatin1String(DefaultOutputOfEdits)),
         QStringLiteral("template")},
        {OverwriteOption, Text::tr("Replaces existing files, but never a photo of the batch or "
                                   "one with an edit of its own.")},
        {SkipOption,
         Text::tr("Leaves out photos whose output is there and is what this photo, look and "
                  "options make, by their content. Any other file fails, or is replaced with "
                  "--overwrite. Outputs without XMP data are remembered in a folder "
                  ".lumetra-journal beside them.")},
    });
}

OutputOptions::OutputOptions(const QCommandLineParser& parser, const LookOptions& looks)
    : m_isPiped(IsPipedOut(parser)), m_names(ReadNames(parser, looks)), m_rules(ReadRules(parser))
{
}

void OutputOptions::CheckPipes(const QCommandLineParser& parser,
                               const std::vector<PhotoInput>& photos,
                               const LookOptions& looks) const
{
    if (photos.size() == 1 && photos.front().isPiped)
        CheckPipedIn(m_names, looks, parser.isSet(SkipOption));
    if (!m_isPiped)
        return;
    if (photos.size() != 1 || looks.IsSeries())
        throw UsageError(Text::tr("--output -: expected one photo and one look, found %1")
                             .arg(photos.empty() ? Text::tr("none") : Text::tr("more")));
    if (parser.isSet(SkipOption))
        throw UsageError(Text::tr("--output -: expected no --skip, as there is no file that could "
                                  "be done"));
    for (const char* const option : {"json", "dry-run"})
        if (parser.isSet(QLatin1String(option)))
            throw UsageError(Text::tr("--output -: expected no --%1, which needs the standard "
                                      "output for itself")
                                 .arg(QLatin1String(option)));
    if (isatty(STDOUT_FILENO) == 1)
        throw UsageError(Text::tr("--output -: expected a pipe or a file, found a terminal"));
}

} // namespace LumetraCli
