// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditWriter.h"

#include "edits/EditFile.h"
#include "edits/KeptEdits.h"
#include "storage/CheckedFileWriter.h"
#include "storage/JsonDocument.h"
#include "userdata/BackupRotation.h"
#include "userdata/EditPlaces.h"

#include <QFile>
#include <QFileInfo>

#include <exception>

namespace LumetraEditor {
namespace {

using LumetraHost::EditState;

namespace EditPlaces = LumetraHost::EditPlaces;

const QString Unreadable = QStringLiteral("unreadable");
const QString Earlier = QStringLiteral("earlier");

/// Null where that is no file, or cannot be read.
QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray();
}

} // namespace

/// Returns the name of the copy that was made; empty for none.
QString EditWriter::Target::Write(const QByteArray& text)
{
    LumetraHost::JsonDocument::CheckReadable(text, path);
    QString copy;
    if (QFileInfo(path).isFile() && !IsSafe()) {
        copy = LumetraHost::BackupRotation(path).SetAside(setAsideAs);
        safe = ReadAll(copy); // no second copy where the write fails
    }
    LumetraHost::CheckedFileWriter::Write(path, text);
    safe = text;
    setAsideAs = Earlier;
    return copy;
}

void EditWriter::Target::RemoveSafe()
{
    if (IsSafe())
        QFile::remove(path);
    safe.clear();
}

bool EditWriter::Target::IsSafe() const
{
    return !safe.isNull() && ReadAll(path) == safe;
}

EditWriter::EditWriter(const QString& photo, const LumetraHost::PhotoIdentity& identity,
                       const LumetraHost::EditSearch& search)
    : m_photo(photo), m_identity(identity),
      m_beside(MakeTarget(EditPlaces::GetBeside(photo), search)),
      m_kept(MakeTarget(LumetraHost::KeptEdits::GetPath(photo, identity), search))
{
    if (const auto& found = search.GetFound())
        m_origin = found->edit.origin;
}

EditWriter::Target EditWriter::MakeTarget(const QString& path,
                                          const LumetraHost::EditSearch& search)
{
    const auto& found = search.GetFound();
    const bool isSource = found && found->path == path;
    return Target{path, isSource ? found->edit.text : QByteArray(),
                  search.GetUnreadable().contains(path) ? Unreadable : Earlier};
}

void EditWriter::StartAnew()
{
    m_beside.safe.clear();
    m_kept.safe.clear();
    m_origin.reset();
}

EditWriter::Outcome EditWriter::Write(const EditState& state, const QDateTime& saved)
{
    Outcome outcome;
    try {
        outcome.setAside = m_beside.Write(MakeText(state, saved, QString()));
        m_kept.RemoveSafe(); // the edit has moved to the photo
    } catch (const std::exception& problem) {
        outcome.besideError = QString::fromUtf8(problem.what());
        WriteElsewhere(state, saved, outcome);
    }
    return outcome;
}

void EditWriter::WriteElsewhere(const EditState& state, const QDateTime& saved, Outcome& outcome)
{
    try {
        LumetraHost::CheckedFileWriter::MakeFolder(EditPlaces::GetKeptFolder());
        outcome.setAside = m_kept.Write(MakeText(state, saved, m_photo));
    } catch (const std::exception& problem) {
        outcome.error = outcome.besideError + QLatin1Char('\n') + QString::fromUtf8(problem.what());
    }
}

void EditWriter::Remove()
{
    m_beside.RemoveSafe();
    m_kept.RemoveSafe();
}

/// `photoPath` is empty for the file beside the photo.
QByteArray EditWriter::MakeText(const EditState& state, const QDateTime& saved,
                                const QString& photoPath) const
{
    LumetraHost::EditFile file;
    file.state = state;
    file.photo = m_identity;
    file.photoPath = photoPath;
    file.saved = saved;
    file.origin = m_origin;
    return file.ToText();
}

} // namespace LumetraEditor
