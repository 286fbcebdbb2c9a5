// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/Editor.h"

#include "drawer/previews/AsyncPreviews.h"
#include "edits/DrawnEdit.h"
#include "engine/effects/EffectKinds.h"
#include "plugins/GuardedApplication.h"
#include "plugins/ModuleWorkspace.h"
#include "session/CommandStep.h"
#include "session/DrawnLayers.h"
#include "session/EditStep.h"
#include "session/EffectDescriptions.h"
#include "session/LayerRecords.h"
#include "workspace/WorkspaceController.h"

#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QUndoCommand>

#include <algorithm>
#include <set>
#include <utility>

namespace LumetraEditor {

using LumetraHost::AsyncPreviews;
using LumetraHost::EditLayer;
using LumetraHost::EditState;
using LumetraHost::IsSamePackage;
using LumetraHost::KeptPhoto;
using LumetraHost::PhotoIdentity;
using LumetraHost::WorkspaceController;
using Zorvik::Quindle::EffectsSettings;

Editor::Editor(QObject* parent)
    : QObject(parent), m_workspace(std::make_shared<WorkspaceController>()),
      m_previews(std::make_unique<AsyncPreviews>(m_workspace->GetDrawer(), this)),
      m_manySteps(m_undoStack, {[this] { return m_path; }, [this] { return GetEdit(); },
                                [this](const EditState& edit) { PutEdit(edit); }})
{
    LumetraHost::RegisterEffects();
    connect(&m_loader, &PhotoLoader::loaded, this, &Editor::TakePhoto);
    connect(&m_loader, &PhotoLoader::failed, this, &Editor::RefusePhoto);
    connect(m_previews.get(), &AsyncPreviews::previewReady, this,
            [this](const QString& key) { m_panels.PreviewReady(key); });
    if (auto* const application = qobject_cast<GuardedApplication*>(QCoreApplication::instance()))
        connect(application, &GuardedApplication::eventFailed, this, &Editor::TakeFailure);
    connect(&m_sidecar, &Sidecar::problem, this, &Editor::messageGiven);
    connect(&m_sidecar, &Sidecar::written, this, &Editor::editSaved);
    connect(&m_manySteps.GetEdits(), &ManyEdits::editChanged, this, &Editor::editSaved);
    connect(&m_sidecar, &Sidecar::notice, this, &Editor::noticeGiven);
    m_workspace->GetDrawer().AddObserver(this);
}

Editor::~Editor()
{
    m_undoStack.disconnect();
    m_workspace->GetDrawer().RemoveObserver(this);
}

// Photos

/// Locks the drawer for everybody and tells the modules.
void Editor::LockDrawer(bool isLocked)
{
    const CallDepth depth;
    try {
        Zorvik::Util::ObjectsConnector::sendMessage(
            Zorvik::Lumetra::LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK, {isLocked});
    } catch (...) {
        TakeFailure(nullptr, Failure::Describe());
    }
}

bool Editor::OpenPhoto(const QString& path)
{
    if (!MayLeavePhoto())
        return false;
    LockDrawer(true);
    emit openingStarted(path);
    m_loader.Load(path);
    return true;
}

void Editor::TakePhoto(const QString& path, const KeptPhoto& photo, const PhotoIdentity& identity)
{
    LockDrawer(false);
    const bool isTaken = MayLeavePhoto(); // a step may have been undone meanwhile
    if (isTaken)
        SetPhoto(path, photo, identity);
    emit openingEnded();
    if (!isTaken)
        return;
    for (const std::string& warning : photo.warnings)
        ShowMessage(QString::fromStdString(warning));
    SettleEditOfOtherPhoto();
}

/// Shows why a photo cannot be opened. The readers' sentence is English in all languages; the first
/// line is translated.
void Editor::RefusePhoto(const QString& path, const QString& problem)
{
    LockDrawer(false);
    emit openingEnded();
    emit photoRefused(path, problem);
    ShowMessage(tr("“%1” cannot be opened.").arg(QFileInfo(path).fileName()) + QLatin1Char('\n') +
                problem);
}

void Editor::ClosePhoto()
{
    if (MayLeavePhoto())
        SetPhoto(QString(), KeptPhoto(), PhotoIdentity());
}

bool Editor::MayLeavePhoto()
{
    SaveEdit();
    if (HasPhoto() && !m_sidecar.IsSafe() && !m_mayLoseEdit)
        m_mayLoseEdit =
            m_questions.mayLoseEdit && m_questions.mayLoseEdit(m_path, m_sidecar.GetProblem());
    return !HasPhoto() || m_sidecar.IsSafe() || m_mayLoseEdit;
}

void Editor::SetPhoto(const QString& path, const KeptPhoto& photo, const PhotoIdentity& identity)
{
    SaveEdit();
    m_manySteps.LeavePhoto();
    ShowOnPhoto(nullptr);
    m_path = path;
    m_photo = photo;
    Enter({});
    m_found.reset();
    m_mayLoseEdit = false;
    m_workspace->GetDrawer().SetPhoto(photo.image);
    {
        const QScopedValueRollback<bool> restoring(m_isRestoring, true);
        m_panels.PhotoChanged();
    }
    emit photoChanged();
    if (HasPhoto())
        OpenSidecar(identity);
}

void Editor::OpenSidecar(const PhotoIdentity& identity)
{
    m_manySteps.Settle(m_path);
    m_found = m_sidecar.Open(m_path, identity);
    if (m_found)
        RestoreEdit(*m_found);
    Enter(CaptureEdit()); // a panel may have left something out
    if (!m_sidecar.IsOfOtherPhoto())
        m_manySteps.ComeToPhoto();
}

void Editor::SettleEditOfOtherPhoto()
{
    if (!m_sidecar.IsOfOtherPhoto() || !m_questions.shallStartAnew)
        return;
    const QString path = m_path;
    const bool isAnew = m_questions.shallStartAnew(path);
    if (path != m_path || !m_sidecar.IsOfOtherPhoto())
        return;
    if (!isAnew)
        return KeepEdit(); // saves the answer, so that nobody is asked again
    m_sidecar.StartAnew();
    m_found.reset();
    RestoreEdit(EditState());
    Enter(CaptureEdit());
}

void Editor::SetDisplay(const std::shared_ptr<const LumetraHost::DisplayTransform>& display)
{
    if (display == m_display)
        return;
    m_display = display;
    m_workspace->SetDisplay(display);
    m_panels.PreviewReady(QString());
    emit displayChanged();
}

// Panels

std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> Editor::MakeWorkspace(const QString& module)
{
    return std::make_shared<ModuleWorkspace>(
        m_workspace, module.toStdString(),
        [this](const std::string& committer, const std::set<std::string>& owners) {
            // The step is that of the module that has committed.
            const QScopedValueRollback<bool> restoring(m_isRestoring, true);
            m_panels.PackagesCommitted(QString::fromStdString(committer), owners);
        });
}

GuardedPanel* Editor::AddPanel(const LoadedPlugin& plugin)
{
    GuardedPanel& panel = m_panels.Add(plugin, *this, MakeWorkspace(plugin.id));
    connect(&panel, &GuardedPanel::failed, this, &Editor::ShowNotice);
    connect(&panel, &GuardedPanel::noticeGiven, this, &Editor::ShowNotice);
    panel.Create();
    // A panel that is added after the photo was opened finds its part of the edit.
    if (const auto part = m_state.panels.find(plugin.id); part != m_state.panels.end()) {
        const QScopedValueRollback<bool> restoring(m_isRestoring, true);
        DrawnLayers::RemoveOpen(m_workspace->GetDrawer(), plugin.id);
        panel.RestoreEdit(part->second);
        RestoreOpenLayers();
    }
    Enter(CaptureEdit());
    return panel.IsUsable() ? &panel : nullptr;
}

void Editor::RemovePanels()
{
    m_undoStack.clear();
    m_panels.Clear();
}

void Editor::TakeFailure(QObject* receiver, const QString& reason)
{
    if (GuardedPanel* const panel = receiver ? m_panels.FindOwner(receiver) : nullptr)
        panel->PutOutOfUse(reason);
    else
        ShowNotice(tr("Something has gone wrong: %1").arg(reason));
}

// The edit

void Editor::KeepEdit()
{
    m_mayLoseEdit = false;
    m_found.reset();
    m_sidecar.Write(m_state);
}

/// The edit as its file has it, or as it is after further steps. A panel may show less than it was
/// given, so that what is found and what is captured are two forms of one edit.
EditState Editor::GetEdit() const
{
    EditState now = CaptureEdit();
    return m_found && now == m_state ? *m_found : now;
}

void Editor::PutEdit(const EditState& edit)
{
    RestoreEdit(edit);
    Enter(CaptureEdit());
    KeepEdit();
}

bool Editor::SaveEdit()
{
    if (!HasPhoto())
        return true;
    EditState state = CaptureEdit();
    if (!(state == m_state)) { // a drag may not have ended
        Enter(std::move(state));
        KeepEdit();
    }
    m_sidecar.Flush();
    if (!m_sidecar.IsSafe()) // the disk may be well again
        m_sidecar.Write(m_state);
    m_sidecar.Flush();
    return m_sidecar.IsSafe();
}

std::vector<EffectsSettings> Editor::GetPackages() const
{
    std::vector<EffectsSettings> packages;
    for (const LumetraHost::StackedPackage& package : m_workspace->GetDrawer().GetShownStack())
        if (package.isOn)
            packages.push_back(*package.settings);
    return packages;
}

void Editor::SetLayerOn(std::size_t position, bool isOn)
{
    auto& drawer = m_workspace->GetDrawer();
    if (!HasPhoto() || IsOpening() || position >= drawer.GetStack().size())
        return;
    drawer.SetOn(position, isOn);
    KeepStep(isOn ? tr("Show layer") : tr("Hide layer"), {});
}

bool Editor::ChangeEdit(const QString& text, const EditChange& change, const IsRight& isRight)
{
    if (!HasPhoto() || m_isRestoring || IsOpening())
        return false;
    const EditState before = CaptureEdit();
    const EditState wanted = change(before);
    if (wanted == before)
        return false;
    RestoreEdit(wanted);
    Enter(CaptureEdit());
    if (isRight && !isRight(wanted, m_state)) {
        RestoreEdit(before);
        return false;
    }
    KeepEdit();
    m_undoStack.push(new EditStep(text, before, m_state,
                                  [this](const EditState& state) { RestoreStep(state); }));
    return true;
}

EditState Editor::CaptureEdit() const
{
    EditState state;
    state.panels = m_state.panels; // keeps parts of modules that are missing or out of use
    m_panels.Save(state);
    AddLayers(state);
    LayerRecords::ForgetClosedParts(state, m_state, MakeIsInUse());
    return state;
}

void Editor::AddLayers(EditState& state) const
{
    state.layers = DrawnLayers::Read(m_workspace->GetDrawer());
    LayerRecords::Describe(state, m_state, MakeIsInUse());
}

std::function<bool(const QString&)> Editor::MakeIsInUse() const
{
    return [this](const QString& module) { return m_panels.IsInUse(module); };
}

/// Enters the edit after a step, or after another edit has come.
void Editor::Enter(EditState state)
{
    m_state = std::move(state);
    emit layersChanged();
}

void Editor::RestoreOpenLayers()
{
    DrawnLayers::RestoreOpen(m_workspace->GetDrawer(), m_state.layers, MakeIsInUse());
}

void Editor::RestoreEdit(const EditState& state)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    ShowOnPhoto(nullptr);
    m_state = state;
    DrawnLayers::RestoreClosed(m_workspace->GetDrawer(), state.layers);
    m_panels.Restore(state);
    RestoreOpenLayers();
    emit layersChanged();
}

void Editor::RestoreStep(const EditState& state)
{
    RestoreEdit(state);
    KeepEdit();
}

void Editor::NoteEdit(const QString& text)
{
    if (!m_isRestoring && HasPhoto())
        KeepStep(text, m_manySteps.FindOthers(m_followers ? m_followers() : QStringList()));
}

/// Keeps a step that has been done, and does it on the other photos.
void Editor::KeepStep(const QString& text, const QStringList& others)
{
    m_workspace->GetDrawer().CommitAbove();
    const EditState after = CaptureEdit();
    if (after == m_state)
        return;
    const EditState before = m_state;
    Enter(after);
    KeepEdit();
    const auto restore = [this](const EditState& state) { RestoreStep(state); };
    if (others.isEmpty())
        m_undoStack.push(new EditStep(text, before, after, restore));
    else
        m_manySteps.Follow(text, before, after, others);
}

void Editor::PushUndo(QUndoCommand* command)
{
    const auto run = [this](const std::function<void()>& part) { return RunCommand(part); };
    const auto restore = [this](const EditState& state) { RestoreStep(state); };
    m_undoStack.push(
        new CommandStep(std::unique_ptr<QUndoCommand>(command), m_state, run, restore));
}

/// Runs a panel's command; its changes to the edit belong to its own step.
EditState Editor::RunCommand(const std::function<void()>& command)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    command();
    m_workspace->GetDrawer().CommitAbove();
    return HasPhoto() ? CaptureEdit() : m_state;
}

std::vector<LumetraHost::EditRecord> Editor::GetRecords() const
{
    return LumetraHost::DrawnEdit::MakeRecords(CaptureLayers());
}

// Services for panels

/// Asks no panel for its part, since panels ask for layers while they are asked themselves.
std::vector<EditorLayer> Editor::GetLayers() const
{
    EditState state;
    state.panels = m_state.panels;
    AddLayers(state);
    std::vector<EditorLayer> layers;
    for (const EditLayer& layer : state.layers)
        layers.push_back({layer.module, FindShownName(layer), layer.record.intensity, layer.isOn,
                          layer.isOpen, *layer.settings});
    return layers;
}

QString Editor::FindShownName(const EditLayer& layer) const
{
    const auto id = QString::fromStdString(layer.settings->Package().GetPresetName());
    const QString shown = FindShownName(layer.module, id);
    return shown.isEmpty() ? QString::fromStdString(layer.record.preset) : shown;
}

QString Editor::FindShownName(const QString& module, const QString& id) const
{
    return id.isEmpty() ? QString() : m_panels.FindShownName(module, id);
}

/// The module that asks notes the step, in which the look is drawn anew.
QString Editor::UpdateLook(const QString& id, const EffectsSettings& settings)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    return m_panels.UpdateLook(id, settings);
}

std::vector<EffectDescription> Editor::DescribeEffects() const
{
    return EffectDescriptions::Make();
}

std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> Editor::GetWorkspace()
{
    return m_workspace;
}

void Editor::ShowOnPhoto(const EffectsSettings* settings)
{
    if (!settings && !m_shownOnTop)
        return;
    if (settings)
        m_shownOnTop = *settings;
    else
        m_shownOnTop.reset();
    emit shownOnTopChanged();
}

Zorvik::Proc::Frame Editor::RequestPreview(const QString& key,
                                           const Zorvik::Proc::FrameTarget& target,
                                           const EffectsSettings& settings, int cropPolicy,
                                           int fitPolicy, unsigned flags)
{
    return m_previews->Request(
        key, target, settings,
        {cropPolicy, fitPolicy, flags, LumetraHost::PreviewPolicies::PortraitUpperThird});
}

void Editor::CancelPreviews()
{
    m_previews->CancelAll();
}

/// Has the panels ask for their pictures again, which show looks on the committed photo.
void Editor::CommittedPhotoChanged()
{
    m_panels.PreviewReady(QString());
}

/// Ends what a panel shows under the pointer: a user who edits wants to see the edit.
void Editor::FrameChanged()
{
    ShowOnPhoto(nullptr);
}

} // namespace LumetraEditor
