// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/ManySteps.h"

#include "edit/EditChanges.h"
#include "storage/FileIdentity.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>
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
    quint64 number = StepNumber::GiveNext();
    bool isDropped = false; ///< the step has changed nothing
};

/// A step in the order of the stack, or on its way there.
struct ManySteps::Entry
{
    quint64 number;
    bool isDone;
    std::function<QUndoCommand*(int passedOver)> make;
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
    Entry MakeEntry(bool isDone) const;
    /// Adds the step as one of its only photo, unless it has changed nothing.
    void AddOwn(bool isDone, std::vector<OwnStep>& own) const;
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

ManySteps::Entry ManySteps::Step::MakeEntry(bool isDone) const
{
    return {m_content->number, isDone, [&steps = m_steps, content = m_content](int passedOver) {
                return new Step(steps, content, passedOver);
            }};
}

void ManySteps::Step::AddOwn(bool isDone, std::vector<OwnStep>& own) const
{
    const auto change = m_content->photos.isEmpty()
                            ? std::nullopt
                            : m_content->states->Find(m_content->photos.first());
    if (!change)
        return;
    const auto whole = [](const SharedEdit& edit) {
        return edit ? edit : std::make_shared<const EditState>();
    };
    own.push_back({text(), whole(change->before), whole(change->after), m_content->number, isDone});
}

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

/// Returns the steps on several photos. `own`, unless it is null, gets those of the one photo.
std::vector<ManySteps::Entry> ManySteps::ReadStack(std::vector<OwnStep>* own) const
{
    std::vector<Entry> entries;
    for (int i = 0; i < m_stack.count(); ++i) {
        const bool isDone = i < m_stack.index();
        const auto* const step = dynamic_cast<const Step*>(m_stack.command(i));
        const auto* const edit = dynamic_cast<const EditStep*>(m_stack.command(i));
        if (step && step->GetContent()->photos.size() > 1)
            entries.push_back(step->MakeEntry(isDone));
        else if (step && own)
            step->AddOwn(isDone, *own);
        else if (edit && own) {
            own->push_back(edit->GetStep());
            own->back().isDone = isDone;
        }
    }
    return entries;
}

/// Gives the stack these steps: those that are done, then those that are not, each in their order.
void ManySteps::FillStack(std::vector<Entry> entries)
{
    std::sort(entries.begin(), entries.end(), [](const Entry& first, const Entry& second) {
        return std::tie(second.isDone, first.number) < std::tie(first.isDone, second.number);
    });
    m_stack.clear();
    int done = 0;
    for (const Entry& entry : entries) {
        m_stack.push(entry.make(entry.isDone ? 1 : 2));
        done += entry.isDone ? 1 : 0;
    }
    m_stack.setIndex(done);
}

void ManySteps::LeavePhoto()
{
    StepShelf::Steps kept;
    const auto entries = ReadStack(&kept.steps);
    kept.photo = Clean(m_shown.getPath());
    kept.left = m_shown.getEdit();
    if (!m_shown.getPath().isEmpty())
        m_shelf.Put(std::move(kept));
    FillStack(entries);
}

std::vector<std::shared_ptr<ManySteps::Content>> ManySteps::FindContents() const
{
    std::vector<std::shared_ptr<Content>> contents;
    for (int i = 0; i < m_stack.count(); ++i)
        if (const auto* const step = dynamic_cast<const Step*>(m_stack.command(i)))
            contents.push_back(step->GetContent());
    return contents;
}

/// True when the photo has the edit that it was left with, or what the steps on several photos on
/// the stack have made of that.
bool ManySteps::CanComeBack(const StepShelf::Steps& kept) const
{
    const EditState now = m_shown.getEdit();
    EditState state = kept.left;
    bool isReached = EditChanges::AreSame(state, now);
    const auto contents = FindContents();
    const auto go = [&](const Content& content, bool isForward) {
        const auto change = content.states->Find(kept.photo);
        if (isReached || !change)
            return;
        const EditState before = change->before ? *change->before : EditState();
        const EditState after = change->after ? *change->after : EditState();
        if (!EditChanges::AreSame(isForward ? before : after, state))
            return;
        state = isForward ? after : before;
        isReached = EditChanges::AreSame(state, now);
    };
    const auto undone = contents.begin() + m_stack.index();
    for (auto content = contents.rbegin(); content.base() != undone; ++content)
        go(**content, false);
    for (auto content = contents.begin(); content != undone; ++content)
        go(**content, true);
    return isReached;
}

void ManySteps::ComeToPhoto()
{
    const auto kept = m_shelf.Take(Clean(m_shown.getPath()));
    if (!kept || !CanComeBack(*kept))
        return;
    std::vector<Entry> entries = ReadStack(nullptr);
    quint64 newest = 0;
    for (const Entry& entry : entries)
        newest = entry.isDone ? std::max(newest, entry.number) : newest;
    const auto restore = [this](const EditState& state) { m_shown.putEdit(state); };
    for (const OwnStep& step : kept->steps)
        if (step.isDone || step.number > newest) // a new step ends those that were undone
            entries.push_back({step.number, step.isDone, [step, restore](int passedOver) {
                                   return new EditStep(step, restore, passedOver);
                               }});
    FillStack(std::move(entries));
}

} // namespace LumetraEditor
