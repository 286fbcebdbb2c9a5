// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QStringList>
#include <QTranslator>

static void RegisterTranslations()
{
    Q_INIT_RESOURCE(LumetraPresetsTranslations);
}

namespace LumetraCli {
namespace {

const QString English = QStringLiteral("en");
const QString German = QStringLiteral("de");

/// The locale of messages, such as "de_DE.UTF-8"; "C" when none is set.
QString FindLocale()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            return value;
    return QStringLiteral("C");
}

/// "de" of "de_DE.UTF-8" and of "de".
QString TakeLanguage(const QString& locale)
{
    return locale.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
}

void Install(const QString& name, const QString& folder)
{
    auto* const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

QString Language::Find()
{
    const QString locale = FindLocale();
    const QString language = TakeLanguage(locale);
    if (language == QLatin1String("c") || language == QLatin1String("posix"))
        return English;
    QStringList wanted =
        qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        wanted.append(locale);
    for (const QString& one : wanted)
        for (const QString& spoken : {English, German})
            if (TakeLanguage(one) == spoken)
                return spoken;
    return English;
}

void Language::Use()
{
    if (Find() != German)
        return;
    RegisterTranslations();
    // Without Qt's own catalogue the few texts of Qt stay English.
    Install(QStringLiteral("qtbase_de"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    Install(QStringLiteral("lumetra-presets_de"), QStringLiteral(":/lumetra/presets/translations"));
}

} // namespace LumetraCli
