// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "GalleryPresets.h"
#include "style/StyleColours.h"

#include <QImage>

#include <functional>
#include <vector>

namespace LumetraGallery {

/// One picture: a widget in one state.
struct Scene
{
    QString name;
    std::function<QImage(LumetraHost::PaletteKind, Language)> paint;
};

/// All pictures, in the order of the widgets. Painting needs UseStyle() and UseLanguage() before.
std::vector<Scene> AllScenes();

} // namespace LumetraGallery
