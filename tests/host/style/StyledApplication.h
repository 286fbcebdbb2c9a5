// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleSheet.h"

#include <QApplication>
#include <QStyle>
#include <QTranslator>

namespace LumetraTest {

/// Dresses the application for its life, as the editor does, and undresses it at its end.
class StyledApplication
{
public:
    explicit StyledApplication(LumetraHost::PaletteKind kind)
    {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(LumetraHost::EditorPalette(kind));
        qApp->setStyleSheet(LumetraHost::StyleSheet(kind));
    }

    ~StyledApplication()
    {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(QApplication::style()->standardPalette());
    }

    StyledApplication(const StyledApplication&) = delete;
    StyledApplication& operator=(const StyledApplication&) = delete;
};

/// Translates the presets library into German for its life.
class GermanTexts
{
public:
    GermanTexts()
    {
        m_isLoaded = m_translator.load(
            QStringLiteral(":/LumetraPresetsUtil/translations/lumetrapresetsutil_de.qm"));
        QCoreApplication::installTranslator(&m_translator);
    }

    ~GermanTexts() { QCoreApplication::removeTranslator(&m_translator); }

    GermanTexts(const GermanTexts&) = delete;
    GermanTexts& operator=(const GermanTexts&) = delete;

    bool IsLoaded() const { return m_isLoaded; }

private:
    QTranslator m_translator;
    bool m_isLoaded = false;
};

} // namespace LumetraTest
