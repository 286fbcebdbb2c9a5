// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/SaveLookDialog.h"

#include "adjust/edit/AdjustTexts.h"
#include "adjust/edit/SectionPlan.h"
#include "adjust/looks/NameCounter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace LumetraAdjust {
namespace {

using LumetraEditor::NewLook;

constexpr int Gap = 8;
constexpr int Width = 360;
constexpr int ShownSliders = 5; // further ones are scrolled to
constexpr int RowHeight = 26;

} // namespace

SaveLookDialog::SaveLookDialog(const Adjustments& adjustments, Keep keep, QWidget* parent)
    : QDialog(parent), m_adjustments(adjustments), m_draft(adjustments), m_keep(std::move(keep)),
      m_name(new QLineEdit(this)), m_counter(new NameCounter(*m_name, LongestName, this)),
      m_problem(new QLabel(this))
{
    setObjectName(QStringLiteral("saveLookDialog"));
    setWindowTitle(tr("Save as look"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(2 * Gap, 2 * Gap, 2 * Gap, 2 * Gap);
    column->setSpacing(Gap / 2);
    auto* const caption = new QHBoxLayout;
    column->addLayout(caption);
    auto* const name = new QLabel(tr("&Name"), this);
    name->setProperty("muted", true);
    name->setBuddy(m_name);
    caption->addWidget(name);
    caption->addStretch();
    caption->addWidget(m_counter);
    m_name->setObjectName(QStringLiteral("lookName"));
    column->addWidget(m_name);
    MakeSections(*column);
    MakeIntensity(*column);
    MakeSliders(*column);
    m_problem->setObjectName(QStringLiteral("lookProblem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->hide();
    column->addWidget(m_problem);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_save = new QPushButton(tr("Save"));
    m_save->setObjectName(QStringLiteral("lookSave"));
    m_save->setProperty("accent", true); // before the box has the button styled
    buttons->addButton(m_save, QDialogButtonBox::AcceptRole);
    m_save->setDefault(true);
    column->addSpacing(Gap);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SaveLookDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &SaveLookDialog::Follow);
    setFixedWidth(Width);
    Follow();
    m_name->setFocus();
}

QLabel* SaveLookDialog::AddCaption(const QString& text, QVBoxLayout& column)
{
    if (column.count() > 0)
        column.addSpacing(Gap);
    auto* const label = new QLabel(text, this);
    label->setProperty("muted", true);
    column.addWidget(label);
    return label;
}

QCheckBox* SaveLookDialog::AddBox(const QString& text, const QString& name, QVBoxLayout& column)
{
    auto* const box = new QCheckBox(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
    box->setObjectName(name);
    column.addWidget(box);
    connect(box, &QCheckBox::toggled, this, &SaveLookDialog::Follow);
    return box;
}

void SaveLookDialog::MakeSections(QVBoxLayout& column)
{
    AddCaption(tr("Sections"), column);
    for (const int section : m_draft.FindSections()) {
        auto* const box = AddBox(SectionPlan::GetTitle(section),
                                 QStringLiteral("lookSection%1").arg(section), column);
        box->setChecked(true);
        m_sections.emplace_back(section, box);
    }
}

void SaveLookDialog::MakeIntensity(QVBoxLayout& column)
{
    auto* const caption = AddCaption(tr("&Intensity"), column);
    m_intensity = new QComboBox(this);
    m_intensity->setObjectName(QStringLiteral("lookIntensity"));
    m_intensity->addItem(tr("mixes the look with the photo"), int(NewLook::Intensity::Blend));
    m_intensity->addItem(tr("moves the values up from neutral"), int(NewLook::Intensity::Sliders));
    m_intensity->addItem(tr("none: the look is used as it is"), int(NewLook::Intensity::None));
    caption->setBuddy(m_intensity);
    column.addWidget(m_intensity);
    m_hint = new QLabel(this);
    m_hint->setWordWrap(true);
    m_hint->setProperty("muted", true);
    m_hint->setText(tr("The intensity does not move values that have a slider of their own."));
    column.addWidget(m_hint);
    connect(m_intensity, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SaveLookDialog::Follow);
}

void SaveLookDialog::MakeSliders(QVBoxLayout& column)
{
    const auto parameters = m_draft.FindSliders(m_draft.FindSections());
    if (parameters.empty())
        return;
    AddCaption(tr("Extra sliders"), column);
    auto* const content = new QWidget;
    auto* const list = new QVBoxLayout(content);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(0);
    for (const LookDraft::Parameter& parameter : parameters) {
        const QString title =
            AdjustTexts::MakeTitle(*m_adjustments.Find(parameter.first), parameter.second);
        m_sliders.emplace_back(parameter, AddBox(title,
                                                 QStringLiteral("lookSlider.%1.%2")
                                                     .arg(QString::fromStdString(parameter.first),
                                                          QString::fromStdString(parameter.second)),
                                                 *list));
    }
    auto* const scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(content);
    scroll->setFixedHeight(RowHeight *
                           std::min<int>(ShownSliders, static_cast<int>(parameters.size())));
    column.addWidget(scroll);
}

LookDraft::Choices SaveLookDialog::GetChoices() const
{
    LookDraft::Choices choices;
    choices.name = m_name->text().trimmed();
    choices.intensity = static_cast<NewLook::Intensity>(m_intensity->currentData().toInt());
    for (const auto& [section, box] : m_sections)
        if (box->isChecked())
            choices.sections.insert(section);
    for (const auto& [parameter, box] : m_sliders)
        if (box->isChecked() && box->isEnabled())
            choices.sliders.insert(parameter);
    return choices;
}

/// Enables what goes together: sliders of the chosen sections, and Save for a name and a section.
void SaveLookDialog::Follow()
{
    if (!m_save)
        return;
    m_problem->hide();
    const LookDraft::Choices choices = GetChoices();
    for (const auto& [parameter, box] : m_sliders)
        box->setEnabled(choices.sections.count(SectionPlan::Find(parameter.first)) > 0);
    const bool movesValues = choices.intensity == NewLook::Intensity::Sliders;
    m_hint->setVisible(movesValues && !m_sliders.empty());
    if (m_counter->IsTooLong()) {
        m_problem->setText(tr("A look's name has at most %1 characters.").arg(LongestName));
        m_problem->show();
    }
    m_save->setEnabled(!choices.name.isEmpty() && !m_counter->IsTooLong() &&
                       !choices.sections.empty() &&
                       (!movesValues || !m_draft.FindVariables(choices).empty()));
    adjustSize();
}

void SaveLookDialog::accept()
{
    const QString problem = m_keep(m_draft.Make(GetChoices()));
    if (problem.isEmpty())
        return QDialog::accept();
    m_problem->setText(problem);
    m_problem->show();
    adjustSize();
    m_name->setFocus();
    m_name->selectAll();
}

} // namespace LumetraAdjust
