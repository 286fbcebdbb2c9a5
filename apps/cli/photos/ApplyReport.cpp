// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/ApplyReport.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "console/Console.h"
#include "console/Interruption.h"
#include "console/OptionTable.h"
#include "console/Text.h"
#include "photos/PhotoInputs.h"
#include "storage/JsonDocument.h"

#include <QCommandLineParser>
#include <QStringList>

namespace LumetraCli {
namespace {

using LumetraHost::PhotoJob;
using State = PhotoJob::State;
using Zorvik::Brassel::ISerializer;

/// Version of the report's form.
constexpr int Version = 1;

const QString JsonOption = QStringLiteral("json");
const QString QuietOption = QStringLiteral("quiet");

struct NamedState
{
    State state;
    const char* name; ///< in JSON
};

constexpr NamedState NamedStates[] = {
    {State::Planned, "planned"}, {State::Written, "written"}, {State::Skipped, "skipped"},
    {State::LeftOut, "leftOut"}, {State::Failed, "failed"},
};

const char* GetName(State state)
{
    for (const NamedState& one : NamedStates)
        if (one.state == state)
            return one.name;
    return "";
}

void WriteWarnings(ISerializer& node, const std::vector<std::string>& warnings)
{
    const auto list = node.CreateCollection("warnings");
    for (const std::string& warning : warnings)
        list->AddElement()->Set("message", warning);
}

void WriteLooks(ISerializer& node, const std::vector<ApplyReport::Look>& looks)
{
    const auto list = node.CreateCollection("looks");
    for (const ApplyReport::Look& look : looks) {
        const auto element = list->AddElement();
        element->Set("name", look.name.toStdString());
        element->Set("id", look.id.toStdString());
        if (look.intensity)
            element->Set("intensity", *look.intensity);
    }
}

void WriteShard(ISerializer& node, const QString& shard)
{
    if (!shard.isEmpty())
        node.Set("shard", shard.toStdString());
}

} // namespace

void ApplyReport::AddOptions(OptionTable& options)
{
    options.AddOptions({
        {JsonOption, Text::tr("Writes a line of JSON for each file when it is done, and one with "
                              "the summary at the end, in place of the names.")},
        {{QStringLiteral("q"), QuietOption},
         Text::tr("Writes no names, no progress and no summary; warnings and failures stay.")},
    });
}

ApplyReport::Form ApplyReport::ReadForm(const QCommandLineParser& parser)
{
    Form form;
    form.isJson = parser.isSet(JsonOption);
    form.isQuiet = parser.isSet(QuietOption);
    return form;
}

ApplyReport::ApplyReport(const Form& form, int jobCount, const LooksOf& looksOf, Console& console)
    : m_form(form), m_looksOf(looksOf), m_console(console), m_progress(jobCount),
      m_jobCount(jobCount)
{
    if (!m_form.isQuiet && !m_form.isDryRun)
        m_console.ShowProgress(m_progress);
}

int ApplyReport::Count(State state) const
{
    const auto found = m_counts.find(state);
    return found == m_counts.end() ? 0 : found->second;
}

void ApplyReport::PrintJson(const PhotoJob& job, const std::vector<std::string>& warnings)
{
    const LumetraHost::JsonDocument line("report");
    const auto root = line.GetRoot();
    root->Set("photo", job.photo.toStdString());
    if (!job.output.isEmpty())
        root->Set("output", job.output.toStdString());
    root->Set("state", GetName(job.state));
    if (!job.message.isEmpty())
        root->Set("message", job.message.toStdString());
    if (!warnings.empty())
        WriteWarnings(*root, warnings);
    WriteLooks(*root, m_looksOf(job));
    WriteShard(*root, m_form.shard);
    m_console.PrintJsonLine(line.ToText());
}

void ApplyReport::Add(const PhotoJob& job, const std::vector<std::string>& warnings)
{
    const bool isFailed = job.state == State::Failed;
    ++m_counts[job.state];
    for (const std::string& warning : warnings)
        m_console.Report(
            Text::tr("%1: warning: %2").arg(job.photo, QString::fromStdString(warning)));
    if (!job.message.isEmpty() && (isFailed || !m_form.isQuiet))
        m_console.Report(job.message);
    const bool isNamed = job.state == State::Written ||
                         (m_form.isDryRun && !isFailed && job.state == State::Planned);
    if (m_form.isJson)
        PrintJson(job, warnings);
    else if (isNamed && !m_form.isQuiet && job.output != PhotoInputs::Pipe)
        m_console.PrintLine(job.output);
    m_progress.Step(isFailed);
    if (!m_form.isQuiet && !m_form.isDryRun)
        m_console.ShowProgress(m_progress);
}

QString ApplyReport::MakeSummary(bool isInterrupted) const
{
    const QPair<State, const char*> parts[] = {
        {State::Written, QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 written")},
        {State::Skipped, QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 skipped")},
        {State::LeftOut, QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 left out")},
        {State::Failed, QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 failed")},
        {State::Planned, isInterrupted ? QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 not done")
                                       : QT_TRANSLATE_NOOP("LumetraCli::Text", "%1 to be written")},
    };
    QStringList texts;
    for (const auto& [state, text] : parts)
        if (Count(state) > 0)
            texts.append(Text::tr(text).arg(Count(state)));
    const QString summary = texts.join(QStringLiteral(", "));
    return isInterrupted ? Text::tr("interrupted: %1").arg(summary) : summary;
}

void ApplyReport::PrintSummary(bool isInterrupted)
{
    const LumetraHost::JsonDocument line("report");
    const auto summary = line.GetRoot()->CreateNode("summary");
    summary->Set("version", Version);
    summary->Set("jobs", m_jobCount);
    for (const NamedState& one : NamedStates)
        summary->Set(one.name, Count(one.state));
    summary->Set("interrupted", isInterrupted);
    if (!m_form.shard.isEmpty())
        summary->Set("list", m_form.listCount);
    WriteShard(*line.GetRoot(), m_form.shard);
    m_console.PrintJsonLine(line.ToText());
}

ExitCode ApplyReport::Finish(const Interruption* interruption)
{
    const bool isInterrupted = interruption && interruption->HasCome() && Count(State::Planned) > 0;
    m_console.ClearProgress();
    if (m_form.isJson)
        PrintSummary(isInterrupted);
    if (!m_form.isQuiet && (m_jobCount > 1 || isInterrupted))
        m_console.Report(MakeSummary(isInterrupted));
    const ExitCode code = Count(State::Failed) > 0 ? ExitCode::SomeFailed : ExitCode::Done;
    return isInterrupted ? interruption->GetExitCode(code) : code;
}

} // namespace LumetraCli
