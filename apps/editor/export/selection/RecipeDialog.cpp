// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/RecipeDialog.h"

#include "export/DialogParts.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace LumetraEditor {
namespace {

using LumetraHost::NamedRecipe;

} // namespace

RecipeDialog::RecipeDialog(const NamedRecipe& named, QWidget* parent)
    : QDialog(parent), m_form(new QFormLayout),
      m_name(Named(new QLineEdit(named.name, this), "recipeName")), m_recipe(*m_form, this),
      m_folder(Named(new QLineEdit(named.folder, this), "recipeFolder")),
      m_browse(Named(new QPushButton(tr("&Browse…"), this), "recipeBrowse")),
      m_file(Named(new QLineEdit(named.file, this), "recipeFile")), m_save(nullptr)
{
    setObjectName(QStringLiteral("recipeDialog"));
    setWindowTitle(named.name.isEmpty() ? tr("New Recipe") : tr("Edit Recipe"));
    BuildForm();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_save = AddAccentButton(*buttons, tr("Sa&ve"), "recipeSave");
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(24);
    column->addLayout(m_form);
    column->addWidget(buttons);
    setMinimumWidth(520);
    connect(buttons, &QDialogButtonBox::accepted, this, &RecipeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RecipeDialog::reject);
    connect(m_browse, &QPushButton::clicked, this, &RecipeDialog::Browse);
    for (QLineEdit* const field : {m_name, m_file})
        connect(field, &QLineEdit::textChanged, this, &RecipeDialog::Update);
    m_recipe.Set(named.recipe);
    Update();
}

void RecipeDialog::BuildForm()
{
    m_folder->setPlaceholderText(tr("The folder of each photo"));
    m_folder->setToolTip(tr("A name alone is a folder beside the photos"));
    m_file->setToolTip(tr("Without extension. {name} is that of the photo, {n} its number, "
                          "{date:yyyy-MM-dd} its day"));
    // The name comes before the rows that the form has made already.
    auto* const label = new QLabel(tr("&Name"), this);
    label->setBuddy(m_name);
    m_name->setAccessibleName(tr("Name"));
    m_form->insertRow(0, label, m_name);
    RecipeForm::AddRow(*m_form, tr("Fo&lder"), RecipeForm::SideBySide(m_folder, m_browse),
                       m_folder);
    RecipeForm::AddRow(*m_form, tr("F&ile name"), m_file, m_file);
}

void RecipeDialog::Browse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Folder of the Exported Files"), m_folder->text());
    if (!folder.isEmpty())
        m_folder->setText(folder);
}

void RecipeDialog::Update()
{
    m_save->setEnabled(!m_name->text().trimmed().isEmpty() && !m_file->text().trimmed().isEmpty() &&
                       !m_file->text().contains(QLatin1Char('/')));
}

NamedRecipe RecipeDialog::Get() const
{
    NamedRecipe named;
    named.name = m_name->text().trimmed();
    named.recipe = m_recipe.Get();
    named.folder = m_folder->text().trimmed();
    named.file = m_file->text().trimmed();
    return named;
}

} // namespace LumetraEditor
