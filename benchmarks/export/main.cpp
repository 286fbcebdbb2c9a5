// SPDX-License-Identifier: GPL-2.0-or-later
// Exports from file to file beside decoding and encoding alone, and beside other programs. Every
// case is a process of its own, the repetitions are interleaved, and the medians are compared.
#include "ApplyParts.h"
#include "ChildProcess.h"
#include "ExportCases.h"
#include "ExportReport.h"
#include "HeifParts.h"
#include "PeerCommands.h"
#include "SamplePhotos.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace LumetraBench;

constexpr int Photos = 20;
constexpr int PeerRuns = 2;
constexpr char OwnThumbnails[] = "thumbnails-60";

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

/// The files of one run of the benchmark.
class Files
{
public:
    explicit Files(const QString& folder) : m_folder(folder) {}

    QString Get(const char* name) const
    {
        return m_folder + QLatin1Char('/') + QLatin1String(name);
    }
    const QString& GetFolder() const { return m_folder; }
    QString GetPhoto() const { return Get("photo.jpg"); }
    QString GetLarge() const { return Get("large.jpg"); }

private:
    QString m_folder;
};

std::vector<Measured> MakeOwnLines(const Files& files)
{
    const QString photo = files.GetPhoto();
    const QString large = files.GetLarge();
    const QStringList pairs = MakePairs(files.GetFolder(), photo);
    return {
        MakeOwn("idle", "idle", {}),
        MakeOwn("decode-eighth", "decode-eighth", {photo}),
        MakeOwn(OwnThumbnails, "thumbnails", {photo}, "decode-eighth", 1.3),
        MakeOwn("codec", "codec", {photo, files.Get("codec.jpg")}),
        MakeOwn("five-colour", "colour", {photo, files.Get("colour.jpg")}, "codec", 1.3),
        MakeOwn("five-colour-exact", "exact", {photo, files.Get("exact.jpg")}, "codec", 2.0),
        MakeOwn("five-colour-whole", "whole", {photo, files.Get("whole.jpg")}, "codec"),
        MakeOwn("spatial", "spatial", {photo, files.Get("spatial.jpg")}, "codec", 2.5),
        MakeOwn("colour-and-spatial", "all", {photo, files.Get("all.jpg")}, "codec"),
        MakeOwn("codec-20", "codec-each", pairs),
        MakeOwn("five-colour-20", "colour-each", pairs, "codec-20", 1.45),
        MakeOwn("codec-100mp", "codec", {large, files.Get("codec-large.jpg")}),
        MakeOwn("five-colour-100mp", "colour", {large, files.Get("colour-large.jpg")},
                "codec-100mp"),
        MakeOwn("spatial-100mp", "spatial", {large, files.Get("spatial-large.jpg")}, "codec-100mp"),
        MakeOwn("all-100mp", "all", {large, files.Get("all-large.jpg")}, "codec-100mp"),
    };
}

/// The command-line tool as a user starts it, with a preset of four effects.
Measured MakeApply(const char* name, const Files& files, const QString& input,
                   const QString& output, const char* reference)
{
    const QString catalogue = files.Get("four.json");
    WriteFourEffectCatalogue(catalogue);
    Measured line = MakeOwn(name, {}, {}, reference);
    line.words = {QFileInfo(OwnPath()).absolutePath().toStdString() + "/lumetra-presets",
                  "apply",
                  input.toStdString(),
                  "--only-named",
                  "--catalogue",
                  catalogue.toStdString(),
                  "--preset",
                  "bench.four",
                  "--output",
                  output.toStdString(),
                  "--overwrite"};
    return line;
}

/// A folder with copies of the photo: for a program that takes a folder they are photos of their
/// own.
QString WriteCopies(const Files& files)
{
    const QString folder = files.Get("copies");
    QDir().mkpath(folder);
    for (int i = 0; i < Photos; ++i)
        QFile::copy(files.GetPhoto(), folder + QStringLiteral("/%1.jpg").arg(i));
    return folder;
}

void AddApply(std::vector<Measured>& lines, const Files& files)
{
    lines.push_back(
        MakeApply("apply-four", files, files.GetPhoto(), files.Get("four.jpg"), "codec"));
    lines.push_back(MakeApply("apply-20", files, WriteCopies(files),
                              files.Get("applied") + QStringLiteral("/{name}.jpg"), "codec-20"));
    lines.back().target = 1.3;
}

Measured MakePeer(const Peer& peer)
{
    Measured line;
    line.name = peer.name;
    line.group = "peer";
    line.words = peer.words;
    line.reference = "five-colour";
    line.atLeast = peer.atLeast;
    line.remark = peer.remark;
    line.mostRuns = PeerRuns;
    if (!HasProgram(peer.program))
        line.words.clear();
    return line;
}

/// The peer's command once for each of the many photos. It has all cores, as each of these programs
/// uses several by itself.
Measured MakeMany(const Measured& one)
{
    Measured many = one;
    many.name += "-20";
    many.reference = "apply-20";
    many.mostRuns = 1;
    if (many.words.empty())
        return many;
    many.words = {"sh", "-c",
                  "for i in $(seq " + std::to_string(Photos) + "); do \"$@\" || exit 1; done",
                  "sh"};
    many.words.insert(many.words.end(), one.words.begin(), one.words.end());
    return many;
}

/// The quickest of the other programs on a large photo.
Measured MakeLargeLibvips(const Measured& libvips, const Files& files)
{
    Measured large = libvips;
    large.name = "libvips-100mp";
    large.reference = "five-colour-100mp";
    large.mostRuns = 1;
    if (!libvips.words.empty()) {
        large.words[1] = files.GetLarge().toStdString();
        large.words[2] = files.Get("libvips-large.jpg").toStdString();
    }
    return large;
}

/// A library that draws the looks of our thumbnails.
Measured MakeThumbnailPeer(const std::string& name, const std::string& caseName, const Files& files,
                           const std::string& remark)
{
    Measured line = MakeOwn(name, caseName, {files.GetPhoto()}, OwnThumbnails);
    line.group = "peer";
    line.remark = remark;
    line.atLeast = 15;
    return line;
}

void AddThumbnailPeers(std::vector<Measured>& lines, const Files& files)
{
    lines.push_back(MakeThumbnailPeer("ocio-thumbnails-60", "thumbnails-ocio", files,
                                      "OpenColorIO on our small picture, read and scaled alike"));
    lines.push_back(MakeThumbnailPeer("ocio-whole-photo-60", "thumbnails-ocio-whole", files,
                                      "OpenColorIO on the whole photo, each look scaled then"));
    lines.back().mostRuns = 1;
}

void AddPeers(std::vector<Measured>& lines, const Files& files)
{
    AddThumbnailPeers(lines, files);
    for (const Peer& peer : MakePeers(files.GetPhoto(), files.GetFolder())) {
        const Measured line = MakePeer(peer);
        lines.push_back(line);
        if (peer.name == "libvips")
            lines.push_back(MakeLargeLibvips(line, files));
        if (peer.isQuick)
            lines.push_back(MakeMany(line));
    }
}

void RunAll(std::vector<Measured>& lines, int repetitions)
{
    for (int i = 0; i < repetitions; ++i)
        for (Measured& line : lines) {
            const bool isFailed = i > 0 && !line.IsDone();
            if (line.words.empty() || isFailed || i >= line.mostRuns)
                continue;
            std::fprintf(stderr, "\r%d of %d: %-30s", i + 1, repetitions, line.name.c_str());
            line.runs.push_back(RunChild(line.words));
        }
    std::fprintf(stderr, "\r%50s\r", "");
}

/// Compares the others, and our picture from a table, with the exact picture.
void MeasureDistances(std::vector<Measured>& lines, const Files& files)
{
    const QString exact = files.Get("exact.jpg");
    for (const Peer& peer : MakePeers(files.GetPhoto(), files.GetFolder()))
        for (Measured& line : lines)
            if (line.name == peer.name && line.IsDone())
                line.psnr = MeasurePsnr(exact, GetPeerOutput(peer, files.GetFolder()));
    for (Measured& line : lines)
        if (line.name == "five-colour" && line.IsDone())
            line.psnr = MeasurePsnr(exact, files.Get("colour.jpg"));
}

/// Measures in separate runs, which store some of the looks.
void MeasureThumbnails(std::vector<Measured>& lines, const Files& files)
{
    const QString ours = files.Get("looks-ours.png");
    const QString theirs = files.Get("looks-theirs.png");
    for (Measured& line : lines) {
        const bool isOurs = line.name == OwnThumbnails;
        if ((!isOurs && line.reference != OwnThumbnails) || !line.IsDone())
            continue;
        std::vector<std::string> words = line.words;
        words.push_back((isOurs ? ours : theirs).toStdString());
        if (RunChild(words).isDone && !isOurs)
            line.psnr = MeasurePsnr(ours, theirs);
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

/// Writes samples in other processes, since memory of this one would count as the peak of its
/// children.
void WriteSamples(const Files& files, bool isQuick)
{
    const auto write = [](const char* size, const QString& path) {
        RunChild({OwnPath().toStdString(), "--sample", size, path.toStdString()});
    };
    write(isQuick ? "1500x1000" : "6000x4000", files.GetPhoto());
    write(isQuick ? "3000x2000" : "12244x8168", files.GetLarge());
}

bool HasFailures(const std::vector<Measured>& lines)
{
    return std::any_of(lines.begin(), lines.end(),
                       [](const Measured& line) { return line.group != "peer" && !line.IsDone(); });
}

QJsonObject ReadObject(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

int RunBenchmark(const QCommandLineParser& parser)
{
    const QTemporaryDir folder;
    const Files files(folder.path());
    const bool isQuick = parser.isSet(QStringLiteral("quick"));
    WriteSamples(files, isQuick);

    std::vector<Measured> lines = MakeOwnLines(files);
    AddApply(lines, files);
    if (!parser.isSet(QStringLiteral("no-peers")))
        AddPeers(lines, files);
    QJsonObject machine{{QStringLiteral("loadBefore"), GetLoad()}};
    std::printf("load before: %.2f\n", GetLoad());
    RunAll(lines, isQuick ? 1 : parser.value(QStringLiteral("repetitions")).toInt());
    MeasureDistances(lines, files);
    MeasureThumbnails(lines, files);

    const ExportReport report(lines);
    report.Print();
    const QString parts = files.Get("parts.json");
    RunChild({OwnPath().toStdString(), "--case", "apply-parts", files.GetPhoto().toStdString(),
              parts.toStdString()});
    PrintApplyParts(parts);
    const QJsonObject heif = MeasureHeifParts(isQuick);
    PrintHeifParts(heif);
    std::printf("load after: %.2f\n", GetLoad());
    machine.insert(QStringLiteral("loadAfter"), GetLoad());
    machine.insert(QStringLiteral("applyParts"), ReadObject(parts));
    machine.insert(QStringLiteral("heifParts"), heif);
    const QString json = parser.value(QStringLiteral("json"));
    if (!json.isEmpty() && !report.Store(json, machine))
        return 1;
    return HasFailures(lines) ? 1 : 0;
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
         {QStringLiteral("quick"),
          QStringLiteral("Small photos, once: to see that everything runs.")},
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
