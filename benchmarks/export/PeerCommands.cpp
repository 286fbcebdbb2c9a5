// SPDX-License-Identifier: GPL-2.0-or-later
#include "PeerCommands.h"

#include "engine/base/ColourMatrix.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "image/Srgb.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <cmath>

namespace LumetraBench {
namespace {

using LumetraHost::ColourMatrix;

QString Number(double value)
{
    return QString::number(value, 'f', 6);
}

/// The matrix row by row, with commas.
QString Numbers(const ColourMatrix& matrix)
{
    QStringList numbers;
    for (const auto& row : matrix.rows)
        for (const double value : row)
            numbers.append(Number(value));
    return numbers.join(QLatin1Char(','));
}

ColourMatrix MakeWhiteBalance()
{
    LumetraHost::WhiteBalanceParameters parameters;
    parameters.temperature = 7000;
    return parameters.GetMatrix();
}

ColourMatrix MakeSaturation()
{
    LumetraHost::SaturationParameters parameters;
    parameters.amount = 20;
    return parameters.GetMatrix();
}

const double Gain = std::exp2(0.4);
const double Exponent = std::exp2(0.2);
const double ContrastFactor = std::pow(LumetraHost::MiddleGrey, 1 - Exponent);

std::vector<std::string> ToWords(const QString& line)
{
    std::vector<std::string> words;
    for (const QString& word : line.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words.push_back(word.toStdString());
    return words;
}

QString MagickLine()
{
    return QStringLiteral("convert {in} -colorspace RGB -evaluate multiply %1 -color-matrix %2 "
                          "-evaluate pow %3 -evaluate multiply %4 -colorspace sRGB "
                          "-color-matrix %5 -channel R -evaluate multiply 1.05 -channel B "
                          "-evaluate add 2% -channel G -evaluate pow 0.95 +channel "
                          "-sampling-factor 1x1 -quality 92 {out}")
        .arg(Number(Gain), Numbers(MakeWhiteBalance()), Number(Exponent), Number(ContrastFactor),
             Numbers(MakeSaturation()));
}

QString GraphicsMagickLine()
{
    return QStringLiteral("gm convert {in} -operator All Pow 2.2 -operator All Multiply %1 "
                          "-recolor %2 -operator All Pow %3 -operator All Multiply %4 "
                          "-operator All Pow 0.4545 -recolor %5 -operator Red Multiply 1.05 "
                          "-operator Blue Add 2% -operator Green Pow 0.95 "
                          "-sampling-factor 1x1 -quality 92 {out}")
        .arg(Number(Gain), Numbers(MakeWhiteBalance()), Number(Exponent), Number(ContrastFactor),
             Numbers(MakeSaturation()));
}

QString GmicLine()
{
    return QStringLiteral("gmic {in} -srgb2rgb -div 255 -mul %1 -mix_rgb %2 -max 0 -pow %3 -mul %4 "
                          "-cut 0,1 -mul 255 -rgb2srgb -div 255 -mix_rgb %5 -split c "
                          "-mul[0] 1.05 -add[2] 0.02 -pow[1] 0.95 -append c -mul 255 -cut 0,255 "
                          "-round -output {out},92")
        .arg(Number(Gain), Numbers(MakeWhiteBalance()), Number(Exponent), Number(ContrastFactor),
             Numbers(MakeSaturation()));
}

QString GeglLine()
{
    return QStringLiteral("gegl {in} -o {out} -- gegl:exposure exposure=0.4 gegl:color-temperature "
                          "original-temperature=6500 intended-temperature=7000 "
                          "gegl:brightness-contrast contrast=1.15 gegl:saturation scale=1.2 "
                          "gegl:levels in-low=0.01 in-high=0.99");
}

QString VipsLine()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/vips_chain {in} {out} %1 %2 %3 %4 %5")
               .arg(Number(Gain), Numbers(MakeWhiteBalance()), Number(Exponent),
                    Number(ContrastFactor), Numbers(MakeSaturation()));
}

QString RawTherapeeLine(const QString& folder)
{
    QFile profile(folder + QStringLiteral("/rawtherapee.pp3"));
    if (profile.open(QIODevice::WriteOnly))
        profile.write("[Exposure]\nAuto=false\nCompensation=0.4\nContrast=20\nSaturation=20\n"
                      "[White Balance]\nEnabled=true\nSetting=Custom\nTemperature=7000\n"
                      "Green=1\n[RGB Curves]\nEnabled=true\n");
    return QStringLiteral("rawtherapee-cli -Y -o {out} -p %1 -j92 -js3 -c {in}")
        .arg(profile.fileName());
}

} // namespace

QString GetPeerOutput(const Peer& peer, const QString& folder)
{
    return folder + QStringLiteral("/peer-%1.jpg").arg(QString::fromStdString(peer.name));
}

std::vector<Peer> MakePeers(const QString& source, const QString& folder)
{
    struct Line
    {
        const char* name;
        const char* program;
        QString words;
        const char* remark;
        std::optional<double> atLeast = {};
        bool isQuick = false;
    };
    const Line lines[] = {
        {"imagemagick", "convert", MagickLine(), "the same formulas; 16 bits, limited after each"},
        {"graphicsmagick", "gm", GraphicsMagickLine(),
         "the same formulas, power 2.2 for sRGB; 16 bits, limited after each", 5, true},
        {"libvips", "vips_chain", VipsLine(), "the same formulas in float, from C", 2.5, true},
        {"gmic", "gmic", GmicLine(), "the same formulas in float", 40},
        {"gegl", "gegl", GeglLine(), "its own operations of similar names and amounts", {}, true},
        {"rawtherapee", "rawtherapee-cli", RawTherapeeLine(folder),
         "its own tools of similar names and amounts", 40},
        {"darktable", "darktable-cli",
         QStringLiteral("darktable-cli {in} {out} --core --configdir %1/darktable --conf "
                        "plugins/imageio/format/jpeg/quality=92")
             .arg(folder),
         "its default modules alone, none of the five effects", 15, true}};
    std::vector<Peer> peers;
    for (const Line& line : lines) {
        Peer peer{line.name, line.program, {}, line.remark, line.atLeast, line.isQuick};
        QString words = line.words;
        words.replace(QStringLiteral("{in}"), source);
        words.replace(QStringLiteral("{out}"), GetPeerOutput(peer, folder));
        peer.words = ToWords(words);
        if (peer.name == "libvips")
            peer.program = peer.words.front();
        peers.push_back(peer);
    }
    return peers;
}

} // namespace LumetraBench
