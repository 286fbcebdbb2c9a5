// SPDX-License-Identifier: GPL-2.0-or-later
// Exports from file to file beside decoding and encoding alone, and beside other programs. Every
// case is a process of its own, the repetitions are interleaved, and the medians are compared.
#include "ChildProcess.h"
#include "ExportCases.h"
#include "ExportReport.h"
#include "PeerCommands.h"
#include "SamplePhotos.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace LumetraBench;

constexpr int Photos = 20;

QString OwnPath()
{
    return QCoreApplication::applicationFilePath();
}

/// Our program with one case.
Measured MakeOwn(const std::string& name, const std::string& caseName, const QStringList& files,
                 const std::string& reference = {}, std::optional<double> target = {})
{
    Measured line;
    line.name = name;
    line.group = reference.empty() ? "reference" : "ours";
    line.reference = reference;
    line.target = target;
    line.words = {OwnPath().toStdString(), "--case", caseName};
    for (const QString& file : files)
        line.words.push_back(file.toStdString());
    return line;
}

QStringList MakePairs(const QString& folder, const QString& source)
{
    QStringList files;
    for (int i = 0; i < Photos; ++i)
        files << source << folder + QStringLiteral("/each-%1.jpg").arg(i);
    return files;
}

std::vector<Measured> MakeOwnLines(const QString& folder, const QString& photo,
                                   const QString& large)
{
    const auto in = [&folder](const char* name) {
        return folder + QLatin1Char('/') + QLatin1String(name);
    };
    return {
        MakeOwn("idle", "idle", {}),
        MakeOwn("decode-eighth", "decode-eighth", {photo}),
        MakeOwn("thumbnails-60", "thumbnails", {photo}, "decode-eighth", 1.3),
        MakeOwn("codec", "codec", {photo, in("codec.jpg")}),
        MakeOwn("five-colour", "colour", {photo, in("colour.jpg")}, "codec", 2.0),
        MakeOwn("five-colour-whole", "whole", {photo, in("whole.jpg")}, "codec"),
        MakeOwn("spatial", "spatial", {photo, in("spatial.jpg")}, "codec", 2.5),
        MakeOwn("codec-20", "codec-each", MakePairs(folder, photo)),
        MakeOwn("five-colour-20", "colour-each", MakePairs(folder, photo), "codec-20", 1.45),
        MakeOwn("codec-100mp", "codec", {large, in("codec-large.jpg")}),
        MakeOwn("five-colour-100mp", "colour", {large, in("colour-large.jpg")}, "codec-100mp"),
        MakeOwn("spatial-100mp", "spatial", {large, in("spatial-large.jpg")}, "codec-100mp"),
    };
}

void AddPeers(std::vector<Measured>& lines, const QString& photo, const QString& folder)
{
    for (const Peer& peer : MakePeers(photo, folder)) {
        Measured line;
        line.name = peer.name;
        line.group = "peer";
        line.words = peer.words;
        line.reference = "codec";
        line.remark = peer.remark;
        if (!HasProgram(peer.program))
            line.words.clear();
        lines.push_back(line);
    }
}

void RunAll(std::vector<Measured>& lines, int repetitions)
{
    for (int i = 0; i < repetitions; ++i)
        for (Measured& line : lines) {
            if (line.words.empty() || (i > 0 && !line.IsDone()))
                continue;
            std::fprintf(stderr, "\r%d of %d: %-30s", i + 1, repetitions, line.name.c_str());
            line.runs.push_back(RunChild(line.words));
        }
    std::fprintf(stderr, "\r%50s\r", "");
}

void MeasurePeers(std::vector<Measured>& lines, const QString& folder)
{
    for (Measured& line : lines) {
        const QString output =
            folder + QStringLiteral("/peer-%1.jpg").arg(QString::fromStdString(line.name));
        if (line.group == "peer" && line.IsDone())
            line.psnr = MeasurePsnr(folder + QStringLiteral("/colour.jpg"), output);
    }
}

double GetLoad()
{
    double load = 0;
    return getloadavg(&load, 1) == 1 ? load : -1;
}

int WriteSample(const QString& size, const QString& path)
{
    const QStringList sides = size.split(QLatin1Char('x'));
    if (sides.size() != 2)
        return 1;
    WriteSamplePhoto(path, sides[0].toInt(), sides[1].toInt(), 1);
    return 0;
}

int RunBenchmark(const QCommandLineParser& parser)
{
    const QTemporaryDir folder;
    const QString photo = folder.filePath(QStringLiteral("photo.jpg"));
    const QString large = folder.filePath(QStringLiteral("large.jpg"));
    // In processes of their own: what this one has taken counts as the peak of its children.
    RunChild({OwnPath().toStdString(), "--sample", "6000x4000", photo.toStdString()});
    RunChild({OwnPath().toStdString(), "--sample", "12244x8168", large.toStdString()});

    std::vector<Measured> lines = MakeOwnLines(folder.path(), photo, large);
    if (!parser.isSet(QStringLiteral("no-peers")))
        AddPeers(lines, photo, folder.path());
    const double loadBefore = GetLoad();
    std::printf("load before: %.2f\n", loadBefore);
    RunAll(lines, parser.value(QStringLiteral("repetitions")).toInt());
    MeasurePeers(lines, folder.path());

    const double idlePeak = lines.front().GetPeak();
    const ExportReport report(lines);
    report.Print(idlePeak);
    const double loadAfter = GetLoad();
    std::printf("load after: %.2f\n", loadAfter);
    const QString json = parser.value(QStringLiteral("json"));
    return json.isEmpty() || report.Store(json, idlePeak, loadBefore, loadAfter) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions(
        {{QStringLiteral("case"), QStringLiteral("Runs one case alone."), QStringLiteral("name")},
         {QStringLiteral("sample"), QStringLiteral("Writes a sample photo."),
          QStringLiteral("size")},
         {QStringLiteral("repetitions"), QStringLiteral("How often each case runs."),
          QStringLiteral("number"), QStringLiteral("5")},
         {QStringLiteral("json"), QStringLiteral("Stores the result there."),
          QStringLiteral("file")},
         {QStringLiteral("no-peers"), QStringLiteral("Leaves other programs out.")}});
    parser.process(application);
    try {
        const QStringList files = parser.positionalArguments();
        if (parser.isSet(QStringLiteral("sample")) && files.size() == 1)
            return WriteSample(parser.value(QStringLiteral("sample")), files.first());
        if (!parser.isSet(QStringLiteral("case")))
            return RunBenchmark(parser);
        if (RunCase(parser.value(QStringLiteral("case")).toStdString(), files))
            return 0;
        std::fprintf(stderr, "unknown case\n");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
