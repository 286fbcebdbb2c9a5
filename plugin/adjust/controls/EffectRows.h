// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/controls/EffectControls.h"
#include "adjust/edit/AdjustCommands.h"

#include <QString>
#include <QVector>

#include <functional>
#include <string>
#include <vector>

class QColor;
class QVBoxLayout;

namespace LumetraAdjust {

class ValueRow;

/// A row for each of some parameters of one effect.
class EffectRows : public EffectControls
{
    Q_OBJECT

public:
    /// Says whether a parameter gets a row here.
    using Choice = std::function<bool(const LumetraEditor::ParameterDescription& parameter)>;

    /// `commands` are kept by reference. The effect has been described. An empty choice takes all
    /// parameters.
    EffectRows(const std::string& effectID, AdjustCommands& commands, const Choice& isChosen = {},
               QWidget* parent = nullptr);

    int CountRows() const { return static_cast<int>(m_rows.size()); }
    ValueRow* FindRow(const std::string& parameter) const;
    /// Shortens the rows' titles to what stands behind the colon: "Hue" in place of "Red: Hue";
    /// `before` takes what stands in front of it.
    void UseShortTitles(bool before);
    /// Shows colours in the groove of a parameter.
    void SetGroove(const std::string& parameter, const QVector<QColor>& colours);

    void ShowValues() override;
    void ShowTexts() override;

private:
    enum class Title
    {
        Whole,
        Before,
        Behind
    };
    struct Row
    {
        std::string parameter;
        ValueRow* widget;
    };

    void AddRow(const LumetraEditor::ParameterDescription& parameter, QVBoxLayout& column);
    QString MakeName(const LumetraEditor::EffectDescription& effect,
                     const LumetraEditor::ParameterDescription& parameter) const;
    QString MakeStepText(const std::string& parameter) const;

    std::string m_effectID;
    AdjustCommands& m_commands;
    Title m_title = Title::Whole;
    std::vector<Row> m_rows;
};

} // namespace LumetraAdjust
