// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

namespace LumetraPlugin {

struct ImportReport;
struct ImportedPreset;
struct KnownLook;

/// Tells after an import which looks came, what of them is only like it or missing, which ones the
/// user had already, and which files were not imported and why. Belongs to its window, keeps nobody
/// waiting, and is deleted when it is closed.
class ImportSummary : public QDialog
{
    Q_OBJECT

public:
    ImportSummary(const ImportReport& report, QWidget& window);

    /// True for an import of which there is more to tell than fits into a message or two.
    static bool IsNeeded(const ImportReport& report);
    /// One to three sentences: how many looks came, how many were here, and how many files did not
    /// come.
    static QString MakeSentence(const ImportReport& report);

private:
    static QString MakeDetails(const ImportReport& report);
    static QString MakeLook(const ImportedPreset& preset);
    static QString MakeKnown(const KnownLook& look);
};

} // namespace LumetraPlugin
