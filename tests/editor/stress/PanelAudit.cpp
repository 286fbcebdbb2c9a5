// SPDX-License-Identifier: GPL-2.0-or-later
#include "PanelAudit.h"

#include "core/PresetCollection.h"
#include "drawer/stack/SameEffects.h"
#include "panel/PresetsPanel.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/commands/RecentPresets.h"
#include "panel/grid/PresetGrid.h"
#include "panel/widgets/PresetPages.h"
#include "panel/widgets/PresetsWidget.h"
#include "session/Editor.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"
#include "workspace/WorkspaceController.h"

#include "Zorvik/Lumetra/ClickSlider.h"
#include "Zorvik/Util/ImageUtils.h"

#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

namespace LumetraTest {

using LumetraPlugin::PresetCollection;
using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using Zorvik::Lumetra::ClickSlider;
using Zorvik::Lumetra::LumetraPresets::CustomToolBox;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

QString NameOf(const QModelIndex& preset)
{
    return preset.data(PresetModel::PresetNameRole).toString();
}

bool IsSeen(const PresetGrid& grid, const QModelIndex& row)
{
    return grid.isVisible() && grid.visibleRegion().intersects(grid.visualRect(row));
}

} // namespace

PanelAudit::PanelAudit(LumetraEditor::Editor& editor, LumetraPlugin::PresetsPanel& panel)
    : m_editor(editor), m_model(panel.GetPresets().GetModel()), m_widget(*panel.GetWidget())
{
}

template <class Widget>
Widget* PanelAudit::Find(const QString& name) const
{
    return m_widget.findChild<Widget*>(name);
}

template <class Value>
void PanelAudit::Expect(const QString& what, const Value& shown, const Value& expected)
{
    if (shown == expected)
        return;
    QString text;
    QDebug(&text).noquote() << what << "is" << shown << "expected" << expected;
    m_differences.append(text);
}

QStringList PanelAudit::FindDifferences()
{
    m_differences.clear();
    m_applied = m_model.FindApplied();
    ComparePages();
    CompareControls();
    CompareExtraSliders();
    ComparePackage();
    return m_differences;
}

// Pages

bool PanelAudit::IsOfCheckedKind(const QModelIndex& preset) const
{
    const auto isChecked = [this](const char* name) {
        return Find<QToolButton>(QLatin1String(name))->isChecked();
    };
    if (isChecked("filterButton1"))
        return preset.data(PresetModel::FavouriteRole).toBool();
    if (isChecked("filterButton3"))
        return preset.data(PresetModel::EditableRole).toBool();
    return true;
}

/// True for presets that the filter must show; the search text is one word.
bool PanelAudit::IsExpected(const QModelIndex& preset) const
{
    const QString word = Find<QLineEdit>(QStringLiteral("searchField"))->text();
    const QString group = NameOf(preset.parent());
    const bool isFound = NameOf(preset).contains(word, Qt::CaseInsensitive) ||
                         group.contains(word, Qt::CaseInsensitive) ||
                         LumetraPlugin::EffectTexts::Translate(group.toStdString())
                             .contains(word, Qt::CaseInsensitive);
    return isFound && IsOfCheckedKind(preset);
}

void PanelAudit::ComparePages()
{
    Expect(QStringLiteral("number of pages"), m_widget.findChildren<PresetGrid*>().size(),
           m_model.rowCount() + 1); // and that of the recent looks
    for (int group = 0; group < m_model.rowCount(); ++group)
        ComparePage(group);
    CompareRecent();
}

bool PanelAudit::ShowsRecent() const
{
    return Find<QToolButton>(QStringLiteral("filterButton2"))->isChecked();
}

/// The list is read as the next start of the program would read it. Its order may be an older one.
void PanelAudit::CompareRecent()
{
    QStringList expected, shown;
    const LumetraPlugin::RecentPresets recent(LumetraPlugin::PanelFiles::Find().recent);
    for (const QString& id : recent.GetIds())
        if (const QModelIndex preset = m_model.FindId(id); preset.isValid() && IsExpected(preset))
            expected.append(id);
    for (PresetGrid* const grid : m_widget.findChildren<PresetGrid*>())
        for (int row = 0;
             !grid->GetPresets().GetGroup().isValid() && row < grid->model()->rowCount(); ++row)
            shown.append(grid->model()->index(row, 0).data(PresetModel::PresetIdRole).toString());
    expected.sort();
    shown.sort();
    Expect(QStringLiteral("recent looks"), shown, ShowsRecent() ? expected : QStringList());
}

void PanelAudit::ComparePage(int group)
{
    const auto grids = m_widget.findChildren<PresetGrid*>();
    const auto found = std::find_if(grids.begin(), grids.end(), [group](PresetGrid* each) {
        return each->GetPresets().GetGroup().row() == group;
    });
    if (found == grids.end())
        return;
    PresetGrid& grid = **found;
    const QModelIndex index = m_model.index(group, 0);
    QList<QModelIndex> expected;
    for (int i = 0; i < m_model.rowCount(index); ++i)
        if (!ShowsRecent() && IsExpected(m_model.index(i, 0, index)))
            expected.append(m_model.index(i, 0, index));

    const QString page = QStringLiteral("page \"%1\": ").arg(NameOf(index));
    Expect(page + QStringLiteral("number of rows"), grid.model()->rowCount(), expected.size());
    for (int row = 0; row < std::min(expected.size(), grid.model()->rowCount()); ++row)
        CompareRow(grid, row, expected[row]);

    const bool isUsers = index.data(PresetModel::PresetIdRole).toBool();
    const auto& box = *m_widget.findChild<CustomToolBox*>();
    const auto titles = m_widget.findChildren<QToolButton*>(QStringLiteral("sectionTitleButton"));
    const bool isFiltered = !Find<QLineEdit>(QStringLiteral("searchField"))->text().isEmpty() ||
                            !Find<QToolButton>(QStringLiteral("filterButton0"))->isChecked();
    const auto* const header = m_widget.findChildren<CustomToolBoxButton*>().at(group);
    Expect(page + QStringLiteral("title"), box.itemText(group),
           isUsers ? QStringLiteral("My looks") : NameOf(index));
    Expect(page + QStringLiteral("number in the title"), titles.at(group)->text(),
           QLocale().toString(expected.size()));
    Expect(page + QStringLiteral("is there"), header->isVisibleTo(&m_widget),
           !isFiltered || !expected.isEmpty());
}

void PanelAudit::CompareRow(PresetGrid& grid, int row, const QModelIndex& preset)
{
    const QModelIndex shown = grid.model()->index(row, 0);
    const QString name = NameOf(preset);
    const QString look = QStringLiteral("look \"%1\": ").arg(name);
    Expect(look + QStringLiteral("name"), shown.data().toString(), name);
    const QStringList marks = shown.data(Qt::AccessibleDescriptionRole)
                                  .toString()
                                  .split(QStringLiteral(", "), Qt::SkipEmptyParts);
    const std::pair<const char*, int> roles[] = {{"on the photo", PresetModel::AppliedRole},
                                                 {"favourite", PresetModel::FavouriteRole},
                                                 {"popular", PresetModel::PopularRole}};
    for (const auto& [mark, role] : roles)
        Expect(look + QLatin1String(mark), marks.contains(QLatin1String(mark)),
               preset.data(role).toBool());
    Expect(look + QStringLiteral("applied"), preset.data(PresetModel::AppliedRole).toBool(),
           preset == m_applied);
    if (m_editor.HasPhoto() && IsSeen(grid, shown))
        CompareThumbnail(grid, row, preset);
}

/// Compares the thumbnail with the drawer's picture of the preset at this moment.
void PanelAudit::CompareThumbnail(PresetGrid& grid, int row, const QModelIndex& preset)
{
    const QImage shown =
        grid.model()->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    if (shown.isNull())
        return Expect(QStringLiteral("look \"%1\": has a picture").arg(NameOf(preset)), false,
                      true);
    auto& host = m_editor.GetHost();
    const auto controller = m_model.GetPreset(preset);
    const auto policies = controller->GetPreviewPolicies();
    const auto wanted = m_widget.findChild<LumetraPlugin::PresetsWidget*>()->GetThumbnailSize();
    const QSize size =
        LumetraPlugin::ThumbnailShape::Of(wanted).picture * m_widget.devicePixelRatioF();
    const auto frame = host.GetDrawer().RenderPreview({size.width(), size.height(), 1.0},
                                                      controller->MakePreviewSettings(),
                                                      policies.crop, policies.fit, policies.flags);
    const QImage expected = Zorvik::Util::ImageUtils::FrameToImage(frame, host.GetImageConverter());
    Expect(QStringLiteral("look \"%1\": picture is right").arg(NameOf(preset)),
           shown.convertToFormat(QImage::Format_ARGB32) ==
               expected.convertToFormat(QImage::Format_ARGB32),
           true);
}

// Controls

void PanelAudit::CompareControls()
{
    Expect(QStringLiteral("name of the look"), Find<QLabel>(QStringLiteral("appliedName"))->text(),
           m_applied.isValid() ? NameOf(m_applied) : QStringLiteral("Choose a look"));
    Expect(QStringLiteral("star"),
           Find<QToolButton>(QStringLiteral("favouriteButton"))->isChecked(),
           m_applied.data(PresetModel::FavouriteRole).toBool());
    for (const char* const name :
         {"favouriteButton", "resetButton", "saveAsButton", "applyButton", "discardButton"})
        Expect(QLatin1String(name) + QStringLiteral(" is enabled"),
               Find<QAbstractButton>(QLatin1String(name))->isEnabledTo(&m_widget),
               m_applied.isValid());
    CompareSlider(QStringLiteral("intensitySlider"), m_applied,
                  m_applied.data(PresetModel::IntensityRole).toInt(),
                  m_applied.data(PresetModel::IntensityMinRole).toInt(),
                  m_applied.data(PresetModel::IntensityMaxRole).toInt());
    const auto type = m_applied.data(PresetModel::IntensitySettingTypeRole);
    Expect(QStringLiteral("intensity is enabled"),
           Find<QWidget>(QStringLiteral("intensitySlider"))->isEnabledTo(&m_widget),
           m_applied.isValid() && type.value<IntensitySettingType>() != IntensitySettingType::None);
}

/// Compares the slider, and the number beside it.
void PanelAudit::CompareSlider(const QString& name, const QModelIndex& preset, int value, int least,
                               int most)
{
    const auto* const slider = Find<ClickSlider>(name);
    const auto* const number = slider->parentWidget()->findChild<QSpinBox*>();
    const QString what = QStringLiteral("%1 of \"%2\": ").arg(name, NameOf(preset));
    Expect(what + QStringLiteral("value"), slider->value(), value);
    Expect(what + QStringLiteral("least value"), slider->minimum(), least);
    Expect(what + QStringLiteral("largest value"), slider->maximum(), most);
    Expect(what + QStringLiteral("number"), number->value(), value);
    Expect(what + QStringLiteral("least number"), number->minimum(), least);
    Expect(what + QStringLiteral("largest number"), number->maximum(), most);
}

void PanelAudit::CompareExtraSliders()
{
    const auto sliders =
        m_applied.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
    const auto nameOf = [](std::size_t i) { return QStringLiteral("extraSlider%1").arg(i); };
    for (std::size_t i = 0; i < sliders.size(); ++i) {
        const auto* const slider = Find<ClickSlider>(nameOf(i));
        Expect(nameOf(i) + QStringLiteral(" is there"), slider && slider->isVisibleTo(&m_widget),
               true);
        if (!slider)
            continue;
        CompareSlider(nameOf(i), m_applied, sliders[i].Value(), sliders[i].Min(), sliders[i].Max());
        Expect(nameOf(i) + QStringLiteral(" name"), slider->accessibleName(),
               LumetraPlugin::EffectTexts::Translate(sliders[i].Title()));
    }
    for (std::size_t i = sliders.size(); const auto* const slider = Find<ClickSlider>(nameOf(i));
         ++i)
        Expect(nameOf(i) + QStringLiteral(" is there"), slider->isVisibleTo(&m_widget), false);
}

/// Compares the packages on the photo: the applied look as the model describes it, and no other.
void PanelAudit::ComparePackage()
{
    const auto packages = m_editor.GetHost().GetDrawer().GetOpenPackages();
    Expect(QStringLiteral("number of open packages"), static_cast<int>(packages.size()),
           m_applied.isValid() ? 1 : 0);
    if (!m_applied.isValid() || packages.empty())
        return;
    Expect(QStringLiteral("package on the photo"),
           QString::fromStdString(packages[0].Package().GetPresetName()),
           m_applied.data(PresetModel::PresetIdRole).toString());
    Expect(QStringLiteral("package draws what \"%1\" says").arg(NameOf(m_applied)),
           LumetraHost::DrawTheSame(packages[0], m_model.GetPreset(m_applied)->MakeSettings()),
           true);
}

} // namespace LumetraTest
