// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/edit/Adjustments.h"

#include <QObject>

namespace LumetraEditor {
class IEditor;
}

namespace LumetraAdjust {

/// Draws the adjustments on the photo, as one package of the panel's own, and gives the editor the
/// finished steps. While a control is dragged, the painter shows the effect that changes. Without a
/// photo values change and nothing is drawn.
class AdjustCommands : public QObject
{
    Q_OBJECT

public:
    /// The drawer's package of the panel.
    static constexpr char PackageName[] = "lumetra.adjust";

    /// Both are kept by reference.
    AdjustCommands(Adjustments& adjustments, LumetraEditor::IEditor& editor);

    const Adjustments& GetAdjustments() const { return m_adjustments; }

    /// Changes values of one effect and shows them. Finish() ends the step, after any number of
    /// calls.
    void Move(const std::string& effectID, const Adjustments::Values& values);
    /// Ends a step, which `text` names for the user. Effects that change nothing leave the package.
    void Finish(const QString& text);
    /// Moves and finishes at once, and tells the controls.
    void Set(const std::string& effectID, const Adjustments::Values& values, const QString& text);
    /// Puts effects back to their defaults, as one step.
    void ResetEffects(const std::vector<std::string>& effectIDs, const QString& text);
    /// True when any value is another one than its default.
    bool HasChanges() const;
    /// Puts everything back, as one step.
    void ResetAll();
    /// Makes the adjustments, and all else that is open, part of the photo, as one step.
    void Commit();

    /// Puts all values back without a step: another photo is open, or another module has committed.
    /// The open package stays on the photo.
    void Forget();
    /// Goes back to saved values and draws them. The drawer has no package of the panel.
    void Restore(const Zorvik::Core::Property::Ptr& saved);
    /// Takes the package off the photo and puts all values back without a step: the adjustments
    /// have become part of something else.
    void TakeOff();

signals:
    /// Values have been changed otherwise than by the control that shows them.
    void valuesChanged();
    /// A step has ended, or everything is different.
    void stateChanged();

private:
    void StartPainting(const std::string& effectID);
    void FinishPainting();
    bool IsDrawn(const std::string& effectID) const;
    void DrawPackage(const std::string& alsoEffectID = {});
    void RemovePackage();
    void SyncPackage();

    Adjustments& m_adjustments;
    LumetraEditor::IEditor& m_editor;
    std::vector<std::string> m_drawn; ///< the effects of the package as it was last applied
    std::string m_painted;            ///< the effect that is being painted; empty: none
};

} // namespace LumetraAdjust
