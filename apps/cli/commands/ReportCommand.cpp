// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "photos/PhotoList.h"
#include "reports/JobReports.h"
#include "storage/CheckedFileWriter.h"
#include "storage/FileIdentity.h"
#include "storage/JsonDocument.h"

#include <QFileInfo>

#include <algorithm>

namespace LumetraCli {
namespace {

using LumetraHost::FileIdentity;
using State = JobReports::State;

const QString FilesFromOption = QStringLiteral("files-from");
const QString NullOption = QStringLiteral("null");
const QString FailedListOption = QStringLiteral("failed-list");
const QString OverwriteOption = QStringLiteral("overwrite");
const QString JsonOption = QStringLiteral("json");

/// The file of --failed-list; empty without it. UsageError for a file that may not be replaced.
QString ReadOutput(const QCommandLineParser& parser, const QStringList& reports)
{
    const QString output = parser.value(FailedListOption);
    if (!parser.isSet(FailedListOption))
        return {};
    const QFileInfo info(output);
    const auto isOutput = [own = FileIdentity::Of(output)](const QString& file) {
        return FileIdentity::Of(file) == own;
    };
    const QStringList inputs = reports + parser.values(FilesFromOption);
    if (output.isEmpty() || info.isDir() || (info.exists() && !info.isFile()))
        throw UsageError(
            Text::tr("--failed-list: expected a file to write, found \"%1\"").arg(output));
    if (std::any_of(inputs.begin(), inputs.end(), isOutput))
        throw UsageError(
            Text::tr("--failed-list: \"%1\" is read, and is not overwritten").arg(output));
    if (info.exists() && !parser.isSet(OverwriteOption))
        throw UsageError(
            Text::tr("--failed-list: \"%1\" exists; --overwrite replaces it").arg(output));
    return output;
}

/// The photos of --files-from. UsageError for a list with a folder, of whose photos nobody can tell
/// which were there when the jobs began.
QStringList ReadList(const QCommandLineParser& parser)
{
    QStringList photos;
    for (const QString& list : parser.values(FilesFromOption))
        for (const QString& photo : PhotoList::Read(list, parser.isSet(NullOption))) {
            if (QFileInfo(photo).isDir())
                throw UsageError(
                    Text::tr("--files-from: expected photos, found the folder \"%1\"").arg(photo));
            photos.append(photo);
        }
    return photos;
}

int Count(const std::vector<JobReports::Job>& jobs, State state)
{
    return static_cast<int>(std::count_if(jobs.begin(), jobs.end(),
                                          [state](const auto& job) { return job.state == state; }));
}

/// "2, 5-7": shards in the form that job arrays take.
QString JoinShards(const std::vector<int>& shards)
{
    QStringList parts;
    for (std::size_t i = 0; i < shards.size();) {
        std::size_t end = i + 1;
        while (end < shards.size() && shards[end] == shards[end - 1] + 1)
            ++end;
        parts.append(end - i == 1 ? QString::number(shards[i])
                                  : QStringLiteral("%1-%2").arg(shards[i]).arg(shards[end - 1]));
        i = end;
    }
    return parts.join(QLatin1Char(','));
}

void PrintText(const JobReports& reports, Console& console)
{
    const auto jobs = reports.GetJobs();
    for (const auto& job : jobs)
        if (job.state == State::Failed)
            console.PrintLine(
                Text::tr("failed: %1").arg(job.message.isEmpty() ? job.photo : job.message));
    for (const auto& job : jobs)
        if (job.state == State::Open)
            console.PrintLine(Text::tr("not done: %1").arg(job.photo));
    for (const QString& photo : reports.GetUnreported())
        console.PrintLine(Text::tr("in no report: %1").arg(photo));
    for (const QString& report : reports.GetUnfinished())
        console.PrintLine(Text::tr("without an end: %1").arg(report));
    const auto missing = reports.GetMissingShards();
    if (!missing.empty())
        console.PrintLine(Text::tr("shards to run again, of %1: %2")
                              .arg(QString::number(reports.GetShardCount()), JoinShards(missing)));
    console.PrintLine(
        Text::tr("%1 written, %2 skipped, %3 left out, %4 failed, %5 not done: %6")
            .arg(Count(jobs, State::Written))
            .arg(Count(jobs, State::Skipped))
            .arg(Count(jobs, State::LeftOut))
            .arg(Count(jobs, State::Failed))
            .arg(Count(jobs, State::Open) + static_cast<int>(reports.GetUnreported().size()))
            .arg(reports.IsComplete() ? Text::tr("complete") : Text::tr("not complete")));
}

void PrintJson(const JobReports& reports, Console& console)
{
    const LumetraHost::JsonDocument document("report");
    const auto root = document.GetRoot();
    const auto jobs = reports.GetJobs();
    root->Set("complete", reports.IsComplete());
    root->Set("written", Count(jobs, State::Written));
    root->Set("skipped", Count(jobs, State::Skipped));
    root->Set("leftOut", Count(jobs, State::LeftOut));
    root->Set("shards", reports.GetShardCount());
    root->Set("shardsToRepeat", JoinShards(reports.GetMissingShards()).toStdString());
    const auto failed = root->CreateCollection("failed");
    for (const auto& job : jobs) {
        if (job.state != State::Failed)
            continue;
        const auto element = failed->AddElement();
        element->Set("photo", job.photo.toStdString());
        element->Set("output", job.output.toStdString());
        element->Set("message", job.message.toStdString());
    }
    const auto repeat = root->CreateCollection("photosToRepeat");
    for (const QString& photo : reports.GetPhotosToRepeat())
        repeat->AddElement()->Set("photo", photo.toStdString());
    console.PrintJson(document.ToText());
}

/// Joins the reports of a job that ran on several machines.
class ReportCommand : public Command
{
public:
    ReportCommand()
        : Command(QStringLiteral("report"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Joins reports of \"apply --json\" and tells what is to be "
                                    "done again."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ReportCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(
        QStringLiteral("FILE"),
        Text::tr("Reports: the lines that \"apply --json\" wrote, of every shard and of "
                 "every attempt, in any order. A photo is done when one of them says so."),
        QStringLiteral("FILE..."));
    options.AddOptions({
        {FilesFromOption,
         Text::tr("The list of photos that \"apply\" was given; photos of which no report "
                  "tells are then found too."),
         QStringLiteral("file")},
        {NullOption, Text::tr("The names of both lists are separated by zero bytes.")},
        {FailedListOption,
         Text::tr("Writes the photos that are to be done again into this file, for \"apply "
                  "--files-from\"; it is empty when there are none."),
         QStringLiteral("file")},
        {OverwriteOption, Text::tr("Replaces an existing file.")},
        {JsonOption, Text::tr("Writes JSON.")},
    });
}

ExitCode ReportCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList files = parser.positionalArguments().mid(1);
    if (files.isEmpty())
        throw UsageError(Text::tr("expected at least one report"));
    const QString output = ReadOutput(parser, files);
    JobReports reports;
    reports.SetList(ReadList(parser));
    bool isRead = true;
    for (const QString& file : files) {
        try {
            reports.Read(file);
        } catch (const Zorvik::Exception& error) {
            console.ReportPlace(QString::fromUtf8(error.what()));
            isRead = false;
        }
    }
    for (const QString& problem : reports.GetProblems())
        console.ReportPlace(problem);
    parser.isSet(JsonOption) ? PrintJson(reports, console) : PrintText(reports, console);
    if (!output.isEmpty())
        LumetraHost::CheckedFileWriter::Write(
            output, PhotoList::Join(reports.GetPhotosToRepeat(), parser.isSet(NullOption)));
    return isRead && reports.IsComplete() ? ExitCode::Done : ExitCode::SomeFailed;
}

} // namespace

std::unique_ptr<Command> MakeReportCommand()
{
    return std::make_unique<ReportCommand>();
}

} // namespace LumetraCli
