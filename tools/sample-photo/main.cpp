// SPDX-License-Identifier: GPL-2.0-or-later
#include "Film.h"
#include "Renderer.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtGui/QImageWriter>

#include <cstdio>

namespace {

using LumetraSample::Film;
using LumetraSample::Renderer;

constexpr int UsageError = 2;
constexpr int WriteError = 3;
constexpr int Quality = 92;

void Complain(const QString& text)
{
    std::fprintf(stderr, "lumetra-sample-photo: %s\n", qPrintable(text));
}

bool ReadNumber(const QCommandLineParser& parser, const QString& name, int most, int& value)
{
    bool number = false;
    const int given = parser.value(name).toInt(&number);
    if (!number || given < 1 || given > most) {
        Complain(QStringLiteral("--%1 is \"%2\", expected a whole number from 1 to %3")
                     .arg(name, parser.value(name))
                     .arg(most));
        return false;
    }
    value = given;
    return true;
}

bool ReadSettings(const QCommandLineParser& parser, Renderer::Settings& settings)
{
    int seed = 0;
    const bool good = ReadNumber(parser, QStringLiteral("width"), 16384, settings.width) &&
                      ReadNumber(parser, QStringLiteral("height"), 16384, settings.height) &&
                      ReadNumber(parser, QStringLiteral("samples"), 4096, settings.samples) &&
                      ReadNumber(parser, QStringLiteral("seed"), 1000000, seed) &&
                      ReadNumber(parser, QStringLiteral("threads"), 256, settings.threads);
    settings.seed = static_cast<std::uint32_t>(seed);
    return good;
}

int RenderTo(const QString& path, const Renderer::Settings& settings)
{
    QImageWriter writer(path);
    writer.setQuality(Quality);
    // Asked before the long work begins; it also finds an ending that no format has.
    if (!writer.canWrite() ||
        !writer.write(Film(settings.seed).Develop(Renderer(settings).Render()))) {
        Complain(QStringLiteral("cannot write \"%1\": %2").arg(path, writer.errorString()));
        return WriteError;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Renders the photo on which presets are tried."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("picture file to write"));
    const QString pixels = QStringLiteral("pixels");
    const QString count = QStringLiteral("count");
    parser.addOptions({
        {QStringLiteral("width"), QStringLiteral("Width of the picture."), pixels,
         QStringLiteral("1920")},
        {QStringLiteral("height"), QStringLiteral("Height of the picture."), pixels,
         QStringLiteral("1280")},
        {QStringLiteral("samples"), QStringLiteral("Light paths per pixel."), count,
         QStringLiteral("32")},
        {QStringLiteral("seed"), QStringLiteral("Seed of all that is random."),
         QStringLiteral("number"), QStringLiteral("3")},
        {QStringLiteral("threads"), QStringLiteral("Threads to render with."), count,
         QStringLiteral("1")},
    });
    parser.process(application);
    Renderer::Settings settings;
    if (parser.positionalArguments().size() != 1) {
        Complain(QStringLiteral("expected one file to write, got %1")
                     .arg(parser.positionalArguments().size()));
        return UsageError;
    }
    if (!ReadSettings(parser, settings)) {
        return UsageError;
    }
    return RenderTo(parser.positionalArguments().first(), settings);
}
