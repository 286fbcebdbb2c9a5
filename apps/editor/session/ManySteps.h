// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/ManyEdits.h"
#include "session/StepShelf.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QUndoStack;

namespace LumetraEditor {

/// The edit of the photo that is shown, as steps on several photos reach it.
struct ShownEdit
{
    std::function<QString()> getPath; ///< empty: no photo is shown
    std::function<LumetraHost::EditState()> getEdit;
    std::function<void(const LumetraHost::EditState& edit)> putEdit; ///< and saves it
};

/// Changes the edits of several photos as one step on the undo stack: that of the photo that is
/// shown at once, through the drawer, and the others in their files, in the background. Such steps
/// stay on the stack when another photo is shown, and steps of one photo come back with it. Undo
/// and redo take each photo as it is then: the one that is shown through the drawer, others in
/// their files; a photo that has been edited since is left as it is and reported.
class ManySteps : public QObject
{
    Q_OBJECT

public:
    /// `stack` is kept by reference.
    ManySteps(QUndoStack& stack, const ShownEdit& shown, QObject* parent = nullptr);

    /// Makes a step called `text` that changes the edits of the photos.
    void Change(const QString& text, const QStringList& photos, const EditChange& change);
    /// The photos that are not shown, each once, in the form that Follow() takes.
    QStringList FindOthers(const QStringList& photos) const;
    /// Makes a step of one that has been done on the photo that is shown, and does it on `others`
    /// too, see EditChanges::Follow().
    void Follow(const QString& text, const LumetraHost::EditState& before,
                const LumetraHost::EditState& after, const QStringList& others);
    /// Takes the steps of the one photo that is shown off the stack and keeps them. Those on
    /// several photos stay as they are, done or undone. Steps of panels that are no part of the
    /// edit go.
    void LeavePhoto();
    /// Puts the steps that are kept for the photo, which is shown now, back among those on several
    /// photos. They go instead where the photo has another edit than it was left with and than
    /// steps on several photos have made of that one.
    void ComeToPhoto();

    /// See ManyEdits::Settle().
    void Settle(const QString& photo);

    ManyEdits& GetEdits() { return m_edits; }

signals:
    /// A step, or its undo or redo, has come to its last photo.
    void ended(const LumetraEditor::ManyReport& report);

private:
    struct Content;
    class Step;
    struct Entry;

    std::vector<Entry> ReadStack(std::vector<OwnStep>* own) const;
    void FillStack(std::vector<Entry> entries);
    bool CanComeBack(const StepShelf::Steps& kept) const;
    std::vector<std::shared_ptr<Content>> FindContents() const;

    bool IsShown(const QString& photo) const;
    void ChangeShown(const Content& content, const EditChange& change, ManyReport& report);
    void Push(const QString& text, const std::shared_ptr<Content>& content);
    void Return(const Content& content, ManyDirection direction);
    void ReturnShown(const Content& content, const QString& photo, ManyReport& report);
    void DropIfEmpty(const std::shared_ptr<ManyStates>& states);

    QUndoStack& m_stack;
    ShownEdit m_shown;
    ManyEdits m_edits;
    StepShelf m_shelf;
};

} // namespace LumetraEditor
