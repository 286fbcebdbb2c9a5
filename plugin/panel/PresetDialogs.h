// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

class QWidget;

namespace LumetraPlugin {

/// What the user is asked about presets. Every answer is empty, or false, when the user wants to
/// leave things as they are.
class PresetDialogs
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PresetDialogs)

public:
    /// `window` is the parent of the dialogs, kept by reference.
    explicit PresetDialogs(QWidget& window) : m_window(window) {}

    /// A name for a copy of the preset called `old`.
    QString AskNewName(const QString& old, const QStringList& taken) const;
    /// Another name for the preset called `old`.
    QString AskOtherName(const QString& old, const QStringList& taken) const;
    bool AskRemoval(const QString& name) const;
    enum class Unsaved
    {
        SaveAgain,
        Lose,
        Stay
    };
    /// Before the program ends without the user's presets. `problem` is a sentence that says why
    /// they are not saved; `canTryAgain` whether that may change.
    Unsaved AskAboutUnsaved(const QString& problem, bool canTryAgain) const;
    /// Files with looks.
    QStringList AskImports() const;
    /// The .cube file that the preset called `name` is to be written to.
    QString AskExport(const QString& name) const;

private:
    QWidget& m_window;
};

} // namespace LumetraPlugin
