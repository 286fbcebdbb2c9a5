// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "settings/EditorSettings.h"
#include "strip/FolderScan.h"
#include "strip/PhotoStripModel.h"

#include <QObject>
#include <QSet>
#include <QStringList>

namespace LumetraEditor {

class Editor;
class PhotoStrip;

/// The photos of the window: opens files and folders, steps from photo to photo, and shows them in
/// the strip. The current photo is that of the latest request, whether it can be read or not, so
/// that no photo ends the stepping.
///
/// A photo that is opened alone stands alone, and the strip is folded. Where the strip is unfolded
/// then, the photos of its folder stand beside it. Whether the strip is folded is remembered for
/// single photos and for several apart.
class PhotoBrowser : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `strip` is filled and outlives the browser.
    PhotoBrowser(Editor& editor, EditorSettings& settings, PhotoStripModel& photos,
                 PhotoStrip& strip, QObject* parent = nullptr);

    /// Opens the first of the files, or, where there are only folders, the first photo in them;
    /// the others stand beside it. Does nothing when the photo that is open may not be left. An
    /// earlier row of photos stays until there is a photo for another one.
    void Open(const QStringList& paths);
    bool HasNeighbour(int step) const { return !GetNeighbour(step).isEmpty(); }
    /// Opens the photo that stands `step` places from the current one; does nothing at the ends.
    void OpenNeighbour(int step) { OpenInRow(GetNeighbour(step)); }

    /// The absolute paths of the selected photos, the current one first; all that there is to an
    /// action on several photos. Empty without photos.
    QStringList GetSelectedPhotos() const;
    void SelectAll();
    void SelectOnlyCurrent();

    /// "3 of 128", and how many are selected where that is more than one; empty for less than two
    /// photos.
    QString GetPlaceText() const;

    PhotoOrder GetOrder() const { return m_photos.GetOrder(); }
    /// Remembered.
    void SetOrder(PhotoOrder order);
    /// Looks for photos that came or went, and for changed ones.
    void Refresh();
    /// Folds or unfolds the strip; remembered.
    void SetStripShown(bool isShown);
    /// Takes the strip out of sight for a while, whatever is remembered, until the user unfolds it.
    void SetStripAway(bool isAway);

signals:
    /// Neighbours or the text of the place may have changed.
    void placeChanged();
    /// GetSelectedPhotos() may have changed.
    void selectionChanged();
    /// The strip has been folded or unfolded. `isPossible`: there is something to show.
    void stripChanged(bool isShown, bool isPossible);
    /// These photos belong to the session from now on.
    void photosFound(const QStringList& paths);
    /// A sentence for the user.
    void problemFound(const QString& text);

private:
    void OpenInRow(const QString& path);
    void SetCurrent(const QString& path);
    QString GetNeighbour(int step) const;
    void Scan(const PhotoSources& sources);
    void TakeFound(const std::vector<FoundPhoto>& photos);
    void EndScan(const QStringList& problems);
    void BeginRow(const QStringList& files);
    QString SettingsKey() const;
    void ShowStrip();
    void FillFromFolder();

    Editor& m_editor;
    EditorSettings& m_settings;
    PhotoStripModel& m_photos;
    PhotoStrip& m_strip;
    FolderScan m_scan;
    PhotoSources m_sources;  ///< of the row
    PhotoSources m_scanned;  ///< of the latest scan
    QSet<QString> m_found;   ///< by the scan that is running
    bool m_isNewRow = false; ///< the first photos of the scan take the place of the row
    bool m_isStripAway = false;
    bool m_isAlone = true; ///< the row was begun by one photo
};

} // namespace LumetraEditor
