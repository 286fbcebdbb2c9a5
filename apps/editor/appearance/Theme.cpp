// SPDX-License-Identifier: GPL-2.0-or-later
#include "appearance/Theme.h"

#include "style/StyleSheet.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QToolTip>
#include <QTranslator>

#include <memory>

static void RegisterTranslations()
{
    Q_INIT_RESOURCE(LumetraEditorTranslations);
}

namespace LumetraEditor {
namespace {

struct German
{
    QTranslator qt, library, editor;

    German()
    {
        RegisterTranslations();
        // Without Qt's own catalogue the few texts of Qt stay English.
        if (!qt.load(QStringLiteral("qtbase_de"),
                     QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
            qInfo("Qt's German texts are not installed.");
        const bool isThere =
            editor.load(QStringLiteral(":/lumetra/editor/translations/lumetra-editor_de.qm"));
        Q_ASSERT(isThere);
        Q_UNUSED(isThere)
        LoadLibrary();
    }

    /// Loads the texts of the presets library, which is loaded with the first panel that uses it.
    void LoadLibrary()
    {
        const QString file =
            QStringLiteral(":/LumetraPresetsUtil/translations/lumetrapresetsutil_de.qm");
        if (library.isEmpty() && QFile::exists(file))
            library.load(file);
    }
};

} // namespace

void UseTheme(LumetraHost::PaletteKind kind)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(LumetraHost::EditorPalette(kind));
    QToolTip::setPalette(LumetraHost::EditorPalette(kind));
    qApp->setStyleSheet(LumetraHost::StyleSheet(kind));
}

void UseLanguage(const QString& language)
{
    const bool isGerman = language == QLatin1String("de");
    // The locale comes first: widgets that hear of a changed translator ask for it.
    QLocale::setDefault(isGerman ? QLocale(QLocale::German) : QLocale(QLocale::English));
    static std::unique_ptr<German> german;
    if (!german && !isGerman)
        return;
    if (!german)
        german = std::make_unique<German>();
    german->LoadLibrary();
    for (QTranslator* translator : {&german->qt, &german->library, &german->editor}) {
        QCoreApplication::removeTranslator(translator);
        if (isGerman && !translator->isEmpty())
            QCoreApplication::installTranslator(translator);
    }
}

} // namespace LumetraEditor
