// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "export/selection/SelectionPlan.h"

#include <QDialog>

#include <atomic>
#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace LumetraEditor {

class EditorSettings;
class ExportGuard;
class RecipeList;

/// Asks by which recipes and to which place several photos are exported, and tells before anything
/// is written how many files that makes, what is there already and what cannot be. Starts with the
/// choices of the last time.
class SelectionDialog : public QDialog
{
    Q_OBJECT

public:
    /// `settings` is kept by reference. `settle` becomes part of the plan, see SelectionOrder.
    SelectionDialog(const QStringList& photos, const SettleEdit& settle, EditorSettings& settings,
                    std::shared_ptr<const ExportGuard> guard, QWidget* parent = nullptr);
    ~SelectionDialog() override;

    /// The plan that the user has seen and accepted.
    const SelectionPlan& GetPlan() const { return m_plan; }

public slots:
    void accept() override;

private:
    void BuildForm();
    void Connect();
    void Restore();
    void Remember() const;
    void Browse();
    SelectionOrder GetOrder() const;
    /// Plans beside the GUI thread what the dialog says now.
    void PlanAnew();
    void TakePlan(const SelectionPlan& plan);
    void ShowFirst(const SelectionOrder& order);
    QString Describe(const SelectionPlan& plan) const;

    const QStringList m_photos;
    const SettleEdit m_settle;
    EditorSettings& m_settings;
    const std::shared_ptr<const ExportGuard> m_guard;
    SelectionPlan m_plan;
    RecipeList* m_recipes;
    QLineEdit* m_folder;
    QPushButton* m_browse;
    QLineEdit* m_file;
    QComboBox* m_existing;
    QLabel* m_first;
    QLabel* m_summary;
    QPushButton* m_export;
    std::atomic<int> m_newest{0}; ///< the order that counts; plans of earlier ones are dropped
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
