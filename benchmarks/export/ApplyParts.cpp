// SPDX-License-Identifier: GPL-2.0-or-later
#include "ApplyParts.h"

#include "common/Effects.h"
#include "common/Timing.h"
#include "engine/run/ColourTable.h"
#include "engine/run/Renderer.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "storage/CheckedFileWriter.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <stdexcept>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectList;

constexpr int Runs = 5;

constexpr char Catalogue[] = R"({
  "format": "lumetra-catalogue", "version": 1,
  "groups": [ { "name": "Bench", "items": [
    { "name": "Bench Four", "id": "bench.four", "intensity": { "type": 0 },
      "settings": { "effects": [
        { "effect": { "id": "exposure", "stops": 0.4 } },
        { "effect": { "id": "whiteBalance", "temperature": 7000 } },
        { "effect": { "id": "contrast", "amount": 20 } },
        { "effect": { "id": "saturation", "amount": 20 } } ] } } ] } ]
})";

/// The effects of the catalogue: the five without lift-gamma-gain.
EffectList MakeFour()
{
    EffectList effects = MakeFiveColourEffects();
    effects.pop_back();
    return effects;
}

/// The best of several runs: others use the machine too.
double Measure(const std::function<void()>& step)
{
    double best = 0;
    for (int i = 0; i < Runs; ++i) {
        const double begin = GetMilliseconds(CLOCK_THREAD_CPUTIME_ID);
        step();
        const double taken = GetMilliseconds(CLOCK_THREAD_CPUTIME_ID) - begin;
        best = i == 0 ? taken : std::min(best, taken);
    }
    return best;
}

} // namespace

void WriteFourEffectCatalogue(const QString& path)
{
    CheckedFileWriter::Write(path, reinterpret_cast<const std::uint8_t*>(Catalogue),
                             sizeof Catalogue - 1);
}

void MeasureApplyParts(const QString& source, const QString& target)
{
    const Bytes content = PhotoReader::ReadContent(source);
    const std::string name = source.toStdString();
    Photo photo;
    const double decode = Measure([&] { photo = PhotoReader::Decode(content, name); });
    const Image before = photo.image;
    ThreadPool alone(0);
    const Renderer renderer(alone);
    Image drawn = before.Clone();
    const double exact =
        Measure([&] { drawn = renderer.Render(before, MakeFour(), 1, {}, std::move(drawn)); });
    const auto table =
        ColourTable::Make(MakeFour(), ColourTable::ExportPoints, GetDefaultIsa(), alone);
    if (!table)
        throw std::runtime_error("the chain of four effects has no table");
    const double tabled =
        Measure([&] { drawn = renderer.Render(before, table, 1, {}, std::move(drawn)); });
    const double copy = Measure([&] {
        for (int y = 0; y < before.GetHeight(); ++y)
            std::memcpy(drawn.Row(y), before.Row(y),
                        std::size_t{Image::Channels} * std::size_t(before.GetWidth()));
    });
    photo.image = drawn;
    const double encode = Measure([&] { PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, name); });
    const double megapixels = 1e-6 * before.GetWidth() * before.GetHeight();
    const QJsonObject parts{
        {QStringLiteral("megapixels"), megapixels}, {QStringLiteral("decodeMs"), decode},
        {QStringLiteral("chainMs"), tabled},        {QStringLiteral("exactChainMs"), exact},
        {QStringLiteral("encodeMs"), encode},       {QStringLiteral("memcpyMs"), copy}};
    const QByteArray text = QJsonDocument(parts).toJson();
    CheckedFileWriter::Write(target, reinterpret_cast<const std::uint8_t*>(text.constData()),
                             std::size_t(text.size()));
}

void PrintApplyParts(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject parts = QJsonDocument::fromJson(file.readAll()).object();
    const auto get = [&parts](const char* key) { return parts[QLatin1String(key)].toDouble(); };
    const double megapixels = get("megapixels");
    const double copy = get("memcpyMs");
    const double all = get("decodeMs") + get("chainMs") + get("encodeMs");
    std::printf("four effects on %.1f megapixels, processor time of one core:\n", megapixels);
    for (const char* const part : {"decode", "chain", "encode", "exactChain", "memcpy"}) {
        const double time = get((std::string(part) + "Ms").c_str());
        std::printf("  %-12s %7.1f ms %9.1f MP/s %6.1f memcpy", part, time, 1e3 * megapixels / time,
                    time / copy);
        const bool isPart = std::strlen(part) == 6 || std::strcmp(part, "chain") == 0;
        if (isPart && std::strcmp(part, "memcpy") != 0)
            std::printf(" %5.1f %%", 100 * time / all);
        std::printf("\n");
    }
}

} // namespace LumetraBench
