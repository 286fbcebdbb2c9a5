// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"

#include <QObject>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QSlider;
class QSpinBox;
class QWidget;

namespace LumetraEditor {

/// The rows of a dialog's form that ask for an export's format, size and metadata. Shows only those
/// that the chosen format knows.
class RecipeForm : public QObject
{
    Q_OBJECT

public:
    /// Adds its rows to `form`, which the dialog `parent` owns.
    RecipeForm(QFormLayout& form, QWidget* parent);

    /// A recipe without look and records.
    LumetraHost::ExportRecipe Get() const;
    void Set(const LumetraHost::ExportRecipe& recipe);

    /// Adds a row with a note, below those for the size.
    void AddNoteBelowSize(QWidget* note);

    /// Adds a row whose label gives the keyboard to `field`, and names that for screen readers.
    static void AddRow(QFormLayout& form, const QString& text, QWidget* row, QWidget* field);
    static void AddRow(QFormLayout& form, const QString& text, QHBoxLayout* row, QWidget* field);
    static QHBoxLayout* SideBySide(QWidget* wide, QWidget* narrow);

signals:
    /// The user, or Set(), has changed one of the choices.
    void changed();

private:
    enum class SizeKind
    {
        Original,
        LongestSide,
        Megapixels
    };

    void AddFormatRows(QFormLayout& form);
    void AddSizeRows(QFormLayout& form);
    void Connect();
    void ShowRows();
    void ShowOwnRow(LumetraHost::PhotoFormat format);
    SizeKind GetSizeKind() const;
    LumetraHost::PhotoFormat GetFormat() const;

    QFormLayout& m_form;
    int m_rowBelowSize = 0;
    QComboBox* m_format;
    QSlider* m_quality;
    QSpinBox* m_qualityNumber;
    QLabel* m_ownLabel;
    QComboBox* m_sampling;
    QCheckBox* m_progressive;
    QComboBox* m_compression;
    QCheckBox* m_lossless;
    QComboBox* m_bits;
    QComboBox* m_sizeKind;
    QSpinBox* m_longestSide;
    QDoubleSpinBox* m_megapixels;
    QComboBox* m_metadata;
    QCheckBox* m_profile;
};

} // namespace LumetraEditor
