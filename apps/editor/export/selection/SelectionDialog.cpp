// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/SelectionDialog.h"

#include "export/DialogParts.h"
#include "export/ExportGuard.h"
#include "export/RecipeForm.h"
#include "export/selection/RecipeList.h"
#include "settings/EditorSettings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <exception>
#include <utility>

namespace LumetraEditor {
namespace {

using State = LumetraHost::PhotoJob::State;

const QString RecipesKey = QStringLiteral("exportSeveral/recipes");
const QString FolderKey = QStringLiteral("exportSeveral/folder");
const QString ReplacesKey = QStringLiteral("exportSeveral/replaces");

constexpr int MostMessages = 3;

QLabel* MakeNote(QWidget* parent, const char* name)
{
    auto* const label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("muted", true);
    return label;
}

} // namespace

SelectionDialog::SelectionDialog(const QStringList& photos, const SettleEdit& settle,
                                 EditorSettings& settings, std::shared_ptr<const ExportGuard> guard,
                                 QWidget* parent)
    : QDialog(parent), m_photos(photos), m_settle(settle), m_settings(settings),
      m_guard(std::move(guard)), m_recipes(Named(new RecipeList(this), "selectionRecipes")),
      m_folder(Named(new QLineEdit(this), "selectionFolder")),
      m_browse(Named(new QPushButton(tr("&Browse…"), this), "selectionBrowse")),
      m_file(Named(new QLineEdit(this), "selectionFile")),
      m_existing(Named(new QComboBox(this), "selectionExisting")),
      m_first(MakeNote(this, "selectionFirst")), m_summary(MakeNote(this, "selectionSummary")),
      m_export(nullptr)
{
    setObjectName(QStringLiteral("selectionDialog"));
    setWindowTitle(m_photos.size() == 1 ? tr("Export Several")
                                        : tr("Export %1 Photos").arg(m_photos.size()));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    BuildForm();
    auto* const buttons =
        Named(new QDialogButtonBox(QDialogButtonBox::Cancel, this), "selectionButtons");
    m_export = AddAccentButton(*buttons, tr("&Export"), "selectionExport");
    connect(buttons, &QDialogButtonBox::accepted, this, &SelectionDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SelectionDialog::reject);
    column->addWidget(buttons);
    setMinimumWidth(680);
    Connect();
    Restore();
}

/// Makes a plan that is still in work unwanted; the thread's end waits for it.
SelectionDialog::~SelectionDialog()
{
    ++m_newest;
}

void SelectionDialog::BuildForm()
{
    m_folder->setPlaceholderText(tr("As in each recipe"));
    m_file->setPlaceholderText(tr("As in each recipe"));
    m_file->setToolTip(tr("Without extension. {name} is that of the photo, {n} its number, "
                          "{date:yyyy-MM-dd} its day"));
    m_existing->addItem(tr("Leave it and skip the photo"), false);
    m_existing->addItem(tr("Replace it"), true);
    auto* const form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* const label = new QLabel(tr("Recipes"), this);
    form->addRow(label, m_recipes);
    RecipeForm::AddRow(*form, tr("&Folder"), RecipeForm::SideBySide(m_folder, m_browse), m_folder);
    RecipeForm::AddRow(*form, tr("File n&ame"), m_file, m_file);
    RecipeForm::AddRow(*form, tr("If a file e&xists"), m_existing, m_existing);
    form->addRow(tr("First file"), m_first);
    form->addRow(QString(), m_summary);
    static_cast<QVBoxLayout*>(layout())->addLayout(form);
}

void SelectionDialog::Connect()
{
    connect(m_recipes, &RecipeList::changed, this, &SelectionDialog::PlanAnew);
    for (QLineEdit* const field : {m_folder, m_file})
        connect(field, &QLineEdit::textChanged, this, &SelectionDialog::PlanAnew);
    connect(m_existing, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SelectionDialog::PlanAnew);
    connect(m_browse, &QPushButton::clicked, this, &SelectionDialog::Browse);
}

void SelectionDialog::Restore()
{
    m_folder->setText(m_settings.Get(FolderKey).toString());
    m_existing->setCurrentIndex(m_settings.Get(ReplacesKey, false).toBool() ? 1 : 0);
    m_recipes->Tick(m_settings.Get(RecipesKey).toStringList());
}

void SelectionDialog::Remember() const
{
    QStringList names;
    for (const auto& named : m_recipes->GetTicked())
        names.append(named.name);
    m_settings.Set(RecipesKey, names);
    m_settings.Set(FolderKey, m_folder->text().trimmed());
    m_settings.Set(ReplacesKey, m_existing->currentData());
}

void SelectionDialog::Browse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Folder of the Exported Files"), m_folder->text());
    if (!folder.isEmpty())
        m_folder->setText(folder);
}

SelectionOrder SelectionDialog::GetOrder() const
{
    SelectionOrder order;
    order.photos = m_photos;
    order.recipes = m_recipes->GetTicked();
    order.folder = m_folder->text().trimmed();
    order.file = m_file->text().trimmed();
    order.replaces = m_existing->currentData().toBool();
    order.settle = m_settle;
    return order;
}

void SelectionDialog::ShowFirst(const SelectionOrder& order)
{
    try {
        m_first->setText(QDir::toNativeSeparators(SelectionPlan::PreviewFirst(order)));
    } catch (const std::exception&) {
        m_first->clear(); // the plan says why
    }
}

void SelectionDialog::PlanAnew()
{
    const SelectionOrder order = GetOrder();
    const int number = ++m_newest;
    ShowFirst(order);
    m_plan = SelectionPlan();
    m_export->setEnabled(false);
    m_summary->setText(order.recipes.empty() ? tr("Choose a recipe.") : tr("Looking at files…"));
    if (order.recipes.empty())
        return;
    const auto plan = std::make_shared<SelectionPlan>();
    m_thread.Run(
        [this, order, number, plan] {
            if (number == m_newest)
                *plan = SelectionPlan::Make(order, *m_guard);
        },
        [this, number, plan] {
            if (number == m_newest)
                TakePlan(*plan);
        });
}

void SelectionDialog::TakePlan(const SelectionPlan& plan)
{
    m_plan = plan;
    m_summary->setText(Describe(plan));
    m_export->setEnabled(plan.Count(State::Planned) > 0);
}

QString SelectionDialog::Describe(const SelectionPlan& plan) const
{
    if (!plan.problem.isEmpty())
        return plan.problem;
    QStringList lines(tr("Files to write: %1").arg(plan.Count(State::Planned)));
    if (const int there = plan.Count(State::Skipped))
        lines.append(tr("Files that exist and stay as they are: %1").arg(there));
    const QStringList messages = plan.GetMessages();
    if (messages.isEmpty())
        return lines.join(QLatin1Char('\n'));
    lines.append(tr("Files that cannot be written: %1").arg(messages.size()));
    lines.append(messages.mid(0, MostMessages));
    if (messages.size() > MostMessages)
        lines.append(tr("and %1 more").arg(messages.size() - MostMessages));
    return lines.join(QLatin1Char('\n'));
}

void SelectionDialog::accept()
{
    if (!m_export->isEnabled())
        return;
    Remember();
    QDialog::accept();
}

} // namespace LumetraEditor
