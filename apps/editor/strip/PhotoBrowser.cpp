// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/PhotoBrowser.h"

#include "session/Editor.h"
#include "strip/PhotoStrip.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace LumetraEditor {
namespace {

const QString ShownForOneKey = QStringLiteral("strip/shownForOnePhoto");
const QString ShownForSeveralKey = QStringLiteral("strip/shownForSeveralPhotos");
const QString OrderKey = QStringLiteral("strip/order");
const QString ByTime = QStringLiteral("time");
const QString ByName = QStringLiteral("name");

PhotoSources Divide(const QStringList& paths)
{
    PhotoSources sources;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        (file.isDir() ? sources.folders : sources.files).append(file.absoluteFilePath());
    }
    return sources;
}

} // namespace

PhotoBrowser::PhotoBrowser(Editor& editor, EditorSettings& settings, PhotoStripModel& photos,
                           PhotoStrip& strip, QObject* parent)
    : QObject(parent), m_editor(editor), m_settings(settings), m_photos(photos), m_strip(strip)
{
    connect(&m_scan, &FolderScan::found, this, &PhotoBrowser::TakeFound);
    connect(&m_scan, &FolderScan::ended, this, &PhotoBrowser::EndScan);
    connect(&m_strip, &PhotoStrip::chosen, this, &PhotoBrowser::OpenInRow);
    connect(&m_strip, &PhotoStrip::selectionMoved, this, [this] {
        emit selectionChanged();
        emit placeChanged();
    });
    connect(&m_editor, &Editor::editSaved, &m_photos, &PhotoStripModel::MarkChanged);
    connect(&m_editor, &Editor::photoRefused, &m_photos, &PhotoStripModel::SetProblem);
    connect(&m_editor, &Editor::displayChanged, this,
            [this] { m_photos.SetDisplay(m_editor.GetDisplay()); });
    m_photos.SetNaming([&editor](const ThumbnailLook& look) {
        return editor.FindShownName(look.module, look.id);
    });
    m_photos.SetOrder(m_settings.Get(OrderKey).toString() == ByTime ? PhotoOrder::Time
                                                                    : PhotoOrder::Name);
    m_strip.hide();
}

// Opening

void PhotoBrowser::Open(const QStringList& paths)
{
    const PhotoSources sources = Divide(paths);
    if (paths.isEmpty())
        return;
    const bool hasFiles = !sources.files.isEmpty();
    if (hasFiles ? !m_editor.OpenPhoto(sources.files.first()) : !m_editor.MayLeavePhoto())
        return;
    m_isNewRow = !hasFiles;
    if (hasFiles) {
        m_sources = sources;
        BeginRow(sources.files);
        SetCurrent(sources.files.first());
    }
    Scan(sources);
    ShowStrip();
}

void PhotoBrowser::BeginRow(const QStringList& files)
{
    m_photos.Replace(files);
    m_isAlone = m_sources.folders.isEmpty() && m_photos.rowCount() == 1;
    emit photosFound(files);
}

void PhotoBrowser::OpenInRow(const QString& path)
{
    const bool isThere =
        path == m_photos.GetCurrent() && (m_editor.IsOpening() || m_editor.GetPhotoPath() == path);
    const bool isOpened = !path.isEmpty() && !isThere && m_editor.OpenPhoto(path);
    SetCurrent(isOpened ? path : m_photos.GetCurrent());
}

void PhotoBrowser::SetCurrent(const QString& path)
{
    m_photos.SetCurrent(path);
    m_strip.ShowCurrent();
    emit selectionChanged(); // another one of the same photos may be the first
    emit placeChanged();
}

QString PhotoBrowser::GetNeighbour(int step) const
{
    const int row = m_photos.FindRow(m_photos.GetCurrent());
    return row < 0 ? QString() : m_photos.GetPath(row + step);
}

// Listing

void PhotoBrowser::Scan(const PhotoSources& sources)
{
    m_scanned = sources;
    m_found.clear();
    if (m_photos.GetOrder() == PhotoOrder::Time)
        m_scan.StartWithTimes(sources, m_photos.GetTimes());
    else
        m_scan.Start(sources);
}

void PhotoBrowser::TakeFound(const std::vector<FoundPhoto>& photos)
{
    if (std::exchange(m_isNewRow, false)) {
        m_sources = m_scanned;
        BeginRow({});
        m_photos.SetCurrent({});
    }
    m_photos.Add(photos);
    QStringList paths;
    for (const FoundPhoto& photo : photos) {
        m_found.insert(photo.path);
        paths.append(photo.path);
    }
    emit photosFound(paths);
    emit placeChanged();
    ShowStrip();
}

void PhotoBrowser::EndScan(const QStringList& problems)
{
    if (!problems.isEmpty())
        emit problemFound(problems.join(QLatin1Char('\n')));
    else if (m_isNewRow)
        emit problemFound(
            tr("There are no photos in “%1”.")
                .arg(QDir::toNativeSeparators(m_scanned.folders.join(QStringLiteral("”, “")))));
    if (std::exchange(m_isNewRow, false))
        return;
    m_photos.EndScan(m_found);
    if (m_photos.GetCurrent().isEmpty())
        OpenInRow(m_photos.GetPath(0));
    emit placeChanged();
    ShowStrip();
}

void PhotoBrowser::Refresh()
{
    if (!m_scan.IsRunning() && m_photos.rowCount() > 0)
        Scan(m_sources);
}

void PhotoBrowser::SetOrder(PhotoOrder order)
{
    m_settings.Set(OrderKey, order == PhotoOrder::Time ? ByTime : ByName);
    if (order == m_photos.GetOrder())
        return;
    m_photos.SetOrder(order);
    m_strip.ShowCurrent();
    emit placeChanged();
    Refresh(); // asks for the times
}

// The strip

QStringList PhotoBrowser::GetSelectedPhotos() const
{
    return m_strip.GetSelectedPhotos();
}

void PhotoBrowser::SelectAll()
{
    m_strip.selectAll();
}

void PhotoBrowser::SelectOnlyCurrent()
{
    m_strip.SelectOnlyCurrent();
}

QString PhotoBrowser::GetPlaceText() const
{
    const int count = m_photos.rowCount();
    const int row = m_photos.FindRow(m_photos.GetCurrent());
    const int selected = m_strip.CountSelected();
    if (count < 2 || row < 0)
        return {};
    const QString place = tr("%1 of %2").arg(row + 1).arg(count);
    return selected > 1 ? tr("%1, %2 selected").arg(place).arg(selected) : place;
}

QString PhotoBrowser::SettingsKey() const
{
    return m_isAlone ? ShownForOneKey : ShownForSeveralKey;
}

void PhotoBrowser::SetStripShown(bool isShown)
{
    m_isStripAway = m_isStripAway && !isShown;
    m_settings.Set(SettingsKey(), isShown);
    ShowStrip();
}

void PhotoBrowser::SetStripAway(bool isAway)
{
    m_isStripAway = isAway;
    ShowStrip();
}

void PhotoBrowser::ShowStrip()
{
    const bool isPossible = m_photos.rowCount() > 0;
    const bool isShown =
        isPossible && !m_isStripAway && m_settings.Get(SettingsKey(), !m_isAlone).toBool();
    m_strip.setVisible(isShown);
    emit stripChanged(isShown, isPossible);
    if (isShown && m_isAlone)
        FillFromFolder();
}

/// Lets the photos of its folder stand beside a photo that was opened alone.
void PhotoBrowser::FillFromFolder()
{
    if (!m_sources.folders.isEmpty() || m_isNewRow)
        return;
    m_sources.folders.append(QFileInfo(m_sources.files.first()).absolutePath());
    Scan(m_sources);
}

} // namespace LumetraEditor
