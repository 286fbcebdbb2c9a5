// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace LumetraEditor {

class Editor;

/// Keeps the editor's display colours those of the monitor that the window is on, or of the profile
/// that was chosen in its place. What cannot be used is told to the user, and sRGB is shown.
class MonitorColours : public QObject
{
    Q_OBJECT

public:
    /// The choice of no profile at all.
    static constexpr char Srgb[] = "srgb";

    /// `editor` is kept by reference. Child of the window.
    MonitorColours(Editor& editor, QWidget& window);

    /// The path of an ICC profile, Srgb, or empty: what the window system says.
    void Use(const QString& choice);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow();
    void Show(const QByteArray& icc, const QString& origin);

    Editor& m_editor;
    QWidget& m_window;
    QString m_choice;
    QByteArray m_shown;
};

} // namespace LumetraEditor
