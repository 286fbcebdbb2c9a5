// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <vector>

class QPainter;

namespace LumetraCli {

/// A picture of many labelled pictures under headings.
class ContactSheet
{
public:
    struct Tile
    {
        QString label;
        QImage picture; ///< null: a frame is drawn in its place
    };

    struct Section
    {
        QString heading;
        std::vector<Tile> tiles;
    };

    static constexpr int MaxSide = 32'000; ///< pixels

    /// `tile`: pixels of a tile, to which larger pictures are scaled down. `columns`: tiles side by
    /// side.
    ContactSheet(const QSize& tile, int columns);

    /// The size that the sections take.
    QSize GetSize(const std::vector<Section>& sections) const;
    /// Needs a QGuiApplication, for the fonts.
    QImage Draw(const std::vector<Section>& sections) const;

private:
    int DrawSection(QPainter& painter, const Section& section, int top) const;
    void DrawTile(QPainter& painter, const Tile& tile, const QPoint& corner) const;
    int GetHeight(const Section& section) const;

    QSize m_tile;
    int m_columns;
};

} // namespace LumetraCli
