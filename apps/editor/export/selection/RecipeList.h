// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/recipes/RecipeStore.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace LumetraEditor {

/// The user's recipes, of which any number can be ticked, with buttons that make, change and remove
/// them. What cannot be stored is told in an alert and changes nothing.
class RecipeList : public QWidget
{
    Q_OBJECT

public:
    explicit RecipeList(QWidget* parent);

    /// The recipes that are ticked, in their order.
    std::vector<LumetraHost::NamedRecipe> GetTicked() const;
    /// Ticks the recipes of these names and no others; the first one where none has such a name.
    void Tick(const QStringList& names);

signals:
    /// Other recipes are ticked, or one of them has changed.
    void changed();

private:
    static QString Describe(const LumetraHost::ExportRecipe& recipe);
    void Load();
    void Fill(const QStringList& ticked);
    QStringList GetTickedNames() const;
    std::optional<std::size_t> GetCurrent() const;
    void Edit(const LumetraHost::NamedRecipe& named, const QString& replaced);
    void Remove();
    /// False, after an alert, when the change throws.
    bool TryToStore(const std::function<void()>& change);
    void UpdateButtons();

    LumetraHost::RecipeStore m_store;
    std::vector<LumetraHost::NamedRecipe> m_recipes;
    QListWidget* m_list;
    QPushButton* m_add;
    QPushButton* m_edit;
    QPushButton* m_remove;
    QLabel* m_report;
};

} // namespace LumetraEditor
