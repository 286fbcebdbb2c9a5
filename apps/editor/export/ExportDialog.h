// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/ExportOptions.h"
#include "export/RecipeForm.h"

#include <QDialog>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace LumetraEditor {

class EditorSettings;
class ExportGuard;

/// Asks for the form and the place of an export. Starts with the choices of the last time.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `settings` and `guard` are kept by reference. `size` is the photo's.
    ExportDialog(const QString& photo, const QSize& size, EditorSettings& settings,
                 const ExportGuard& guard, QWidget* parent = nullptr);

    ExportOptions GetOptions() const;

public slots:
    /// Refuses files that the guard protects and folders that cannot be written, and asks before
    /// another file is written over.
    void accept() override;

private:
    void BuildForm();
    void Connect();
    void Restore();
    LumetraHost::PhotoFormat GetFormat() const;
    QString GetSuffix() const;
    void RecipeChanged();
    void Browse();
    QString GetPath() const;
    static QString FindFolderProblem(const QString& path);
    bool IsRefused(const QString& path);
    bool MayReplace(const QString& path);

    QString m_photo;
    QSize m_size;
    EditorSettings& m_settings;
    const ExportGuard& m_guard;
    bool m_mayReplace = false; ///< true: the user allows to replace the file that is there
    QFormLayout* m_form;
    RecipeForm m_recipe;
    QLabel* m_resultSize;
    QLineEdit* m_path;
    QPushButton* m_browse;
    QPushButton* m_export;
};

} // namespace LumetraEditor
