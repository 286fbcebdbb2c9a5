// SPDX-License-Identifier: GPL-2.0-or-later
#include "GalleryStyle.h"

#include "style/StyleSheet.h"
#include "widgets/GrooveStyle.h"

#include <QApplication>
#include <QSlider>
#include <QToolTip>
#include <QTranslator>

namespace LumetraGallery {

void UseStyle(LumetraHost::PaletteKind kind)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(LumetraHost::EditorPalette(kind));
    QToolTip::setPalette(LumetraHost::EditorPalette(kind));
    qApp->setStyleSheet(LumetraHost::StyleSheet(kind));
}

void UseLanguage(Language language)
{
    static QTranslator german;
    if (german.isEmpty() &&
        !german.load(QStringLiteral(":/LumetraPresetsUtil/translations/lumetrapresetsutil_de.qm")))
        qWarning("The library's German texts are missing from its resources.");
    if (language == Language::German)
        QCoreApplication::installTranslator(&german);
    else
        QCoreApplication::removeTranslator(&german);
}

void FollowWithGroove(QSlider& slider, LumetraHost::PaletteKind kind)
{
    const auto apply = [&slider, colours = LumetraHost::GrooveColoursOf(kind)] {
        Zorvik::Lumetra::LumetraPresets::ApplyGrooveStyle(
            &slider, colours.fill, colours.disabledFill, colours.hoverFill, colours.background,
            colours.disabledBackground, colours.hoverBackground);
    };
    slider.setProperty("bipolar", true);
    QObject::connect(&slider, &QSlider::valueChanged, &slider, apply);
    QObject::connect(&slider, &QSlider::rangeChanged, &slider, apply);
    apply();
}

} // namespace LumetraGallery
