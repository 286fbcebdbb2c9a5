// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

class QWidget;

namespace LumetraPlugin {

/// Asks the user about presets. Every answer is empty, or false, when the user wants to leave
/// things as they are.
class PresetDialogs
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PresetDialogs)

public:
    /// `window` is the parent of the dialogs, kept by reference.
    explicit PresetDialogs(QWidget& window) : m_window(window) {}

    /// Asks for the name of a new preset; `proposed` stands in the field. Names of `taken` are
    /// refused.
    QString AskNewName(const QString& proposed, const QStringList& taken) const;
    /// Asks for another name of the preset called `old`; `proposed` stands in the field.
    QString AskOtherName(const QString& old, const QString& proposed,
                         const QStringList& taken) const;
    /// Asks whether a look gets a name that one of the group called `group` has already.
    bool AskSameName(const QString& name, const QString& group) const;
    bool AskRemoval(const QString& name) const;
    enum class Unsaved
    {
        SaveAgain,
        Lose,
        Stay
    };
    /// Asks whether the program may end without saving the presets. `problem` is a sentence that
    /// says why they are not saved; `canTryAgain`: true where that may change.
    Unsaved AskAboutUnsaved(const QString& problem, bool canTryAgain) const;
    /// Asks whether looks of taken names are imported under numbered ones.
    bool AskNumbered(const QStringList& names) const;
    /// Asks whether looks of names that are too long are imported under shortened ones.
    bool AskShortened(const QStringList& names) const;
    /// Asks for the file in which looks are shared; `fileName` is proposed.
    QString AskShareFile(const QString& fileName) const;
    /// Asks for files with looks.
    QStringList AskImports() const;
    /// Asks for a folder with looks.
    QString AskImportFolder() const;
    /// Asks whether the preset called `name` is written to a table without `unfit`, the names of
    /// effects that fit into none.
    bool AskColoursOnly(const QString& name, const QString& unfit) const;
    /// Asks for the file to which the preset called `name` is written as a table of colours.
    QString AskTableFile(const QString& name) const;

    QWidget& GetWindow() const { return m_window; }

private:
    QWidget& m_window;
};

} // namespace LumetraPlugin
