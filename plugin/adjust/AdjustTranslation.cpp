// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/AdjustTranslation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// Registers the resources, which a static library does not do by itself. The macros must stand
// outside every namespace.
static void RegisterAdjustResources()
{
    Q_INIT_RESOURCE(LumetraAdjustTranslations);
}

namespace LumetraAdjust {

void AdjustTranslation::Follow()
{
    RegisterAdjustResources();
    // The translator lives as long as the application: a module is never unloaded.
    static auto* const translator = new QTranslator(QCoreApplication::instance());
    static QLocale::Language loaded = QLocale::English;
    const QLocale locale;
    if (locale.language() == loaded)
        return;
    loaded = locale.language();
    QCoreApplication::removeTranslator(translator);
    if (translator->load(locale, QStringLiteral("lumetraadjust"), QStringLiteral("_"),
                         QStringLiteral(":/lumetra-adjust/translations")))
        QCoreApplication::installTranslator(translator);
}

} // namespace LumetraAdjust
