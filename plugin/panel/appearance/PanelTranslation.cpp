// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/appearance/PanelTranslation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

static void RegisterPanelTranslations()
{
    Q_INIT_RESOURCE(LumetraPanelTranslations);
}

namespace LumetraPlugin {

void PanelTranslation::Follow()
{
    RegisterPanelTranslations();
    // The translator lives as long as the application: a module is never unloaded.
    static auto* const translator = new QTranslator(QCoreApplication::instance());
    static QLocale::Language loaded = QLocale::English;
    const QLocale locale;
    if (locale.language() == loaded)
        return;
    loaded = locale.language();
    QCoreApplication::removeTranslator(translator);
    if (translator->load(locale, QStringLiteral("lumetrapanel"), QStringLiteral("_"),
                         QStringLiteral(":/lumetra-panel/translations")))
        QCoreApplication::installTranslator(translator);
}

} // namespace LumetraPlugin
