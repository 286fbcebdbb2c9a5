// SPDX-License-Identifier: GPL-2.0-or-later
#include "Photographs.h"

#include "Zorvik/Exception.h"
#include "image/Resize.h"
#include "photo/PhotoReader.h"

#include <QFile>

#include <boost/current_function.hpp>

#include <algorithm>

namespace LumetraTests {
namespace {

using LumetraHost::Image;

struct Source
{
    const char* subject;
    const char* path;
    const char* package;
};

constexpr Source Sky{"sky", "/usr/share/backgrounds/picosdeeuropa_by_Aitzol_Berasategi.jpg",
                     "lomiri-wallpapers-16.04"};

constexpr Source Sources[] = {
    Sky,
    {"skin", "/usr/lib/python3/dist-packages/skimage/data/astronaut.png", "python3-skimage"},
    {"snow", "/usr/share/backgrounds/Kleiber_by_Lukas_Baubkus.jpg", "lomiri-wallpapers-20.04"},
    {"night", "/usr/lib/python3/dist-packages/skimage/data/rocket.jpg", "python3-skimage"},
    {"foliage", "/usr/share/backgrounds/aitzgorri_by_Aitzol_Berasategi.jpg",
     "lomiri-wallpapers-16.04"},
    {"interior", "/usr/share/backgrounds/Wine_by_Jakkub_Mede.jpg", "lomiri-wallpapers-16.04"}};

Image Read(const Source& source)
{
    const QString path = QString::fromUtf8(source.path);
    if (!QFile::exists(path))
        throw Zorvik::Exception(std::string(source.path) +
                                    ": expected the photograph of the Debian package " +
                                    source.package + ", found none; install that package",
                                BOOST_CURRENT_FUNCTION, "tests/catalogue/Photographs", __LINE__);
    return LumetraHost::PhotoReader::Read(path).image;
}

Image Reduce(const Image& photo, int longestSide)
{
    const double scale =
        static_cast<double>(longestSide) / std::max(photo.GetWidth(), photo.GetHeight());
    return LumetraHost::Resize(photo, {0, 0, photo.GetWidth(), photo.GetHeight()},
                               std::max(1, static_cast<int>(scale * photo.GetWidth() + 0.5)),
                               std::max(1, static_cast<int>(scale * photo.GetHeight() + 0.5)),
                               LumetraHost::ResizeQuality::Fine);
}

} // namespace

std::vector<Photograph> ReadPhotographs(int longestSide)
{
    std::vector<Photograph> photographs;
    for (const Source& source : Sources)
        photographs.push_back({source.subject, Reduce(Read(source), longestSide)});
    return photographs;
}

Image ReadBlueSky(int side)
{
    const Image photo = Read(Sky);
    // There are neither clouds nor rocks in this part of the sky.
    const int left = photo.GetWidth() / 2;
    const int top = photo.GetHeight() / 40;
    return LumetraHost::Resize(photo, {left, top, side, side}, side, side,
                               LumetraHost::ResizeQuality::Fine);
}

} // namespace LumetraTests
