// SPDX-License-Identifier: GPL-2.0-or-later
#include "layers/LayersPanel.h"

#include "layers/LayersModel.h"
#include "layers/LayersView.h"
#include "session/Editor.h"
#include "settings/EditorSettings.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraEditor {
namespace {

const QString FoldKey = QStringLiteral("layers/folded");

/// Writes the key behind the command, without taking it: it belongs to the list alone.
QString WithKey(const QString& text, const QKeySequence& key)
{
    return text + QLatin1Char('\t') + key.toString(QKeySequence::NativeText);
}

} // namespace

LayersPanel::LayersPanel(Editor& editor, EditorSettings& settings, QAction& revert, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_settings(settings), m_revert(revert), m_steps(editor),
      m_model(new LayersModel(this)), m_heading(new QToolButton(this)),
      m_revertButton(new QToolButton(this)), m_view(new LayersView(this)),
      m_empty(new QLabel(this)), m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("layersPanel"));
    m_open = AddAction("openLayer", [this] { OpenCurrent(); });
    m_switch = AddAction("switchLayer", [this] { SwitchCurrent(); });
    m_raise = AddAction("raiseLayer", [this] { StepCurrent(-1); });
    m_lower = AddAction("lowerLayer", [this] { StepCurrent(1); });
    m_remove = AddAction("removeLayer", [this] { RemoveCurrent(); });
    m_close = AddAction("closeLayer", [this] { m_steps.Close(); });
    m_switch->setCheckable(true);
    m_model->SetNamer([this](const LumetraHost::EditLayer& layer) { return m_steps.Name(layer); });
    Build();
    Connect();
    SetFolded(m_settings.Get(FoldKey, false).toBool());
    Translate();
    ShowLayers();
}

QAction* LayersPanel::AddAction(const char* name, const std::function<void()>& operation)
{
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, operation);
    return action;
}

void LayersPanel::Build()
{
    m_heading->setObjectName(QStringLiteral("layersHeading"));
    m_heading->setCheckable(true);
    m_heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_heading->setFocusPolicy(Qt::StrongFocus);
    m_heading->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_revertButton->setObjectName(QStringLiteral("revertButton"));
    m_revertButton->setFocusPolicy(Qt::StrongFocus);
    m_revertButton->setDefaultAction(&m_revert);
    m_empty->setObjectName(QStringLiteral("layersEmpty"));
    m_empty->setProperty("muted", true);
    m_empty->setWordWrap(true);
    m_view->setModel(m_model);

    auto* const head = new QHBoxLayout;
    head->setContentsMargins(0, 0, 8, 0);
    head->setSpacing(0);
    head->addWidget(m_heading, 1);
    head->addWidget(m_revertButton);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 4);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(m_view);
    column->addWidget(m_empty);

    m_menu->addActions({m_open, m_close, m_switch});
    m_menu->addSeparator();
    m_menu->addActions({m_raise, m_lower});
    m_menu->addSeparator();
    m_menu->addActions({m_remove, &m_revert});
}

void LayersPanel::Connect()
{
    connect(m_heading, &QToolButton::toggled, this, [this](bool isOpen) {
        m_settings.Set(FoldKey, !isOpen);
        ShowFold();
    });
    connect(m_view, &LayersView::openRequested, this, &LayersPanel::OpenCurrent);
    connect(m_view, &LayersView::removeRequested, this, &LayersPanel::RemoveCurrent);
    connect(m_view, &LayersView::stepRequested, this, &LayersPanel::StepCurrent);
    connect(m_view, &QWidget::customContextMenuRequested, this, &LayersPanel::ShowMenu);
    connect(m_model, &LayersModel::switchRequested, this,
            [this](int row, bool isOn) { m_steps.SetOn(m_model->ToPosition(row), isOn); });
    // The list changes after the drag has ended, which goes on in the view until then.
    connect(m_model, &LayersModel::moveRequested, this, &LayersPanel::Move, Qt::QueuedConnection);
    connect(&m_editor, &Editor::layersChanged, this, &LayersPanel::ShowLayers);
    for (const auto changed : {&Editor::photoChanged, &Editor::openingEnded})
        connect(&m_editor, changed, this, &LayersPanel::ShowLayers);
    connect(&m_editor, &Editor::openingStarted, this, [this] { setEnabled(false); });
}

void LayersPanel::SetIcons(LumetraHost::PaletteKind kind)
{
    m_model->SetIcons(kind);
}

bool LayersPanel::IsFolded() const
{
    return !m_heading->isChecked();
}

void LayersPanel::SetFolded(bool isFolded)
{
    m_heading->setChecked(!isFolded);
    ShowFold();
}

void LayersPanel::ShowFold()
{
    const bool isOpen = !IsFolded();
    const bool isEmpty = m_model->rowCount() == 0;
    if ((!isOpen || isEmpty) && m_view->hasFocus())
        m_heading->setFocus();
    m_heading->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    m_view->setVisible(isOpen && !isEmpty);
    m_empty->setVisible(isOpen && isEmpty);
}

void LayersPanel::ShowLayers()
{
    const int current = GetCurrentRow();
    m_model->SetLayers(m_editor.GetSteppedLayers());
    m_view->FollowRows();
    setEnabled(m_editor.HasPhoto() && !m_editor.IsOpening());
    if (GetCurrentRow() < 0)
        SetCurrentRow(std::max(current, 0));
    Translate();
    ShowFold();
}

int LayersPanel::GetCurrentRow() const
{
    return m_view->currentIndex().row();
}

/// Makes the row current, or the nearest one that is there.
void LayersPanel::SetCurrentRow(int row)
{
    const int last = m_model->rowCount() - 1;
    if (last >= 0)
        m_view->setCurrentIndex(m_model->index(std::clamp(row, 0, last), 0));
}

// Commands

void LayersPanel::OpenCurrent()
{
    const int row = GetCurrentRow();
    if (row < 0)
        return;
    const QString module = m_model->GetLayer(row).module;
    if (m_model->GetLayer(row).isOpen || m_steps.Open(m_model->ToPosition(row)))
        emit opened(module);
}

void LayersPanel::RemoveCurrent()
{
    if (const int row = GetCurrentRow(); row >= 0)
        m_steps.Remove(m_model->ToPosition(row));
}

void LayersPanel::SwitchCurrent()
{
    if (const int row = GetCurrentRow(); row >= 0)
        m_steps.SetOn(m_model->ToPosition(row), !m_model->GetLayer(row).isOn);
}

void LayersPanel::StepCurrent(int rows)
{
    Move(GetCurrentRow(), GetCurrentRow() + rows);
}

void LayersPanel::Move(int row, int to)
{
    const int count = m_model->rowCount();
    if (row < 0 || to < 0 || row >= count || to >= count)
        return;
    if (m_steps.Move(m_model->ToPosition(row), m_model->ToPosition(to)))
        SetCurrentRow(to);
}

void LayersPanel::UpdateActions()
{
    const int row = GetCurrentRow();
    const int count = m_model->rowCount();
    const auto& layers = m_editor.GetSteppedLayers();
    m_open->setEnabled(row >= 0);
    m_switch->setEnabled(row >= 0);
    m_switch->setChecked(row >= 0 && m_model->GetLayer(row).isOn);
    m_raise->setEnabled(row > 0);
    m_lower->setEnabled(row >= 0 && row < count - 1);
    m_remove->setEnabled(row >= 0);
    m_close->setEnabled(
        std::any_of(layers.begin(), layers.end(), [](const auto& layer) { return layer.isOpen; }));
}

void LayersPanel::ShowMenu(const QPoint& place)
{
    const QModelIndex index = m_view->indexAt(place);
    if (index.isValid())
        m_view->setCurrentIndex(index.siblingAtColumn(LayersModel::NameColumn));
    UpdateActions();
    m_menu->popup(m_view->viewport()->mapToGlobal(place));
}

// Texts

void LayersPanel::Translate()
{
    const int count = m_model->rowCount();
    m_heading->setText(count > 0 ? tr("On the photo (%1)").arg(count) : tr("On the photo"));
    m_heading->setAccessibleName(m_heading->text());
    m_heading->setToolTip(tr("Fold or unfold the list of what is on the photo"));
    m_empty->setText(m_editor.HasPhoto() ? tr("Nothing yet – this is the original.")
                                         : tr("No photo is open."));
    m_view->setAccessibleName(tr("On the photo"));
    m_open->setText(WithKey(tr("&Open Again"), Qt::Key_Return));
    m_switch->setText(WithKey(tr("&Visible"), Qt::Key_Space));
    m_raise->setText(WithKey(tr("Move &Up"), Qt::ALT + Qt::Key_Up));
    m_lower->setText(WithKey(tr("Move &Down"), Qt::ALT + Qt::Key_Down));
    m_remove->setText(WithKey(tr("&Take Away"), Qt::Key_Delete));
    m_close->setText(tr("&Close What Is Open"));
    UpdateActions();
}

void LayersPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    Translate();
    m_model->UpdateNames();
}

} // namespace LumetraEditor
