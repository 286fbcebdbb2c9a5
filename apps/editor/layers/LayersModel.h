// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"
#include "style/StyleColours.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <functional>
#include <vector>

namespace LumetraEditor {

/// The layers of the photo's edit for a list, the topmost first: the name with a tick for on and
/// off and a mark for an open layer, and the intensity. A position counts from the bottom, as in
/// the edit. The model changes nothing itself; it says what the user wants.
class LayersModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        IntensityColumn,
        ColumnCount
    };
    /// Names a layer for the user.
    using Namer = std::function<QString(const LumetraHost::EditLayer& layer)>;

    explicit LayersModel(QObject* parent = nullptr);

    void SetNamer(const Namer& namer);
    /// Takes the layers, bottom first.
    void SetLayers(const std::vector<LumetraHost::EditLayer>& layers);
    /// Asks for the names again.
    void UpdateNames();
    void SetIcons(LumetraHost::PaletteKind kind);

    const LumetraHost::EditLayer& GetLayer(int row) const;
    QString GetName(int row) const;
    /// The position of a row, and the row of a position.
    int ToPosition(int row) const { return rowCount() - 1 - row; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    void switchRequested(int row, bool isOn);
    /// The row is to come to the place `to` in the list that results.
    void moveRequested(int row, int to);

private:
    QVariant NameData(int row, int role) const;
    QVariant IntensityData(int row, int role) const;
    QString DescribeState(int row) const;

    std::vector<LumetraHost::EditLayer> m_layers; ///< topmost first
    Namer m_namer;
    QIcon m_openMark;
};

} // namespace LumetraEditor
