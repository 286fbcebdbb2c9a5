// SPDX-License-Identifier: GPL-2.0-or-later
#include "layers/LayersModel.h"

#include "appearance/Icons.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QMimeData>
#include <QPalette>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;

const QString RowFormat = QStringLiteral("application/x-lumetra-layer-row");

} // namespace

LayersModel::LayersModel(QObject* parent) : QAbstractTableModel(parent) {}

void LayersModel::SetNamer(const Namer& namer)
{
    m_namer = namer;
}

/// Keeps the rows where there are as many, so that a view keeps its place.
void LayersModel::SetLayers(const std::vector<EditLayer>& layers)
{
    std::vector<EditLayer> rows(layers.rbegin(), layers.rend());
    if (rows.size() != m_layers.size()) {
        beginResetModel();
        m_layers = std::move(rows);
        endResetModel();
        return;
    }
    m_layers = std::move(rows);
    UpdateNames();
}

void LayersModel::UpdateNames()
{
    if (!m_layers.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void LayersModel::SetIcons(LumetraHost::PaletteKind kind)
{
    m_openMark = MakeIcon(QStringLiteral("edited"), kind);
    UpdateNames();
}

const EditLayer& LayersModel::GetLayer(int row) const
{
    return m_layers[static_cast<std::size_t>(row)];
}

QString LayersModel::GetName(int row) const
{
    return m_namer ? m_namer(GetLayer(row)) : QString();
}

int LayersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_layers.size());
}

int LayersModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LayersModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::ForegroundRole && !GetLayer(index.row()).isOn)
        return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    if (role == Qt::ToolTipRole)
        return tr("Double click: open again. Drag: put above or below another one.\n"
                  "Right click: all that can be done.");
    return index.column() == NameColumn ? NameData(index.row(), role)
                                        : IntensityData(index.row(), role);
}

QVariant LayersModel::NameData(int row, int role) const
{
    const EditLayer& layer = GetLayer(row);
    switch (role) {
    case Qt::DisplayRole:
        return GetName(row);
    case Qt::CheckStateRole:
        return layer.isOn ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
        return layer.isOpen ? QVariant(m_openMark) : QVariant();
    case Qt::AccessibleTextRole:
        return DescribeState(row);
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setBold(layer.isOpen);
        return font;
    }
    default:
        return {};
    }
}

/// An adjustment has no intensity of its own.
QVariant LayersModel::IntensityData(int row, int role) const
{
    const EditLayer& layer = GetLayer(row);
    const bool isLook = !layer.settings->Package().GetPresetName().empty();
    switch (role) {
    case Qt::DisplayRole:
        return isLook ? QLocale().toString(layer.record.intensity) : QString();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::AccessibleTextRole:
        return isLook ? tr("Intensity %1").arg(layer.record.intensity) : QString();
    default:
        return {};
    }
}

QString LayersModel::DescribeState(int row) const
{
    const EditLayer& layer = GetLayer(row);
    QStringList words(GetName(row));
    if (layer.isOpen)
        words.append(tr("open"));
    words.append(layer.isOn ? tr("on") : tr("off"));
    return words.join(QStringLiteral(", "));
}

bool LayersModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != NameColumn || role != Qt::CheckStateRole)
        return false;
    emit switchRequested(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags LayersModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Qt::ItemFlags flags =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    return index.column() == NameColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

QStringList LayersModel::mimeTypes() const
{
    return {RowFormat};
}

QMimeData* LayersModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto* const data = new QMimeData;
    data->setData(RowFormat, QByteArray::number(indexes.first().row()));
    return data;
}

/// Never says that it has taken the row, so that the view removes none: the edit moves it.
bool LayersModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                               const QModelIndex& parent)
{
    bool isNumber = false;
    const int from = data->data(RowFormat).toInt(&isNumber);
    if (!isNumber || action != Qt::MoveAction || from < 0 || from >= rowCount())
        return false;
    int to = row >= 0 ? row : parent.isValid() ? parent.row() : rowCount();
    if (to > from)
        --to; // the row itself has left its place
    if (to != from)
        emit moveRequested(from, to);
    return false;
}

} // namespace LumetraEditor
