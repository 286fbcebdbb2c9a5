// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace LumetraEditor {

class ManyEdits;
struct ManyReport;

/// Shows in the status bar how far a step on several photos has come, with a button that stops it,
/// and how many photos it has changed. Hidden while there is nothing to show.
class ManyProgress : public QWidget
{
    Q_OBJECT

public:
    /// `edits` is kept by reference.
    explicit ManyProgress(ManyEdits& edits, QWidget* parent = nullptr);

    /// Shows how a step has ended, until Clear().
    void ShowEnd(const ManyReport& report);
    void Clear();

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowProgress(int done, int total);
    void Translate();

    QLabel* m_text;
    QToolButton* m_cancel;
};

} // namespace LumetraEditor
