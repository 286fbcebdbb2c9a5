// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace LumetraEditor {

/// Shown while no photo is open: ways to open one, and the last photos.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    /// Sets the photos whose first few are offered, by absolute paths.
    void SetRecentPhotos(const QStringList& paths);
    void SetIcons(LumetraHost::PaletteKind kind);

signals:
    void openRequested();
    void photoRequested(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    static constexpr int MostShown = 5;

    void Translate();

    QLabel* m_picture;
    QLabel* m_title;
    QLabel* m_hint;
    QPushButton* m_open;
    QLabel* m_recentTitle;
    QWidget* m_recent;
    QVBoxLayout* m_recentLayout;
};

} // namespace LumetraEditor
