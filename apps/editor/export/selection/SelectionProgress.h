// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace LumetraEditor {

class SelectionExporter;

/// Shows how far an export of several photos is, and afterwards what failed. Stands beside the
/// window, which goes on working; closing it does not end the export.
class SelectionProgress : public QDialog
{
    Q_OBJECT

public:
    /// `exporter` is kept by reference.
    SelectionProgress(SelectionExporter& exporter, QWidget* parent);

    /// To be called when a batch has been started.
    void Begin();
    /// Brings the window to the front.
    void Raise();

private:
    void Progress(int done, int total, const QString& photo);
    void End();
    void ShowProblems();
    void ShowFolder();
    void UpdateButtons();

    SelectionExporter& m_exporter;
    QLabel* m_text;
    QProgressBar* m_bar;
    QListWidget* m_problems;
    QPushButton* m_again;
    QPushButton* m_showFolder;
    QPushButton* m_cancel;
    QPushButton* m_close;
};

} // namespace LumetraEditor
