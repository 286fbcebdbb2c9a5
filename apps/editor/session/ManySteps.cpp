// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/ManySteps.h"

#include "storage/FileIdentity.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <vector>

namespace LumetraEditor {

using LumetraHost::EditState;
using LumetraHost::FileIdentity;

namespace {

/// One form of a path for all that lead through the same folders to one name.
QString Clean(const QString& photo)
{
    return QDir::cleanPath(QFileInfo(photo).absoluteFilePath());
}

} // namespace

/// A step shares this with its successors on the stack after another photo has been shown.
struct ManySteps::Content
{
    QString text;
    QStringList photos;
    std::shared_ptr<ManyStates> states = std::make_shared<ManyStates>();
    bool isDropped = false; ///< the step has changed nothing
};

/// A step on the undo stack. The first calls are passed over that bring it into its place there.
class ManySteps::Step : public QUndoCommand
{
public:
    Step(ManySteps& steps, const std::shared_ptr<Content>& content, int passedOver)
        : QUndoCommand(content->text), m_steps(steps), m_content(content), m_passedOver(passedOver)
    {
    }

    const std::shared_ptr<Content>& GetContent() const { return m_content; }
    void undo() override { Go(ManyDirection::Back); }
    void redo() override { Go(ManyDirection::Forward); }

private:
    void Go(ManyDirection direction)
    {
        setObsolete(m_content->isDropped);
        if (m_passedOver > 0)
            --m_passedOver;
        else if (!m_content->isDropped)
            m_steps.Return(*m_content, direction);
    }

    ManySteps& m_steps;
    std::shared_ptr<Content> m_content;
    int m_passedOver;
};

ManySteps::ManySteps(QUndoStack& stack, const ShownEdit& shown, QObject* parent)
    : QObject(parent), m_stack(stack), m_shown(shown)
{
    connect(&m_edits, &ManyEdits::finished, this,
            [this](const std::shared_ptr<ManyStates>& states, const ManyReport& report) {
                DropIfEmpty(states);
                emit ended(report);
            });
}

/// True where the photo has the edit that is shown, through whatever folders its path leads.
bool ManySteps::IsShown(const QString& photo) const
{
    using LumetraHost::EditPlaces::GetBeside;
    const QString shown = m_shown.getPath();
    if (shown.isEmpty() || QFileInfo(photo).fileName() != QFileInfo(shown).fileName())
        return false;
    return photo == shown ||
           FileIdentity::Of(GetBeside(photo)) == FileIdentity::Of(GetBeside(shown));
}

QStringList ManySteps::FindOthers(const QStringList& photos) const
{
    QStringList others;
    for (const QString& photo : photos)
        if (!IsShown(photo))
            others.append(Clean(photo));
    others.removeDuplicates();
    return others;
}

void ManySteps::Settle(const QString& photo)
{
    m_edits.Settle(Clean(photo));
}

/// A step on several photos says on how many.
void ManySteps::Push(const QString& text, const std::shared_ptr<Content>& content)
{
    const int count = content->photos.size();
    content->text = count > 1 ? tr("%1 (%2 photos)").arg(text).arg(count) : text;
    m_stack.push(new Step(*this, content, 1));
}

void ManySteps::Change(const QString& text, const QStringList& photos, const EditChange& change)
{
    const auto content = std::make_shared<Content>();
    ManyReport report;
    const bool isShownToo = std::any_of(photos.begin(), photos.end(),
                                        [this](const QString& photo) { return IsShown(photo); });
    if (isShownToo) {
        content->photos.append(Clean(m_shown.getPath()));
        ChangeShown(*content, change, report);
    }
    const QStringList others = FindOthers(photos);
    content->photos += others;
    Push(text, content);
    m_edits.Do(content->states, others, change, report);
}

void ManySteps::ChangeShown(const Content& content, const EditChange& change, ManyReport& report)
{
    const auto before = std::make_shared<const EditState>(m_shown.getEdit());
    const EditState changed = change(*before);
    if (EditChanges::AreSame(*before, changed)) {
        ++report.same;
        return;
    }
    m_shown.putEdit(changed);
    const auto after = std::make_shared<const EditState>(m_shown.getEdit());
    content.states->Set(content.photos.first(), {before, after});
    ++report.changed;
}

void ManySteps::Follow(const QString& text, const EditState& before, const EditState& after,
                       const QStringList& others)
{
    const auto content = std::make_shared<Content>();
    content->photos = QStringList(Clean(m_shown.getPath())) + others;
    content->states->Set(content->photos.first(), {std::make_shared<const EditState>(before),
                                                   std::make_shared<const EditState>(after)});
    ManyReport report;
    report.changed = 1;
    Push(text, content);
    m_edits.Do(
        content->states, others,
        [before, after](const EditState& edit) { return EditChanges::Follow(edit, before, after); },
        report);
}

void ManySteps::Return(const Content& content, ManyDirection direction)
{
    ManyReport report;
    report.direction = direction;
    for (const QString& photo : content.photos)
        if (IsShown(photo)) {
            ReturnShown(content, photo, report);
            break; // another path to it would be the same edit
        }
    m_edits.Return(content.states, FindOthers(content.photos), report);
}

/// Brings the edit of the photo back that is shown, and enters it as the panels have taken it.
void ManySteps::ReturnShown(const Content& content, const QString& photo, ManyReport& report)
{
    auto change = content.states->Find(photo);
    if (!change) {
        ++report.same;
        return;
    }
    const bool isBack = report.direction == ManyDirection::Back;
    const SharedEdit& from = isBack ? change->after : change->before;
    SharedEdit& to = isBack ? change->before : change->after;
    if (!EditChanges::AreSame(m_shown.getEdit(), from ? *from : EditState())) {
        report.problems.append(tr("%1: it has been edited since").arg(QFileInfo(photo).fileName()));
        return;
    }
    m_shown.putEdit(to ? *to : EditState());
    to = std::make_shared<const EditState>(m_shown.getEdit());
    content.states->Set(photo, *change);
    ++report.changed;
}

/// Takes the newest step off the stack again when it has changed no photo.
void ManySteps::DropIfEmpty(const std::shared_ptr<ManyStates>& states)
{
    const int last = m_stack.index() - 1;
    const auto* const step = last >= 0 ? dynamic_cast<const Step*>(m_stack.command(last)) : nullptr;
    if (!step || step->GetContent()->states != states || !states->IsEmpty())
        return;
    step->GetContent()->isDropped = true;
    m_stack.undo(); // the stack deletes the step
}

void ManySteps::ForgetOwnSteps()
{
    std::vector<std::shared_ptr<Content>> kept;
    int done = 0;
    for (int i = 0; i < m_stack.count(); ++i) {
        const auto* const step = dynamic_cast<const Step*>(m_stack.command(i));
        if (!step || step->GetContent()->photos.size() < 2)
            continue;
        kept.push_back(step->GetContent());
        done += i < m_stack.index() ? 1 : 0;
    }
    m_stack.clear();
    for (int i = 0; i < static_cast<int>(kept.size()); ++i)
        m_stack.push(new Step(*this, kept[static_cast<std::size_t>(i)], i < done ? 1 : 2));
    m_stack.setIndex(done);
}

} // namespace LumetraEditor
