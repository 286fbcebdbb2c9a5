// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/RecipeList.h"

#include "export/DialogParts.h"
#include "export/selection/RecipeDialog.h"
#include "photo/file/WrittenFormat.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <exception>

namespace LumetraEditor {
namespace {

using LumetraHost::ExportRecipe;
using LumetraHost::NamedRecipe;
using Zorvik::Util::AlertBox;

constexpr double PixelsPerMegapixel = 1e6;
constexpr int ShownRows = 4;

constexpr char ShippedContext[] = "LumetraEditor::ShippedRecipe";

/// The names of the shipped recipes, for the list of texts to be translated.
[[maybe_unused]] const char* const ShippedNames[] = {
    QT_TRANSLATE_NOOP("LumetraEditor::ShippedRecipe", "Full size"),
    QT_TRANSLATE_NOOP("LumetraEditor::ShippedRecipe", "2048 pixels")};

/// The name in the user's language where it is that of a shipped recipe.
QString ShowName(const QString& name)
{
    return QCoreApplication::translate(ShippedContext, qUtf8Printable(name));
}

} // namespace

RecipeList::RecipeList(QWidget* parent)
    : QWidget(parent), m_list(Named(new QListWidget(this), "recipeList")),
      m_add(Named(new QPushButton(tr("&New…"), this), "recipeAdd")),
      m_edit(Named(new QPushButton(tr("E&dit…"), this), "recipeEdit")),
      m_remove(Named(new QPushButton(tr("Re&move"), this), "recipeRemove")),
      m_report(Named(new QLabel(this), "recipeReport"))
{
    m_list->setAccessibleName(tr("Recipes"));
    m_list->setMinimumHeight(ShownRows * m_list->fontMetrics().lineSpacing() * 2);
    m_report->setWordWrap(true);
    m_report->setTextFormat(Qt::PlainText);
    auto* const buttons = new QVBoxLayout;
    buttons->setSpacing(8);
    for (QPushButton* const button : {m_add, m_edit, m_remove})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_list, 1);
    row->addLayout(buttons);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_report);
    connect(m_list, &QListWidget::itemChanged, this, &RecipeList::changed);
    connect(m_list, &QListWidget::currentRowChanged, this, &RecipeList::UpdateButtons);
    connect(m_list, &QListWidget::itemDoubleClicked, m_edit, &QPushButton::click);
    connect(m_add, &QPushButton::clicked, this, [this] { Edit(NamedRecipe(), {}); });
    connect(m_edit, &QPushButton::clicked, this, [this] {
        if (const auto current = GetCurrent())
            Edit(m_recipes[*current], m_recipes[*current].name);
    });
    connect(m_remove, &QPushButton::clicked, this, &RecipeList::Remove);
    Load();
    Fill({});
}

void RecipeList::Load()
{
    QStringList reports;
    try {
        m_recipes = m_store.Read();
        for (const std::string& report : m_store.GetReports())
            reports.append(QString::fromStdString(report));
    } catch (const std::exception& error) {
        m_recipes = NamedRecipe::GetShipped();
        reports = QStringList(QString::fromUtf8(error.what()));
    }
    m_report->setText(reports.join(QLatin1Char('\n')));
    m_report->setVisible(!reports.isEmpty());
}

/// "JPEG, quality 92, 2048 px".
QString RecipeList::Describe(const ExportRecipe& recipe)
{
    QStringList parts(QLatin1String(LumetraHost::GetWrittenFormat(recipe.format).name));
    const bool isLossless = recipe.encoding.isLossless;
    if (recipe.format == LumetraHost::PhotoFormat::Jpeg ||
        (recipe.format == LumetraHost::PhotoFormat::Webp && !isLossless))
        parts.append(tr("quality %1").arg(recipe.encoding.quality));
    if (recipe.longestSide > 0)
        parts.append(tr("%1 px").arg(recipe.longestSide));
    else if (recipe.mostPixels > 0)
        parts.append(tr("%1 MP").arg(QLocale().toString(recipe.mostPixels / PixelsPerMegapixel)));
    else
        parts.append(tr("original size"));
    return parts.join(QStringLiteral(", "));
}

void RecipeList::Fill(const QStringList& ticked)
{
    {
        const QSignalBlocker blocker(m_list);
        const int row = m_list->currentRow();
        m_list->clear();
        for (const NamedRecipe& named : m_recipes) {
            auto* const item = new QListWidgetItem(
                tr("%1 (%2)").arg(ShowName(named.name), Describe(named.recipe)), m_list);
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(ticked.contains(named.name) ? Qt::Checked : Qt::Unchecked);
        }
        m_list->setCurrentRow(std::clamp(row, 0, std::max(0, m_list->count() - 1)));
    }
    UpdateButtons();
    emit changed();
}

std::vector<NamedRecipe> RecipeList::GetTicked() const
{
    std::vector<NamedRecipe> ticked;
    for (std::size_t i = 0; i < m_recipes.size(); ++i)
        if (m_list->item(static_cast<int>(i))->checkState() == Qt::Checked)
            ticked.push_back(m_recipes[i]);
    return ticked;
}

QStringList RecipeList::GetTickedNames() const
{
    QStringList names;
    for (const NamedRecipe& named : GetTicked())
        names.append(named.name);
    return names;
}

void RecipeList::Tick(const QStringList& names)
{
    QStringList known;
    for (const NamedRecipe& named : m_recipes)
        if (names.contains(named.name))
            known.append(named.name);
    if (known.isEmpty() && !m_recipes.empty())
        known.append(m_recipes.front().name);
    Fill(known);
}

std::optional<std::size_t> RecipeList::GetCurrent() const
{
    const int row = m_list->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= m_recipes.size())
        return std::nullopt;
    return static_cast<std::size_t>(row);
}

/// The dialog shows the name that the list shows; one that is left as it is stays in the store.
void RecipeList::Edit(const NamedRecipe& named, const QString& replaced)
{
    NamedRecipe shown = named;
    if (!named.name.isEmpty())
        shown.name = ShowName(named.name);
    RecipeDialog dialog(shown, this);
    while (dialog.exec() == QDialog::Accepted) {
        NamedRecipe edited = dialog.Get();
        if (edited.name == shown.name)
            edited.name = named.name;
        if (!TryToStore([&] { m_store.Save(edited, replaced); }))
            continue; // the user changes the name, or gives up
        QStringList ticked = GetTickedNames();
        if (replaced.isEmpty() || ticked.removeAll(replaced) > 0)
            ticked.append(edited.name);
        Load();
        Fill(ticked);
        return;
    }
}

void RecipeList::Remove()
{
    const auto current = GetCurrent();
    if (!current)
        return;
    const QString name = m_recipes[*current].name;
    AlertBox box(AlertBox::Level::Warning, tr("Remove"),
                 tr("Remove the recipe “%1”?").arg(ShowName(name)),
                 QMessageBox::Yes | QMessageBox::Cancel, this, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    if (box.Exec() != QMessageBox::Yes || !TryToStore([&] { m_store.Remove(name); }))
        return;
    const QStringList ticked = GetTickedNames();
    Load();
    Fill(ticked);
}

bool RecipeList::TryToStore(const std::function<void()>& change)
{
    try {
        change();
        return true;
    } catch (const std::exception& error) {
        AlertBox box(AlertBox::Level::Warning, tr("Recipes"), QString::fromUtf8(error.what()),
                     QMessageBox::Ok, this, Qt::WindowFlags());
        Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Ok}, QMessageBox::Ok);
        box.Exec();
        return false;
    }
}

void RecipeList::UpdateButtons()
{
    const bool hasCurrent = GetCurrent().has_value();
    m_edit->setEnabled(hasCurrent);
    m_remove->setEnabled(hasCurrent);
}

} // namespace LumetraEditor
