// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace LumetraEditor {

class Editor;

/// Sets the editor's display colours to those of the window's monitor, or of a profile that the
/// user has chosen instead. A profile that cannot be used is reported to the user, and sRGB is
/// shown.
class MonitorColours : public QObject
{
    Q_OBJECT

public:
    /// The choice of no profile at all.
    static constexpr char Srgb[] = "srgb";

    /// `editor` is kept by reference. Child of the window.
    MonitorColours(Editor& editor, QWidget& window);

    /// Uses the ICC profile at the path `choice`, or none (Srgb), or that of the window system
    /// (empty).
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
