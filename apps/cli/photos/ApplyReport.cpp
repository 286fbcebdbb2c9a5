// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/ApplyReport.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "console/Console.h"
#include "photos/PhotoInputs.h"
#include "presets/LookOptions.h"

namespace LumetraCli {
namespace {

using LumetraHost::PhotoJob;

const char* StateName(PhotoJob::State state)
{
    switch (state) {
    case PhotoJob::State::Planned:
        return "planned";
    case PhotoJob::State::Written:
        return "written";
    case PhotoJob::State::Skipped:
        return "skipped";
    case PhotoJob::State::LeftOut:
        return "left-out";
    default:
        return "failed";
    }
}

void WriteUse(const PresetUse& use, Zorvik::Brassel::ISerializer& node)
{
    node.Set("preset", use.GetPreset().name.toStdString());
    node.Set("id", use.GetPreset().id.toStdString());
    if (const auto intensity = use.GetIntensity())
        node.Set("intensity", *intensity);
}

void WriteLooks(const std::vector<ChosenLook>& looks, Zorvik::Brassel::ISerializer& node)
{
    const auto list = node.CreateCollection("looks");
    for (const ChosenLook& look : looks) {
        const auto presets = list->AddElement()->CreateCollection("presets");
        for (const PresetUse& use : look.uses)
            WriteUse(use, *presets->AddElement());
    }
}

} // namespace

ApplyReport::ApplyReport(const std::vector<ChosenLook>& looks, int jobCount, bool isJson,
                         Console& console)
    : m_console(console), m_document("results"), m_jobCount(jobCount), m_isJson(isJson)
{
    const auto root = m_document.GetRoot();
    if (looks.size() == 1 && looks.front().uses.size() == 1)
        WriteUse(looks.front().uses.front(), *root);
    else
        WriteLooks(looks, *root);
    m_results = root->CreateCollection("results");
}

void ApplyReport::AddJson(const PhotoJob& job, const std::vector<std::string>& warnings)
{
    const auto result = m_results->AddElement();
    result->Set("photo", job.photo.toStdString());
    result->Set("output", job.output.toStdString());
    result->Set("state", StateName(job.state));
    if (!job.message.isEmpty())
        result->Set("message", job.message.toStdString());
    if (!warnings.empty()) {
        const auto list = result->CreateCollection("warnings");
        for (const std::string& warning : warnings)
            list->AddElement()->Set("message", warning);
    }
}

void ApplyReport::Add(const PhotoJob& job, const std::vector<std::string>& warnings)
{
    for (const std::string& warning : warnings)
        m_console.Report(
            QStringLiteral("%1: warning: %2").arg(job.photo, QString::fromStdString(warning)));
    m_hasFailures = m_hasFailures || job.state == PhotoJob::State::Failed;
    if (!job.message.isEmpty())
        m_console.Report(job.message);
    if (m_isJson)
        AddJson(job, warnings);
    else if (job.output != PhotoInputs::Pipe &&
             (job.state == PhotoJob::State::Written || job.state == PhotoJob::State::Planned))
        m_console.PrintLine(job.output);
    m_console.ShowProgress(++m_endedCount, m_jobCount, job.photo);
}

ExitCode ApplyReport::Finish()
{
    if (m_isJson)
        m_console.PrintJson(m_document.ToText());
    return m_hasFailures ? ExitCode::SomeFailed : ExitCode::Done;
}

} // namespace LumetraCli
