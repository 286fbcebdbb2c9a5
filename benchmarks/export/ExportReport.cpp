// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportReport.h"

#include "common/Timing.h"
#include "engine/base/Isa.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSysInfo>

#include <algorithm>
#include <cstdio>
#include <thread>
#include <utility>

namespace LumetraBench {
namespace {

template <class Get>
double GetMedianOf(const std::vector<ChildResult>& runs, const Get& get)
{
    std::vector<double> values;
    for (const ChildResult& run : runs)
        values.push_back(get(run));
    return GetMedian(std::move(values));
}

QString ToText(const std::string& text)
{
    return QString::fromStdString(text);
}

QJsonObject Describe(const Measured& line, std::optional<double> ratio)
{
    QJsonArray runs;
    for (const ChildResult& run : line.runs)
        runs.append(QJsonObject{{QStringLiteral("ms"), run.milliseconds},
                                {QStringLiteral("cpuMs"), run.processorMilliseconds},
                                {QStringLiteral("peakMB"), run.peakMegabytes},
                                {QStringLiteral("done"), run.isDone}});
    QString words;
    for (const std::string& word : line.words)
        words += ToText(word) + QLatin1Char(' ');
    QJsonObject object{{QStringLiteral("name"), ToText(line.name)},
                       {QStringLiteral("group"), ToText(line.group)},
                       {QStringLiteral("command"), words.trimmed()},
                       {QStringLiteral("remark"), ToText(line.remark)},
                       {QStringLiteral("medianMs"), line.GetMedianMilliseconds()},
                       {QStringLiteral("medianCpuMs"), line.GetMedianProcessor()},
                       {QStringLiteral("peakMB"), line.GetPeak()},
                       {QStringLiteral("runs"), runs}};
    if (ratio) {
        object.insert(QStringLiteral("beside"), ToText(line.reference));
        object.insert(QStringLiteral("ratio"), *ratio);
    }
    if (line.target)
        object.insert(QStringLiteral("target"), *line.target);
    if (line.atLeast)
        object.insert(QStringLiteral("atLeast"), *line.atLeast);
    if (line.psnr)
        object.insert(QStringLiteral("psnrAgainstOurs"), *line.psnr);
    return object;
}

} // namespace

double Measured::GetMedianMilliseconds() const
{
    return GetMedianOf(runs, [](const ChildResult& run) { return run.milliseconds; });
}

double Measured::GetMedianProcessor() const
{
    return GetMedianOf(runs, [](const ChildResult& run) { return run.processorMilliseconds; });
}

double Measured::GetPeak() const
{
    return GetMedianOf(runs, [](const ChildResult& run) { return run.peakMegabytes; });
}

bool Measured::IsDone() const
{
    return !runs.empty() &&
           std::all_of(runs.begin(), runs.end(), [](const ChildResult& run) { return run.isDone; });
}

std::optional<double> ExportReport::GetRatio(const Measured& line) const
{
    for (const Measured& other : m_lines)
        if (other.name == line.reference && other.IsDone() && line.IsDone())
            return line.GetMedianMilliseconds() / other.GetMedianMilliseconds();
    return std::nullopt;
}

void ExportReport::Print() const
{
    std::printf("%-20s %10s %10s %8s %8s %10s %8s\n", "case", "ms", "cpu ms", "ratio", "target",
                "peak MB", "PSNR");
    for (const Measured& line : m_lines) {
        if (line.IsDone())
            PrintLine(line);
        else
            std::printf("%-20s %s\n", line.name.c_str(),
                        line.runs.empty() ? "not installed" : "failed");
    }
}

void ExportReport::PrintLine(const Measured& line) const
{
    const auto text = [](std::optional<double> value, int digits) {
        return value ? QString::number(*value, 'f', digits).toStdString() : std::string("-");
    };
    std::string target = text(line.target, 2);
    if (line.atLeast)
        target = ">=" + text(line.atLeast, 1);
    std::printf("%-20s %10.0f %10.0f %8s %8s %10.1f %8s\n", line.name.c_str(),
                line.GetMedianMilliseconds(), line.GetMedianProcessor(),
                text(GetRatio(line), 2).c_str(), target.c_str(), line.GetPeak(),
                text(line.psnr, 1).c_str());
}

bool ExportReport::Store(const QString& path, QJsonObject machine) const
{
    QJsonArray lines;
    for (const Measured& line : m_lines)
        lines.append(Describe(line, GetRatio(line)));
    machine.insert(QStringLiteral("system"), QSysInfo::prettyProductName());
    machine.insert(QStringLiteral("threads"), int(std::thread::hardware_concurrency()));
    machine.insert(QStringLiteral("instructionSet"),
                   QLatin1String(LumetraHost::GetIsaName(LumetraHost::GetDefaultIsa())));
    machine.insert(QStringLiteral("cases"), lines);
    QFile file(path);
    const QByteArray content = QJsonDocument(machine).toJson();
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace LumetraBench
