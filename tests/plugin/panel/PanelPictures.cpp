// SPDX-License-Identifier: GPL-2.0-or-later
// Saves pictures of the panel for people to look at.
#include "LumetraEditor/IEditorPlugin.h"
#include "TestEditor.h"
#include "core/CatalogueLocations.h"
#include "core/PresetCollection.h"
#include "core/PresetImport.h"
#include "image/Image.h"
#include "panel/PresetsPanel.h"
#include "panel/appearance/PanelTranslation.h"
#include "panel/importing/ImportSummary.h"
#include "photo/PhotoReader.h"
#include "style/EditorStyle.h"
#include "style/StyleSheet.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>

namespace {

using LumetraHost::PaletteKind;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetsPanel;

void UseStyle(PaletteKind kind)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(LumetraHost::EditorPalette(kind));
    qApp->setStyleSheet(LumetraHost::StyleSheet(kind));
}

void Settle(LumetraTest::TestEditor& editor, QWidget& widget)
{
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
        widget.grab();
        editor.RenderPreviews();
    }
}

struct Scene
{
    const char* name;
    std::function<void(PresetsPanel&, LumetraTest::TestEditor&)> arrange;
};

void Apply(PresetsPanel& panel, const char* id)
{
    const QModelIndex preset = panel.GetPresets().GetModel().FindId(QLatin1String(id));
    QMetaObject::invokeMethod(&panel, "OnActivatePreset",
                              Q_ARG(QString, preset.data(PresetModel::PresetIdRole).toString()));
}

const std::vector<Scene>& Scenes()
{
    static const std::vector<Scene> scenes = {
        {"start", [](PresetsPanel&, LumetraTest::TestEditor&) {}},
        {"applied",
         [](PresetsPanel& panel, LumetraTest::TestEditor&) {
             auto& model = panel.GetPresets().GetModel();
             const QModelIndex group = model.index(0, 0);
             model.setData(model.index(1, 0, group), true, PresetModel::FavouriteRole);
             Apply(panel, "portrait.soft-light");
         }},
        {"search",
         [](PresetsPanel& panel, LumetraTest::TestEditor&) {
             panel.GetWidget()
                 ->findChild<QLineEdit*>(QStringLiteral("searchField"))
                 ->setText(QStringLiteral("li"));
         }},
        {"nothing",
         [](PresetsPanel& panel, LumetraTest::TestEditor&) {
             panel.GetWidget()
                 ->findChild<QLineEdit*>(QStringLiteral("searchField"))
                 ->setText(QStringLiteral("xyz"));
         }},
        {"locked", [](PresetsPanel& panel, LumetraTest::TestEditor&) {
             Apply(panel, "portrait.soft-light");
             panel.GetWidget()->setEnabled(false);
         }}};
    return scenes;
}

void TakePictures(const QString& photoPath, const QString& folder, const QString& scale)
{
    const auto photo = LumetraHost::PhotoReader::Read(photoPath);
    for (const PaletteKind kind : {PaletteKind::Light, PaletteKind::Dark}) {
        UseStyle(kind);
        for (const Scene& scene : Scenes()) {
            const QTemporaryDir data;
            LumetraTest::TestEditor editor;
            PresetsPanel panel(editor, {LumetraPlugin::CatalogueLocations::FindFiles(),
                                        data.filePath(QStringLiteral("presets.json")), QString()});
            editor.SetPanel(&panel);
            editor.OpenPhoto(photo.image);
            QWidget& widget = *panel.GetWidget();
            widget.resize(320, 860);
            widget.show();
            Settle(editor, widget);
            scene.arrange(panel, editor);
            Settle(editor, widget);
            const char* const palette = kind == PaletteKind::Light ? "light" : "dark";
            widget.grab().save(QDir(folder).filePath(
                QStringLiteral("%1-%2-%3.png")
                    .arg(QLatin1String(scene.name), QLatin1String(palette), scale)));
        }
    }
}

/// Makes the report of an import, with a remark of each kind.
LumetraPlugin::ImportReport MakeReport()
{
    using LumetraPlugin::ImportRemark;
    const auto like = ImportRemark::Kind::Approximated;
    const auto without = ImportRemark::Kind::LeftOut;
    LumetraPlugin::ImportReport report;
    report.presets = {{{},
                       QStringLiteral("Faded Film"),
                       {},
                       {{like, QStringLiteral("Contrast2012"), QStringLiteral("-15"), {}},
                        {like, QStringLiteral("Highlights2012"), QStringLiteral("-35"), {}},
                        {like, QStringLiteral("GrainAmount"), QStringLiteral("28"), {}},
                        {without, QStringLiteral("Look"), QStringLiteral("Adobe Color"), {}},
                        {without, QStringLiteral("LuminanceSmoothing"), QStringLiteral("25"), {}}},
                       {}},
                      {{}, QStringLiteral("Exact"), {}, {}, {}}};
    report.problems =
        QStringList{QStringLiteral("looks/export.lrtemplate: expected a template of type "
                                   "\"Develop\", found type \"Export\", which is no look"),
                    QStringLiteral("looks/cut.xmp:12: expected well-formed XML: Premature end "
                                   "of document.")};
    return report;
}

void TakeSummary(const QString& folder, const QString& scale)
{
    for (const PaletteKind kind : {PaletteKind::Light, PaletteKind::Dark}) {
        UseStyle(kind);
        QWidget window;
        auto* const summary = new LumetraPlugin::ImportSummary(MakeReport(), window);
        summary->show();
        QApplication::processEvents();
        const char* const palette = kind == PaletteKind::Light ? "light" : "dark";
        summary->grab().save(QDir(folder).filePath(
            QStringLiteral("imported-%1-%2.png").arg(QLatin1String(palette), scale)));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    Zorvik::Lumetra::StyleProvider::SetBackend(std::make_shared<LumetraHost::EditorStyle>());
    if (argc < 3) {
        qWarning("usage: panel-pictures PHOTO FOLDER [LANGUAGE]");
        return 2;
    }
    QLocale::setDefault(QLocale(QString::fromLocal8Bit(argc > 3 ? argv[3] : "en")));
    LumetraPlugin::PanelTranslation::Follow();
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    TakePictures(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]), scale);
    TakeSummary(QString::fromLocal8Bit(argv[2]), scale);
    return 0;
}
