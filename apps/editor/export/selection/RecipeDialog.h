// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/RecipeForm.h"
#include "exporting/recipes/NamedRecipe.h"

#include <QDialog>

class QFormLayout;
class QLineEdit;
class QPushButton;

namespace LumetraEditor {

/// Asks for all that a named recipe says.
class RecipeDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts with `named`, whose name is empty for a new recipe.
    RecipeDialog(const LumetraHost::NamedRecipe& named, QWidget* parent);

    LumetraHost::NamedRecipe Get() const;

private:
    void BuildForm();
    void Browse();
    void Update();

    QFormLayout* m_form;
    QLineEdit* m_name;
    RecipeForm m_recipe;
    QLineEdit* m_folder;
    QPushButton* m_browse;
    QLineEdit* m_file;
    QPushButton* m_save;
};

} // namespace LumetraEditor
