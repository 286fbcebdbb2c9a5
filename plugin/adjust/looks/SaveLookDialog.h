// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/looks/LookDraft.h"

#include <QDialog>

#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace LumetraAdjust {

class NameCounter;

/// Asks how the adjustments are to become a look, and has it kept. The dialog stays open as long as
/// the look is refused, and says why.
class SaveLookDialog : public QDialog
{
    Q_OBJECT

public:
    /// The longest name that a look may have, see NewLook.
    static constexpr int LongestName = 50;

    /// Keeps a look; returns a sentence that says why not, or nothing.
    using Keep = std::function<QString(const LumetraEditor::NewLook& look)>;

    /// `adjustments` change something, and are kept by reference.
    SaveLookDialog(const Adjustments& adjustments, Keep keep, QWidget* parent);

    void accept() override;

private:
    LookDraft::Choices GetChoices() const;
    void MakeSections(QVBoxLayout& column);
    void MakeIntensity(QVBoxLayout& column);
    void MakeSliders(QVBoxLayout& column);
    QCheckBox* AddBox(const QString& text, const QString& name, QVBoxLayout& column);
    QLabel* AddCaption(const QString& text, QVBoxLayout& column);
    void Follow();

    const Adjustments& m_adjustments;
    LookDraft m_draft;
    Keep m_keep;
    QLineEdit* m_name;
    NameCounter* m_counter;
    QComboBox* m_intensity = nullptr;
    QLabel* m_hint = nullptr;
    QLabel* m_problem;
    QPushButton* m_save = nullptr;
    std::vector<std::pair<int, QCheckBox*>> m_sections;
    std::vector<std::pair<LookDraft::Parameter, QCheckBox*>> m_sliders;
};

} // namespace LumetraAdjust
